#include "strahltabelle.h"

#include "texte.h"
#include "zeitworte.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <vector>

namespace varnoth {

namespace {

constexpr std::int16_t TextNummer = 6420, TextPlatzMm = 6439, TextAnteil = 6429, TextWechsel = 6423,
                       TextLaengsteSekunden = 6438, TextLetzterWechsel = 6425, TextVerdacht = 6426;
constexpr const char* Bytefolgemarke = "\xEF\xBB\xBF"; // by which spreadsheets know UTF-8

bool IstEnglisch() {
    return GetSprachoffset() == Englisch;
}

std::string Zahl(double zahl) {
    std::array<char, 40> puffer{};
    std::snprintf(puffer.data(), puffer.size(), "%.3f", zahl);
    std::string text = puffer.data();
    if (!IstEnglisch())
        std::ranges::replace(text, '.', ',');
    return text;
}

std::string Text(const std::string& text) {
    return "\"" + text + "\"";
}

std::string Zeile(const std::vector<std::string>& felder) {
    const char trenner = IstEnglisch() ? ',' : ';';
    std::string zeile;
    for (std::size_t i = 0; i < felder.size(); ++i)
        zeile += (i > 0 ? std::string(1, trenner) : std::string()) + felder[i];
    return zeile + "\r\n";
}

std::string Strahlzeile(const Strahlwerte& werte, int strahl, std::span<const Strahlverdacht> verdaechte,
                        const Strahlbezug& bezug) {
    constexpr double Prozent = 100;
    const bool gemessen = werte.gemessen > Zeit{};
    const Strahlverdacht* const verdacht = VerdachtVon(verdaechte, strahl);
    const double sekunden = std::chrono::duration<double>(werte.laengste).count();
    return Zeile({std::to_string(strahl + 1),
                  bezug.abstandMm > 0 ? std::to_string(strahl * bezug.abstandMm) : "",
                  gemessen ? Zahl(werte.Anteil() * Prozent) : "",
                  gemessen ? std::to_string(werte.wechsel) : "", gemessen ? Zahl(sekunden) : "",
                  werte.letzterWechsel ? Text(Zeitworte(bezug.angaben, *werte.letzterWechsel)) : "",
                  verdacht != nullptr ? Text(Verdachtsfrage(*verdacht)) : ""});
}

} // namespace

std::string Strahltabelle(std::span<const Strahlwerte> strahlen, std::span<const Strahlverdacht> verdaechte,
                          const Strahlbezug& bezug) {
    std::vector<std::string> titel;
    for (const std::int16_t text : {TextNummer, TextPlatzMm, TextAnteil, TextWechsel, TextLaengsteSekunden,
                                    TextLetzterWechsel, TextVerdacht})
        titel.push_back(Text(LadeText(text)));
    std::string tabelle = Bytefolgemarke + Zeile(titel);
    for (std::size_t i = 0; i < strahlen.size(); ++i)
        tabelle += Strahlzeile(strahlen[i], static_cast<int>(i), verdaechte, bezug);
    return tabelle;
}

} // namespace varnoth
