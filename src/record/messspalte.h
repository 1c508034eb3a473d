#pragma once

#include "messdurchgang.h"
#include "wertspanne.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace varnoth {

/// The measured values of a part that a curve can show: TU, HU, ZU, TNU, HNU, ZNU.
inline constexpr int AnzahlKurvenwerte = 6;
/// Where their minimum and maximum registers begin among the measured values.
inline constexpr std::size_t ErstesMinimum = AnzahlKurvenwerte;
inline constexpr std::size_t ErstesMaximum = 2 * ErstesMinimum;

/// What was seen of an optical part in a stretch of time.
struct Teilspalte {
    bool gemessen = false;     ///< whether it was measured at all; else nothing of it is known
    std::int16_t strahlen = 0; ///< the most beams it had
    Bitspanne status{};
    /// Each value, and what its minimum and maximum registers reach over.
    std::array<Wertspanne, AnzahlKurvenwerte> aktuell{};
    std::array<Wertspanne, AnzahlKurvenwerte> band{};

    void Nimm(const Teilmessung& messung);
    void Nimm(const Teilspalte& andere);
    bool operator==(const Teilspalte&) const = default;
};

/// What was seen in a stretch of time that is drawn as one column.
struct Messspalte {
    bool durchgang = false; ///< whether a pass ended in it
    bool luecke = false;    ///< whether live data began, ended, was lost or came back in it
    Bitspanne geraetestatus{};
    std::array<Teilspalte, AnzahlOptikteile> teile{};

    /// Takes in a pass; of the parts only those in `teile`, a bit each.
    void Nimm(const Messdurchgang& durchgang, unsigned teile = ~0U);
    /// Takes in what was seen in another stretch of time; of the parts likewise.
    void Nimm(const Messspalte& andere, unsigned teile = ~0U);
    bool operator==(const Messspalte&) const = default;
};

} // namespace varnoth
