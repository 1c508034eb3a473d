// Reads a configuration back from its text.

#include "klartext.h"
#include "registeradressen.h"
#include "rohwert.h"
#include "standtext.h"
#include "standzeile.h"
#include "utf8.h"
#include "wortlaut.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace varnoth {

namespace {

using namespace standzeile;

constexpr std::size_t Felderzahl = 4;
constexpr std::size_t HoechstensGenannt = 60; // bytes of a file that a message repeats
constexpr std::int32_t GroessteZeilenadresse = 0x7FFF;

/// What a line says, its names resolved.
struct Eintrag {
    std::size_t zeile;
    const Abschnitt* abschnitt;
    std::int16_t adresse;
    const Parameter* parameter; ///< null for a register that belongs to none
    std::string_view worte;
};

/// The beginning of a text from the file, cut between two characters.
std::string Genannt(std::string_view text) {
    if (text.size() <= HoechstensGenannt)
        return std::string(text);
    text = text.substr(0, HoechstensGenannt);
    while (!IstUtf8(text))
        text.remove_suffix(1);
    return std::string(text) + "...";
}

std::vector<std::string_view> Felder(std::string_view zeile) {
    std::vector<std::string_view> felder;
    while (felder.size() + 1 < Felderzahl) {
        const auto ende = zeile.find(Trenner);
        if (ende == std::string_view::npos)
            break;
        felder.push_back(OhneRand(zeile.substr(0, ende)));
        zeile.remove_prefix(ende + Trenner.size());
    }
    felder.push_back(OhneRand(zeile));
    return felder;
}

const Abschnitt* AbschnittNamens(std::string_view name, std::int16_t sprache) {
    const auto alle = AlleAbschnitte();
    const auto treffer = std::ranges::find_if(
        alle, [&](const Abschnitt& abschnitt) { return Abschnittsname(abschnitt, sprache) == name; });
    return treffer == alle.end() ? nullptr : &*treffer;
}

const Parameter* ParameterNamens(Speicherbereich bereich, std::string_view name, std::int16_t sprache) {
    const auto alle = AlleParameter();
    const auto treffer = std::ranges::find_if(alle, [&](const Parameter& parameter) {
        return parameter.bereich == bereich && Parametername(bereich, parameter.adresse, sprache) == name;
    });
    return treffer == alle.end() ? nullptr : &*treffer;
}

bool BestimmtLesart(const Eintrag& eintrag) {
    const Speicherbereich bereich = eintrag.abschnitt->bereich;
    return (bereich == Speicherbereich::SpezifischeGeraetedaten &&
            eintrag.adresse == spezifisch::Strahlenzahl) ||
           (bereich == Speicherbereich::Kommunikationsdaten && eintrag.adresse == kommunikation::Bustyp);
}

/// Takes a text apart, line by line, and puts an image together.
class Leser {
public:
    Standbefund Lies(std::string_view text) {
        if (text.size() > LaengsterStandtext)
            return {std::nullopt, {{Standmangel::ZuGross}}};
        text.remove_prefix(text.starts_with("\xEF\xBB\xBF") ? 3 : 0);
        LiesZeilen(text);
        PruefeVollstaendigkeit();
        UebernimmAlle();
        std::ranges::stable_sort(fehler, {}, &Standfehler::zeile);
        if (fehler.empty())
            return {abbild};
        fehler.resize(std::min(fehler.size(), HoechstensStandfehler));
        return {std::nullopt, fehler};
    }

private:
    void LiesZeilen(std::string_view text) {
        bool begonnen = false;
        for (std::size_t nummer = 1; !text.empty() && !Genug(); ++nummer) {
            const auto ende = std::min(text.find('\n'), text.size());
            const std::string_view zeile = OhneRand(text.substr(0, ende));
            text.remove_prefix(std::min(ende + 1, text.size()));
            if (zeile.empty())
                continue;
            if (!begonnen && !ErkenneSprache(zeile))
                break;
            if (begonnen && zeile.front() != Bemerkung)
                LiesZeile(nummer, zeile);
            begonnen = true;
        }
        if (!begonnen)
            fehler.push_back({Standmangel::KeinStand, 0, LadeText(TextErsteZeile)});
    }

    bool ErkenneSprache(std::string_view zeile) {
        for (const std::int16_t eine : {Deutsch, Englisch}) {
            sprache = eine;
            if (zeile == LadeText(TextErsteZeile, eine))
                return true;
        }
        return false;
    }

    bool Genug() const { return fehler.size() >= HoechstensStandfehler; }

    void Melde(Standmangel mangel, std::size_t zeile, std::string_view erste = {},
               std::string_view zweite = {}) {
        fehler.push_back({mangel, zeile, Genannt(erste), Genannt(zweite)});
    }

