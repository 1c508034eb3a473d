#include "registerlesung.h"

#include "geduld.h"
#include "klartext.h"
#include "plausibilitaet.h"
#include "registeradressen.h"
#include "registerwahl.h"
#include "registerzugriff.h"
#include "rohwert.h"
#include "standardkonfiguration.h"
#include "wortlaut.h"

#include <algorithm>
#include <charconv>
#include <tuple>

namespace varnoth::ctl {

namespace {

constexpr std::int32_t GroessterWert = 0xFFFF;
constexpr std::int32_t KleinsterWert = -0x8000;

bool SindDieselben(const Transferparameter& a, const Transferparameter& b) {
    return std::tie(a.bereich, a.adresse, a.anzahl, a.optikteil) ==
           std::tie(b.bereich, b.adresse, b.anzahl, b.optikteil);
}

/// What the words for other values depend on.
std::vector<Transferparameter> Zusammenhang() {
    std::vector<Transferparameter> alle;
    for (std::int16_t teil = 0; teil < AnzahlOptikteile; ++teil)
        alle.push_back({Speicherbereich::SpezifischeGeraetedaten, spezifisch::Strahlenzahl, 1, teil});
    alle.push_back({Speicherbereich::Kommunikationsdaten, kommunikation::Bustyp, 1});
    return alle;
}

/// A whole number, decimal or hexadecimal, that a register can hold.
std::optional<std::int32_t> Zahl(std::string_view worte) {
    const std::string_view text = OhneRand(worte);
    if (const auto roher = RohwertAus(text))
        return roher;
    std::int32_t zahl = 0;
    const char* const ende = text.data() + text.size();
    const auto [stelle, fehler] = std::from_chars(text.data(), ende, zahl);
    const bool passt =
        fehler == std::errc() && stelle == ende && zahl >= KleinsterWert && zahl <= GroessterWert;
    return passt ? std::optional(zahl & GroessterWert) : std::nullopt;
}

} // namespace

Ende Registerlesung::Lies(const Lauf& lauf, const Leitungszugang& zugang,
                          const std::vector<Transferparameter>& parameter) {
    Geduld geduld(lauf);
    Geduldsanzeige anzeige(geduld);
    auto alle = Zusammenhang();
    alle.insert(alle.end(), parameter.begin(), parameter.end());
    gelesene.clear();
    const auto uebernimm = [&](const Transferparameter& einer, const Werte& werte) {
        geduld.Beginne();
        std::ignore = abbild.SetzeParameter(einer.bereich, einer.adresse, werte, einer.optikteil);
        gelesene.emplace_back(einer, werte);
    };
    return LiesRegister(anzeige, alle, uebernimm) ? Ende::Erledigt : zugang.EndeNachAbbruch();
}

const Werte& Registerlesung::WerteVon(const Transferparameter& parameter) const {
    return std::ranges::find_if(gelesene,
                                [&](const auto& eines) { return SindDieselben(eines.first, parameter); })
        ->second;
}

Lesart Registerlesung::LesartVon(const Transferparameter& parameter) const {
    return LesartFuer(abbild, parameter.bereich, parameter.optikteil);
}

std::string Registerlesung::Worte(const Transferparameter& parameter, const Werte& werte) const {
    return IstParameter(parameter)
               ? Klartext(parameter.bereich, parameter.adresse, werte, LesartVon(parameter))
               : Rohtexte(werte);
}

std::optional<Werte> Registerlesung::WerteAus(const Transferparameter& parameter,
                                              std::string_view worte) const {
    if (IstParameter(parameter))
        if (auto werte = varnoth::WerteAus(parameter.bereich, parameter.adresse, worte, LesartVon(parameter)))
            return werte;
    const auto zahl = parameter.anzahl == 1 ? Zahl(worte) : std::nullopt;
    return zahl ? std::optional(Werte{*zahl}) : std::nullopt;
}

std::string Registerlesung::Auswahl(const Transferparameter& parameter) const {
    constexpr std::size_t Hoechstens = 20;
    const auto fuegungen = Wahlmoeglichkeiten(parameter.bereich, parameter.adresse, LesartVon(parameter));
    std::string text;
    for (const Feld& feld : fuegungen.empty() ? Felder{} : fuegungen.front()) {
        text += text.empty() ? "" : "; ";
        for (std::size_t i = 0; i < feld.wahlen.size() && i <= Hoechstens; ++i)
            text += (i > 0 ? ", " : "") + (i < Hoechstens ? feld.wahlen[i].worte : std::string("..."));
    }
    return text;
}

Json Registerlesung::AlsJson(const Transferparameter& parameter, const Werte& werte) const {
    return Json::Objekt({{"words", Worte(parameter, werte)}, {"values", Json::Zahlen(werte)}});
}

bool SindPlausibel(const Transferparameter& parameter, const Werte& werte) {
    Abbild abbild = Standardkonfiguration();
    const auto bereich = abbild.Bereich(parameter.bereich);
    for (std::size_t i = 0; i < werte.size(); ++i)
        bereich[Stelle(parameter.bereich, static_cast<std::int16_t>(parameter.adresse + static_cast<int>(i)),
                       parameter.optikteil)] = werte[i];
    const auto unplausible = UnplausibleStellen(abbild);
    return std::ranges::none_of(ParameterMitRegistern(parameter),
                                [&](const Parameterstelle& stelle) { return unplausible.contains(stelle); });
}

} // namespace varnoth::ctl
