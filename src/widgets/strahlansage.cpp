#include "strahlansage.h"

#include "strahlbereiche.h"
#include "texte.h"

namespace varnoth {

namespace {

constexpr std::int16_t TextKeineWerte = 9000;
constexpr std::int16_t TextStrahlen = 9040;
constexpr std::int16_t TextUnterbrochen = 9041;
constexpr std::int16_t TextGeblankt = 9042;
constexpr std::int16_t TextFrei = 9043;
constexpr std::int16_t TextStrahl = 9044;
constexpr std::int16_t TextKeine = 9045;
constexpr const char* Trenner = "; ";

std::string Zustandstext(Strahlzustand zustand) {
    if (zustand == Strahlzustand::Unterbrochen)
        return LadeText(TextUnterbrochen);
    return LadeText(zustand == Strahlzustand::Geblankt ? TextGeblankt : TextFrei);
}

std::string Vorkommen(std::span<const Strahlzustand> zustaende, Strahlzustand zustand) {
    const auto bereiche = Bereiche(zustaende, zustand);
    return Trenner + Zustandstext(zustand) + ": " +
           (bereiche.empty() ? LadeText(TextKeine) : Bereichstext(bereiche));
}

std::string Strahltext(int strahl, int abstandMm) {
    std::string text = Trenner + LadeText(TextStrahl) + ' ' + std::to_string(strahl + 1);
    if (abstandMm > 0)
        text += ", " + std::to_string(strahl * abstandMm) + " mm";
    return text;
}

} // namespace

std::string Strahlansage(std::span<const Strahlzustand> zustaende, Datenstand stand, int strahl,
                         int abstandMm) {
    const bool bekannt = stand != Datenstand::Ungueltig;
    const bool amZeiger = strahl >= 0 && strahl < static_cast<int>(zustaende.size());
    std::string text = std::to_string(zustaende.size()) + ' ' + LadeText(TextStrahlen);
    if (bekannt)
        text +=
            Vorkommen(zustaende, Strahlzustand::Unterbrochen) + Vorkommen(zustaende, Strahlzustand::Geblankt);
    else
        text += Trenner + LadeText(TextKeineWerte);
    if (amZeiger)
        text += Strahltext(strahl, abstandMm);
    if (amZeiger && bekannt)
        text += ": " + Zustandstext(zustaende[static_cast<std::size_t>(strahl)]);
    return text;
}

} // namespace varnoth
