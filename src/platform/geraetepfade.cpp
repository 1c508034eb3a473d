#include "geraetepfade.h"

#include "einstellungen.h"
#include "startzustand.h"

#include <QtGlobal>

namespace varnoth {

namespace {

constexpr int HoechsteNummer = 4;

std::string pfadDiesesLaufs;
const Startwert startwert(pfadDiesesLaufs);

std::string Standardpfad(int nummer) {
#ifdef Q_OS_WIN
    return "COM" + std::to_string(nummer);
#else
    return "/dev/ttyS" + std::to_string(nummer - 1);
#endif
}

} // namespace

std::string Geraetepfad(int nummer) {
    if (nummer < 1 || nummer > HoechsteNummer)
        return {};
    if (!pfadDiesesLaufs.empty())
        return pfadDiesesLaufs;
    const std::string eingestellt =
        DieEinstellungen().LiesText("Settings", "ComGeraet" + std::to_string(nummer), "");
    return eingestellt.empty() ? Standardpfad(nummer) : eingestellt;
}

void SetzeGeraetepfad(const std::string& pfad) {
    pfadDiesesLaufs = pfad;
}

} // namespace varnoth
