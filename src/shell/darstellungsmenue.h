#pragma once

#include "darstellungswahl.h"

#include <functional>

class QMenu;
class QWidget;

namespace varnoth {

/// The menu "Darstellung": looks and beam colours to choose from, what is in use ticked. A choice is handed
/// to `waehle` at once. It deletes itself when it closes.
QMenu* MacheDarstellungsmenue(QWidget& fenster, const Darstellung& gewaehlt,
                              const std::function<void(const Darstellung&)>& waehle);

} // namespace varnoth
