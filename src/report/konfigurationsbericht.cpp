#include "konfigurationsbericht.h"

#include "abschnitte.h"
#include "autosend.h"
#include "autosendbudget.h"
#include "blankingmuster.h"
#include "einstellungstabelle.h"
#include "htmltext.h"
#include "lesart.h"
#include "pruefsumme.h"
#include "registeradressen.h"
#include "strahlenbild.h"
#include "zykluszeiten.h"

#include <algorithm>
#include <array>

namespace varnoth {

namespace {

using namespace html;

constexpr std::int16_t TextTitel = 9690;
constexpr std::int16_t TextAnlage = 9691;
constexpr std::int16_t TextMaschine = 9692;
constexpr std::int16_t TextPerson = 9693;
constexpr std::int16_t TextAusgestellt = 9694;
constexpr std::int16_t TextQuelle = 9695;
constexpr std::int16_t TextPruefsumme = 9696;
constexpr std::int16_t TextProgrammversion = 9697;
constexpr std::int16_t TextAbweichungen = 9698;
constexpr std::int16_t TextKeineAbweichung = 9699;
constexpr std::int16_t TextSteuergeraet = 9700;
constexpr std::int16_t TextGeraetename = 9701;
constexpr std::int16_t TextCopyright = 9702;
constexpr std::int16_t TextGeraetezustand = 9703;
constexpr std::int16_t TextOptikteile = 9704;
constexpr std::int16_t TextTeil = 9705;
constexpr std::int16_t TextStrahlen = 9706;
constexpr std::int16_t TextAbstand = 9707;
constexpr std::int16_t TextMessfeld = 9708;
constexpr std::int16_t TextZyklus = 9709;
constexpr std::int16_t TextGeblankt = 9710;
constexpr std::int16_t TextNichtVorhanden = 9314;
constexpr std::int16_t TextGesamtzyklus = 9711;
constexpr std::int16_t TextSchaltausgang = 9712;
constexpr std::int16_t TextBildunterschrift = 9713;
constexpr std::int16_t TextKommunikation = 9714;
constexpr std::int16_t TextDatenblock = 9715;
constexpr std::int16_t TextLeererDatenblock = 9716;
constexpr std::int16_t TextAutosend = 9717;
constexpr std::int16_t TextUebertragbar = 9718;
constexpr std::int16_t TextBaudrate = 9719;
constexpr std::int16_t TextFormel = 8012;
constexpr std::int16_t TextNichtBerechenbar = 9720;
constexpr std::int16_t TextUnterschrift = 9721;
constexpr std::int16_t TextOrtDatum = 9722;
constexpr std::int16_t TextName = 9723;
constexpr std::int16_t TextAnhang = 9724;
constexpr std::int16_t TextSeite = 9725;
constexpr std::int16_t TextVon = 9726;

constexpr const char* Seitenumbruch = R"(style="page-break-before: always;")";

constexpr int TeileJeSeite = 3; // that fit on one page of paper

constexpr double MikrosekundenJeMillisekunde = 1000;

/// Puts the document together, part by part.
class Schreiber {
public:
    Schreiber(const Abbild& inhalt, const Berichtsangaben& kopf, std::int16_t offset)
        : abbild(inhalt), angaben(kopf), sprache(offset), zeiten(ZykluszeitenFuer(Strahlenzahlen())),
          abweichungen(Abweichungen(inhalt)) {}

    std::string Dokument() const {
        const std::string koerper = Kopf() + Steuergeraet() + Optikteile() + Kommunikationsteil() +
                                    Strahlteil() + Unterschrift() + Anhang();
        return "<!DOCTYPE html>\n<html lang=\"" + std::string(sprache == Deutsch ? "de" : "en") +
               "\">\n<head>\n<meta charset=\"utf-8\">\n" + Element("title", Text(TextTitel)) + "\n" +
               Element("style", Stil()) + "\n" + Element("style", Seitenstil()) + "\n</head>\n<body>\n" +
               koerper + "</body>\n</html>\n";
    }

private:
    std::string Roh(std::int16_t id) const { return LadeText(id, sprache); }
    std::string Text(std::int16_t id) const { return AlsHtml(Roh(id)); }
    std::string Titel(std::int16_t id) const { return Element("h2", Text(id)) + "\n"; }

    std::string Zahl(double zahl) const {
        Lesart lesart;
        lesart.sprache = sprache;
        return Zahlwort(zahl, lesart);
    }

    std::string Millisekunden(std::int32_t mikrosekunden) const {
        return Zahl(mikrosekunden / MikrosekundenJeMillisekunde) + " ms";
    }

    std::int32_t Teilwert(std::int16_t adresse, int teil) const {
        return abbild.HoleRegister(Spezifisch, adresse, teil);
    }

