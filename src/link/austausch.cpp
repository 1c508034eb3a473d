#include "austausch.h"

#include "erkenner.h"
#include "gestalt.h"
#include "gewissheit.h"
#include "leitungsstatistik.h"
#include "rahmen.h"
#include "schnittstelle.h"
#include "startzustand.h"
#include "zuordnung.h"

#include <algorithm>
#include <utility>

namespace varnoth::modAustausch {

namespace {

using namespace modSchnittstelle;

constexpr int Antwortzeit = 1000; // milliseconds of silence that end an exchange

struct Zustand {
    Zuordnung zuordnung{};
    Gewissheit gewissheit{};
    std::string beantwortete{};   ///< the request that succeeded last
    std::string letzteAntwort{};  ///< the one that was believed last
    std::string ungefragtes{};    ///< bytes since then that nobody was waiting for
    unsigned long verwundene = 0; ///< breaks after which the line has been quiet for long
    int gestoert = 0;             ///< exchanges that must succeed until the line counts as undisturbed
    unsigned long beachteteBrueche = 0;
    bool unruhig = false; ///< the line did not become quiet before the last request
};

Zustand zustand;
const Startwert startwert(zustand);

/// A copy right behind its original does no harm while there is nothing but this one exchange in doubt: the
/// value is the same whichever of the two it was taken from.
bool IstHarmlos(std::string_view antwort) {
    return antwort == zustand.letzteAntwort &&
           zustand.gewissheit.Letzter() <= zustand.gewissheit.GewissBis() + 1;
}

/// Whether the bytes hold what may be the own reply, broken, of a request that believed another's.
bool IstZerbrochene(std::string_view bytes) {
    return !zustand.beantwortete.empty() && EnthaeltAehnliche(bytes, zustand.beantwortete);
}

/// Takes note of bytes that nobody was waiting for. A whole reply among them is a break, and so is a broken
/// one.
void NimmUngefragtes(std::string_view bytes) {
    zustand.ungefragtes += bytes;
    const auto antworten = SucheAntworten(zustand.ungefragtes);
    const bool zerbrochene = antworten.empty() && IstZerbrochene(zustand.ungefragtes);
    if (zerbrochene)
        zustand.ungefragtes.clear();
    if (zerbrochene || !std::ranges::all_of(antworten, IstHarmlos))
        zustand.gewissheit.Gebrochen();
    if (!antworten.empty())
        zustand.ungefragtes.clear();
}

/// With a line that disappeared went what would have shown a reply too many.
void OeffneWieder() {
    HoleVerlorenenPortZurueck();
    if (NimmVerlust() && zustand.gewissheit.IstVorlaeufiges())
        zustand.gewissheit.Gebrochen();
}

/// Sends the request. False when bytes have come before it could be sent, which nobody was waiting for;
/// `trotzdem` sends it all the same.
bool Sende(const std::string& anforderung, bool trotzdem) {
    ClearCommPort();
    WarteSendepause();
    if (!trotzdem && CommPortBytesAvailable() > 0)
        return false;
    if (GetPortIstOffen() == True)
        zustand.zuordnung.Gesendet(anforderung);
    zustand.gewissheit.Gefragt(Gestalt(anforderung), DieUmgebung().Uhr());
    CommPortWriteOutput(anforderung);
    return true;
}

int MillisekundenBis(Zeit ende) {
    const auto rest = std::chrono::ceil<std::chrono::milliseconds>(ende - DieUmgebung().Uhr());
    return static_cast<int>(std::max(rest.count(), std::chrono::milliseconds::rep{0}));
}

/// Feeds what arrives to the recogniser; `strom` gathers it.
bool Empfange(Erkenner& erkenner, std::string& strom) {
    while (!erkenner.Fertig()) {
        const Zeit ende = DieUmgebung().Uhr() + std::chrono::milliseconds(Antwortzeit);
        WarteAufRest(erkenner.MindestensNoch());
        WarteAufZeichen(MillisekundenBis(ende), True);
        if (CommPortBytesAvailable() == 0)
            return false;
        const std::string bytes = CommPortReadInput();
        strom += bytes;
        if (!erkenner.Verarbeite(bytes))
            return false;
    }
    return erkenner.CrcStimmt();
}

/// Reads on until the stream holds an identification reply, and takes it out of it. What came before it
/// nobody was waiting for.
bool ErwarteIdentAntwort(std::string& strom, Zeit ende) {
    for (;;) {
        const std::string bisher = strom;
        if (NimmIdentAntwort(strom)) {
            const std::string_view davor = std::string_view(bisher).substr(0, bisher.size() - strom.size());
            const std::string_view identAntwort = SucheAntworten(davor).back();
            NimmUngefragtes(davor.substr(0, davor.size() - identAntwort.size()));
            zustand.letzteAntwort = identAntwort;
            return true;
        }
        WarteAufZeichen(MillisekundenBis(ende), True);
        if (CommPortBytesAvailable() == 0) {
            NimmUngefragtes(std::exchange(strom, {}));
            return false;
        }
        strom += CommPortReadInput();
    }
}

/// Takes the reply to an identification request wherever it comes among what a controller sends by itself.
bool EmpfangeUnterAnderem(Erkenner& erkenner) {
    constexpr Zeit Suchdauer = std::chrono::milliseconds(250);
    std::string strom;
    return ErwarteIdentAntwort(strom, DieUmgebung().Uhr() + Suchdauer) &&
           erkenner.Verarbeite(zustand.letzteAntwort);
}

void WarteVorAnforderung(Zeit ruhe) {
    NimmUngefragtes(WarteAufRuhe(ruhe));
    zustand.unruhig = !IstRuhig(ruhe);
}

/// Asks for an identification, whose reply comes behind all that was asked before, and lets that pass. At
/// most one second in all. True once no late reply can be mistaken for the one to the given request.
bool Klaere(const std::string& anforderung) {
    const std::string frage = IdentifikationsAnforderung();
    const Zeit ende = DieUmgebung().Uhr() + std::chrono::milliseconds(Antwortzeit);
    std::string strom;
    // A reply may be that to an older identification request; then it takes one more.
    while (zustand.zuordnung.Verwechselbar(anforderung)) {
        Sende(frage, true);
        if (!ErwarteIdentAntwort(strom, ende))
            return false;
        do
            zustand.zuordnung.Beantwortet(frage);
        while (NimmIdentAntwort(strom));
    }
    if (!strom.empty() || !zustand.zuordnung.Leer())
        NimmUngefragtes(strom + WarteAufRuhe());
    return true;
}

/// Gets the line ready for a request. False when the request must not be sent.
bool Bereite(const std::string& anforderung, Verlass verlass) {
    const std::string verworfenes = NimmVerworfenes();
    if (!verworfenes.empty())
        NimmUngefragtes(verworfenes);
    if (GetPortIstOffen() == False)
        return true;
    const bool unerwartetes = CommPortBytesAvailable() > 0;
    if (unerwartetes)
        zustand.zuordnung.Ueberzaehliges();
    if (!unerwartetes && zustand.zuordnung.Leer())
        return true;
    WarteVorAnforderung(Ruhezeit);
    if (verlass != Verlass::Keiner && zustand.zuordnung.Verwechselbar(anforderung) && !Klaere(anforderung))
        return false;
    return GetPortIstOffen() == True; // a command may have closed it meanwhile
}

bool BereiteUndSende(const std::string& anforderung, Verlass verlass) {
    bool trotzdem = verlass == Verlass::Keiner;
    do {
        if (!Bereite(anforderung, verlass))
            return false;
    } while (!Sende(anforderung, std::exchange(trotzdem, true) || zustand.unruhig));
    return true;
}

/// What arrived while a reply was waited for in vain. Its own reply among stray bytes is none too many.
void BewerteScheitern(const std::string& anforderung, const std::string& strom) {
    const auto antworten = SucheAntworten(strom);
    const auto vorDerAntwort = [&] {
        return std::string_view(strom).substr(0,
                                              static_cast<std::size_t>(antworten[0].data() - strom.data()));
    };
    if (antworten.size() > 1 ||
        (antworten.size() == 1 && (!Passt(antworten[0], anforderung) || IstZerbrochene(vorDerAntwort()))))
        zustand.gewissheit.Gebrochen();
    // The rest of a reply that has begun may still be on its way.
    const auto ende = antworten.empty() ? strom.data() : antworten.back().data() + antworten.back().size();
    zustand.ungefragtes = strom.substr(static_cast<std::size_t>(ende - strom.data()));
    if (antworten.empty() && EnthaeltAehnliche(strom, anforderung))
        zustand.ungefragtes.clear(); // broken, but all of it
}

void BewerteErfolg(const std::string& anforderung, const Erkenner& erkenner, const std::string& strom) {
    const std::string_view bisEnde = std::string_view(strom).substr(0, erkenner.Genommen());
    const auto antworten = SucheAntworten(bisEnde);
    if (antworten.size() > 1)
        zustand.gewissheit.Gebrochen();
    zustand.letzteAntwort = antworten.empty() ? std::string() : std::string(antworten.back());
    zustand.ungefragtes.clear();
    zustand.beantwortete = anforderung;
    zustand.gewissheit.Gelungen(Gestalt(anforderung));
    zustand.zuordnung.Beantwortet(anforderung);
    if (!erkenner.Ueberzaehlig())
        return;
    zustand.zuordnung.Ueberzaehliges();
    NimmUngefragtes(std::string_view(strom).substr(erkenner.Genommen()));
}

/// On a line that was disturbed lately a reply that comes late may be another's, sent a second time, while
/// its own is lost: nothing but its time tells that.
bool IstZweifelhaft(Verlass verlass) {
    return zustand.gestoert > 0 && verlass == Verlass::Wiederholbar && KamSpaet();
}

bool TauscheAus(const std::string& anforderung, Erkenner& erkenner, Verlass verlass) {
    OeffneWieder();
    zustand.unruhig = false;
    if (!BereiteUndSende(anforderung, verlass))
        return false;
    std::string strom;
    if (zustand.unruhig && anforderung == IdentifikationsAnforderung()) {
        if (!EmpfangeUnterAnderem(erkenner))
            return false;
    } else if (!Empfange(erkenner, strom)) {
        BewerteScheitern(anforderung, strom);
        return false;
    }
    if (KamZuFrueh() && !zustand.unruhig) {
        zustand.gewissheit.Gebrochen();
        return false;
    }
    if (IstZweifelhaft(verlass)) {
        BewerteScheitern(anforderung, strom);
        return false;
    }
    BewerteErfolg(anforderung, erkenner, strom);
    return true;
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
    const bool gelungen = TauscheAus(anforderung, erkenner, verlass);
    MerkeStoerung(gelungen);
    modLeitungsstatistik::Endet(gelungen, GetPortIstOffen() == True);
    return gelungen;
}

void SendeOhneAntwort(const std::string& rahmen) {
    ClearCommPort();
    // What it changes in the controller matters to requests that are still open.
    if (!zustand.zuordnung.Leer())
        zustand.zuordnung.Gesendet(rahmen);
    CommPortWriteOutput(rahmen);
}

unsigned long Letzter() {
    return zustand.gewissheit.Letzter();
}

unsigned long GewissBis() {
    return zustand.gewissheit.GewissBis();
}

bool IstUnverwechselbar() {
    return zustand.gewissheit.IstUnverwechselbar();
}

unsigned long Brueche() {
    return zustand.gewissheit.Brueche();
}

bool IstUnruhig() {
    return zustand.unruhig;
}

bool Vergewissere() {
    OeffneWieder();
    NimmUngefragtes(NimmVerworfenes());
    if (GetPortIstOffen() == False)
        return false;
    // Even the answer to an identification can come twice: after a break none may be under way.
    WarteVorAnforderung(Brueche() == zustand.verwundene ? Ruhezeit : Gewissheit::LangeRuhe);
    if (zustand.unruhig)
        return false;
    const unsigned long bruecheDavor = zustand.verwundene = Brueche();
    const std::string frage = IdentifikationsAnforderung();
    Sende(frage, true);
    std::string strom;
    const Zeit ende = DieUmgebung().Uhr() + std::chrono::milliseconds(Antwortzeit);
    if (!ErwarteIdentAntwort(strom, ende))
        return false;
    zustand.zuordnung.Beantwortet(frage);
    const bool kamZuerst = Brueche() == bruecheDavor;
    zustand.gewissheit.Geklaert();
    if (!strom.empty())
        zustand.zuordnung.Ueberzaehliges();
    NimmUngefragtes(strom);
    return kamZuerst;
}

bool Lausche() {
    constexpr Zeit Dauer = std::chrono::milliseconds(200);
    const unsigned long bruecheDavor = Brueche();
    const std::string gehoertes = WarteAufRuhe(Dauer);
    if (!gehoertes.empty())
        zustand.zuordnung.Ueberzaehliges();
    NimmUngefragtes(gehoertes);
    return Brueche() == bruecheDavor;
}

} // namespace varnoth::modAustausch
