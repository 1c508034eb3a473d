#include "ansichtsregeln.h"

#include "optikteilstatus.h"
#include "texte.h"

#include <iterator>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextStrahl = 4020;
constexpr std::int16_t TextStrahlen = 9010;
constexpr int AnzahlStatusbits = std::size(Optikteilmerkmale);

Strahlzustand Anzeigezustand(std::int32_t frei, std::int32_t geblankt) {
    if (geblankt != 0)
        return Strahlzustand::Geblankt;
    return frei != 0 ? Strahlzustand::Frei : Strahlzustand::Unterbrochen;
}

} // namespace

int Blockversatz(int auswahl) {
    return auswahl * AnzahlMesswerte;
}

std::int16_t Statusbits(std::int32_t statusregister) {
    return static_cast<std::int16_t>(statusregister % (1 << AnzahlStatusbits));
}

std::string Statustext(std::int16_t statusbits) {
    std::string text = "Status: ";
    bool erster = true;
    for (const Option& merkmal : Optikteilmerkmale) {
        if ((statusbits & merkmal.wert) == 0)
            continue;
        text += (erster ? "" : ", ") + LadeText(merkmal.text);
        erster = false;
    }
    return text;
}

std::string Strahltext(int index, std::int32_t abstandMm) {
    if (index < 0)
        return {};
    std::string text = LadeText(TextStrahl) + std::to_string(index + 1);
    if (abstandMm != 0)
        text += ", " + std::to_string(index * abstandMm) + "mm";
    return text;
}

std::string Ausschnittstext(const Strahlbereich& bereich, int strahlen) {
    std::string text = LadeText(TextStrahlen);
    const std::pair<const char*, std::string> platzhalter[] = {{"%1", Bereichstext({&bereich, 1})},
                                                               {"%2", std::to_string(strahlen)}};
    for (const auto& [zeichen, inhalt] : platzhalter)
        if (const auto stelle = text.find(zeichen); stelle != std::string::npos)
            text.replace(stelle, 2, inhalt);
    return text;
}

void Strahlanzeige::Vergiss() {
    gezeichnet.fill(std::nullopt);
}

std::optional<Strahlzustand> Strahlanzeige::Nimm(int index, std::int32_t frei, std::int32_t geblankt) {
    if (index == 0)
        geblankte = 0;
    if (geblankt != 0)
        ++geblankte;
    const Strahlzustand neuer = Anzeigezustand(frei, geblankt);
    auto& zuletzt = gezeichnet.at(static_cast<std::size_t>(index));
    if (zuletzt == neuer)
        return std::nullopt;
    zuletzt = neuer;
    return neuer;
}

} // namespace varnoth
