#include "ereignispumpe.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QThread>

#include <utility>

namespace varnoth {

namespace {

QEvent::Type Erinnerung() {
    static const auto art = static_cast<QEvent::Type>(QEvent::registerEventType());
    return art;
}

/// Runs what is pending; gives whether there was anything.
bool LaufeEinmal(QEventLoop::ProcessEventsFlags wie = QEventLoop::AllEvents) {
    QAbstractEventDispatcher* verteiler = QThread::currentThread()->eventDispatcher();
    return verteiler != nullptr && verteiler->processEvents(wie);
}

} // namespace

Ereignispumpe::Ereignispumpe() {
    wecker.setSingleShot(true);
    wecker.setTimerType(Qt::PreciseTimer);
}

void Ereignispumpe::LaufeOhneAufgeschobenes() {
    const int vorher = std::exchange(gehalteneEbene, QThread::currentThread()->loopLevel());
    LaufeEinmal();
    gehalteneEbene = vorher;
    Erinnere();
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
    Erledige();
    wecker.start(std::chrono::floor<std::chrono::milliseconds>(hoechstens));
    LaufeEinmal(QEventLoop::WaitForMoreEvents);
    wecker.stop();
    gehalteneEbene = vorher;
}

void Ereignispumpe::SchiebeAuf(std::function<void()> arbeit) {
    aufgeschobenes.push_back(std::move(arbeit));
    if (!HaeltZurueck())
        Erinnere();
}

bool Ereignispumpe::HaeltZurueck() const {
    return QThread::currentThread()->loopLevel() == gehalteneEbene;
}

bool Ereignispumpe::event(QEvent* ereignis) {
    if (ereignis->type() != Erinnerung())
        return QObject::event(ereignis);
    erinnert = false;
    if (!HaeltZurueck())
        Erledige();
    return true;
}

void Ereignispumpe::Erledige() {
    for (const auto& arbeit : std::exchange(aufgeschobenes, {}))
        arbeit();
}

/// Lets any event loop but the held one come across what was put off.
void Ereignispumpe::Erinnere() {
    if (!aufgeschobenes.empty() && !std::exchange(erinnert, true))
        QCoreApplication::postEvent(this, new QEvent(Erinnerung()));
}

} // namespace varnoth
