// symbolbilder SVG FOLDER SIZE...: draws a picture in each of the sizes (pixels) as FOLDER/SIZE/NAME.png.

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QPixmap>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    const QGuiApplication programm(argc, argv);
    const QStringList worte = QGuiApplication::arguments();
    const QIcon symbol(worte.value(1));
    const QString name = QFileInfo(worte.value(1)).completeBaseName() + QStringLiteral(".png");
    for (const QString& groesse : worte.mid(3)) {
        const QDir ordner(QDir(worte.value(2)).filePath(groesse));
        const QPixmap bild = symbol.pixmap(QSize(groesse.toInt(), groesse.toInt()), 1.0);
        if (bild.width() != groesse.toInt() || !ordner.mkpath(QStringLiteral(".")) ||
            !bild.save(ordner.filePath(name))) {
            std::fprintf(stderr, "%s: no picture of size %s\n", qPrintable(worte.value(1)),
                         qPrintable(groesse));
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