    void LiesZeile(std::size_t nummer, std::string_view zeile) {
        if (!IstUtf8(zeile))
            return Melde(Standmangel::KeinUtf8, nummer);
        const auto felder = Felder(zeile);
        if (felder.size() != Felderzahl)
            return Melde(Standmangel::KeineFelder, nummer);
        const Abschnitt* const abschnitt = AbschnittNamens(felder[0], sprache);
        if (abschnitt == nullptr)
            return Melde(Standmangel::UnbekannterBereich, nummer, felder[0]);
        Eintrag eintrag{nummer, abschnitt, 0, nullptr, felder[3]};
        if (LiesOrt(eintrag, felder[1], felder[2]) && IstErster(eintrag))
            eintraege.push_back(eintrag);
    }

    /// Name and register of a line; false, and an error told, where they do not fit.
    bool LiesOrt(Eintrag& eintrag, std::string_view name, std::string_view nummer) {
        const Speicherbereich bereich = eintrag.abschnitt->bereich;
        const auto zahl = ZahlAus(nummer, GroessteZeilenadresse);
        eintrag.adresse = static_cast<std::int16_t>(zahl.value_or(-1));
        if (name == LadeText(TextRegister, sprache)) {
            const bool frei = eintrag.adresse >= 0 && eintrag.adresse < AnzahlAdressen(bereich) &&
                              !GehoertZuParameter(bereich, eintrag.adresse);
            if (!frei)
                Melde(Standmangel::FreiesRegister, eintrag.zeile, nummer);
            return frei;
        }
        eintrag.parameter = ParameterNamens(bereich, name, sprache);
        if (eintrag.parameter == nullptr) {
            Melde(Standmangel::UnbekannterName, eintrag.zeile, name);
            return false;
        }
        if (eintrag.adresse == eintrag.parameter->adresse)
            return true;
        Melde(Standmangel::FalschesRegister, eintrag.zeile, name, std::to_string(eintrag.parameter->adresse));
        return false;
    }

    bool IstErster(const Eintrag& eintrag) {
        const auto [stelle, neu] = zeilen.emplace(
            std::tuple(eintrag.abschnitt->bereich, eintrag.abschnitt->optikteil, eintrag.adresse),
            eintrag.zeile);
        if (!neu)
            Melde(Standmangel::Doppelt, eintrag.zeile, std::to_string(stelle->second));
        return neu;
    }

    /// What a text lacks is only worth telling where its lines are all right.
    void PruefeVollstaendigkeit() {
        if (!fehler.empty())
            return;
        for (const Abschnitt& abschnitt : AlleAbschnitte())
            for (const Parameter& parameter : AlleParameter()) {
                const std::tuple ort(abschnitt.bereich, abschnitt.optikteil, parameter.adresse);
                if (parameter.bereich == abschnitt.bereich && StehtImmer(parameter) &&
                    !zeilen.contains(ort) && !Genug())
                    fehler.push_back({Standmangel::Fehlt, 0,
                                      Abschnittsname(abschnitt, sprache) + std::string(Trenner) +
                                          Parametername(parameter.bereich, parameter.adresse, sprache)});
            }
    }

    /// Words of durations and of some lists mean nothing without beam counts and bus type.
    void UebernimmAlle() {
        const auto uebrige = std::ranges::stable_partition(eintraege, BestimmtLesart);
        const std::size_t bisher = fehler.size();
        for (auto eintrag = eintraege.begin(); eintrag != uebrige.begin(); ++eintrag)
            Uebernimm(*eintrag);
        if (uebrige.begin() - eintraege.begin() < AnzahlOptikteile + 1 || fehler.size() > bisher)
            return;
        for (const Eintrag& eintrag : uebrige)
            Uebernimm(eintrag);
    }

    void Uebernimm(const Eintrag& eintrag) {
        if (eintrag.parameter == nullptr)
            return UebernimmRegister(eintrag);
        const auto [bereich, optikteil] = *eintrag.abschnitt;
        Lesart lesart = LesartFuer(abbild, bereich, optikteil);
        lesart.sprache = sprache;
        const auto werte = WerteAus(bereich, eintrag.adresse, eintrag.worte, lesart);
        if (!werte || !abbild.SetzeParameter(bereich, eintrag.adresse, *werte, optikteil))
            Melde(Standmangel::UnverstandenerWert, eintrag.zeile, eintrag.worte,
                  Parametername(bereich, eintrag.adresse, sprache));
    }

    void UebernimmRegister(const Eintrag& eintrag) {
        const auto [bereich, optikteil] = *eintrag.abschnitt;
        if (const auto wert = RohwertAus(eintrag.worte))
            abbild.Bereich(bereich)[Stelle(bereich, eintrag.adresse, optikteil)] = *wert;
        else
            Melde(Standmangel::UnverstandenerWert, eintrag.zeile, eintrag.worte,
                  LadeText(TextRegister, sprache));
    }

    std::int16_t sprache = Deutsch;
    std::vector<Eintrag> eintraege;
    std::map<std::tuple<Speicherbereich, int, std::int16_t>, std::size_t> zeilen;
    std::vector<Standfehler> fehler;
    Abbild abbild;
};

} // namespace

Standbefund LiesStandtext(std::string_view text) {
    return Leser().Lies(text);
}

} // namespace varnoth
