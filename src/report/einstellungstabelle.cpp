#include "einstellungstabelle.h"

#include "datenblock.h"
#include "htmltext.h"
#include "klartext.h"
#include "registeradressen.h"
#include "rohwert.h"
#include "standardkonfiguration.h"
#include "vergleich.h"

namespace varnoth {

namespace {

using namespace html;

constexpr std::int16_t TextEinstellung = 9680;
constexpr std::int16_t TextWert = 9681;
constexpr std::int16_t TextVorgabe = 9682;
constexpr std::int16_t TextPlatz = 9683;
constexpr std::int16_t TextEintrag = 9684;
constexpr std::int16_t TextRegister = 9655;
constexpr std::int16_t TextBereich = 9688;
constexpr std::int16_t TextBedeutung = 9685;
constexpr std::int16_t TextDezimal = 9686;
constexpr std::int16_t TextHexadezimal = 9687;

constexpr const char* Rechts = R"(align="right")";

Zelle Ueberschrift(std::int16_t text, std::int16_t sprache,
                   const std::string& attribute = R"(align="left")") {
    return {AlsHtml(LadeText(text, sprache)), attribute};
}

std::string Fett(const std::string& html) {
    return Element("b", html);
}

/// The words of a parameter whose value is that of `werte`, read as the image has it.
std::string Worte(const Abbild& abbild, const Abschnitt& abschnitt, std::int16_t adresse, const Abbild& werte,
                  std::int16_t sprache) {
    Lesart lesart = LesartFuer(abbild, abschnitt.bereich, abschnitt.optikteil);
    lesart.sprache = sprache;
    return Klartext(abschnitt.bereich, adresse,
                    werte.HoleParameter(abschnitt.bereich, adresse, abschnitt.optikteil), lesart);
}

bool IstEinstellung(const Registerbeschreibung& beschreibung) {
    return beschreibung.IstKonfiguration != 0;
}

bool IstBestaendig(const Parameter& parameter) {
    return !IstMomentan(parameter);
}

std::string Hex(std::int32_t wert) {
    const std::string roh = Rohtext(wert);
    const auto anfang = roh.find('(');
    return roh.substr(anfang + 1, roh.size() - anfang - 2);
}

/// An entry word in words; one that nobody can choose as a number.
std::string Eintragsworte(std::int16_t eintrag, std::int16_t sprache) {
    const auto wahl = WahlAus(eintrag);
    const bool hatWorte = wahl && Eintragswort(*wahl) == eintrag;
    return hatWorte ? Eintragstext(eintrag, sprache) : Rohtext(static_cast<std::uint16_t>(eintrag));
}

/// Registers of a parameter that follow one another and hold the same value, from `erstes` to `letztes`.
struct Lauf {
    std::size_t erstes;
    std::size_t letztes;
    std::int32_t wert;
};

/// The values as runs; fewer than three equal ones in a row stay alone.
std::vector<Lauf> Laeufe(const Werte& werte) {
    constexpr std::size_t kuerzester = 3;
    std::vector<Lauf> laeufe;
    for (std::size_t i = 0; i < werte.size();) {
        std::size_t ende = i;
        while (ende < werte.size() && werte[ende] == werte[i])
            ++ende;
        if (ende - i < kuerzester)
            ende = i + 1;
        laeufe.push_back({i, ende - 1, werte[i]});
        i = ende;
    }
    return laeufe;
}

std::string VonBis(const std::string& von, const std::string& bis) {
    return von == bis ? von : von + "-" + bis;
}

Zeile Registerzeile(const Abschnitt& abschnitt, const Parameter& parameter, const Lauf& lauf,
                    std::int16_t sprache) {
    const auto adresse = [&](std::size_t stelle) {
        return static_cast<std::int16_t>(parameter.adresse + static_cast<std::int16_t>(stelle));
    };
    const auto hex = [&](std::size_t stelle) {
        return Hex(Geraeteadresse(abschnitt.bereich, adresse(stelle)));
    };
    std::string name = Parametername(abschnitt.bereich, parameter.adresse, sprache);
    if (parameter.beschreibung.Laenge > 1)
        name += " [" + VonBis(std::to_string(lauf.erstes), std::to_string(lauf.letztes)) + "]";
    return {{AlsHtml(Abschnittsname(abschnitt, sprache))},
            {AlsHtml(name)},
            {VonBis(std::to_string(adresse(lauf.erstes)), std::to_string(adresse(lauf.letztes))) + " (" +
                 VonBis(hex(lauf.erstes), hex(lauf.letztes)) + ")",
             Rechts},
            {std::to_string(lauf.wert), Rechts},
            {Hex(lauf.wert), Rechts}};
}

void FuegeRegisterAn(std::vector<Zeile>& zeilen, const Abbild& abbild, const Abschnitt& abschnitt,
                     const Parameter& parameter, std::int16_t sprache) {
    for (const Lauf& lauf :
         Laeufe(abbild.HoleParameter(abschnitt.bereich, parameter.adresse, abschnitt.optikteil)))
        zeilen.push_back(Registerzeile(abschnitt, parameter, lauf, sprache));
}

} // namespace

Parametermenge Abweichungen(const Abbild& abbild) {
    Parametermenge abweichungen;
    for (const Vergleichszeile& zeile : Vergleiche(StandardkonfigurationWie(abbild), abbild).zeilen)
        if (zeile.klasse != Vergleichsklasse::Gleich)
            abweichungen.insert(zeile.stelle);
    return abweichungen;
}

std::string Einstellungstabelle(const Abbild& abbild, const Abschnitt& abschnitt,
                                const Parametermenge& abweichungen, std::int16_t sprache) {
    static const Abbild vorgabe = Standardkonfiguration();
    std::vector<Zeile> zeilen;
    for (const Parameter& parameter : ParameterMit(abschnitt.bereich, IstEinstellung)) {
        const bool anders =
            abweichungen.contains({abschnitt.bereich, parameter.adresse, abschnitt.optikteil});
        const std::string wert = AlsHtml(Worte(abbild, abschnitt, parameter.adresse, abbild, sprache));
        const std::string standard =
            anders ? AlsHtml(Worte(abbild, abschnitt, parameter.adresse, vorgabe, sprache)) : std::string();
        zeilen.push_back(
            {{AlsHtml(Parametername(abschnitt.bereich, parameter.adresse, sprache)), R"(width="32%")"},
             {anders ? Fett(wert) : wert, R"(width="40%")"},
             {standard, R"(width="28%")"}});
    }
    return Tabelle({Ueberschrift(TextEinstellung, sprache), Ueberschrift(TextWert, sprache),
                    Ueberschrift(TextVorgabe, sprache)},
                   zeilen);
}

std::string Geraetetabelle(const Abbild& abbild,
                           const std::vector<std::pair<std::string, std::string>>& weitere,
                           std::int16_t sprache) {
    std::vector<Zeile> zeilen;
    const auto zeige = [&](const std::string& name, const std::string& worte) {
        zeilen.push_back({{AlsHtml(name), R"(width="32%")"}, {AlsHtml(worte), R"(width="68%")"}});
    };
    for (const Abschnitt& abschnitt : AlleAbschnitte())
        for (const Parameter& parameter : AlleParameter())
            if (abschnitt.bereich == parameter.bereich && IstBestaendig(parameter) &&
                abschnitt.bereich != Speicherbereich::SpezifischeGeraetedaten &&
                !IstEinstellung(parameter.beschreibung))
                zeige(Parametername(abschnitt.bereich, parameter.adresse, sprache),
                      Worte(abbild, abschnitt, parameter.adresse, abbild, sprache));
    for (const auto& [name, worte] : weitere)
        if (!worte.empty())
            zeige(name, worte);
    return Tabelle({}, zeilen);
}

std::string Datenblocktabelle(const Abbild& abbild, std::int16_t sprache) {
    const Eintragsliste liste = ListeAus(abbild.HoleParameter(Kommunikation, kommunikation::Datenblock));
    std::vector<Zeile> zeilen;
    for (int i = 0; i < AnzahlEintraege(liste); ++i) {
        const std::int16_t eintrag = liste.at(static_cast<std::size_t>(i));
        zeilen.push_back({{std::to_string(i + 1), Rechts},
                          {AlsHtml(Eintragsworte(eintrag, sprache))},
                          {std::to_string(kommunikation::Datenblock + i), Rechts},
                          {Hex(static_cast<std::uint16_t>(eintrag)), Rechts}});
    }
    return Tabelle({Ueberschrift(TextPlatz, sprache, Rechts), Ueberschrift(TextEintrag, sprache),
                    Ueberschrift(TextRegister, sprache, Rechts),
                    Ueberschrift(TextHexadezimal, sprache, Rechts)},
                   zeilen);
}

std::string Registertabelle(const Abbild& abbild, std::int16_t sprache) {
    std::vector<Zeile> zeilen;
    for (const Abschnitt& abschnitt : AlleAbschnitte())
        for (const Parameter& parameter : AlleParameter())
            if (parameter.bereich == abschnitt.bereich && IstBestaendig(parameter))
                FuegeRegisterAn(zeilen, abbild, abschnitt, parameter, sprache);
    return Tabelle({Ueberschrift(TextBereich, sprache), Ueberschrift(TextBedeutung, sprache),
                    Ueberschrift(TextRegister, sprache, Rechts), Ueberschrift(TextDezimal, sprache, Rechts),
                    Ueberschrift(TextHexadezimal, sprache, Rechts)},
                   zeilen);
}

} // namespace varnoth
