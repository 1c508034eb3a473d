#pragma once

#include <QObject>

class QDialog;
class QSize;

namespace varnoth {

/// Makes a dialog that is not shown yet no larger than `platz` (logical pixels). One whose controls need more
/// room than that scrolls; any other keeps its layout.
void PasseEin(QDialog& dialog, QSize platz);

/// Fits every dialog of the program into the work area of its screen when it appears, as long as this object
/// lives.
class Dialogplatz : public QObject {
public:
    Dialogplatz();

protected:
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;
};

} // namespace varnoth
