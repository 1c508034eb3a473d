// Takes the pictures of the help: hilfebilder FOLDER, where the folder holds those of the languages.

#include "bildspeicher.h"
#include "motive.h"
#include "texte.h"

#include <QApplication>
#include <QDir>
#include <QFont>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <utility>

namespace varnoth::hilfebilder {

namespace {

constexpr std::pair<const char*, std::int16_t> Sprachen[] = {{"de", Deutsch}, {"en", Englisch}};

void NimmAuf(Buehne& buehne, const Motiv& motiv, const QDir& ordner) {
    const QImage bild = motiv.nimmAuf(buehne);
    if (const std::string zwischenfall = buehne.Zwischenfall(); !zwischenfall.empty())
        throw std::runtime_error(std::string(motiv.name) + ": " + zwischenfall);
    const QString pfad = ordner.filePath(motiv.name + QStringLiteral(".png"));
    if (!Speichere(bild, pfad))
        throw std::runtime_error("cannot write " + pfad.toStdString());
}

void NimmAlleAuf(const QDir& hilfe) {
    for (const auto& [sprache, offset] : Sprachen) {
        const QDir ordner(hilfe.filePath(sprache + QStringLiteral("/bilder")));
        ordner.mkpath(QStringLiteral("."));
        Buehne buehne(offset);
        for (const Motiv& motiv : AlleMotive())
            NimmAuf(buehne, motiv, ordner);
    }
}

} // namespace

} // namespace varnoth::hilfebilder

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    if (argc != 2) {
        std::fprintf(stderr, "hilfebilder FOLDER: takes the pictures of the help into FOLDER/de/bilder and "
                             "FOLDER/en/bilder\n");
        return EXIT_FAILURE;
    }
    try {
        varnoth::hilfebilder::NimmAlleAuf(QDir(QString::fromLocal8Bit(argv[1])));
    } catch (const std::exception& fehler) {
        std::fprintf(stderr, "%s\n", fehler.what());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
