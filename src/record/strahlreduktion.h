#pragma once

#include "strahlmenge.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace varnoth {

/// What is known of a part in a stretch of time.
enum class Spaltenart : std::uint8_t {
    Leer,          ///< the source does not reach there
    Luecke,        ///< live data did not run, or the controller did not answer
    NichtGemessen, ///< the passes have not measured the part
    Gemessen,
};

/// A part in a stretch of time, all its beams.
struct Strahlspalte {
    Spaltenart art = Spaltenart::Leer;
    bool luecke = false; ///< at some time in it nothing was measured
    bool genau = false;  ///< taken from the passes; else from the overview, whose stretches reach further
    Strahlsicht sicht{};

    bool operator==(const Strahlspalte&) const = default;
};

/// A part's past in columns of equal time, for a picture. Column k goes from k to k + 1 column widths of the
/// source's time, so that columns stay what they are while the picture slides. Wide columns come from the
/// source's overview; for narrow ones its packets are read, so many at each call.
class Strahlreduktion {
public:
    /// What the columns are to show. `breite` is above 0. Another part or width forgets all columns.
    void Setze(int teil, Zeit breite);
    int Teil() const { return teil; }
    Zeit Breite() const { return breite; }
    /// Another source is looked at from now on.
    void Vergiss();

    /// Brings `anzahl` columns from `erste` on up to date.
    /// @param pakete how many packets it may read at most
    /// @return false when another call would show more: not all packets were read
    bool Rechne(const Messquelle& quelle, std::int64_t erste, int anzahl, int pakete);

    /// The column as of the last call; an empty one where that did not reach.
    const Strahlspalte& Spalte(std::int64_t nummer) const;
    /// Counts the columns that were calculated so far.
    std::int64_t Gerechnete() const { return gerechnete; }

private:
    struct Lage;
    class Leser;

    Zeit Beginn(std::int64_t nummer) const { return nummer * breite; }
    void Verschiebe(std::int64_t neueErste, int anzahl);
    std::size_t Platz(std::int64_t nummer) const { return static_cast<std::size_t>(nummer - erste); }
    Strahlspalte& Hole(std::int64_t nummer) { return spalten[Platz(nummer)]; }
    bool BrauchtPakete(const Messquelle& quelle, std::int64_t nummer) const;
    void RechneAusUebersicht(const Messquelle& quelle, std::int64_t nummer);
    std::int64_t RechneAusPaketen(const Messquelle& quelle, Leser& leser, std::int64_t von, std::int64_t bis);
    Lage LageVor(const Messquelle& quelle, Leser& leser, Zeit zeit);
    void Schliesse(const Messquelle& quelle, std::int64_t nummer, const Lage& lage);

    int teil = 0;
    Zeit breite{1};
    std::int64_t erste = 0;
    std::vector<Strahlspalte> spalten;
    std::vector<bool> fertig; ///< columns that no call would change
    Blankingkenntnis blanking;
    std::int64_t gerechnete = 0;
};

/// What a cell of the picture shows, those first that give way where several share a cell.
enum class Zellenart : std::uint8_t {
    Leer,
    Luecke,
    NichtGemessen,
    Frei,
    Geblankt,
    Zeitweise, ///< interrupted in some passes
    Unterbrochen,
};

/// The beams (index, both included) that a row of pixels shows; none where `von` is above `bis`.
struct Strahlreihe {
    int von = 0;
    int bis = -1;

    bool operator==(const Strahlreihe&) const = default;
};

/// The rows of a picture from the top on, in which the beams from position `unten` on stand, `anzahl` of
/// them, the lowest at the bottom. Every beam has a row: where there are more beams than rows, each shows all
/// that touch it.
std::vector<Strahlreihe> Strahlreihen(int hoehe, double unten, double anzahl, int strahlen);

/// A column row by row. Where beams share a row, one that was interrupted is shown before all others.
void FuelleZellen(const Strahlspalte& spalte, const std::vector<Strahlreihe>& reihen,
                  std::vector<Zellenart>& zellen);

/// What a column shows of one beam (index).
Zellenart Strahlzelle(const Strahlspalte& spalte, int strahl);

} // namespace varnoth
