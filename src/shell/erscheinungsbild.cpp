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
    WendeAn({});
}

void Erscheinungsbild::WendeAn(const Darstellung& neue) {
    if (neue == gewaehlt)
        return;
    SetzeStrahlfarbsatz(neue.farbsatz);
    if (neue.erscheinung != gewaehlt.erscheinung)
        Gib(neue.erscheinung);
    gewaehlt = neue;
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
