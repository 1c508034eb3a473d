#pragma once

#include "messquelle.h"

#include <array>
#include <cstdint>
#include <memory>

namespace varnoth {

/// A bit a beam, as in strahlbits.h.
using Strahlmenge = std::array<std::uint16_t, MaxStrahlregister>;

/// Whether a beam (index) is in it; false for one that it does not reach.
bool Enthaelt(const Strahlmenge& menge, int strahl);
/// Puts a beam in; one that it does not reach is ignored.
void FuegeHinzu(Strahlmenge& menge, int strahl);
/// The beams 0 .. anzahl - 1.
Strahlmenge ErsteStrahlen(int anzahl);

/// What a pass, or a stretch of time, has seen of a part's beams: those that were interrupted at least once
/// and those that were free at least once. What is blanked is in neither.
struct Strahlsicht {
    int strahlen = 0;
    Strahlmenge unterbrochen{};
    Strahlmenge frei{};

    /// Takes in what was seen at another time.
    void Nimm(const Strahlsicht& andere);
    bool operator==(const Strahlsicht&) const = default;
};

/// What a pass has seen of a part that it has measured.
Strahlsicht SichtAus(const Teilmessung& messung, const Strahlmenge& geblankt);

/// The blanking patterns in force over a source's time. It remembers the last one that was asked for.
class Blankingkenntnis {
public:
    /// The beams of a part that were blanked at a packet's beginning; none where that is not known.
    const Strahlmenge& Um(const Messquelle& quelle, std::uint64_t paket, int teil);

private:
    std::shared_ptr<const Abbild> abbild;
    int fuerTeil = -1;
    Strahlmenge geblankt{};
};

} // namespace varnoth
