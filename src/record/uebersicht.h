#pragma once

#include "abschnittsbloecke.h"
#include "messquelle.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace varnoth {

/// The whole of a source in stretches of time, each with what was seen in it at least once and always: enough
/// to draw all of it at once. A stretch is a second at first; where nothing was measured there is none. There
/// are never more than fit into the memory given: when it is used up, each two become one, and all that
/// follow are twice as long.
class Uebersicht {
public:
    explicit Uebersicht(std::size_t hoechstensBytes = std::size_t{48} << 20U);

    // Takes in what follows on what it has.

    void Nimm(const Messpaket& paket);
    void Nimm(const Messdurchgang& durchgang);
    void Nimm(const Messereignis& ereignis);
    /// What follows cannot be read.
    void NimmLuecke();
    /// Forgets what ended before a time.
    void VergissBis(Zeit laufzeit);

    /// Number of stretches, in order of time; they do not overlap.
    std::size_t Anzahl() const;
    /// The stretch of a time: the last one that begins at it or before; 0 for any earlier time.
    std::size_t AbschnittUm(Zeit laufzeit) const;

    // `i` is below Anzahl, `teil` 0..3.

    Zeitspanne Spanne(std::size_t i) const;
    /// Whether live data did not run, or the controller did not answer, at some time in it.
    bool HatLuecke(std::size_t i) const;
    Bitspanne Geraetestatus(std::size_t i) const;
    /// Passes in which the part was measured.
    std::uint32_t Durchgaenge(std::size_t i, int teil) const;
    /// A measured value: 0..17, as in Teilmessung::werte.
    Wertspanne Wert(std::size_t i, int teil, int wert) const;
    /// All of them.
    std::span<const Wertspanne> Werte(std::size_t i, int teil) const;
    /// Of every pass that asked the part, measured or not.
    Bitspanne Status(std::size_t i, int teil) const;
    /// The most beams the part had.
    int Strahlen(std::size_t i, int teil) const;
    /// A bit a beam, as in strahlbits.h: interrupted in one pass at least. None where it was not measured.
    std::span<const std::uint16_t> UnterbrochenEinmal(std::size_t i, int teil) const;
    /// Interrupted in every pass.
    std::span<const std::uint16_t> UnterbrochenImmer(std::size_t i, int teil) const;

    /// Columns of time, each as wide: column n reaches from n times the width to the next.
    struct Spalten {
        Zeit breite{1};
        std::int64_t von = 0;
        std::int64_t bis = 0; ///< the column behind the last one
        unsigned teile = ~0U; ///< of which parts values are wanted, a bit each
        std::function<Messspalte&(std::int64_t nummer)> hole;
    };
    /// Adds to each column what was seen in all stretches that reach into it.
    void Trage(const Spalten& spalten) const;

private:
    struct Teilabschnitt {
        std::uint32_t durchgaenge = 0;
        Bitspanne status{};
        std::int16_t strahlen = 0;
        std::array<Wertspanne, AnzahlMesswertregister> werte{};
        std::vector<std::uint16_t> unterbrochen; ///< those that were once, then as many that were always
    };
    struct Abschnitt {
        std::int64_t nummer = 0; ///< its beginning in lengths of a stretch
        bool luecke = false;
        Bitspanne geraetestatus{};
        std::array<Teilabschnitt, AnzahlOptikteile> teile{};
    };

    static std::size_t Bytes(const Abschnitt& abschnitt);
    static void Nimm(Messspalte& ziel, const Abschnitt& abschnitt, unsigned teile);
    static void Nimm(Teilabschnitt& ziel, const Teilmessung& messung);
    static void Nimm(Teilabschnitt& ziel, const Teilabschnitt& spaeterer);
    static void Erweitere(Teilabschnitt& ziel, std::size_t anzahl);
    const Teilabschnitt& Teil(std::size_t i, int teil) const;
    Abschnitt& AbschnittFuer(Zeit laufzeit);
    void Schliesse(const Abschnitt& abschnitt);
    void Unterbrich();
    void Verdopple();

    std::size_t hoechstens;
    std::size_t belegt = 0;
    Zeit laenge = std::chrono::seconds(1);
    std::deque<Abschnitt> abschnitte;
    Abschnittsbloecke bloecke;    ///< of all stretches but the last one, which may still grow
    std::uint64_t vergessene = 0; ///< stretches that were before the first one
    std::optional<Zeit> letzter;  ///< when the last pass ended
    bool unterbrochen = false;    ///< since then
};

} // namespace varnoth
