#pragma once

#include "messquelle.h"

#include <cstdint>
#include <vector>

namespace varnoth {

/// The notes of a source, gathered from its packets in steps: each packet is looked at once, and the newest
/// as long as it grows.
class Notizliste {
public:
    /// The most notes that are kept; further ones are passed over.
    static constexpr std::size_t Hoechstzahl = 10000;

    /// Forgets everything: another source is looked at.
    void Beginne();
    /// Looks at packets that were not looked at yet, the newest first, `pakete` of them at most. True when
    /// there are more or fewer notes than before.
    bool Suche(const Messquelle& quelle, int pakete);
    /// Looks once more at the packet of a time, since somebody has made a note of it. True when there is one
    /// more.
    bool SiehNach(const Messquelle& quelle, Zeit laufzeit);
    /// Whether all packets have been looked at.
    bool IstFertig(const Messquelle& quelle) const;

    /// In order of time.
    const std::vector<Messereignis>& Notizen() const { return notizen; }

private:
    bool Sieh(const Messquelle& quelle, std::uint64_t nummer);
    bool Vergiss(Zeit vor);

    std::vector<Messereignis> notizen;
    std::uint64_t von = 0; ///< of the packets looked at
    std::uint64_t bis = 0;
    Zeit gewachsenBis{-1}; ///< the newest packet when it was looked at
};

} // namespace varnoth
