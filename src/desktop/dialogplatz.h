#pragma once

#include <QObject>

class QSize;
class QWidget;

namespace varnoth {

/// Makes a window that is not shown yet no larger than `platz` (logical pixels). One whose controls need more
/// room than that scrolls; any other keeps its layout.
void PasseEin(QWidget& fenster, QSize platz);

/// Fits every dialog of the program, and every window beside the main one, into the work area of its screen
/// when it appears, as long as this object lives.
class Dialogplatz : public QObject {
public:
    Dialogplatz();

protected:
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;
};

} // namespace varnoth
