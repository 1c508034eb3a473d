#include "windowsport.h"

#include "feinschlaf.h"
#include "geraetebefund.h"
#include "porteinstellungen.h"
#include "systemfehler.h"
#include "verbindungsauskunft.h"
#include "windowsfehler.h"
#include "windowsgeraet.h"
#include "windowsworte.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace varnoth {

bool WindowsPort::Oeffne(int nummer, const std::string& einstellungen) {
    Schliesse();
    const auto gelesen = LiesPorteinstellungen(einstellungen);
    falscheEinstellung.reset();
    if (!gelesen) {
        falscheEinstellung = einstellungen;
        return false;
    }
    oeffnungsfehler = leitung.Oeffne(WindowsgeraetPfad(Pfad(nummer)), WerteFuer(*gelesen));
    return leitung.IstOffen();
}

void WindowsPort::Schliesse() {
    leitung.Schliesse();
    eingang.clear();
}

std::string WindowsPort::Fehlertext() const {
    if (falscheEinstellung)
        return KeinLeitungsformat(*falscheEinstellung);
    switch (HindernisNachOeffnen(oeffnungsfehler)) {
    case Hindernis::Keines:
        return {};
    case Hindernis::Fehlt:
        return Systemfehler(ENOENT);
    case Hindernis::Belegt: // the system's own words are those for a missing right
        return Systemfehler(EBUSY);
    default:
        return Windowsfehler(oeffnungsfehler);
    }
}

Portbefund WindowsPort::BefundVon(int nummer) const {
    if (falscheEinstellung)
        return {.hindernis = Hindernis::Einstellung};
    Portbefund befund = BefundDesGeraets(Pfad(nummer));
    if (befund.hindernis == Hindernis::Keines)
        befund.hindernis = HindernisNachOeffnen(oeffnungsfehler);
    return befund;
}

/// At the first sign: a driver whose device is gone gives one error after the other.
void WindowsPort::SchliesseVerlorene() {
    if (leitung.IstVerloren())
        Schliesse();
}

bool WindowsPort::LeitungIstWeg() {
    return leitung.IstWeg();
}

/// Takes up what has come, as far as the input buffer has room for it.
void WindowsPort::HoleBytes() {
    if (eingang.size() < Eingabepuffergroesse)
        eingang += leitung.Lies();
    MeldeUeberlauf();
    SchliesseVerlorene();
}

void WindowsPort::MeldeUeberlauf() {
    const bool voll = leitung.NimmUeberlauf() || eingang.size() >= Eingabepuffergroesse;
    if (voll && ereignisbehandlung)
        ereignisbehandlung(EreignisEmpfangspufferUeberlauf);
}

void WindowsPort::Verwirf() {
    eingang.clear();
    leitung.Verwirf();
    SchliesseVerlorene();
}

std::size_t WindowsPort::BytesWartend() {
    HoleBytes();
    return eingang.size();
}

std::string WindowsPort::LiesAlles() {
    HoleBytes();
    return std::exchange(eingang, {});
}

void WindowsPort::Sende(std::string_view bytes) {
    leitung.Sende(bytes);
    SchliesseVerlorene();
}

/// The window may wait for Fensterblick; from then on a message for it ends the sleep.
bool WindowsPort::SchlafeAnDerLeitung(Zeit hoechstens) {
    const Zeit ungestoert = std::min(hoechstens, Fensterblick);
    const bool da = leitung.Schlafe(ungestoert, false);
    return da && hoechstens > ungestoert ? leitung.Schlafe(hoechstens - ungestoert, true) : da;
}

bool WindowsPort::LeereSender(Zeit hoechstens) {
    constexpr Zeit Blick = std::chrono::milliseconds(1);
    const Zeit ende = DieUmgebung().Uhr() + hoechstens;
    while (leitung.Ungesendet() > 0) {
        if (DieUmgebung().Uhr() >= ende) {
            leitung.BrichSendungAb();
            return false;
        }
        DieUmgebung().NutzeWartezeit();
        SchlafeFein(Blick);
    }
    SchliesseVerlorene();
    return true;
}

void WindowsPort::SetzeEreignisbehandlung(std::function<void(int)> behandlung) {
    ereignisbehandlung = std::move(behandlung);
}

} // namespace varnoth
