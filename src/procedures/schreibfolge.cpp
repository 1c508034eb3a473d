#include "schreibfolge.h"

namespace varnoth {

namespace {

/// Every writable parameter of which it is known what the controller held.
Schreibauftrag Rueckweg(const Geraetestand& vorher) {
    Schreibauftrag auftrag{.abbild = vorher.abbild};
    for (const Parameterstelle& stelle : vorher.unbekannt)
        auftrag.stellen.erase(stelle);
    return auftrag;
}

Schreibfolge FolgeDesAbbruchs(const Schreibergebnis& ergebnis, const std::optional<Geraetestand>& vorher) {
    Schreibfolge folge;
    if (vorher)
        folge.naechster = Rueckweg(*vorher);
    else
        folge.naechster.stellen.clear();
    folge.befund = BefundDesAbbruchs(ergebnis.auftrag, ergebnis.spur, !folge.naechster.stellen.empty());
    return folge;
}

Schreibfolge FolgeDerPruefung(const Schreibergebnis& ergebnis) {
    Schreibauftrag naechster{.abbild = ergebnis.auftrag.abbild, .stellen = ergebnis.pruefung->abweichend};
    naechster.stellen.insert(ergebnis.pruefung->nichtVerglichen.begin(),
                             ergebnis.pruefung->nichtVerglichen.end());
    return {.befund = BefundDerPruefung(ergebnis.auftrag, *ergebnis.pruefung, ergebnis.ruecklesung),
            .naechster = std::move(naechster)};
}

} // namespace

std::optional<Schreibfolge> FolgeAus(const Schreibergebnis& ergebnis,
                                     const std::optional<Geraetestand>& vorher) {
    const bool nichtsGesendet = ergebnis.spur.geschrieben.empty() && ergebnis.spur.ungewiss.empty();
    if (!ergebnis.vollstaendig && !nichtsGesendet)
        return FolgeDesAbbruchs(ergebnis, vorher);
    if (ergebnis.pruefung && !ergebnis.pruefung->IstGut())
        return FolgeDerPruefung(ergebnis);
    return std::nullopt;
}

} // namespace varnoth
