#include "leitungsport.h"

#include "feinschlaf.h"
#include "geraetebefund.h"
#include "geraetepfade.h"
#include "portbenutzer.h"
#include "verbindungsauskunft.h"

#include <algorithm>
#include <utility>

namespace varnoth {

namespace {

// The system hands a request on once this thread sleeps; painting right after sending would hold it up.
constexpr Zeit Uebergabe = std::chrono::microseconds(200);
// Whether the far end has hung up is asked for this often at most; an exchange would ask five times.
constexpr Zeit Leitungsblick = std::chrono::milliseconds(1);
// A reply that takes longer than this leaves room for everything.
constexpr Zeit LaengsterAufschub = std::chrono::milliseconds(50);

} // namespace

void Leitungsport::SetzeGeraet(const std::string& pfad) {
    genanntes = pfad;
}

/// The device that a number means.
std::string Leitungsport::Pfad(int nummer) const {
    return genanntes.empty() ? Geraetepfad(nummer) : genanntes;
}

bool Leitungsport::Oeffne(int nummer, const std::string& einstellungen) {
    Schliesse();
    const auto gelesen = LiesPorteinstellungen(einstellungen);
    falscheEinstellung.reset();
    if (!gelesen)
        falscheEinstellung = einstellungen;
    return gelesen && OeffneLeitung(Pfad(nummer), *gelesen);
}

std::string Leitungsport::Fehlertext() const {
    return falscheEinstellung ? KeinLeitungsformat(*falscheEinstellung) : Oeffnungsfehler();
}

Portbefund Leitungsport::BefundVon(int nummer) const {
    if (falscheEinstellung)
        return {.hindernis = Hindernis::Einstellung};
    const std::string pfad = Pfad(nummer);
    Portbefund befund = BefundDesGeraets(pfad);
    befund.prozesse = ProzesseAn(pfad);
    if (befund.hindernis == Hindernis::Keines)
        befund.hindernis = Oeffnungshindernis();
    return befund;
}

void Leitungsport::SetzeEreignisbehandlung(std::function<void(int)> behandlung) {
    ereignisbehandlung = std::move(behandlung);
}

void Leitungsport::MeldeUeberlauf() const {
    if (ereignisbehandlung)
        ereignisbehandlung(EreignisEmpfangspufferUeberlauf);
}

Anschluss Leitungsport::AnschlussVon(int nummer) const {
    return {.geraet = Pfad(nummer)};
}

bool Leitungsport::IstOffen() {
    const Zeit jetzt = DieUmgebung().Uhr();
    if (IstAuf() && jetzt >= naechsterLeitungsblick) {
        naechsterLeitungsblick = jetzt + Leitungsblick;
        if (LeitungIstWeg())
            Schliesse();
    }
    return IstAuf();
}

void Leitungsport::Schreibe(std::string_view bytes) {
    if (!IstAuf())
        return;
    Sende(bytes);
    gesendetUm = DieUmgebung().Uhr();
    UebergibUndMale();
}

/// The line is busy: a good time for what was put off. Events have just run in the pause before a request. A
/// line that has answered by now leaves the window to its usual turn.
void Leitungsport::UebergibUndMale() {
    if (!DieUmgebung().BrauchtWartezeit()) {
        naechsterFensterblick = DieUmgebung().Uhr() + Fensterblick;
        return;
    }
    if (IstAuf())
        Schlummere(Uebergabe);
    if (BytesImSystem() == 0 || DieUmgebung().Uhr() >= naechsterFensterblick)
        Male();
}

/// Everything: the line is busy.
void Leitungsport::Male() {
    DieUmgebung().NutzeWartezeit();
    naechsterFensterblick = DieUmgebung().Uhr() + Fensterblick;
}

/// The window's turn while a reply comes in. What was put off may take longer than the rest of it; the next
/// request is soon sent, and gives it a whole wait.
void Leitungsport::SchaueNachDemFenster() {
    if (DieUmgebung().Uhr() - gesendetUm >= LaengsterAufschub)
        return Male();
    DieUmgebung().LasseEreignisseLaufen();
    naechsterFensterblick = DieUmgebung().Uhr() + Fensterblick;
}

/// Sleeps on the open line. A line that has nothing to say of itself then need not be asked right away.
void Leitungsport::Schlummere(Zeit hoechstens) {
    if (SchlafeAnDerLeitung(hoechstens))
        naechsterLeitungsblick = DieUmgebung().Uhr() + Leitungsblick;
}

void Leitungsport::WarteAufEingang(Zeit hoechstens) {
    if (BytesGelesen() > 0)
        return;
    if (!IstOffen()) {
        DieUmgebung().WarteAufEreignis(hoechstens);
        return;
    }
    if (DieUmgebung().Uhr() >= naechsterFensterblick) {
        if (BytesImSystem() > 0)
            return;
        if (DieUmgebung().BrauchtWartezeit() || KannFensterWarten()) {
            SchaueNachDemFenster();
            hoechstens = std::min(hoechstens, Fensterblick); // the caller is to see what has come of it
        }
    }
    if (IstAuf() && BytesGelesen() == 0)
        Schlummere(hoechstens);
}

/// A turn of the window that falls into the sleep comes before it: that spares waking for it.
void Leitungsport::Schlafe(Zeit hoechstens) {
    const Zeit ende = DieUmgebung().Uhr() + hoechstens;
    if (naechsterFensterblick < ende)
        SchaueNachDemFenster();
    SchlafeFein(std::min(ende, naechsterFensterblick) - DieUmgebung().Uhr());
}

} // namespace varnoth
