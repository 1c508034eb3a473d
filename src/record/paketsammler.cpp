#include "paketsammler.h"

#include "messpaket.h"

#include <algorithm>
#include <utility>

namespace varnoth {

void Paketsammler::Nimm(const Messdurchgang& durchgang) {
    const Zeit stelle = Reihe(durchgang.uhr);
    paket.durchgaenge.push_back(durchgang);
    paket.durchgaenge.back().zeit = std::chrono::floor<std::chrono::microseconds>(durchgang.zeit);
    paket.durchgaenge.back().uhr = stelle;
}

void Paketsammler::Nimm(Messereignis ereignis) {
    ereignis.zeit = std::chrono::floor<std::chrono::microseconds>(ereignis.zeit);
    const Zeit stelle = Reihe(ereignis.laufzeit);
    if (ereignis.art != Messereignisart::Notiz)
        ereignis.laufzeit = stelle;
    const auto danach =
        std::ranges::upper_bound(paket.ereignisse, ereignis.laufzeit, {}, &Messereignis::laufzeit);
    paket.ereignisse.insert(danach, std::move(ereignis));
}

bool Paketsammler::IstVoll() const {
    return paket.spanne.bis - paket.spanne.von >= Paketlaenge ||
           paket.durchgaenge.size() >= GroessterPaketinhalt ||
           paket.ereignisse.size() >= GroessterPaketinhalt;
}

Messpaket Paketsammler::Entnimm() {
    return std::exchange(paket, {});
}

/// The time at which the next of what the packet holds is put.
Zeit Paketsammler::Reihe(Zeit laufzeit) {
    letzte = std::max(letzte, laufzeit);
    if (IstLeer())
        paket.spanne.von = letzte;
    paket.spanne.bis = letzte;
    return letzte;
}

} // namespace varnoth