    std::array<std::int32_t, AnzahlOptikteile> Strahlenzahlen() const {
        std::array<std::int32_t, AnzahlOptikteile> strahlen{};
        for (int teil = 0; teil < AnzahlOptikteile; ++teil)
            strahlen.at(static_cast<std::size_t>(teil)) = Teilwert(spezifisch::Strahlenzahl, teil);
        return strahlen;
    }

    bool IstDa(int teil) const { return Teilwert(spezifisch::Strahlenzahl, teil) > 0; }

    /// The numbers of pages that a browser prints; the program's own paging numbers its pages itself.
    std::string Seitenstil() const {
        return "\n@page { margin: 15mm; @bottom-right { content: \"" + Roh(TextSeite) +
               "\" counter(page) \"" + Roh(TextVon) + "\" counter(pages); font: 8pt sans-serif; } }\n";
    }

    static std::string Stil() {
        return "\nbody { font-family: sans-serif; font-size: 9pt; color: #000000; background: #ffffff; }\n"
               "h1 { font-size: 16pt; }\nh2 { font-size: 12pt; margin-top: 12px; margin-bottom: 4px; }\n"
               "h3 { font-size: 10pt; margin-top: 10px; margin-bottom: 4px; }\n"
               "table { border-collapse: collapse; border-color: #000000; }\n"
               "tr { page-break-inside: avoid; }\n";
    }

    std::string Paar(std::int16_t name, const std::string& wert) const {
        return Element("tr", Element("td", Text(name), R"(width="32%")") +
                                 Element("td", AlsHtml(wert), R"(width="68%")")) +
               "\n";
    }

    std::string Kopf() const {
        std::string zeilen = "\n" + Paar(TextAnlage, angaben.anlage) + Paar(TextMaschine, angaben.maschine) +
                             Paar(TextPerson, angaben.person);
        if (!angaben.quelle.empty())
            zeilen += Paar(TextQuelle, angaben.quelle);
        zeilen += Paar(TextPruefsumme, "CRC-32 " + Konfigurationspruefsumme(abbild));
        if (!angaben.programmversion.empty())
            zeilen += Paar(TextProgrammversion, angaben.programmversion);
        return Element("h1", Text(TextTitel)) + "\n" +
               Element("table", zeilen, R"(border="1" cellspacing="0" cellpadding="3" width="100%")") + "\n" +
               Element("p", Abweichungssatz()) + "\n";
    }

    std::string Abweichungssatz() const {
        return abweichungen.empty() ? Text(TextKeineAbweichung)
                                    : AlsHtml(Roh(TextAbweichungen) + std::to_string(abweichungen.size()));
    }

    std::string Steuergeraet() const {
        return Titel(TextSteuergeraet) +
               Geraetetabelle(abbild,
                              {{Roh(TextGeraetename), angaben.geraetename},
                               {Roh(TextCopyright), angaben.copyright},
                               {Roh(TextGeraetezustand), angaben.geraetezustand}},
                              sprache) +
               Titel(TextSchaltausgang) + Einstellungstabelle(abbild, {Global, 0}, abweichungen, sprache);
    }

    Geblankte GeblankteVon(int teil) const {
        return GeblankteAusMuster(abbild.HoleParameter(Spezifisch, spezifisch::Blankingmuster, teil),
                                  std::clamp(Teilwert(spezifisch::Strahlenzahl, teil), 0, MaxStrahlen));
    }

    Zeile Teilzeile(int teil) const {
        const std::string name = AlsHtml(Abschnittsname({Spezifisch, teil}, sprache));
        if (!IstDa(teil))
            return {{name}, {Text(TextNichtVorhanden), R"(colspan="5")"}};
        const std::int32_t strahlen = Teilwert(spezifisch::Strahlenzahl, teil);
        const std::int32_t abstand = Teilwert(spezifisch::Aufloesung, teil);
        const auto rechts = [](const std::string& inhalt) { return Zelle{inhalt, R"(align="right")"}; };
        return {{name},
                rechts(std::to_string(strahlen)),
                rechts(std::to_string(abstand) + " mm"),
                rechts(std::to_string(std::int64_t{strahlen - 1} * abstand) + " mm"),
                rechts(Millisekunden(zeiten.zyklus.at(static_cast<std::size_t>(teil)))),
                rechts(std::to_string(AnzahlGeblankter(GeblankteVon(teil))))};
    }

