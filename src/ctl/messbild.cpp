#include "messbild.h"

#include "klartext.h"
#include "polling.h"
#include "registeradressen.h"
#include "statusbits.h"
#include "strahlbits.h"
#include "texte.h"
#include "zeichenwandel.h"

#include <algorithm>
#include <string_view>

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextUhrzeit = 8654;
constexpr std::int16_t TextTeil = 8655;
constexpr std::int16_t TextUnterbrochen = 8656;
constexpr std::int16_t TextZustand = 8657;
constexpr std::int16_t TextAusgang = 8658;
constexpr std::int16_t TextAn = 8659;
constexpr std::int16_t TextAus = 8660;
constexpr std::int16_t ErsterWertname = 4006;

constexpr std::array<const char*, 6> Wertnamen{"TU", "HU", "ZU", "TNU", "HNU", "ZNU"};
constexpr std::array<const char*, 3> Blocknamen{"current", "min", "max"};

constexpr int Uhrzeitbreite = 9;
constexpr int Teilbreite = 6;
constexpr int Wertbreite = 6;
constexpr int Zustandsbreite = 40;
constexpr int Ausgangsbreite = 8;

bool IstUnterbrochen(const Werte& frei, const Werte& geblankt, int strahl) {
    return !StrahlBit(frei, strahl) && !StrahlBit(geblankt, strahl);
}

std::vector<std::pair<int, int>> Unterbrochene(const Abbild& abbild, int teil, int strahlen) {
    const Werte frei = abbild.HoleStrahlzustaende(
        static_cast<std::int16_t>(std::max(1, modPolling::GeleseneStrahlregister(strahlen))), teil);
    const Werte geblankt = abbild.HoleParameter(Spezifisch, spezifisch::Blankingmuster, teil);
    std::vector<std::pair<int, int>> bereiche;
    for (int strahl = 0; strahl < strahlen; ++strahl) {
        if (!IstUnterbrochen(frei, geblankt, strahl))
            continue;
        const int nummer = strahl + 1;
        if (!bereiche.empty() && bereiche.back().second == nummer - 1)
            bereiche.back().second = nummer;
        else
            bereiche.emplace_back(nummer, nummer);
    }
    return bereiche;
}

std::string Bereichstext(const std::vector<std::pair<int, int>>& bereiche) {
    std::string text;
    for (const auto& [erster, letzter] : bereiche)
        text += (text.empty() ? "" : ", ") + std::to_string(erster) +
                (erster == letzter ? std::string() : "-" + std::to_string(letzter));
    return text.empty() ? "-" : text;
}

std::string Rechts(const std::string& text, int breite) {
    return std::string(static_cast<std::size_t>(std::max(breite - Anzeigebreite(text), 0)), ' ') + text;
}

Teilbild TeilbildAus(const Abbild& abbild, int teil) {
    Teilbild bild{.teil = teil, .vorhanden = modPolling::GetOptikteilStatus(teil) == modPolling::Vorhanden};
    const Werte status = abbild.HoleParameter(Spezifisch, spezifisch::Optikteilstatus, teil);
    bild.zustand =
        Klartext(Spezifisch, spezifisch::Optikteilstatus, status, LesartFuer(abbild, Spezifisch, teil));
    if (!bild.vorhanden)
        return bild;
    bild.strahlen = abbild.HoleRegister(Spezifisch, spezifisch::Strahlenzahl, teil);
    const Werte werte = abbild.HoleParameter(Spezifisch, spezifisch::Messwerte, teil);
    std::ranges::copy_n(werte.begin(), static_cast<std::ptrdiff_t>(std::min(werte.size(), bild.werte.size())),
                        bild.werte.begin());
    bild.unterbrochene = Unterbrochene(abbild, teil, bild.strahlen);
    return bild;
}

Json Block(const Teilbild& bild, std::size_t block) {
    std::vector<Json::Feld> felder;
    for (std::size_t i = 0; i < Wertnamen.size(); ++i)
        felder.emplace_back(Wertnamen.at(i), bild.werte.at(block * Wertnamen.size() + i));
    return Json::Objekt(felder);
}

Json AlsJson(const Teilbild& bild) {
    std::vector<Json::Feld> felder{{"part", bild.teil + 1},
                                   {"present", bild.vorhanden},
                                   {"status", bild.zustand},
                                   {"beams", bild.vorhanden ? Json(bild.strahlen) : Json()}};
    for (std::size_t block = 0; block < Blocknamen.size(); ++block)
        felder.emplace_back(Blocknamen.at(block), bild.vorhanden ? Block(bild, block) : Json());
    felder.emplace_back("interrupted", Jsonliste(bild.unterbrochene, [](const auto& bereich) {
                            return Json::Zahlen({bereich.first, bereich.second});
                        }));
    return Json::Objekt(felder);
}

} // namespace

Messbild MessbildAus(const Abbild& abbild) {
    const std::int32_t status =
        abbild.HoleRegister(Speicherbereich::GlobaleGeraetedaten, global::Geraetestatus);
    Messbild bild{.ausgangAktiv = (status & geraetestatus::PnpAktiv) != 0};
    for (int teil = 0; teil < modPolling::GetAnzahlOptikteile(); ++teil)
        bild.teile.push_back(TeilbildAus(abbild, teil));
    return bild;
}

std::string Tabellenkopf() {
    std::string kopf =
        Aufgefuellt(LadeText(TextUhrzeit), Uhrzeitbreite) + Aufgefuellt(LadeText(TextTeil), Teilbreite);
    for (std::size_t i = 0; i < Wertnamen.size(); ++i)
        kopf += Rechts(LadeText(static_cast<std::int16_t>(ErsterWertname + static_cast<int>(i))), Wertbreite);
    return kopf + "  " + Aufgefuellt(LadeText(TextAusgang), Ausgangsbreite) +
           Aufgefuellt(LadeText(TextZustand), Zustandsbreite) + "  " + LadeText(TextUnterbrochen);
}

std::string Tabellenzeilen(const Messbild& bild, const std::string& uhrzeit) {
    const std::string ausgang = LadeText(bild.ausgangAktiv ? TextAn : TextAus);
    std::string zeilen;
    for (const Teilbild& teil : bild.teile) {
        zeilen +=
            Aufgefuellt(uhrzeit, Uhrzeitbreite) + Aufgefuellt(std::to_string(teil.teil + 1), Teilbreite);
        for (std::size_t i = 0; i < Wertnamen.size(); ++i)
            zeilen += Rechts(teil.vorhanden ? std::to_string(teil.werte.at(i)) : "-", Wertbreite);
        zeilen += "  " + Aufgefuellt(ausgang, Ausgangsbreite) + Aufgefuellt(teil.zustand, Zustandsbreite) +
                  "  " + Bereichstext(teil.unterbrochene) + "\n";
    }
    return zeilen;
}

std::vector<Json::Feld> AlsFelder(const Messbild& bild) {
    return {{"output", bild.ausgangAktiv},
            {"parts", Jsonliste(bild.teile, [](const Teilbild& teil) { return AlsJson(teil); })}};
}

} // namespace varnoth::ctl
