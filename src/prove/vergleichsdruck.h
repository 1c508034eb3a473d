#pragma once

#include "vergleichspaar.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

class QPrinter;
class QWidget;

namespace varnoth {

/// The rows of a comparison as a page to be printed: its title, both sides, the counts and a table. What
/// comes from a file or a controller stands in it as text.
QString AlsDruckseite(const Vergleichspaar& paar, const std::vector<Vergleichsworte>& zeilen);

/// Where a page is printed.
struct Druckerwahl {
    std::function<QStringList()> drucker;          ///< the names of the printers that there are
    std::function<bool(QPrinter& drucker)> waehle; ///< lets the user choose one; false when he did not
};

/// The printers of this computer, chosen in a dialog above a window, which must outlive the choice.
Druckerwahl WahlUeber(QWidget& fenster);

/// Prints a page, A4, on a printer that the user chooses; its title stands at the foot of each sheet beside
/// the number. Where there is no printer, or it takes nothing, a message box says so.
void DruckeSeite(const QString& html, const QString& titel, const Druckerwahl& wahl);

} // namespace varnoth
