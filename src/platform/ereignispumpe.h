#pragma once

#include "umgebung.h"

#include <QEventLoop>
#include <QObject>
#include <QTimer>

#include <functional>
#include <vector>

namespace varnoth {

/// The one place where the program's events run. Work that can wait is put off until there is time for it,
/// since events also run between a reply and the next request to the controller.
class Ereignispumpe : public QObject {
public:
    /// Needs the application, which must outlive it.
    Ereignispumpe();

    /// Runs every pending event; what was put off stays put off. A dialog that opens meanwhile and has an
    /// event loop of its own does what it puts off itself as ever.
    void LaufeOhneAufgeschobenes();
    /// Does what was put off and runs every pending event.
    void LaufeMitAllem();
    /// The same; where nothing was put off, it sleeps until an event was served or the time, 1 ms or more,
    /// has passed.
    void WarteAufEreignis(Zeit hoechstens);

    /// Puts work off: it is done, in the order of the calls, by whatever runs events next but
    /// LaufeOhneAufgeschobenes.
    void SchiebeAuf(std::function<void()> arbeit);
    bool HatAufgeschobenes() const { return !aufgeschobenes.empty(); }
    /// Whether the events that run right now are those of LaufeOhneAufgeschobenes.
    bool HaeltZurueck() const;

private:
    static constexpr int Nie = -1;

    bool Laufe(QEventLoop::ProcessEventsFlags wie = QEventLoop::AllEvents);
    void NutzeRunde();
    void Erledige();

    bool uebrig = false;      // the last round may have left events that it has heard of
    int gehalteneEbene = Nie; // the depth of event loops at which work stays put off
    std::vector<std::function<void()>> aufgeschobenes;
    QTimer wecker;
};

} // namespace varnoth
