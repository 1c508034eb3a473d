#pragma once

#include "strahlfarben.h"
#include "strahlreduktion.h"

#include <QRgb>

#include <array>
#include <cstddef>
#include <vector>

namespace varnoth {

/// The pixels of the waterfall: each kind of cell has a colour of its own and a pattern, by which they differ
/// without colour too. Patterns lie fast in time, so that they slide with what they show.
class Zellenmuster {
public:
    static constexpr int AnzahlArten = 7;

    Zellenmuster() = default;
    /// @param dichte device pixels to a logical one
    Zellenmuster(const Strahlfarben& farben, double dichte);

    /// After how many pixels each way a pattern repeats.
    int Seite() const { return seite; }
    /// So many pixels of a kind: those of row `y`, which may be any from 0 on.
    const QRgb* Zeile(Zellenart art, int y) const {
        return bilder[static_cast<std::size_t>(art)].data() + static_cast<std::ptrdiff_t>(y % seite) * seite;
    }

private:
    int seite = 1;
    std::array<std::vector<QRgb>, AnzahlArten> bilder{};
};

} // namespace varnoth
