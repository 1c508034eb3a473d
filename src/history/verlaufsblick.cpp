#include "verlaufsblick.h"

#include <algorithm>
#include <cmath>

namespace varnoth {

namespace {

// A view of everything that grows becomes wider in steps, so that what is drawn can be kept for a while.
constexpr double Vorsprung = 1.04;

} // namespace

void Verlaufsblick::SetzeGanzes(Zeitspanne spanne, Zeit neuesJetzt, Wertebereich neueWerte) {
    ganz = {spanne.von, std::max(spanne.bis, neuesJetzt)};
    jetzt = neuesJetzt;
    ganzeWerte = neueWerte;
    if (zeigtAlles && breite < AlleZeit())
        breite = Zeit(std::llround(static_cast<double>(AlleZeit().count()) * Vorsprung));
    if (zeigtAlles)
        ende = ganz.bis;
    else if (folgt)
        ende = jetzt;
    Begrenze();
}

/// Also of a past that has just begun as much is seen as at the start.
Zeit Verlaufsblick::AlleZeit() const {
    return std::max(ganz.bis - ganz.von, AnfangsBreite);
}

Zeit Verlaufsblick::GroessteBreite() const {
    return std::max(gewaehlteBreite, Zeit(std::llround(static_cast<double>(AlleZeit().count()) * Vorsprung)));
}

void Verlaufsblick::Begrenze() {
    breite = std::clamp(breite, KuerzesteBreite, GroessteBreite());
    ende = std::min(ende, ganz.bis);
    if (!folgt)
        ende = std::max(ende, std::min(ganz.von + breite, ganz.bis));
    const double hoehe = std::max(ganzeWerte.oben - ganzeWerte.unten, KleinsterWertebereich);
    const double sichtbar = std::clamp(werte.oben - werte.unten, KleinsterWertebereich, hoehe);
    werte.unten = std::clamp(werte.unten, ganzeWerte.unten, ganzeWerte.unten + hoehe - sichtbar);
    werte.oben = werte.unten + sichtbar;
}

void Verlaufsblick::Folge(bool neu) {
    folgt = neu;
    if (folgt)
        ende = jetzt;
    else
        zeigtAlles = false;
    Begrenze();
}

void Verlaufsblick::SetzeBreite(Zeit neue) {
    const Zeit mitte = ende - breite / 2;
    zeigtAlles = false;
    breite = gewaehlteBreite = std::max(neue, KuerzesteBreite);
    if (!folgt)
        ende = mitte + breite / 2;
    Begrenze();
}

void Verlaufsblick::ZeigeAlles() {
    zeigtAlles = true;
    breite = AlleZeit();
    ende = ganz.bis;
    Begrenze();
}

void Verlaufsblick::ZoomeZeit(Zeit um, double faktor) {
    const Zeit fest = folgt ? ende : std::clamp(um, ende - breite, ende);
    const double anteil =
        breite > Zeit(0) ? static_cast<double>((ende - fest).count()) / static_cast<double>(breite.count())
                         : 0;
    zeigtAlles = false;
    const auto gewuenscht = Zeit(std::llround(static_cast<double>(breite.count()) / faktor));
    breite = std::clamp(gewuenscht, KuerzesteBreite, GroessteBreite());
    ende = fest + Zeit(std::llround(static_cast<double>(breite.count()) * anteil));
    Begrenze();
}

void Verlaufsblick::ZoomeWerte(double um, double faktor) {
    if (werteGanz)
        werte = ganzeWerte;
    const double hoehe = werte.oben - werte.unten;
    const double ganze = ganzeWerte.oben - ganzeWerte.unten;
    const double neue = std::clamp(hoehe / faktor, std::min(KleinsterWertebereich, ganze), ganze);
    const double anteil = hoehe > 0 ? (std::clamp(um, werte.unten, werte.oben) - werte.unten) / hoehe : 0;
    werte.unten += (hoehe - neue) * anteil;
    werte.oben = werte.unten + neue;
    werteGanz = neue >= ganze;
    Begrenze();
}

void Verlaufsblick::Verschiebe(Zeit um) {
    if (um == Zeit(0))
        return;
    zeigtAlles = false;
    folgt = ende + um > ganz.bis && jetzt == ganz.bis;
    ende += um;
    Begrenze();
}

void Verlaufsblick::VerschiebeWerte(double um) {
    if (werteGanz)
        return;
    werte.unten += um;
    werte.oben += um;
    Begrenze();
}

void Verlaufsblick::ZeigeZeit(Zeit laufzeit) {
    if (laufzeit < ende - breite)
        Verschiebe(laufzeit - (ende - breite));
    else if (laufzeit > ende)
        Verschiebe(laufzeit - ende);
}

} // namespace varnoth
