#pragma once

#include <functional>

class QWidget;

namespace varnoth {

class Ansichten;
class Hauptmenue;
class Statusleiste;
class Verbindungsanzeige;

/// The parts of the main window that its flows work with.
struct Hauptteile {
    QWidget& fenster; ///< the main window, over which dialogs open
    Ansichten& ansichten;
    Hauptmenue& menue;
    Statusleiste& status;
    Verbindungsanzeige& verbindung;
    std::function<void()> baueAnsichtenAuf; ///< the views follow the beam counts in the image
    std::function<bool()> beendet;          ///< whether the program is to end: nothing more is shown or asked
};

} // namespace varnoth
