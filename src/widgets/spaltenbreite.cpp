#include "spaltenbreite.h"

#include <QTreeWidget>

#include <algorithm>

namespace varnoth {

namespace {

constexpr int Zwischenraum = 2; // average characters

} // namespace

void PasseSpaltenAn(QTreeWidget& liste, int hoechstensZeichen) {
    const int zeichen = std::max(1, liste.fontMetrics().averageCharWidth());
    for (int spalte = 0; spalte + 1 < liste.columnCount(); ++spalte) {
        liste.resizeColumnToContents(spalte);
        const int noetig = (liste.columnWidth(spalte) + zeichen - 1) / zeichen;
        liste.setColumnWidth(spalte, (std::min(noetig, hoechstensZeichen) + Zwischenraum) * zeichen);
    }
}

} // namespace varnoth
