#include "erscheinungsbild.h"

#include "dunkelstil.h"

#include <QApplication>
#include <QStyle>
#include <QWidget>

namespace varnoth {

namespace {

const QString EigenerStil = QStringLiteral("Fusion");

} // namespace

Erscheinungsbild::~Erscheinungsbild() {
    Zeige(Erscheinung::System, Darstellung().farbsatz);
}

void Erscheinungsbild::WendeAn(const Darstellung& neue) {
    gewaehlt = neue;
    Zeige(Wirksam(neue.erscheinung, systemWillDunkel()), neue.farbsatz);
}

void Erscheinungsbild::Zeige(Erscheinung erscheinung, Strahlfarbsatz farbsatz) {
    if (erscheinung == inKraft && farbsatz == GetStrahlfarbsatz())
        return;
    SetzeStrahlfarbsatz(farbsatz);
    if (erscheinung != inKraft)
        Gib(erscheinung);
    inKraft = erscheinung;
    for (QWidget* element : QApplication::allWidgets())
        element->update();
}

/// Palettes of our own go with the one style that draws everything from them.
void Erscheinungsbild::Gib(Erscheinung erscheinung) {
    const auto palette = PaletteFuer(erscheinung);
    if (systemstil.isEmpty())
        systemstil = QApplication::style()->name();
    if (!palette)
        QApplication::setStyle(systemstil);
    else if (IstDunkel(*palette))
        QApplication::setStyle(new Dunkelstil(EigenerStil));
    else
        QApplication::setStyle(EigenerStil);
    QApplication::setPalette(palette.value_or(QPalette()));
    if (!palette)
        systemstil.clear();
}

} // namespace varnoth
