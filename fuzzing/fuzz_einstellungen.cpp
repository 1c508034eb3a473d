// Any bytes as the settings file: reading leaves it as it is; a change reads back, and what is no text is not
// lost.

#include "inieinstellungen.h"

#include "dateien.h"
#include "pruefe.h"

#include <QDir>
#include <QTemporaryDir>

#include <fstream>

namespace {

using namespace varnoth;
using namespace varnoth::fuzzing;

constexpr std::size_t Genug = 1 << 21;

void SchreibRoh(const std::string& pfad, std::string_view bytes) {
    std::ofstream datei(pfad, std::ios::binary);
    datei.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

void LiesAlle(IniEinstellungen& einstellungen) {
    einstellungen.LiesZahl("Settings", "Sprache", 0);
    einstellungen.LiesText("Settings", "ComSettings", "38400,n,8,2");
    Pruefe(einstellungen.LiesZahl("Settings", "no such key", 7) == 7, "what is not there gives the default");
}

void PruefeAenderung(const QString& pfad, std::string_view bytes) {
    Pruefe(IniEinstellungen(pfad).SchreibText("Settings", "ComPort", "-4711"), "a change is stored");
    IniEinstellungen wieder(pfad);
    Pruefe(wieder.LiesZahl("Settings", "ComPort", 0) == -4711, "a change reads back");
    const QString beiseite = pfad + ".defekt";
    const bool keinText = bytes.find('\0') != std::string_view::npos;
    Pruefe(QFile::exists(beiseite) == keinText, "a file that is no text, and no other, is set aside");
    if (keinText)
        Pruefe(LiesDatei(beiseite.toStdString(), Genug).bytes == bytes, "what is set aside is whole");
    QFile::remove(beiseite);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
    static const QTemporaryDir ordner;
    const QString pfad = ordner.filePath(QStringLiteral("varnoth.ini"));
    const std::string_view bytes = AlsText(daten, laenge);
    SchreibRoh(pfad.toStdString(), bytes);
    {
        IniEinstellungen einstellungen(pfad);
        LiesAlle(einstellungen);
    }
    Pruefe(LiesDatei(pfad.toStdString(), Genug).bytes == bytes, "reading leaves the file as it is");
    PruefeAenderung(pfad, bytes);
    return 0;
}
