#pragma once

#include <QSize>

#include <optional>
#include <string>

class QWidget;

namespace varnoth {

class Einstellungen;

/// What is stored as a window's state when nothing is.
inline constexpr int ZustandNichtGespeichert = -1;

/// Where a window stands, as the settings file has it. Lengths in twips: 15 to a logical pixel.
struct Fensterplatz {
    static constexpr int Normal = 0;
    static constexpr int Minimiert = 1;
    static constexpr int Maximiert = 2;

    int zustand = Normal;
    int links = 1000;
    int oben = 1000;
    int breite = 6500;
    int hoehe = 6500;

    bool operator==(const Fensterplatz&) const = default;
};

/// Twips to whole logical pixels, and back.
int PixelAusTwips(int twips);
int TwipsAusPixel(int pixel);

/// The place stored in a section; what is missing there is taken from `standard`.
Fensterplatz LiesFensterplatz(Einstellungen& einstellungen, const std::string& abschnitt,
                              const Fensterplatz& standard);
/// Stores a place in a section, each number as decimal text.
void SchreibFensterplatz(Einstellungen& einstellungen, const std::string& abschnitt,
                         const Fensterplatz& platz);

/// Begins to remember the place a window has when it is neither maximised nor minimised; needed only for one
/// that WendeAn has not placed.
void VerfolgePlatz(QWidget& fenster);

/// The place of a window (for one inside a main window that of its frame there): when maximised, the place it
/// has when restored beside the state. Nothing for a minimised window, whose stored place stays as it is.
std::optional<Fensterplatz> PlatzVon(const QWidget& fenster);
/// Moves a window (or its frame in a main window) to a place. Positions that would put it out of reach and
/// sizes beyond all screens together are corrected; the state is applied without showing a window that is
/// hidden.
void WendeAn(const Fensterplatz& platz, QWidget& fenster);

/// Gives a window the place that a section of the settings has stored. Where none is stored its size becomes
/// `anfang` in logical pixels, no larger than the screen; an empty size leaves it as it is.
void StelleFensterHer(QWidget& fenster, const std::string& abschnitt, QSize anfang = {});
/// Shows a window in front of the others with the keyboard on it; a minimised one is restored.
void HoleNachVorn(QWidget& fenster);
/// Stores the place of a window in a section of the settings, unless it is minimised.
void BewahreFensterplatz(const QWidget& fenster, const std::string& abschnitt);

} // namespace varnoth
