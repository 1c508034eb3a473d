#include "tabellenform.h"

#include <QHeaderView>
#include <QTableView>

namespace varnoth {

void GibTabelleForm(QTableView& tabelle, std::span<const int> breiten) {
    constexpr int Luft = 6;
    constexpr int Bezugsaufloesung = 96;
    tabelle.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    tabelle.verticalHeader()->setDefaultSectionSize(tabelle.fontMetrics().height() + Luft);
    QHeaderView& kopf = *tabelle.horizontalHeader();
    int spalte = 0;
    for (const int breite : breiten)
        kopf.resizeSection(spalte++, breite * tabelle.logicalDpiX() / Bezugsaufloesung);
    kopf.setHighlightSections(false);
}

} // namespace varnoth
