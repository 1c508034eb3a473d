#include "windowsport.h"

#include "feinschlaf.h"
#include "systemfehler.h"
#include "windowsfehler.h"
#include "windowsgeraet.h"
#include "windowsworte.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace varnoth {

bool WindowsPort::OeffneLeitung(const std::string& pfad, const Porteinstellungen& einstellungen) {
    oeffnungsfehler = leitung.Oeffne(WindowsgeraetPfad(pfad), WerteFuer(einstellungen));
    return leitung.IstOffen();
}

void WindowsPort::Schliesse() {
    leitung.Schliesse();
    eingang.clear();
}

std::string WindowsPort::Oeffnungsfehler() const {
    switch (Oeffnungshindernis()) {
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

Hindernis WindowsPort::Oeffnungshindernis() const {
    return HindernisNachOeffnen(oeffnungsfehler);
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
    if (leitung.NimmUeberlauf() || eingang.size() >= Eingabepuffergroesse)
        MeldeUeberlauf();
    SchliesseVerlorene();
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

} // namespace varnoth
