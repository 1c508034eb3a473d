#include "ereignispumpe.h"

#include <QAbstractEventDispatcher>
#include <QThread>

#include <utility>

namespace varnoth {

namespace {

/// Runs what is pending; gives whether there was anything.
bool LaufeEinmal(QEventLoop::ProcessEventsFlags wie = QEventLoop::AllEvents) {
    QAbstractEventDispatcher* verteiler = QThread::currentThread()->eventDispatcher();
    return verteiler != nullptr && verteiler->processEvents(wie);
}

} // namespace

Ereignispumpe::Ereignispumpe() {
    wecker.setSingleShot(true);
    wecker.setTimerType(Qt::PreciseTimer);
    // Every round of every event loop gives one of these signals before it runs or waits for events.
    const QAbstractEventDispatcher* verteiler = QThread::currentThread()->eventDispatcher();
    connect(verteiler, &QAbstractEventDispatcher::awake, this, &Ereignispumpe::NutzeRunde);
    connect(verteiler, &QAbstractEventDispatcher::aboutToBlock, this, &Ereignispumpe::NutzeRunde);
}

void Ereignispumpe::LaufeOhneAufgeschobenes() {
    const int vorher = std::exchange(gehalteneEbene, QThread::currentThread()->loopLevel());
    LaufeEinmal();
    gehalteneEbene = vorher;
}

void Ereignispumpe::LaufeMitAllem() {
    const int vorher = std::exchange(gehalteneEbene, Nie);
    Erledige();
    // What the first round sets, the second paints.
    if (LaufeEinmal())
        LaufeEinmal();
    gehalteneEbene = vorher;
}

void Ereignispumpe::WarteAufEreignis(Zeit hoechstens) {
    const int vorher = std::exchange(gehalteneEbene, Nie);
    if (HatAufgeschobenes()) {
        Erledige();
        LaufeEinmal();
    } else {
        wecker.start(std::chrono::floor<std::chrono::milliseconds>(hoechstens));
        LaufeEinmal(QEventLoop::WaitForMoreEvents);
        wecker.stop();
    }
    gehalteneEbene = vorher;
}

void Ereignispumpe::SchiebeAuf(std::function<void()> arbeit) {
    aufgeschobenes.push_back(std::move(arbeit));
}

bool Ereignispumpe::HaeltZurueck() const {
    return QThread::currentThread()->loopLevel() == gehalteneEbene;
}

void Ereignispumpe::NutzeRunde() {
    if (HatAufgeschobenes() && !HaeltZurueck())
        Erledige();
}

void Ereignispumpe::Erledige() {
    for (const auto& arbeit : std::exchange(aufgeschobenes, {}))
        arbeit();
}

} // namespace varnoth
