#include "standtext.h"

#include "klartext.h"
#include "rohwert.h"
#include "standzeile.h"
#include "textmitwerten.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace varnoth {

namespace {

using namespace standzeile;

constexpr std::int16_t TextZeile = 9660;

constexpr std::int16_t ErsterMangeltext = 9661; // in the order of Standmangel

/// The lines of an image, by their registers.
class Schreiber {
public:
    Schreiber(const Abbild& inhalt, std::int16_t offset) : abbild(inhalt), sprache(offset) {}

    std::string Alles() {
        std::string text = LadeText(TextErsteZeile, sprache) + "\n" + LadeText(TextSpalten, sprache) + "\n";
        for (const Abschnitt& abschnitt : AlleAbschnitte())
            text += Zeilen(abschnitt);
        return text;
    }

private:
    std::string Zeilen(const Abschnitt& abschnitt) {
        std::map<std::int16_t, std::string> zeilen;
        for (const Parameter& parameter : ParameterMit(abschnitt.bereich, [](const auto&) { return true; }))
            SchreibeParameter(abschnitt, parameter, zeilen);
        for (std::int16_t adresse = 0; adresse < AnzahlAdressen(abschnitt.bereich); ++adresse)
            SchreibeRegister(abschnitt, adresse, zeilen);
        std::string text;
        for (const auto& [adresse, zeile] : zeilen)
            text += zeile;
        return text;
    }

    void SchreibeParameter(const Abschnitt& abschnitt, const Parameter& parameter,
                           std::map<std::int16_t, std::string>& zeilen) const {
        const Werte werte = abbild.HoleParameter(abschnitt.bereich, parameter.adresse, abschnitt.optikteil);
        if (!StehtImmer(parameter) && std::ranges::count(werte, 0) == std::ssize(werte))
            return;
        Lesart lesart = LesartFuer(abbild, abschnitt.bereich, abschnitt.optikteil);
        lesart.sprache = sprache;
        zeilen[parameter.adresse] =
            Zeile(abschnitt, Parametername(abschnitt.bereich, parameter.adresse, sprache), parameter.adresse,
                  Klartext(abschnitt.bereich, parameter.adresse, werte, lesart));
    }

    void SchreibeRegister(const Abschnitt& abschnitt, std::int16_t adresse,
                          std::map<std::int16_t, std::string>& zeilen) const {
        const std::int32_t wert =
            abbild.Bereich(abschnitt.bereich)[Stelle(abschnitt.bereich, adresse, abschnitt.optikteil)];
        if (wert != 0 && !GehoertZuParameter(abschnitt.bereich, adresse))
            zeilen[adresse] = Zeile(abschnitt, LadeText(TextRegister, sprache), adresse, Rohtext(wert));
    }

    std::string Zeile(const Abschnitt& abschnitt, const std::string& name, std::int16_t adresse,
                      const std::string& worte) const {
        std::string zeile = Abschnittsname(abschnitt, sprache);
        for (const std::string& feld : {name, std::to_string(adresse), worte})
            zeile.append(Trenner).append(feld);
        return zeile + "\n";
    }

    const Abbild& abbild;
    std::int16_t sprache;
};

} // namespace

std::string Standtext(const Abbild& abbild, std::int16_t sprache) {
    return Schreiber(abbild, sprache).Alles();
}

Abbild OhneMomentanes(Abbild abbild) {
    for (const Abschnitt& abschnitt : AlleAbschnitte()) {
        for (const Parameter& parameter : AlleParameter())
            if (parameter.bereich == abschnitt.bereich && IstMomentan(parameter))
                std::ignore = abbild.SetzeParameter(
                    parameter.bereich, parameter.adresse,
                    Werte(static_cast<std::size_t>(parameter.beschreibung.Laenge)), abschnitt.optikteil);
        if (abschnitt.bereich == Speicherbereich::SpezifischeGeraetedaten)
            std::ignore =
                abbild.SetzeStrahlzustaende(MaxStrahlregister, abschnitt.optikteil, Werte(MaxStrahlregister));
    }
    return abbild;
}

std::string Fehlertext(const Standfehler& fehler) {
    const auto id = static_cast<std::int16_t>(ErsterMangeltext + static_cast<int>(fehler.mangel));
    const std::string satz = LadeTextMit(id, {fehler.erste, fehler.zweite});
    return fehler.zeile == 0 ? satz : LadeTextMit(TextZeile, {std::to_string(fehler.zeile), satz});
}

} // namespace varnoth
