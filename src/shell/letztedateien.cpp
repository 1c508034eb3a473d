#include "letztedateien.h"

#include "einstellungen.h"

#include <algorithm>

namespace varnoth {

namespace {

constexpr const char* Abschnitt = "LetzteDateien";

std::string Schluessel(int platz) {
    return "Datei" + std::to_string(platz + 1);
}

std::string Gespeichert(int platz) {
    return DieEinstellungen().LiesText(Abschnitt, Schluessel(platz), "");
}

void Speichere(const std::vector<std::string>& pfade) {
    for (int platz = 0; platz < static_cast<int>(pfade.size()); ++platz)
        if (const auto& pfad = pfade[static_cast<std::size_t>(platz)]; Gespeichert(platz) != pfad)
            DieEinstellungen().SchreibText(Abschnitt, Schluessel(platz), pfad);
}

} // namespace

std::vector<std::string> LetzteDateien() {
    std::vector<std::string> pfade;
    for (int platz = 0; platz < HoechstensLetzteDateien; ++platz)
        if (const std::string pfad = Gespeichert(platz);
            !pfad.empty() && std::ranges::find(pfade, pfad) == pfade.end())
            pfade.push_back(pfad);
    return pfade;
}

void MerkeDatei(const std::string& pfad) {
    if (pfad.empty() || pfad.find_first_of("\r\n") != std::string::npos)
        return;
    std::vector<std::string> pfade = LetzteDateien();
    std::erase(pfade, pfad);
    pfade.insert(pfade.begin(), pfad);
    if (pfade.size() > HoechstensLetzteDateien)
        pfade.resize(HoechstensLetzteDateien);
    Speichere(pfade);
}

} // namespace varnoth
