#include "fehlschlagsumme.h"

namespace varnoth {

Fehlschlagsumme::Fehlschlagsumme(Ereignisspeicher& wohin) : ziel(&wohin) {}

void Fehlschlagsumme::Nimm(const std::array<unsigned long, Enden>& anzahl, Zeit uhr, Systemzeit zeit) {
    for (std::size_t ende = 1; vorher && ende < Enden; ++ende) {
        Strecke& strecke = strecken[ende];
        if (strecke.nummer &&
            (uhr - strecke.letzter > Ruhe || uhr - strecke.ereignis.laufzeit >= LaengsteStrecke))
            Schliesse(strecke);
        if (anzahl[ende] > (*vorher)[ende])
            Zaehle(strecke, {.art = Ereignisart::Fehlgeschlagen,
                             .zeit = zeit,
                             .laufzeit = uhr,
                             .offen = true,
                             .anzahl = static_cast<std::uint32_t>(anzahl[ende] - (*vorher)[ende]),
                             .neu = static_cast<std::int32_t>(ende)});
    }
    vorher = anzahl;
}

void Fehlschlagsumme::Zaehle(Strecke& strecke, const Ereignis& neues) {
    strecke.letzter = neues.laufzeit;
    if (!strecke.nummer) {
        strecke.ereignis = neues;
        strecke.nummer = ziel->Merke(neues);
        return;
    }
    strecke.ereignis.anzahl += neues.anzahl;
    strecke.ereignis.dauer = neues.laufzeit - strecke.ereignis.laufzeit;
    ziel->Aendere(*strecke.nummer, strecke.ereignis);
}

void Fehlschlagsumme::Schliesse(Strecke& strecke) {
    strecke.ereignis.offen = false;
    ziel->Aendere(*strecke.nummer, strecke.ereignis);
    strecke.nummer.reset();
}

} // namespace varnoth
