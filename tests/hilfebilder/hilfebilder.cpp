// Takes the pictures of the help: hilfebilder FOLDER [LOOK], where the folder holds those of the languages.
// The help has them as they are without a look; with one, as the settings name it, they are there to be
// looked at.

#include "bildspeicher.h"
#include "erscheinungsbild.h"
#include "motive.h"
#include "texte.h"

#include <QApplication>
#include <QDir>
#include <QFont>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>
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

/// @throws std::runtime_error for a word that the settings do not know
Darstellung MitErscheinung(const std::string& wort) {
    for (const auto& zeile : Erscheinungszeilen())
        if (wort == zeile.wort)
            return {.erscheinung = zeile.wert};
    throw std::runtime_error("no look " + wort);
}

} // namespace

} // namespace varnoth::hilfebilder

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    if (argc != 2 && argc != 3) {
        std::fprintf(stderr,
                     "hilfebilder FOLDER [LOOK]: takes the pictures of the help into FOLDER/de/bilder "
                     "and FOLDER/en/bilder\n");
        return EXIT_FAILURE;
    }
    try {
        const varnoth::Erscheinungsbild bild(argc == 3 ? varnoth::hilfebilder::MitErscheinung(argv[2])
                                                       : varnoth::Darstellung());
        varnoth::hilfebilder::NimmAlleAuf(QDir(QString::fromLocal8Bit(argv[1])));
    } catch (const std::exception& fehler) {
        std::fprintf(stderr, "%s\n", fehler.what());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
