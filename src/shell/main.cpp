#include "anwendung.h"

#include <QApplication>
#include <QFileInfo>

int main(int argc, char** argv) {
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QFileInfo programm(QApplication::applicationFilePath());
    return varnoth::Anwendung({.worte = QApplication::arguments().mid(1),
                               .programmordner = programm.absolutePath(),
                               .programmname = programm.completeBaseName()})
        .Laufe();
}
