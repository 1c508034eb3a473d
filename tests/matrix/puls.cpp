#include "puls.h"

#include <QApplication>
#include <QWidget>

namespace varnoth::pruefung {

namespace {
constexpr int TaktMs = 5;
}

Puls::Puls() {
    QObject::connect(&takt, &QTimer::timeout, &takt, [this] { Schlage(); });
    takt.setTimerType(Qt::PreciseTimer);
    takt.start(TaktMs);
    Beginne();
}

void Puls::Beginne() {
    groesste = 0;
    wo.clear();
    seit.start();
}

void Puls::Schlage() {
    const qint64 luecke = seit.restart();
    if (luecke <= groesste)
        return;
    groesste = luecke;
    const QWidget* vorn = QApplication::activeModalWidget();
    wo = vorn == nullptr ? "main window" : vorn->objectName().toStdString();
}

} // namespace varnoth::pruefung
