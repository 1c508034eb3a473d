#include "zustandsmerker.h"

namespace varnoth {

void Zustandsmerker::Merke(const Ereignis& ereignis) {
    const bool zurueck = letztes && ereignis.neu == davor && ereignis.alt == letztes->alt &&
                         ereignis.laufzeit - gewechselt <= Ruhe &&
                         ereignis.laufzeit - letztes->laufzeit < LaengstesHinUndHer;
    davor = letztes ? letztes->neu : -1;
    gewechselt = ereignis.laufzeit;
    if (!zurueck) {
        letztes = ereignis;
        nummer = speicher->Merke(ereignis);
        return;
    }
    ++letztes->anzahl;
    letztes->neu = ereignis.neu;
    letztes->dauer = ereignis.laufzeit - letztes->laufzeit;
    speicher->Aendere(nummer, *letztes);
}

} // namespace varnoth
