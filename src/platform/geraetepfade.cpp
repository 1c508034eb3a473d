#include "geraetepfade.h"

#include "einstellungen.h"
#include "startzustand.h"
#include "windowsgeraet.h"

#include <QtGlobal>

namespace varnoth {

namespace {

constexpr int HoechsteNummer = 4;
constexpr const char* Abschnitt = "Settings";

std::string pfadDiesesLaufs;
const Startwert startwert(pfadDiesesLaufs);

std::string Schluessel(int nummer) {
    return "ComGeraet" + std::to_string(nummer);
}

} // namespace

std::string UeblichesGeraet(int nummer) {
#ifdef Q_OS_WIN
    return "COM" + std::to_string(nummer);
#else
    return "/dev/ttyS" + std::to_string(nummer - 1);
#endif
}

std::string EingetragenesGeraet(int nummer) {
    std::string pfad = DieEinstellungen().LiesText(Abschnitt, Schluessel(nummer), "");
#ifdef Q_OS_WIN
    return Windowsgeraet(pfad); // as the list of ports calls it
#else
    return pfad;
#endif
}

void TrageGeraetEin(int nummer, const std::string& pfad) {
    DieEinstellungen().SchreibText(Abschnitt, Schluessel(nummer), pfad);
}

std::string Geraetepfad(int nummer) {
    if (nummer < 1 || nummer > HoechsteNummer)
        return {};
    if (!pfadDiesesLaufs.empty())
        return pfadDiesesLaufs;
    const std::string eingetragenes = EingetragenesGeraet(nummer);
    return eingetragenes.empty() ? UeblichesGeraet(nummer) : eingetragenes;
}

void SetzeGeraetepfad(const std::string& pfad) {
    pfadDiesesLaufs = pfad;
}

const std::string& GeraetDiesesLaufs() {
    return pfadDiesesLaufs;
}

} // namespace varnoth
