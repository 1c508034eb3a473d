#pragma once

#include "werte.h"

#include <QString>

#include <array>
#include <vector>

class QObject;

namespace varnoth {

/// What the menus depend on.
struct Programmzustand {
    bool liveDaten = false;        ///< live data is running
    bool autosendWaehlbar = false; ///< the configuration read from the controller lets autosend start
    bool service = false;          ///< the program was started with the service switch
    std::array<bool, AnzahlOptikteile> hatStrahlen{};
};

/// One menu item as it is to be.
struct Aktionszustand {
    QString name;
    bool waehlbar = true;
    bool sichtbar = true;

    bool operator==(const Aktionszustand&) const = default;
};

/// The menu items whose state is not always the same, as they are to be in this state of the program.
std::vector<Aktionszustand> Menuezustand(const Programmzustand& zustand);

/// Applies states to the actions of these names below `fenster`.
/// @throws std::logic_error when a name is not there
void WendeAn(const std::vector<Aktionszustand>& zustaende, const QObject& fenster);

} // namespace varnoth
