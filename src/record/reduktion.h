#pragma once

#include "messquelle.h"
#include "messspalte.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <vector>

namespace varnoth {

class Uebersicht;

/// What a column means once those around it are known.
enum class Spaltensinn : std::uint8_t {
    Gemessen, ///< it has values of its own
    Gehalten, ///< no pass ended in it, the next one was not late: the value before still holds
    Luecke,   ///< nothing is known
    Leer,     ///< before the first pass, behind the last one, after now
};

/// Columns of equal width over a source, kept from one picture to the next: only what is new or was not there
/// is worked out. Column n reaches from n times the width to the next. A column holds all that was seen in
/// it, so that a spike of a single pass is in the column of its time however wide that is.
class Spaltenspeicher {
public:
    /// Passes further apart than this have a gap between them.
    static constexpr Zeit LaengstePause = std::chrono::seconds(3);
    static constexpr unsigned AlleTeile = (1U << AnzahlOptikteile) - 1;

    /// Forgets everything; columns are `breite` wide from now on (1 µs at least), and of a column is kept
    /// what was seen of the parts in `teile`, a bit each.
    void Beginne(Zeit breite, unsigned teile = AlleTeile);
    Zeit Breite() const { return breite; }
    unsigned Teile() const { return teile; }

    /// Keeps `anzahl` columns from `erste` on, and drops all others. Whatever the source has got since the
    /// last call is missing then, and so is what ended with it; what it has forgotten is gone at once. All of
    /// them have at least what the overview knows of their time. Gives the first column that may have
    /// changed, those that are new included.
    std::optional<std::int64_t> Decke(const Messquelle& quelle, std::int64_t erste, std::int64_t anzahl);
    /// Reads packets where columns are narrower than what the overview knows, `pakete` of them at most.
    /// Gives the first column that may have changed.
    std::optional<std::int64_t> Verfeinere(const Messquelle& quelle, int pakete);
    /// Whether all columns are as exact as they become.
    bool IstFertig() const;

    std::int64_t Erste() const { return basis; }
    std::int64_t Anzahl() const { return static_cast<std::int64_t>(spalten.size()); }
    /// A column that is kept.
    const Messspalte& Spalte(std::int64_t nummer) const { return An(nummer).spalte; }
    /// The column in which a time lies.
    std::int64_t NummerUm(Zeit zeit) const;
    Zeit Beginn(std::int64_t nummer) const { return nummer * breite; }

    /// What each column kept means; nothing is known of what comes after `jetzt`.
    std::vector<Spaltensinn> Deute(Zeit jetzt) const;

private:
    enum class Guete : std::uint8_t { Fehlt, Grob, Genau };
    struct Platz {
        Guete guete = Guete::Fehlt;
        Messspalte spalte{};
    };

    const Platz& An(std::int64_t nummer) const { return spalten[static_cast<std::size_t>(nummer - basis)]; }
    Platz& An(std::int64_t nummer) { return spalten[static_cast<std::size_t>(nummer - basis)]; }
    std::int64_t Ende() const { return basis + Anzahl(); }
    void Schiebe(std::int64_t erste, std::int64_t anzahl);
    void FolgeDerQuelle(const Messquelle& quelle);
    std::int64_t VergissBis(std::int64_t ende);
    std::int64_t FuelleGrob(const Messquelle& quelle);
    void NimmAbschnitte(const Uebersicht& uebersicht, std::int64_t von, std::int64_t bis);
    bool GenuegtUebersicht(const Messquelle& quelle) const;
    std::int64_t ErsteOhne(Guete guete, std::int64_t von) const;
    void NimmGenau(const std::vector<std::shared_ptr<const Messpaket>>& pakete, std::int64_t von,
                   std::int64_t bis);

    Zeit breite{1000};
    unsigned teile = AlleTeile;
    std::int64_t basis = 0;
    std::deque<Platz> spalten;
    Zeit anfang{0};
    Zeit bekanntBis{-1};
    bool fertig = true;
};

} // namespace varnoth
