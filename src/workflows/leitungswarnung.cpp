#include "leitungswarnung.h"

#include "klartext.h"
#include "registeradressen.h"
#include "textmitwerten.h"

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

constexpr auto Kommunikation = Speicherbereich::Kommunikationsdaten;

std::int32_t Wert(const Abbild& abbild, std::int16_t adresse) {
    return abbild.HoleRegister(Kommunikation, adresse) & 0xFFFF;
}

std::string Worte(const Abbild& abbild, std::int16_t adresse) {
    return Klartext(Kommunikation, adresse, {Wert(abbild, adresse)}, LesartFuer(abbild, Kommunikation));
}

} // namespace

std::string Leitungswarnung(const Schreibauftrag& auftrag, const std::optional<Geraetestand>& stand) {
    std::string warnung;
    if (!stand)
        return warnung;
    for (const auto& [adresse, text] : DieRegister) {
        const Parameterstelle stelle{Kommunikation, adresse, 0};
        if (!auftrag.stellen.contains(stelle) || stand->unbekannt.contains(stelle) ||
            Wert(auftrag.abbild, adresse) == Wert(stand->abbild, adresse))
            continue;
        warnung += (warnung.empty() ? "" : "\n") +
                   LadeTextMit(text, {Worte(stand->abbild, adresse), Worte(auftrag.abbild, adresse)});
    }
    return warnung;
}

} // namespace varnoth
