#include "ereignisableitung.h"

#include "statusbits.h"

#include <cstdlib>

namespace varnoth {

namespace {

constexpr std::int32_t Merkmale = 0x3F; // of an optical part's status: what it says of beams and object

Ereignisart ArtVon(Messereignisart art) {
    switch (art) {
    case Messereignisart::LiveBegonnen:
        return Ereignisart::LiveBegonnen;
    case Messereignisart::LiveBeendet:
        return Ereignisart::LiveBeendet;
    case Messereignisart::Verloren:
        return Ereignisart::Verloren;
    case Messereignisart::Zurueck:
        return Ereignisart::Zurueck;
    case Messereignisart::Verworfen:
        return Ereignisart::Verworfen;
    case Messereignisart::Notiz:
        break;
    }
    return Ereignisart::Notiz;
}

} // namespace

Ereignisableitung::Ereignisableitung(Ereignisspeicher& wohin) : ziel(&wohin) {
    for (std::size_t teil = 0; teil < AnzahlOptikteile; ++teil) {
        anwesenheit[teil].art = Ereignisart::TeilGewechselt;
        teilstatus[teil].art = Ereignisart::TeilStatus;
        anwesenheit[teil].teil = teilstatus[teil].teil = static_cast<std::int8_t>(teil);
    }
}

void Ereignisableitung::Nimm(const Messdurchgang& durchgang) {
    const std::int32_t status = durchgang.geraetestatus;
    Betrachte(ausgang, (status & geraetestatus::PnpAktiv) != 0 ? 1 : 0, durchgang);
    Betrachte(geraet, status & ~geraetestatus::PnpAktiv, durchgang);
    for (std::size_t teil = 0; teil < AnzahlOptikteile; ++teil) {
        const Teilmessung& messung = durchgang.teile[teil];
        Betrachte(anwesenheit[teil], messung.vorhanden ? 1 : 0, durchgang);
        if (messung.vorhanden) {
            Betrachte(teilstatus[teil], messung.status & Merkmale, durchgang);
        } else {
            Schliesse(teilstatus[teil]);
            teilstatus[teil].wert.reset();
        }
    }
}

void Ereignisableitung::Nimm(const Messereignis& quellereignis) {
    Ereignis ereignis{.art = ArtVon(quellereignis.art),
                      .zeit = quellereignis.zeit,
                      .laufzeit = quellereignis.laufzeit,
                      .text = quellereignis.text};
    Verstreiche(quellereignis.laufzeit);
    if (ereignis.art == Ereignisart::Verworfen) {
        ereignis.anzahl = static_cast<std::uint32_t>(std::strtoul(ereignis.text.c_str(), nullptr, 10));
        ereignis.text.clear();
    }
    if (ereignis.art == Ereignisart::Zurueck && verloren)
        ereignis.dauer = ereignis.laufzeit - *verloren;
    ziel->Merke(ereignis);
    if (ereignis.art == Ereignisart::Verloren)
        verloren = ereignis.laufzeit;
    else if (ereignis.art != Ereignisart::Notiz && ereignis.art != Ereignisart::Verworfen)
        verloren.reset();
    if (ereignis.art == Ereignisart::LiveBegonnen || ereignis.art == Ereignisart::LiveBeendet)
        Vergiss();
}

void Ereignisableitung::Nimm(const Messpaket& paket) {
    auto ereignis = paket.ereignisse.begin();
    for (const Messdurchgang& durchgang : paket.durchgaenge) {
        for (; ereignis != paket.ereignisse.end() && ereignis->laufzeit <= durchgang.uhr; ++ereignis)
            Nimm(*ereignis);
        Nimm(durchgang);
    }
    for (; ereignis != paket.ereignisse.end(); ++ereignis)
        Nimm(*ereignis);
}

void Ereignisableitung::Verstreiche(Zeit laufzeit) {
    const auto pruefe = [&](Groesse& groesse) {
        if (IstVorbei(groesse, laufzeit))
            Schliesse(groesse);
    };
    pruefe(ausgang);
    pruefe(geraet);
    for (std::size_t teil = 0; teil < AnzahlOptikteile; ++teil) {
        pruefe(anwesenheit[teil]);
        pruefe(teilstatus[teil]);
    }
}

void Ereignisableitung::Vergiss() {
    const auto vergiss = [&](Groesse& groesse) {
        Schliesse(groesse);
        groesse.wert.reset();
    };
    vergiss(ausgang);
    vergiss(geraet);
    for (std::size_t teil = 0; teil < AnzahlOptikteile; ++teil) {
        vergiss(anwesenheit[teil]);
        vergiss(teilstatus[teil]);
    }
}

bool Ereignisableitung::IstVorbei(const Groesse& groesse, Zeit laufzeit) const {
    return groesse.nummer &&
           (laufzeit - groesse.gewechselt > Schubruhe || laufzeit - groesse.schub.laufzeit >= LaengsterSchub);
}

void Ereignisableitung::Betrachte(Groesse& groesse, std::int32_t wert, const Messdurchgang& durchgang) {
    if (IstVorbei(groesse, durchgang.uhr))
        Schliesse(groesse);
    if (groesse.wert == wert)
        return;
    if (!groesse.wert) {
        groesse.gewechselt = durchgang.uhr;
    } else if (!groesse.nummer) {
        BeginneSchub(groesse, wert, durchgang);
    } else {
        ++groesse.schub.anzahl;
        groesse.schub.neu = wert;
        groesse.schub.dauer = durchgang.uhr - groesse.schub.laufzeit;
        groesse.gewechselt = durchgang.uhr;
        ziel->Aendere(*groesse.nummer, groesse.schub);
    }
    groesse.wert = wert;
}

void Ereignisableitung::BeginneSchub(Groesse& groesse, std::int32_t wert, const Messdurchgang& durchgang) {
    groesse.schub = {.art = groesse.art,
                     .zeit = durchgang.zeit,
                     .laufzeit = durchgang.uhr,
                     .teil = groesse.teil,
                     .offen = true,
                     .alt = *groesse.wert,
                     .neu = wert};
    if (groesse.art == Ereignisart::TeilGewechselt && wert != 0)
        groesse.schub.dauer = durchgang.uhr - groesse.gewechselt;
    groesse.gewechselt = durchgang.uhr;
    groesse.nummer = ziel->Merke(groesse.schub);
}

void Ereignisableitung::Schliesse(Groesse& groesse) {
    if (!groesse.nummer)
        return;
    groesse.schub.offen = false;
    ziel->Aendere(*groesse.nummer, groesse.schub);
    groesse.nummer.reset();
}

} // namespace varnoth
