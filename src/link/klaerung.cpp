#include "klaerung.h"

#include "antwortempfang.h"
#include "austauschstand.h"
#include "erkenner.h"
#include "frist.h"
#include "gestalt.h"
#include "mithoeren.h"
#include "rahmen.h"
#include "schnittstelle.h"
#include "startzustand.h"

#include <utility>

namespace varnoth::modAustausch {

namespace {

using namespace modSchnittstelle;

unsigned long verwundene{}; ///< breaks after which the line has been quiet for long
const Startwert startwert(verwundene);

/// Sends the request. False when bytes have come before it could be sent, which nobody was waiting for;
/// `trotzdem` sends it all the same.
bool Sende(const std::string& anforderung, bool trotzdem) {
    ClearCommPort();
    WarteSendepause();
    if (!trotzdem && CommPortBytesAvailable() > 0)
        return false;
    if (GetPortIstOffen() == True)
        DerStand().zuordnung.Gesendet(anforderung);
    DerStand().gewissheit.Gefragt(Gestalt(anforderung), DieUmgebung().Uhr());
    CommPortWriteOutput(anforderung);
    return true;
}

void WarteVorAnforderung(Zeit ruhe) {
    NimmUngefragtes(WarteAufRuhe(ruhe));
    DerStand().unruhig = !IstRuhig(ruhe);
}

/// Waits for the reply to the identification that settles whose turn it is.
bool ErwarteKlaerung(std::string& strom, Zeit ende) {
    const bool gekommen = ErwarteIdentAntwort(strom, ende);
    modMithoeren::Endet(Austauschart::Klaerung, IdentifikationsAnforderung(),
                        gekommen ? modMithoeren::Ausgang::Gelungen : modMithoeren::Ausgang::Ausgeblieben,
                        GetPortIstOffen() == True);
    return gekommen;
}

/// Asks for an identification, whose reply comes behind all that was asked before, and lets that pass. At
/// most one second in all. True once no late reply can be mistaken for the one to the given request.
bool Klaere(const std::string& anforderung) {
    const std::string frage = IdentifikationsAnforderung();
    const Frist frist(Antwortzeit);
    std::string strom;
    // A reply may be that to an older identification request; then it takes one more.
    while (DerStand().zuordnung.Verwechselbar(anforderung)) {
        Sende(frage, true);
        if (!ErwarteKlaerung(strom, frist.Ende()))
            return false;
        do
            DerStand().zuordnung.Beantwortet(frage);
        while (NimmIdentAntwort(strom));
    }
    if (!strom.empty() || !DerStand().zuordnung.Leer())
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
        DerStand().zuordnung.Ueberzaehliges();
    if (!unerwartetes && DerStand().zuordnung.Leer())
        return true;
    WarteVorAnforderung(Ruhezeit);
    if (verlass != Verlass::Keiner && DerStand().zuordnung.Verwechselbar(anforderung) && !Klaere(anforderung))
        return false;
    return GetPortIstOffen() == True; // a command may have closed it meanwhile
}

} // namespace

void OeffneWieder() {
    HoleVerlorenenPortZurueck();
    if (NimmVerlust() && DerStand().gewissheit.IstVorlaeufiges())
        DerStand().gewissheit.Gebrochen();
}

bool BereiteUndSende(const std::string& anforderung, Verlass verlass) {
    bool trotzdem = verlass == Verlass::Keiner;
    do {
        if (!Bereite(anforderung, verlass))
            return false;
    } while (!Sende(anforderung, std::exchange(trotzdem, true) || DerStand().unruhig));
    return true;
}

bool Vergewissere() {
    OeffneWieder();
    NimmUngefragtes(NimmVerworfenes());
    if (GetPortIstOffen() == False)
        return false;
    // Even the answer to an identification can come twice: after a break none may be under way.
    WarteVorAnforderung(Brueche() == verwundene ? Ruhezeit : Gewissheit::LangeRuhe);
    if (DerStand().unruhig)
        return false;
    const unsigned long bruecheDavor = verwundene = Brueche();
    const std::string frage = IdentifikationsAnforderung();
    Sende(frage, true);
    std::string strom;
    const Zeit ende = DieUmgebung().Uhr() + Antwortzeit;
    if (!ErwarteKlaerung(strom, ende))
        return false;
    DerStand().zuordnung.Beantwortet(frage);
    const bool kamZuerst = Brueche() == bruecheDavor;
    DerStand().gewissheit.Geklaert();
    if (!strom.empty())
        DerStand().zuordnung.Ueberzaehliges();
    NimmUngefragtes(strom);
    return kamZuerst;
}

bool Lausche() {
    constexpr Zeit Dauer = std::chrono::milliseconds(200);
    const unsigned long bruecheDavor = Brueche();
    const std::string gehoertes = WarteAufRuhe(Dauer);
    if (!gehoertes.empty())
        DerStand().zuordnung.Ueberzaehliges();
    NimmUngefragtes(gehoertes);
    return Brueche() == bruecheDavor;
}

} // namespace varnoth::modAustausch
