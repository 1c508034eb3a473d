#include "paketmerker.h"

#include <algorithm>
#include <utility>

namespace varnoth {

namespace {

constexpr std::size_t GroessterUmfang = 20'000; // passes and events, about 15 MB
constexpr std::size_t MeistePakete = 200;

} // namespace

std::shared_ptr<const Messpaket> Paketmerker::Hole(std::uint64_t nummer) {
    const auto stelle = std::ranges::find(gemerkte, nummer, &Gemerktes::nummer);
    if (stelle == gemerkte.end())
        return nullptr;
    gemerkte.splice(gemerkte.begin(), gemerkte, stelle);
    return gemerkte.front().paket;
}

void Paketmerker::Merke(std::uint64_t nummer, std::shared_ptr<const Messpaket> paket) {
    Vergiss(nummer);
    umfang += Umfang(*paket);
    gemerkte.push_front({nummer, std::move(paket)});
    while (gemerkte.size() > 1 && (umfang > GroessterUmfang || gemerkte.size() > MeistePakete))
        Vergiss(gemerkte.back().nummer);
}

void Paketmerker::Vergiss(std::uint64_t nummer) {
    const auto stelle = std::ranges::find(gemerkte, nummer, &Gemerktes::nummer);
    if (stelle == gemerkte.end())
        return;
    umfang -= Umfang(*stelle->paket);
    gemerkte.erase(stelle);
}

std::size_t Paketmerker::Umfang(const Messpaket& paket) {
    return paket.durchgaenge.size() + paket.ereignisse.size();
}

} // namespace varnoth
