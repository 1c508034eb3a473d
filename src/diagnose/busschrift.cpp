#include "busschrift.h"

#include "busrahmen.h"
#include "busworte.h"
#include "texte.h"
#include "zahlen.h"

#include <vector>

namespace varnoth {

namespace {

// Number, time, direction, function, register, address, values, sent, received, round trip, result.
constexpr std::int16_t Spaltentexte[] = {8455, 8403, 8404, 8405, 8406, 8456, 8407, 8453, 8454, 8457, 8409};

constexpr const char* Bytefolgemarke = "\xEF\xBB\xBF"; // by which spreadsheets know UTF-8

char Trenner() {
    return GetSprachoffset() == Englisch ? ',' : ';';
}

std::string Csvzeile(const std::vector<std::string>& felder) {
    std::string zeile;
    for (std::size_t i = 0; i < felder.size(); ++i) {
        if (i > 0)
            zeile += Trenner();
        zeile += CsvFeld(felder[i]);
    }
    return zeile + "\r\n";
}

std::vector<std::string> Ueberschriften() {
    std::vector<std::string> texte;
    for (const std::int16_t text : Spaltentexte)
        texte.push_back(LadeText(text));
    return texte;
}

std::vector<std::string> Felder(const Busaustausch& austausch, std::chrono::system_clock::time_point zeit) {
    const auto angabe = AdressangabeVon(austausch.anforderung);
    return {std::to_string(austausch.nummer),
            Zeitpunkttext(zeit),
            Richtungstext(austausch),
            Funktionstext(austausch),
            Registerangabe(austausch),
            angabe ? AlsHex(angabe->adresse) + "H" : "",
            Wertetext(austausch),
            Anforderungsbytes(austausch),
            Empfangsbytes(austausch),
            Umlaufzahl(austausch),
            Ergebnistext(austausch)};
}

void HaengeAn(std::string& zeile, const std::string& trenner, const std::string& text) {
    if (!text.empty())
        zeile += trenner + text;
}

/// A line for what it was and one, set in, for the bytes.
std::string Textzeile(const Busaustausch& austausch, std::chrono::system_clock::time_point zeit) {
    std::string zeile = Zeitpunkttext(zeit) + "  " + Funktionstext(austausch);
    HaengeAn(zeile, ", ", Registerangabe(austausch));
    HaengeAn(zeile, " = ", Wertetext(austausch));
    HaengeAn(zeile, " (", Umlauftext(austausch).empty() ? "" : Umlauftext(austausch) + ")");
    zeile += (IstFehler(austausch.ergebnis) ? "  ** " : "  ") + Ergebnistext(austausch);
    HaengeAn(zeile, "\n    ", Bytetext(austausch));
    return zeile + "\n";
}

} // namespace

std::string CsvFeld(std::string_view wert) {
    constexpr std::string_view Formelzeichen = "=+-@\t\r";
    std::string feld;
    if (!wert.empty() && Formelzeichen.find(wert.front()) != std::string_view::npos)
        feld = "'";
    feld += wert;
    if (feld.find_first_of("\";,\r\n") == std::string::npos)
        return feld;
    for (auto stelle = feld.find('"'); stelle != std::string::npos; stelle = feld.find('"', stelle + 2))
        feld.insert(stelle, 1, '"');
    return "\"" + feld + "\"";
}

std::string Schriftkopf(Busformat format) {
    return format == Busformat::Csv ? Bytefolgemarke + Csvzeile(Ueberschriften()) : std::string();
}

std::string Schriftzeile(Busformat format, const Busaustausch& austausch,
                         std::chrono::system_clock::time_point zeit) {
    return format == Busformat::Csv ? Csvzeile(Felder(austausch, zeit)) : Textzeile(austausch, zeit);
}

} // namespace varnoth
