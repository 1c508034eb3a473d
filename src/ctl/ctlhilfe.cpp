#include "ctlhilfe.h"

#include "lauf.h"
#include "programmversion.h"
#include "texte.h"
#include "textmitwerten.h"
#include "zeichenwandel.h"

#include <algorithm>

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextAufruf = 8605;
constexpr std::int16_t TextUeberblick = 8606;
constexpr std::int16_t TextBefehle = 8607;
constexpr std::int16_t TextOptionen = 8608;
constexpr std::int16_t TextWeitereOptionen = 8609;
constexpr std::int16_t TextExitcodes = 8610;
constexpr std::int16_t TextExitcodeliste = 8611;
constexpr std::int16_t TextMehr = 8612;
constexpr std::int16_t TextOptionsplatz = 8613;
constexpr std::int16_t TextBefehlsplatz = 8614;

constexpr int Einzug = 2;
constexpr int Spaltenabstand = 2;

struct Hilfezeile {
    std::string links;
    std::string rechts;
};

/// Two columns; the left one is as wide as it must be.
std::string Tabelle(const std::vector<Hilfezeile>& zeilen) {
    int breite = 0;
    for (const Hilfezeile& zeile : zeilen)
        breite = std::max(breite, Anzeigebreite(zeile.links));
    std::string text;
    for (const Hilfezeile& zeile : zeilen)
        text += std::string(Einzug, ' ') + Aufgefuellt(zeile.links, breite + Spaltenabstand) + zeile.rechts +
                "\n";
    return text;
}

std::string Schreibweise(const Option& option) {
    const std::string kurz = option.kurz != 0 ? std::string("-") + option.kurz + ", " : "    ";
    const std::string wert = option.platzhalter != 0 ? " " + LadeText(option.platzhalter) : std::string();
    return kurz + "--" + std::string(option.name) + wert;
}

template<class Bedingung>
std::string Optionstabelle(std::span<const Option> optionen, Bedingung gehoertDazu) {
    std::vector<Hilfezeile> zeilen;
    for (const Option& option : optionen)
        if (gehoertDazu(option))
            zeilen.push_back({Schreibweise(option), LadeText(option.zweck)});
    return Tabelle(zeilen);
}

std::string Argumente(const Befehl& befehl) {
    return befehl.argumente != 0 ? " " + LadeText(befehl.argumente) : std::string();
}

std::string Abschnitt(std::int16_t titel, const std::string& inhalt) {
    return inhalt.empty() ? inhalt : "\n" + LadeText(titel) + "\n" + inhalt;
}

std::string Ueberblick() {
    std::vector<Hilfezeile> zeilen;
    for (const Befehl& befehl : AlleBefehle())
        zeilen.push_back({std::string(befehl.name) + Argumente(befehl), LadeText(befehl.zweck)});
    return LadeText(TextAufruf) + "varnothctl [" + LadeText(TextOptionsplatz) + "]... " +
           LadeText(TextBefehlsplatz) + "\n" + LadeText(TextUeberblick) + "\n" +
           Abschnitt(TextBefehle, Tabelle(zeilen)) +
           Abschnitt(TextOptionen, Optionstabelle(AllgemeineOptionen(), [](const Option&) { return true; })) +
           Abschnitt(TextExitcodes, LadeText(TextExitcodeliste) + "\n") + "\n" + LadeText(TextMehr) + "\n";
}

std::string Befehlshilfe(const Befehl& befehl) {
    const auto istEigene = [&befehl](const Option& option) { return Nimmt(befehl, option.name); };
    const std::string einzelheiten =
        befehl.einzelheiten != 0 ? "\n" + LadeText(befehl.einzelheiten) + "\n" : "";
    return LadeText(TextAufruf) + "varnothctl " + std::string(befehl.name) + " [" +
           LadeText(TextOptionsplatz) + "]..." + Argumente(befehl) + "\n" + LadeText(befehl.zweck) + ".\n" +
           einzelheiten + Abschnitt(TextWeitereOptionen, Optionstabelle(EigeneOptionen(), istEigene)) +
           Abschnitt(TextOptionen, Optionstabelle(AllgemeineOptionen(), [](const Option&) { return true; }));
}

Json AlsJson(const Option& option) {
    return Json::Objekt({{"name", option.name},
                         {"letter", option.kurz != 0 ? Json(std::string(1, option.kurz)) : Json()},
                         {"value", option.platzhalter != 0 ? Json(LadeText(option.platzhalter)) : Json()},
                         {"purpose", LadeText(option.zweck)}});
}

Json AlsJson(const Befehl& befehl) {
    std::vector<Json> optionen;
    for (const std::string_view name : befehl.optionen)
        if (!name.empty())
            optionen.emplace_back(name);
    return Json::Objekt({{"name", befehl.name},
                         {"arguments", befehl.argumente != 0 ? Json(LadeText(befehl.argumente)) : Json()},
                         {"purpose", LadeText(befehl.zweck)},
                         {"options", Json::Liste(optionen)}});
}

} // namespace

Ende ZeigeHilfe(const Lauf& lauf) {
    const auto alsJson = [](const auto& eines) { return AlsJson(eines); };
    const Befehl* const befehl = lauf.zeile.befehl;
    lauf.GibAls("help", befehl != nullptr ? Befehlshilfe(*befehl) : Ueberblick(),
                {{"commands", Jsonliste(AlleBefehle(), alsJson)},
                 {"commonOptions", Jsonliste(AllgemeineOptionen(), alsJson)},
                 {"options", Jsonliste(EigeneOptionen(), alsJson)}});
    return Ende::Erledigt;
}

Ende ZeigeVersion(const Lauf& lauf) {
    lauf.GibAls("version", "varnothctl " + std::string(Programmversion()), {{"version", Programmversion()}});
    return Ende::Erledigt;
}

} // namespace varnoth::ctl
