#include "busauswahl.h"

#include <algorithm>

namespace varnoth {

void Busauswahl::Setze(const Busfilter& neuer) {
    filter = neuer;
    nummern.clear();
    naechste = protokoll->Erster();
}

std::size_t Busauswahl::Weiter(std::size_t hoechstens) {
    naechste = std::max(naechste, protokoll->Erster());
    const std::uint64_t ende = naechste + std::min<std::uint64_t>(hoechstens, Ausstehend());
    const std::size_t vorher = nummern.size();
    for (; naechste < ende; ++naechste)
        if (Passt(protokoll->Hole(naechste), filter))
            nummern.push_back(naechste);
    return nummern.size() - vorher;
}

std::size_t Busauswahl::Vergiss() {
    const std::size_t vergessene = PlatzAb(protokoll->Erster());
    nummern.erase(nummern.begin(), nummern.begin() + static_cast<std::ptrdiff_t>(vergessene));
    return vergessene;
}

std::size_t Busauswahl::Ausstehend() const {
    const std::uint64_t ab = std::max(naechste, protokoll->Erster());
    return ab > protokoll->Letzter() ? 0 : static_cast<std::size_t>(protokoll->Letzter() - ab + 1);
}

std::size_t Busauswahl::PlatzAb(std::uint64_t nummer) const {
    return static_cast<std::size_t>(std::ranges::lower_bound(nummern, nummer) - nummern.begin());
}

} // namespace varnoth
