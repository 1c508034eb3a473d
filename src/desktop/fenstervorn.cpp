#include "fenstervorn.h"

#include <QApplication>

namespace varnoth {

QWidget* FensterVorn() {
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : QApplication::activeWindow();
}

} // namespace varnoth
