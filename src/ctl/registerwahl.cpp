#include "registerwahl.h"

#include "abschnitte.h"
#include "aehnliche.h"
#include "klartext.h"
#include "registertext.h"
#include "texte.h"
#include "textmitwerten.h"
#include "wortlaut.h"
#include "zeichenwandel.h"

#include <algorithm>
#include <charconv>
#include <vector>

namespace varnoth::ctl {

namespace {

constexpr std::int16_t TextKeinRegister = 8621;
constexpr std::int16_t TextTeilNennen = 8622;
constexpr std::int16_t TextMehrdeutig = 8623;
constexpr std::int16_t TextKeineAdresse = 8624;
constexpr std::int16_t TextMeinten = 8599;

constexpr std::int16_t BeideSprachen[] = {Deutsch, Englisch};
constexpr int Hex = 16;
constexpr int Dezimal = 10;

std::optional<std::int32_t> Zahl(std::string_view ziffern, int basis) {
    std::uint16_t zahl = 0;
    const char* const ende = ziffern.data() + ziffern.size();
    const auto [stelle, fehler] = std::from_chars(ziffern.data(), ende, zahl, basis);
    return fehler == std::errc() && stelle == ende ? std::optional<std::int32_t>(zahl) : std::nullopt;
}

/// "12", "0xC", "2000H+12".
std::optional<std::int32_t> Adresse(const std::string& kern) {
    const std::string_view text(kern);
    if (const auto plus = text.find("h+"); plus != std::string_view::npos) {
        const auto anfang = Zahl(text.substr(0, plus), Hex);
        const auto versatz = Zahl(text.substr(plus + 2), Dezimal);
        return anfang && versatz ? std::optional(*anfang + *versatz) : std::nullopt;
    }
    return text.starts_with("0x") ? Zahl(text.substr(2), Hex) : Zahl(text, Dezimal);
}

bool HeisstAbschnitt(const Abschnitt& abschnitt, const std::string& kern) {
    const bool istTeil = abschnitt.bereich == Speicherbereich::SpezifischeGeraetedaten;
    const std::string nummer = std::to_string(abschnitt.optikteil + 1);
    return (istTeil && (kern == nummer || kern == "part" + nummer || kern == "teil" + nummer)) ||
           std::ranges::any_of(BeideSprachen, [&](std::int16_t sprache) {
               return Namenskern(Abschnittsname(abschnitt, sprache)) == kern;
           });
}

const Abschnitt* AbschnittAus(std::string_view worte) {
    const auto alle = AlleAbschnitte();
    const std::string kern = Namenskern(worte);
    const auto treffer = std::ranges::find_if(
        alle, [&](const Abschnitt& abschnitt) { return HeisstAbschnitt(abschnitt, kern); });
    return treffer == alle.end() ? nullptr : &*treffer;
}

bool HeisstParameter(const Parameter& parameter, const std::string& kern) {
    return std::ranges::any_of(BeideSprachen, [&](std::int16_t sprache) {
        return Namenskern(Parametername(parameter.bereich, parameter.adresse, sprache)) == kern;
    });
}

Transferparameter Ganzer(const Parameter& parameter, int optikteil) {
    return {parameter.bereich, parameter.adresse, parameter.beschreibung.Laenge,
            static_cast<std::int16_t>(optikteil)};
}

std::string Langname(const Abschnitt& abschnitt, const Parameter& parameter) {
    return Abschnittsname(abschnitt, GetSprachoffset()) + " / " +
           Parametername(parameter.bereich, parameter.adresse);
}

/// What a word was probably meant to be. What is typed is compared with names alone, of both languages; what
/// is offered tells their group as well.
std::vector<std::string> Vorschlaege(std::string_view name, const Abschnitt* dort) {
    std::vector<std::string> kurze;
    std::vector<std::string> lange;
    for (const Abschnitt& abschnitt : AlleAbschnitte())
        for (const Parameter& parameter : AlleParameter()) {
            const bool gemeint = dort == nullptr ? abschnitt.optikteil == 0 : dort == &abschnitt;
            if (parameter.bereich != abschnitt.bereich || !gemeint)
                continue;
            for (const std::int16_t sprache : BeideSprachen) {
                kurze.push_back(Parametername(parameter.bereich, parameter.adresse, sprache));
                lange.push_back(Langname(abschnitt, parameter));
            }
        }
    return Aehnliche(name, kurze, lange);
}

Registerwahl Unbekannt(std::string_view wort, std::string_view name, const Abschnitt* dort) {
    const auto nahe = Vorschlaege(name, dort);
    std::string fehler = LadeTextMit(TextKeinRegister, {std::string(wort)});
    if (!nahe.empty())
        fehler += " " + LadeTextMit(TextMeinten, {Aufzaehlung(nahe)});
    return {std::nullopt, fehler};
}

Registerwahl MitAdresse(std::string_view wort, const Abschnitt& abschnitt, std::int32_t adresse) {
    if (adresse >= AnzahlAdressen(abschnitt.bereich))
        return {std::nullopt, LadeTextMit(TextKeineAdresse, {std::string(wort)})};
    const auto stelle = static_cast<std::int16_t>(adresse);
    const std::int16_t laenge = Beschreibung(abschnitt.bereich, stelle).Laenge;
    return {Transferparameter{abschnitt.bereich, stelle, laenge > 0 ? laenge : std::int16_t{1},
                              static_cast<std::int16_t>(abschnitt.optikteil)}};
}

/// An address of the controller, of a range that there is once.
Registerwahl MitGeraeteadresse(std::string_view wort, std::int32_t adresse) {
    for (const Abschnitt& abschnitt : AlleAbschnitte()) {
        const std::int32_t anfang = Bereichsanfang(abschnitt.bereich);
        if (adresse < anfang || adresse >= anfang + AnzahlAdressen(abschnitt.bereich))
            continue;
        if (Exemplare(abschnitt.bereich) > 1)
            return {std::nullopt, LadeTextMit(TextTeilNennen, {std::string(wort)})};
        return MitAdresse(wort, abschnitt, adresse - anfang);
    }
    return {std::nullopt, LadeTextMit(TextKeineAdresse, {std::string(wort)})};
}

Registerwahl ImAbschnitt(std::string_view wort, const Abschnitt& abschnitt, std::string_view name) {
    const std::string kern = Namenskern(name);
    for (const Parameter& parameter : AlleParameter())
        if (parameter.bereich == abschnitt.bereich && HeisstParameter(parameter, kern))
            return {Ganzer(parameter, abschnitt.optikteil)};
    const auto adresse = Adresse(kern);
    if (!adresse)
        return Unbekannt(wort, name, &abschnitt);
    const std::int32_t anfang = Bereichsanfang(abschnitt.bereich);
    const bool vollstaendige = anfang > 0 && *adresse >= anfang;
    return MitAdresse(wort, abschnitt, vollstaendige ? *adresse - anfang : *adresse);
}

Registerwahl OhneAbschnitt(std::string_view wort) {
    const std::string kern = Namenskern(wort);
    std::vector<const Parameter*> treffer;
    for (const Parameter& parameter : AlleParameter())
        if (HeisstParameter(parameter, kern))
            treffer.push_back(&parameter);
    if (treffer.size() > 1)
        return {std::nullopt, LadeTextMit(TextMehrdeutig, {std::string(wort)})};
    if (treffer.size() == 1 && Exemplare(treffer[0]->bereich) > 1)
        return {std::nullopt, LadeTextMit(TextTeilNennen, {std::string(wort)})};
    if (treffer.size() == 1)
        return {Ganzer(*treffer[0], 0)};
    const auto adresse = Adresse(kern);
    return adresse ? MitGeraeteadresse(wort, *adresse) : Unbekannt(wort, wort, nullptr);
}

} // namespace

Registerwahl WaehleRegister(std::string_view bytes) {
    const std::string wort = WortAlsUtf8(bytes);
    const auto trenner = wort.find_first_of("/,");
    if (trenner != std::string::npos)
        if (const Abschnitt* const abschnitt = AbschnittAus(std::string_view(wort).substr(0, trenner)))
            return ImAbschnitt(wort, *abschnitt, OhneRand(std::string_view(wort).substr(trenner + 1)));
    return OhneAbschnitt(wort);
}

bool IstParameter(const Transferparameter& parameter) {
    return Beschreibung(parameter.bereich, parameter.adresse).Laenge == parameter.anzahl;
}

std::string Registername(const Transferparameter& parameter) {
    const std::string abschnitt =
        Abschnittsname({parameter.bereich, parameter.optikteil}, GetSprachoffset()) + " / ";
    return abschnitt + (IstParameter(parameter) ? Parametername(parameter.bereich, parameter.adresse)
                                                : Registertext(parameter.bereich, parameter.adresse));
}

} // namespace varnoth::ctl
