#pragma once

#include "vergleichspaar.h"

#include <QString>

#include <vector>

class QWidget;

namespace varnoth {

/// The rows of a comparison as a page to be printed: its title, both sides, the counts and a table. What
/// comes from a file or a controller stands in it as text.
QString AlsDruckseite(const Vergleichspaar& paar, const std::vector<Vergleichsworte>& zeilen);

/// Prints a page on a printer that the user chooses. Where there is none, a message box says so.
void DruckeSeite(const QString& html, QWidget& fenster);

} // namespace varnoth
