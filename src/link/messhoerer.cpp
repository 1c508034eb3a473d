#include "messhoerer.h"

#include "startzustand.h"

#include <algorithm>
#include <vector>

namespace varnoth::modMesshoerer {

namespace {

std::vector<Messhoerer*> hoerer;
const Startwert startwert(hoerer);

} // namespace

void MeldeAn(Messhoerer& neuer) {
    if (std::ranges::find(hoerer, &neuer) == hoerer.end())
        hoerer.push_back(&neuer);
}

void MeldeAb(Messhoerer& alter) {
    std::erase(hoerer, &alter);
}

bool HoertJemand() {
    return !hoerer.empty();
}

bool Braucht(int teil) {
    return std::ranges::any_of(hoerer, [teil](const Messhoerer* einer) { return einer->Braucht(teil); });
}

bool LaeuftAllein() {
    return std::ranges::any_of(hoerer, &Messhoerer::LaeuftAllein);
}

void Melde(const Messdurchgang& durchgang) {
    for (Messhoerer* const einer : hoerer)
        einer->Hoere(durchgang);
}

void Melde(Liveereignisart art) {
    if (!hoerer.empty())
        Melde(Liveereignis{.art = art, .zeit = std::chrono::system_clock::now(), .uhr = DieUmgebung().Uhr()});
}

void Melde(const Liveereignis& ereignis) {
    for (Messhoerer* const einer : hoerer)
        einer->Hoere(ereignis);
}

} // namespace varnoth::modMesshoerer
