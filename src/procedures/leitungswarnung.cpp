#include "leitungswarnung.h"

#include "klartext.h"
#include "registeradressen.h"
#include "textmitwerten.h"
#include "transaktionen.h"

namespace varnoth {

namespace {

/// A register that decides how the controller can be talked to, and what is said when it changes.
struct Leitungsregister {
    std::int16_t adresse;
    std::int16_t text;
};

constexpr std::int16_t TextStationsadresse = 9796;
constexpr std::int16_t TextAutosendformat = 9797;

constexpr Leitungsregister DieRegister[] = {
    {kommunikation::Stationsadresse, TextStationsadresse},
    {kommunikation::Autosendformat, TextAutosendformat},
};

std::int32_t Wert(const Abbild& abbild, std::int16_t adresse) {
    return abbild.HoleRegister(Kommunikation, adresse) & 0xFFFF;
}

std::string Worte(const Abbild& abbild, std::int16_t adresse, std::int32_t wert) {
    return Klartext(Kommunikation, adresse, {wert}, LesartFuer(abbild, Kommunikation));
}

/// What the controller holds as far as it is known; its address also from the identification alone.
std::optional<std::int32_t> Bisheriger(std::int16_t adresse, const std::optional<Geraetestand>& stand) {
    if (stand && !stand->unbekannt.contains({Kommunikation, adresse, 0}))
        return Wert(stand->abbild, adresse);
    if (adresse == kommunikation::Stationsadresse && modModbus::GetIdentGueltig() != False)
        return modModbus::GetSlaveAdresse();
    return std::nullopt;
}

} // namespace

std::string Leitungswarnung(const Schreibauftrag& auftrag, const std::optional<Geraetestand>& stand) {
    std::string warnung;
    for (const auto& [adresse, text] : DieRegister) {
        const auto bisheriger = Bisheriger(adresse, stand);
        const std::int32_t neuer = Wert(auftrag.abbild, adresse);
        if (!auftrag.stellen.contains({Kommunikation, adresse, 0}) || !bisheriger || *bisheriger == neuer)
            continue;
        warnung += (warnung.empty() ? "" : "\n") +
                   LadeTextMit(text, {Worte(stand ? stand->abbild : auftrag.abbild, adresse, *bisheriger),
                                      Worte(auftrag.abbild, adresse, neuer)});
    }
    return warnung;
}

} // namespace varnoth
