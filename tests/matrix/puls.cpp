#include "puls.h"

#include <QApplication>
#include <QWidget>

#include <fstream>

namespace varnoth::pruefung {

namespace {

constexpr int TaktMs = 5;

/// Milliseconds that this thread could have run and had no processor.
qint64 WartezeitMs() {
    constexpr qint64 NsJeMs = 1000000;
    qint64 gelaufen = 0;
    qint64 gewartet = 0;
    std::ifstream("/proc/thread-self/schedstat") >> gelaufen >> gewartet;
    return gewartet / NsJeMs;
}

} // namespace

Puls::Puls() {
    QObject::connect(&takt, &QTimer::timeout, &takt, [this] { Schlage(); });
    takt.setTimerType(Qt::PreciseTimer);
    takt.start(TaktMs);
    Beginne();
}

void Puls::Beginne() {
    groesste = 0;
    wo.clear();
    UebergeheLuecke();
}

void Puls::UebergeheLuecke() {
    gewartetMs = WartezeitMs();
    seit.start();
}

void Puls::Schlage() {
    const qint64 davor = gewartetMs;
    const qint64 verstrichen = seit.elapsed();
    UebergeheLuecke();
    const qint64 luecke = verstrichen - (gewartetMs - davor);
    if (luecke <= groesste)
        return;
    groesste = luecke;
    const QWidget* vorn = QApplication::activeModalWidget();
    wo = vorn == nullptr ? "main window" : vorn->objectName().toStdString();
}

} // namespace varnoth::pruefung
