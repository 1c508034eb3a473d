#include "austausch.h"

#include "erkenner.h"
#include "leitungsstatistik.h"
#include "rahmen.h"
#include "schnittstelle.h"
#include "startzustand.h"
#include "zuordnung.h"

#include <algorithm>

namespace varnoth::modAustausch {

namespace {

using namespace modSchnittstelle;

constexpr int Antwortzeit = 1000; // milliseconds of silence that end an exchange

Zuordnung zuordnung;
const Startwert startwert(zuordnung);

void Sende(const std::string& anforderung) {
    ClearCommPort();
    if (GetPortIstOffen() == True)
        zuordnung.Gesendet(anforderung);
    CommPortWriteOutput(anforderung);
}

int MillisekundenBis(Zeit ende) {
    const auto rest = std::chrono::ceil<std::chrono::milliseconds>(ende - DieUmgebung().Uhr());
    return static_cast<int>(std::max(rest.count(), std::chrono::milliseconds::rep{0}));
}

bool Empfange(Erkenner& erkenner) {
    while (!erkenner.Fertig()) {
        const Zeit ende = DieUmgebung().Uhr() + std::chrono::milliseconds(Antwortzeit);
        WarteAufRest(erkenner.MindestensNoch());
        WarteAufZeichen(MillisekundenBis(ende), True);
        if (CommPortBytesAvailable() == 0)
            return false;
        if (!erkenner.Verarbeite(CommPortReadInput()))
            return false;
    }
    return erkenner.CrcStimmt();
}

/// Reads on until the stream holds an identification reply, and takes it out of it.
bool ErwarteIdentAntwort(std::string& strom, Zeit ende) {
    while (!NimmIdentAntwort(strom)) {
        WarteAufZeichen(MillisekundenBis(ende), True);
        if (CommPortBytesAvailable() == 0)
            return false;
        strom += CommPortReadInput();
    }
    return true;
}

/// Asks for an identification, whose reply comes behind all that was asked before, and lets that pass. At
/// most one second in all. True once no late reply can be mistaken for the one to the given request.
bool Klaere(const std::string& anforderung) {
    const std::string frage = IdentifikationsAnforderung();
    const Zeit ende = DieUmgebung().Uhr() + std::chrono::milliseconds(Antwortzeit);
    std::string strom;
    // A reply may be that to an older identification request; then it takes one more.
    while (zuordnung.Verwechselbar(anforderung)) {
        Sende(frage);
        if (!ErwarteIdentAntwort(strom, ende))
            return false;
        do
            zuordnung.Beantwortet(frage);
        while (NimmIdentAntwort(strom));
    }
    if (!strom.empty() || !zuordnung.Leer())
        WarteAufRuhe();
    return true;
}

/// Gets the line ready for a request. False when the request must not be sent.
bool Bereite(const std::string& anforderung, Verlass verlass) {
    if (GetPortIstOffen() == False)
        return true;
    const bool unerwartetes = CommPortBytesAvailable() > 0;
    if (unerwartetes)
        zuordnung.Ueberzaehliges();
    if (!unerwartetes && zuordnung.Leer())
        return true;
    WarteAufRuhe();
    if (verlass == Verlass::Voll && zuordnung.Verwechselbar(anforderung) && !Klaere(anforderung))
        return false;
    return GetPortIstOffen() == True; // a command may have closed it meanwhile
}

bool TauscheAus(const std::string& anforderung, Erkenner& erkenner, Verlass verlass) {
    HoleVerlorenenPortZurueck();
    if (!Bereite(anforderung, verlass))
        return false;
    Sende(anforderung);
    if (!Empfange(erkenner))
        return false;
    zuordnung.Beantwortet(anforderung);
    if (erkenner.Ueberzaehlig())
        zuordnung.Ueberzaehliges();
    return true;
}

} // namespace

bool Tausche(const std::string& anforderung, Erkenner& erkenner, Verlass verlass) {
    modLeitungsstatistik::Beginnt();
    const bool gelungen = TauscheAus(anforderung, erkenner, verlass);
    modLeitungsstatistik::Endet(gelungen, GetPortIstOffen() == True);
    return gelungen;
}

void SendeOhneAntwort(const std::string& rahmen) {
    ClearCommPort();
    // What it changes in the controller matters to requests that are still open.
    if (!zuordnung.Leer())
        zuordnung.Gesendet(rahmen);
    CommPortWriteOutput(rahmen);
}

} // namespace varnoth::modAustausch