    std::string Optikteile() const {
        std::vector<Zeile> zeilen;
        std::string einzelne;
        int anzahl = 0;
        for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
            zeilen.push_back(Teilzeile(teil));
            if (IstDa(teil))
                einzelne += Optikteil(teil, anzahl++ % TeileJeSeite == 0);
        }
        Zeile kopf{{Text(TextTeil), R"(align="left")"}};
        for (const std::int16_t spalte : {TextStrahlen, TextAbstand, TextMessfeld, TextZyklus, TextGeblankt})
            kopf.push_back({Text(spalte), R"(align="right")"});
        return Titel(TextOptikteile) + Tabelle(kopf, zeilen) +
               Element("p", Text(TextGesamtzyklus) + AlsHtml(Millisekunden(zeiten.gesamt))) + "\n" + einzelne;
    }

    std::string Optikteil(int teil, bool beginntSeite) const {
        const std::string name = AlsHtml(Abschnittsname({Spezifisch, teil}, sprache));
        const std::string bild = Strahlenbild(GeblankteVon(teil));
        const std::string& zustand = angaben.teilzustaende.at(static_cast<std::size_t>(teil));
        return Element("h3", name, beginntSeite ? Seitenumbruch : "") +
               (zustand.empty() ? std::string() : Element("p", AlsHtml(zustand)) + "\n") +
               R"(<p><img src="data:image/svg+xml;base64,)" + AlsBase64(bild) + R"(" width=")" +
               std::to_string(Strahlenbildbreite) + R"(" height=")" + std::to_string(Strahlenbildhoehe) +
               R"(" alt=")" + name + R"("><br>)" + Text(TextBildunterschrift) + "</p>\n" +
               Einstellungstabelle(abbild, {Spezifisch, teil}, abweichungen, sprache);
    }

    std::string Kommunikationsteil() const {
        return Titel(TextKommunikation) +
               Einstellungstabelle(abbild, {Kommunikation, 0}, abweichungen, sprache) + Titel(TextAutosend) +
               Autosendbudget() + Titel(TextDatenblock) + Datenblock();
    }

    std::string Datenblock() const {
        const auto liste = abbild.HoleParameter(Kommunikation, kommunikation::Datenblock);
        if (liste.front() == 0)
            return Element("p", Text(TextLeererDatenblock)) + "\n";
        return Datenblocktabelle(abbild, sprache);
    }

    std::string Autosendbudget() const {
        const std::int32_t baudrate =
            AutosendBaudrate(abbild.HoleRegister(Kommunikation, kommunikation::Autosendformat));
        const bool berechenbar = baudrate > 0 && zeiten.gesamt > 0;
        const std::string bytes =
            berechenbar
                ? std::to_string(UebertragbareBytes(zeiten.gesamt / MikrosekundenJeMillisekunde, baudrate)) +
                      " byte"
                : Roh(TextNichtBerechenbar);
        return Element("table",
                       "\n" + Paar(TextZyklus, Millisekunden(zeiten.gesamt)) +
                           Paar(TextBaudrate,
                                baudrate > 0 ? std::to_string(baudrate) + " Bd" : Roh(TextNichtBerechenbar)) +
                           Paar(TextUebertragbar, bytes),
                       R"(border="1" cellspacing="0" cellpadding="3" width="100%")") +
               "\n" + Element("p", Text(TextFormel)) + "\n";
    }

    std::string Strahlteil() const {
        return angaben.strahlen ? Strahlabschnitt(*angaben.strahlen, sprache) : std::string();
    }

    /// One line of text, for a page may end between two, even of one row of a table.
    std::string Unterschrift() const {
        const auto feld = [this](std::int16_t text) { return Text(text) + "&nbsp;______________________ "; };
        return Titel(TextUnterschrift) + Element("p", "&nbsp;") + "\n" +
               Element("p", feld(TextOrtDatum) + feld(TextName) + feld(TextUnterschrift)) + "\n";
    }

    std::string Anhang() const {
        return Element("h2", Text(TextAnhang), Seitenumbruch) + "\n" + Registertabelle(abbild, sprache);
    }

    const Abbild& abbild;
    const Berichtsangaben& angaben;
    std::int16_t sprache;
    Zykluszeiten zeiten;
    Parametermenge abweichungen;
};

} // namespace

std::string Bericht(const Abbild& abbild, const Berichtsangaben& angaben, std::int16_t sprache) {
    return Schreiber(abbild, angaben, sprache).Dokument();
}

std::string Berichtsfuss(const Abbild& abbild, const Berichtsangaben& angaben, std::int16_t sprache) {
    std::string fuss;
    for (const std::string& teil : {angaben.anlage, angaben.maschine})
        if (!teil.empty())
            fuss += teil + "  |  ";
    fuss += LadeText(TextPruefsumme, sprache) + ": " + Konfigurationspruefsumme(abbild);
    if (!angaben.ausgestellt.empty())
        fuss += "  |  " + LadeText(TextAusgestellt, sprache) + ": " + angaben.ausgestellt;
    return fuss;
}

} // namespace varnoth
