#pragma once

#include "messquelle.h"
#include "reduktion.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace varnoth {

/// A measured value (0..5: TU, HU, ZU, TNU, HNU, ZNU) of an optical part (0..3).
struct Messreihe {
    int teil = 0;
    int wert = 0;

    bool operator==(const Messreihe&) const = default;
};

inline constexpr int AnzahlMessreihen = AnzahlOptikteile * AnzahlKurvenwerte;

/// All of them, one part after the other.
inline constexpr Messreihe ReiheAn(int stelle) {
    return {stelle / AnzahlKurvenwerte, stelle % AnzahlKurvenwerte};
}

/// "K1 TU", in the language in use.
std::string Reihenname(Messreihe reihe);

/// The beam spacing of each part in millimetres; 0 where none is known.
using Strahlabstaende = std::array<int, AnzahlOptikteile>;

/// Those of the newest configuration of a source.
Strahlabstaende StrahlabstaendeVon(const Messquelle& quelle);

/// What a trend shows.
struct Verlaufswahl {
    std::uint32_t kurven = 0; ///< a bit for each Messreihe, in their order
    bool band = true;         ///< what minimum and maximum registers reach over
    bool zustaende = true;    ///< status bits and switching output
    bool millimeter = false;  ///< instead of beams

    bool Hat(Messreihe reihe) const;
    void Setze(Messreihe reihe, bool gewaehlt);
    /// The curves chosen, in their order.
    std::vector<Messreihe> Reihen() const;
    /// Whether a curve of the part is chosen.
    bool HatTeil(int teil) const;

    bool operator==(const Verlaufswahl&) const = default;
};

/// TU, HU and ZU of a part.
Verlaufswahl AnfangswahlFuer(int teil);

/// The first part that the newest pass of a source found present; the first one where none was.
int ErsterTeil(const Messquelle& quelle);

/// Where a value stands on the axis of a trend: as it is, or in millimetres. A number of beams is as wide as
/// they are. Nothing where the spacing is not known; the lower end of the part for the number that means
/// none.
std::optional<double> Achsenwert(const Verlaufswahl& wahl, const Strahlabstaende& abstaende, Messreihe reihe,
                                 int wert);

/// A value as it is read: "15", "70 mm"; a dash for no beam in millimetres.
std::string Werttext(const Verlaufswahl& wahl, const Strahlabstaende& abstaende, Messreihe reihe, int wert);

} // namespace varnoth
