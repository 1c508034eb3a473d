#pragma once

#include "strahlmenge.h"

#include <optional>
#include <span>
#include <vector>

namespace varnoth {

/// What a stretch of time has shown of a beam. A pass counts until the next one, for as long as a pass holds;
/// time without measurements counts nowhere, and blanked time only as such.
struct Strahlwerte {
    Zeit gemessen{};     ///< it was free or interrupted
    Zeit unterbrochen{}; ///< of that
    Zeit geblankt{};
    std::uint32_t wechsel = 0; ///< between free and interrupted
    Zeit laengste{};           ///< the longest interruption
    std::optional<Zeit> letzterWechsel{};

    // Compared with its neighbours. A short run is one or two beams that differ from those on both sides.

    Zeit umFrei{};                   ///< those around it were free
    Zeit alleinUnterbrochen{};       ///< of that: it was interrupted, in a short run
    Zeit umUnterbrochen{};           ///< those around it were interrupted
    Zeit alleinFrei{};               ///< of that: it was free, in a short run
    std::uint32_t alleinWechsel = 0; ///< changes while those on both sides stayed and were alike

    /// The share of the measured time in which it was interrupted, 0 to 1.
    double Anteil() const { return gemessen > Zeit{} ? AlsZahl(unterbrochen) / AlsZahl(gemessen) : 0; }
    /// Whether it was measured, and interrupted each time.
    bool WarImmerUnterbrochen() const { return gemessen > Zeit{} && unterbrochen == gemessen; }

    bool operator==(const Strahlwerte&) const = default;

private:
    static double AlsZahl(Zeit zeit) { return static_cast<double>(zeit.count()); }
};

/// Counts what the passes say of a part's beams. Memory does not grow with time.
class Strahlzaehler {
public:
    /// The next pass that has measured the part; times do not go back.
    void Nimm(Zeit zeit, const Strahlsicht& sicht);
    /// Nothing is measured from a time on.
    void Unterbrich(Zeit zeit);
    /// As if a pass like the last one came at a time; at most so long after it as it holds.
    std::vector<Strahlwerte> Bis(Zeit zeit) const;

    /// The time that was measured.
    Zeit Gemessen() const { return gemessen; }
    std::uint64_t Durchgaenge() const { return durchgaenge; }

private:
    /// A beam's state, and in which company.
    enum class Stand : std::uint8_t { Unbekannt, Frei, Unterbrochen, Geblankt };
    enum class Umfeld : std::uint8_t { Gemischt, Frei, Unterbrochen };

    struct Folge {
        Stand stand;
        std::vector<std::size_t> strahlen;
    };

    std::optional<std::size_t> Nachbar(std::size_t strahl, bool oben) const;
    std::vector<Folge> Folgen() const;
    void Verbuche(Zeit dauer);
    void Stelle(const Strahlsicht& sicht, Zeit zeit);
    void ZaehleWechsel(const std::vector<Stand>& vorher, Zeit zeit);
    void BestimmeUmfeld();

    std::vector<Strahlwerte> werte;
    std::vector<Stand> staende;
    std::vector<Umfeld> umfelder;
    std::vector<Zeit> unterbrochenSeit; ///< how long the interruption that goes on lasts already
    Strahlsicht letzte;
    std::optional<Zeit> letzteZeit;
    Zeit ungebucht{};
    Zeit gemessen{};
    std::uint64_t durchgaenge = 0;
};

/// Counts over a time of a source, packet by packet, so that whoever waits can show how far it is and end it.
class Strahlauswertung {
public:
    /// @param teil 0..3
    Strahlauswertung(int teil, Zeitspanne zeitraum);

    /// Looks at so many further packets at most. The source is the same at each call, but may have grown.
    /// @return whether there is more to look at
    bool Weiter(const Messquelle& quelle, int pakete);
    /// How much of the time was looked at, 0 to 1.
    double Fortschritt(const Messquelle& quelle) const;

    /// What was found so far.
    std::vector<Strahlwerte> Werte() const;
    const Strahlzaehler& Zaehler() const { return zaehler; }
    const Zeitspanne& Zeitraum() const { return zeitraum; }
    int Teil() const { return teil; }
    /// The time that was looked at: it ends with the source while that has not reached the end of the time.
    Zeitspanne Betrachtet() const { return {zeitraum.von, std::max(zeitraum.von, betrachtetBis)}; }

private:
    void Nimm(const Messquelle& quelle, std::uint64_t nummer);

    int teil;
    Zeitspanne zeitraum;
    std::optional<std::uint64_t> naechstes;
    std::optional<Zeit> zuletzt; ///< what happened until then was counted
    Zeit betrachtetBis{};
    Strahlzaehler zaehler;
    Blankingkenntnis blanking;
};

/// The beams that are to be blanked: those that were interrupted in all the time that was measured, and those
/// that were blanked all along. 32 registers of a pattern.
Werte ZuBlankendes(std::span<const Strahlwerte> strahlen);
/// How many beams were interrupted in all the time that was measured.
int AnzahlImmerUnterbrochene(std::span<const Strahlwerte> strahlen);

} // namespace varnoth
