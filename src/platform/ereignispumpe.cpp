#include "ereignispumpe.h"

#include <QAbstractEventDispatcher>
#include <QThread>

#include <utility>

namespace varnoth {

namespace {

#ifdef Q_OS_WIN
// A round that takes the message that events were posted leaves these to the next round, which serves them
// before it looks for anything else and does not count them: it would sleep right behind them.
constexpr bool LaesstUebrig = true;
#else
constexpr bool LaesstUebrig = false;
#endif

/// Runs what is pending; gives whether there was anything.
bool LaufeEinmal(QEventLoop::ProcessEventsFlags wie) {
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
    Laufe();
    gehalteneEbene = vorher;
}

void Ereignispumpe::LaufeMitAllem() {
    const int vorher = std::exchange(gehalteneEbene, Nie);
    Erledige();
    // What the first round sets, the second paints.
    if (Laufe())
        Laufe();
    gehalteneEbene = vorher;
}

void Ereignispumpe::WarteAufEreignis(Zeit hoechstens) {
    const int vorher = std::exchange(gehalteneEbene, Nie);
    if (HatAufgeschobenes()) {
        Erledige();
        Laufe();
    } else if (uebrig) {
        Laufe();
    } else {
        wecker.start(std::chrono::floor<std::chrono::milliseconds>(hoechstens));
        Laufe(QEventLoop::WaitForMoreEvents);
        wecker.stop();
    }
    gehalteneEbene = vorher;
}

bool Ereignispumpe::Laufe(QEventLoop::ProcessEventsFlags wie) {
    const bool gelaufen = LaufeEinmal(wie);
    uebrig = LaesstUebrig && gelaufen;
    return gelaufen;
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
