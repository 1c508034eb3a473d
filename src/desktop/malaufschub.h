#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>

#include <utility>
#include <vector>

namespace varnoth {

/// Puts layout and painting off. Events run between two requests to the controller, and painting there would
/// keep the line waiting; put off, it falls into the pause before the request or into the time of the reply.
class Malaufschub : public QObject {
public:
    /// Needs the application, which must outlive it.
    Malaufschub();

    /// Runs every pending event but lays out and paints nothing: that stays pending. A dialog that opens
    /// meanwhile and has an event loop of its own paints as ever.
    void LasseEreignisseLaufen();

protected:
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

private:
    static constexpr int Nie = -1;

    int gehalteneEbene = Nie; // the depth of event loops at which painting is put off
    std::vector<std::pair<QPointer<QObject>, QEvent::Type>> aufgeschobene;
};

} // namespace varnoth
