#include "strahlbericht.h"

#include "htmltext.h"
#include "texte.h"

namespace varnoth {

namespace {

using namespace html;

constexpr std::int16_t TextTitel = 6460;
constexpr std::int16_t TextNichtsVerdaechtiges = 6462;

Zeile AlsZeile(const std::vector<std::string>& felder) {
    Zeile zeile;
    for (const std::string& feld : felder)
        zeile.push_back({AlsHtml(feld)});
    return zeile;
}

std::string Absatz(const std::string& text) {
    return Element("p", AlsHtml(text)) + "\n";
}

} // namespace

std::string Strahlabschnitt(const Strahlbericht& bericht, std::int16_t sprache) {
    std::string abschnitt =
        Element("h2", AlsHtml(LadeText(TextTitel, sprache))) + "\n" + Absatz(bericht.zeitraum);
    if (bericht.verdacht.empty())
        abschnitt += Absatz(LadeText(TextNichtsVerdaechtiges, sprache));
    for (const std::string& verdacht : bericht.verdacht)
        abschnitt += Absatz(verdacht);
    std::vector<Zeile> zeilen;
    zeilen.reserve(bericht.zeilen.size());
    for (const auto& zeile : bericht.zeilen)
        zeilen.push_back(AlsZeile(zeile));
    if (!zeilen.empty())
        abschnitt += Tabelle(AlsZeile(bericht.titel), zeilen);
    return bericht.anmerkung.empty() ? abschnitt : abschnitt + Absatz(bericht.anmerkung);
}

} // namespace varnoth
