#include "busschrift.h"

#include "busrahmen.h"
#include "busworte.h"
#include "csvzeile.h"
#include "texte.h"
#include "zahlen.h"
#include "zeitpunkt.h"

#include <vector>

namespace varnoth {

namespace {

// Number, time, direction, function, register, address, values, sent, received, round trip, result.
constexpr std::int16_t Spaltentexte[] = {8455, 8403, 8404, 8405, 8406, 8456, 8407, 8453, 8454, 8457, 8409};

std::vector<std::string> Ueberschriften() {
    std::vector<std::string> texte;
    for (const std::int16_t text : Spaltentexte)
        texte.push_back(LadeText(text));
    return texte;
}

std::vector<std::string> Spaltenwerte(const Busaustausch& austausch,
                                      std::chrono::system_clock::time_point zeit) {
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

std::string Schriftkopf(Busformat format) {
    return format == Busformat::Csv ? CsvMarke + Csvzeile(Ueberschriften()) : std::string();
}

std::string Schriftzeile(Busformat format, const Busaustausch& austausch,
                         std::chrono::system_clock::time_point zeit) {
    return format == Busformat::Csv ? Csvzeile(Spaltenwerte(austausch, zeit)) : Textzeile(austausch, zeit);
}

} // namespace varnoth
