#pragma once

#include <QObject>

namespace varnoth {

class Ereignispumpe;

/// Puts layout and painting off while the pump runs only what cannot wait: they would keep the line to the
/// controller waiting. A dialog that opens meanwhile and has an event loop of its own paints as ever.
class Malaufschub : public QObject {
public:
    /// Needs the application and the pump, which must outlive it.
    explicit Malaufschub(Ereignispumpe& ereignispumpe);

protected:
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

private:
    Ereignispumpe& pumpe;
};

} // namespace varnoth
