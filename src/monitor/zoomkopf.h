#pragma once

#include "beambarcontrol.h"

#include <QLabel>
#include <QToolButton>

namespace varnoth {

/// The line above the beams of a zoomed bar: which of them are shown, and the way back to all.
class Zoomkopf : public QWidget {
public:
    explicit Zoomkopf(BeamBarControl& balken);

    /// Fills its texts in the current language again.
    void Lokalisiere();

protected:
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

private:
    void ZeigeAusschnitt();
    bool HatPlatz(const QString& text) const;

    BeamBarControl& balken;
    QLabel lblAusschnitt;
    QToolButton cmdAlleStrahlen;
};

} // namespace varnoth
