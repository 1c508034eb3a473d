#include "schrittfolge.h"

#include "austausch.h"
#include "transaktionen.h"
#include "umgebung.h"

namespace varnoth {

bool Schrittfolge::Laufe() {
    nummern.assign(schritte.size(), 0);
    const unsigned long bruecheDavor = modAustausch::Brueche();
    bool durch = LaufeBisZuletzt();
    while (durch && !VergewissereAmEnde()) {
        GeheZurueck();
        durch = !abgebrochen() && LaufeBisZuletzt();
    }
    if (durch || modAustausch::Brueche() == bruecheDavor)
        UebernimmOffene();
    return durch;
}

bool Schrittfolge::LaufeBisZuletzt() {
    while (stelle < schritte.size()) {
        switch (wache > 0 ? TueBewacht() : Tue(stelle)) {
        case Ausgang::Gelungen:
            MerkeGelungen();
            break;
        case Ausgang::Gestoert:
            GeheZurueck();
            break;
        case Ausgang::Abgebrochen:
            return false;
        }
    }
    return true;
}

/// On a line that has had a break nothing is left to what follows: what would show a mistake may come behind
/// a port that was closed.
bool Schrittfolge::VergewissereAmEnde() {
    const unsigned long bruecheDavor = modAustausch::Brueche();
    if ((!gewissheitVerlangt && bruecheDavor == 0) || gewiss == stelle)
        return true;
    if (bruecheDavor == 0 && modAustausch::IstUnverwechselbar())
        return true;
    if (!modAustausch::Vergewissere() || modAustausch::Brueche() != bruecheDavor)
        return false;
    UebernimmOffene();
    gewiss = stelle;
    return true;
}

void Schrittfolge::UebernimmOffene() {
    for (std::size_t offen = gewiss; offen < stelle; ++offen)
        schritte[offen].uebernimm();
}

/// Attempts at a step until one succeeds or something comes that nobody was waiting for.
Schrittfolge::Ausgang Schrittfolge::Tue(std::size_t schritt) {
    const unsigned long bruecheDavor = modAustausch::Brueche();
    for (;;) {
        schritte[stelle].zeige(++versuch);
        const bool gelungen = schritte[schritt].tausche();
        DieUmgebung().LasseEreignisseLaufen();
        if (abgebrochen())
            return Ausgang::Abgebrochen;
        if (!gelungen)
            modModbus::BeruhigeGeraet();
        if (modAustausch::Brueche() != bruecheDavor)
            return Ausgang::Gestoert;
        if (gelungen)
            return Ausgang::Gelungen;
    }
}

/// The step, and before it what selects for it, each between two identifications.
Schrittfolge::Ausgang Schrittfolge::TueBewacht() {
    while (!vergewissert) {
        schritte[stelle].zeige(++versuch);
        vergewissert = modAustausch::Vergewissere();
        DieUmgebung().LasseEreignisseLaufen();
        if (abgebrochen())
            return Ausgang::Abgebrochen;
        if (!vergewissert)
            modModbus::BeruhigeGeraet();
    }
    const unsigned long bruecheDavor = modAustausch::Brueche();
    const bool waehlt = !gewaehlt;
    const Ausgang ausgang = Tue(waehlt ? schritte[stelle].auswahl : stelle);
    vergewissert = false;
    if (ausgang != Ausgang::Gelungen)
        return ausgang;
    vergewissert = modAustausch::Vergewissere() && modAustausch::Brueche() == bruecheDavor;
    if (!vergewissert)
        return Ausgang::Gestoert;
    gewaehlt = true;
    return waehlt ? TueBewacht() : Ausgang::Gelungen;
}

void Schrittfolge::MerkeGelungen() {
    nummern[stelle++] = modAustausch::Letzter();
    versuch = 0;
    wache -= wache > 0 ? 1 : 0;
    for (; gewiss < stelle && nummern[gewiss] <= modAustausch::GewissBis(); ++gewiss)
        schritte[gewiss].uebernimm();
}

/// To the first step that is not certain.
void Schrittfolge::GeheZurueck() {
    if (stelle != gewiss)
        versuch = 0;
    stelle = gewiss;
    vergewissert = false;
    gewaehlt = schritte[stelle].auswahl == Transferschritt::Ohne;
    wache = Wachdauer;
}

} // namespace varnoth
