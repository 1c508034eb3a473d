#pragma once

#include "verbindungsregel.h"

#include <QWidget>

namespace varnoth {

/// The sign of the connection's state; each state has a shape of its own, so that it can be told without its
/// colour.
class Verbindungssymbol : public QWidget {
public:
    explicit Verbindungssymbol(QWidget* parent);

    void Zeige(Verbindungszustand zustand, bool simuliert);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    Verbindungszustand zustand = Verbindungszustand::Offline;
    bool simuliert = false;
};

/// The colour of a state; text is not drawn in it.
QColor Verbindungsfarbe(Verbindungszustand zustand, bool simuliert);

} // namespace varnoth
