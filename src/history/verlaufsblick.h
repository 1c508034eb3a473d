#pragma once

#include "messquelle.h"

namespace varnoth {

/// From where to where on the axis of values.
struct Wertebereich {
    double unten = 0;
    double oben = 1;

    bool operator==(const Wertebereich&) const = default;
};

/// What of the past is in view: a stretch of time that slides with the newest or stands still, and a stretch
/// of the values.
class Verlaufsblick {
public:
    static constexpr Zeit KuerzesteBreite = std::chrono::seconds(1);
    static constexpr Zeit AnfangsBreite = std::chrono::minutes(5);
    static constexpr double KleinsterWertebereich = 4;

    /// What there is: the span of the source, the time that counts as now, and the values that a whole view
    /// reaches over. A view that follows slides on with now; one that stands still stays.
    void SetzeGanzes(Zeitspanne spanne, Zeit neuesJetzt, Wertebereich neueWerte);

    Zeitspanne Spanne() const { return {ende - breite, ende}; }
    Zeit Breite() const { return breite; }
    Wertebereich Werte() const { return werteGanz ? ganzeWerte : werte; }
    bool Folgt() const { return folgt; }
    /// Whether all of the time that there is, and all that will come, is in view.
    bool ZeigtAlles() const { return zeigtAlles; }
    bool ZeigtAlleWerte() const { return werteGanz; }

    /// Slides with the newest from now on, or stands still.
    void Folge(bool neu);
    /// Shows so much time; the newest while it follows, else around the middle.
    void SetzeBreite(Zeit neue);
    /// Shows all that there is.
    void ZeigeAlles();
    void ZeigeAlleWerte() { werteGanz = true; }
    /// Zooms by a factor (above 1: less is seen) while a time keeps its place; that of the newest while the
    /// view follows.
    void ZoomeZeit(Zeit um, double faktor);
    /// The same for the values.
    void ZoomeWerte(double um, double faktor);
    /// Moves the view to earlier (below 0) or later times and stands still there; one that is moved beyond
    /// the newest follows it.
    void Verschiebe(Zeit um);
    void VerschiebeWerte(double um);
    /// Moves the view just so far that a time is in it.
    void ZeigeZeit(Zeit laufzeit);

private:
    void Begrenze();
    Zeit AlleZeit() const;
    Zeit GroessteBreite() const;

    Zeitspanne ganz{};
    Zeit jetzt{0};
    Zeit ende{0};
    Zeit breite = AnfangsBreite;
    Zeit gewaehlteBreite{0};
    Wertebereich ganzeWerte{};
    Wertebereich werte{};
    bool folgt = true;
    bool zeigtAlles = false;
    bool werteGanz = true;
};

} // namespace varnoth
