#include "austausch.h"

#include "antwortempfang.h"
#include "austauschstand.h"
#include "erkenner.h"
#include "klaerung.h"
#include "leitungsstatistik.h"
#include "mithoeren.h"
#include "rahmen.h"
#include "schnittstelle.h"
#include "startzustand.h"

#include <algorithm>
#include <utility>

namespace varnoth::modAustausch {

namespace {

using namespace modSchnittstelle;
using modMithoeren::Ausgang;

struct Zustand {
    int gestoert = 0; ///< exchanges that must succeed until the line counts as undisturbed
    unsigned long beachteteBrueche = 0;
};

Zustand zustand;
const Startwert startwert(zustand);

/// On a line that was disturbed lately a reply that comes late may be another's, sent a second time, while
/// its own is lost: nothing but its time tells that.
bool IstZweifelhaft(Verlass verlass) {
    return zustand.gestoert > 0 && verlass == Verlass::Wiederholbar && KamSpaet();
}

Ausgang TauscheAus(const std::string& anforderung, Erkenner& erkenner, Verlass verlass) {
    OeffneWieder();
    DerStand().unruhig = false;
    if (!BereiteUndSende(anforderung, verlass))
        return Ausgang::NichtBereit;
    std::string strom;
    if (DerStand().unruhig && anforderung == IdentifikationsAnforderung()) {
        if (!EmpfangeUnterAnderem(erkenner))
            return Ausgang::Ausgeblieben;
    } else if (!Empfange(erkenner, strom)) {
        BewerteScheitern(anforderung, strom);
        return erkenner.Fertig() ? Ausgang::Pruefsumme : Ausgang::Ausgeblieben;
    }
    if (KamZuFrueh() && !DerStand().unruhig) {
        DerStand().gewissheit.Gebrochen();
        return Ausgang::ZuFrueh;
    }
    if (IstZweifelhaft(verlass)) {
        BewerteScheitern(anforderung, strom);
        return Ausgang::ZuSpaet;
    }
    BewerteErfolg(anforderung, erkenner, strom);
    return Ausgang::Gelungen;
}

/// An exchange that failed, or a break before it, tells that the line is disturbed.
void MerkeStoerung(bool gelungen) {
    constexpr int Nachwirkung = 1000;
    const bool bricht = std::exchange(zustand.beachteteBrueche, Brueche()) != zustand.beachteteBrueche;
    zustand.gestoert = gelungen && !bricht ? std::max(zustand.gestoert - 1, 0) : Nachwirkung;
}

} // namespace

bool Tausche(const std::string& anforderung, Erkenner& erkenner, Verlass verlass) {
    modLeitungsstatistik::Beginnt();
    const Ausgang ausgang = TauscheAus(anforderung, erkenner, verlass);
    const bool gelungen = ausgang == Ausgang::Gelungen;
    const bool portOffen = GetPortIstOffen() == True;
    MerkeStoerung(gelungen);
    modLeitungsstatistik::Endet(gelungen, portOffen);
    modMithoeren::Endet(Austauschart::Auftrag, anforderung, ausgang, portOffen);
    return gelungen;
}

void SendeOhneAntwort(const std::string& rahmen) {
    ClearCommPort();
    // What it changes in the controller matters to requests that are still open.
    if (!DerStand().zuordnung.Leer())
        DerStand().zuordnung.Gesendet(rahmen);
    CommPortWriteOutput(rahmen);
    modMithoeren::Endet(Austauschart::OhneAntwort, rahmen, Ausgang::Gelungen, GetPortIstOffen() == True);
}

} // namespace varnoth::modAustausch
