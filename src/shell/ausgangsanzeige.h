#pragma once

#include "wertealter.h"

#include <QLabel>
#include <QObject>
#include <QTime>
#include <QTimer>

namespace varnoth {

/// The panel of the status bar with the switching output's state: its tool tip says of when the text is, and
/// a text that was not renewed in time is dimmed.
class Ausgangsanzeige : public QObject {
public:
    explicit Ausgangsanzeige(QLabel& feld);

    /// Shows the state that was read just now; an empty text: none is known.
    void Zeige(const QString& text);
    /// Shows the state of another time, as in a replay; it does not become old.
    void ZeigeVon(const QString& text, const QString& uhrzeit);

protected:
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

private:
    void ZeigeUhrzeit();
    void PruefeAlter();
    void SetzeBlass(bool neu);
    void Faerbe();

    QLabel& feld;
    Wertealter alter;
    QTime gelesen;
    QTimer takt;
    bool blass = false;
};

} // namespace varnoth
