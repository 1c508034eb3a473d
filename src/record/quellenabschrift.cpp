#include "quellenabschrift.h"

#include <algorithm>
#include <utility>

namespace varnoth {

namespace {

constexpr std::uint64_t PaketeJeSchritt = 64;

} // namespace

Quellenabschrift::Quellenabschrift(const Messquelle& welche, std::unique_ptr<Aufzeichnungsform> welcheForm,
                                   Zeitspanne spanne)
    : quelle(welche), form(std::move(welcheForm)) {
    if (quelle.Erstes() == quelle.Ende())
        return;
    erstes = quelle.PaketUm(spanne.von);
    if (quelle.Spanne(erstes).bis < spanne.von)
        ++erstes;
    ende = std::max(erstes, quelle.PaketUm(spanne.bis) + 1);
    if (spanne.bis < quelle.Spanne().von)
        ende = erstes;
    naechstes = erstes;
    beginn = erstes < ende ? quelle.Spanne(erstes).von : spanne.von;
}

std::optional<std::string> Quellenabschrift::Weiter() {
    switch (schritt) {
    case Schritt::Beginn:
        schritt = Schritt::Pakete;
        return Beginne();
    case Schritt::Pakete:
        if (naechstes < ende)
            return NimmPakete();
        schritt = Schritt::Fertig;
        return form->Beende();
    case Schritt::Fertig:
        break;
    }
    return std::nullopt;
}

double Quellenabschrift::Anteil() const {
    if (schritt == Schritt::Fertig)
        return 1.0;
    return ende == erstes ? 0.0
                          : static_cast<double>(naechstes - erstes) / static_cast<double>(ende - erstes);
}

std::string Quellenabschrift::Beginne() {
    Messangaben angaben = quelle.Angaben();
    angaben.beginn += beginn;
    return form->Beginne(angaben, naechstes < ende ? quelle.Konfiguration(naechstes) : nullptr);
}

std::string Quellenabschrift::NimmPakete() {
    std::string bytes;
    const std::uint64_t bis = std::min(ende, naechstes + PaketeJeSchritt);
    for (; naechstes < bis; ++naechstes) {
        const auto paket = quelle.Lies(naechstes);
        if (paket == nullptr)
            continue;
        durchgaenge += paket->durchgaenge.size();
        bytes += form->Nimm(AbBeginn(*paket), quelle.Konfiguration(naechstes));
    }
    return bytes;
}

/// The packet in the time of the file.
Messpaket Quellenabschrift::AbBeginn(Messpaket paket) const {
    paket.spanne = {paket.spanne.von - beginn, paket.spanne.bis - beginn};
    for (Messdurchgang& durchgang : paket.durchgaenge)
        durchgang.uhr -= beginn;
    for (Messereignis& ereignis : paket.ereignisse)
        ereignis.laufzeit = std::max(Zeit(0), ereignis.laufzeit - beginn);
    return paket;
}

} // namespace varnoth
