#include "parameterworte.h"

#include "blankingworte.h"
#include "datenblockworte.h"
#include "geraeteworte.h"
#include "registeradressen.h"
#include "zahlworte.h"

#include <algorithm>
#include <iterator>

namespace varnoth {

namespace {

std::size_t Laenge(Speicherbereich bereich, std::int16_t adresse) {
    return static_cast<std::size_t>(Beschreibung(bereich, adresse).Laenge);
}

std::optional<Werte> SeriennummerAus(std::string_view worte, const Lesart& /*lesart*/) {
    return TextAusWorten(worte, Laenge(Global, global::Seriennummer));
}

std::optional<Werte> DatumAus(std::string_view worte, const Lesart& /*lesart*/) {
    return DatumAusWorten(worte);
}

std::optional<Werte> VersionAus(std::string_view worte, const Lesart& /*lesart*/) {
    return VersionAusWorten(worte);
}

std::optional<std::string> Blankingworte(const Werte& werte, const Lesart& lesart) {
    return BlankingAlsWorte(werte, lesart);
}

std::optional<std::string> Datenblockworte(const Werte& werte, const Lesart& lesart) {
    return DatenblockAlsWorte(werte, lesart);
}

std::optional<Werte> StrahlenzahlAus(std::string_view worte, const Lesart& /*lesart*/) {
    return ZahlenAusWorten(worte, 1, MaxStrahlen);
}

std::optional<Werte> MesswerteAus(std::string_view worte, const Lesart& /*lesart*/) {
    return ZahlenAusWorten(worte, Laenge(Spezifisch, spezifisch::Messwerte));
}

// By range and address. The captions of the windows serve as names.
constexpr Parameterworte Alle[] = {
    {Global, global::Geraetetyp, 5102, Geraetetypfelder},
    {Global, global::Seriennummer, 5105, nullptr, TextAlsWorte, SeriennummerAus},
    {Global, global::Herstelldatum, 5106, nullptr, DatumAlsWorte, DatumAus},
    {Global, global::Hardwareversion, 5107, nullptr, VersionAlsWorte, VersionAus},
    {Global, global::Softwareversion, 5108, nullptr, VersionAlsWorte, VersionAus},
    {Global, global::PnpAusgang, 5109, PnpAusgangsfelder},
    {Global, global::Geraetestatus, 9300, Geraetestatusfelder},
    {Spezifisch, spezifisch::Strahlenzahl, 5206, nullptr, ZahlenAlsWorte, StrahlenzahlAus},
    {Spezifisch, spezifisch::Aufloesung, 5207, Aufloesungsfelder},
    {Spezifisch, spezifisch::Reichweite, 5208, Reichweitenfelder},
    {Spezifisch, spezifisch::Filterdurchlaeufe, 5209, Integrationsfelder},
    {Spezifisch, spezifisch::Gruppenzaehler, 5210, Gruppenzaehlerfelder},
    {Spezifisch, spezifisch::MinMaxHaltezeit, 5211, Haltezeitfelder},
    {Spezifisch, spezifisch::Lochgroesse, 5212, Lochgroessenfelder},
    {Spezifisch, spezifisch::Mittentoleranz, 5213, Toleranzfelder},
    {Spezifisch, spezifisch::Optikteilstatus, 9301, Optikteilstatusfelder},
    {Spezifisch, spezifisch::Blankingmuster, 5216, nullptr, Blankingworte, BlankingAusWorten},
    {Spezifisch, spezifisch::Messwerte, 4018, nullptr, ZahlenAlsWorte, MesswerteAus},
    {Kommunikation, kommunikation::Bustyp, 5112, Bustypfelder},
    {Kommunikation, kommunikation::Format, 5601, Formatfelder},
    {Kommunikation, kommunikation::Stationsadresse, 5602, Stationsfelder},
    {Kommunikation, kommunikation::Pausenzeit, 9302, nullptr, PauseAlsWorte, PauseAusWorten},
    {Kommunikation, kommunikation::Autosend, 5610, Autosendfelder},
    {Kommunikation, kommunikation::Datenblock, 5603, nullptr, Datenblockworte, DatenblockAusWorten},
    {Kommunikation, kommunikation::Autosendformat, 9303, Autosendformatfelder},
};

} // namespace

const Parameterworte* ParameterworteVon(Speicherbereich bereich, std::int16_t adresse) {
    const auto* const treffer = std::ranges::find_if(Alle, [&](const Parameterworte& parameter) {
        return parameter.bereich == bereich && parameter.adresse == adresse;
    });
    return treffer == std::end(Alle) ? nullptr : treffer;
}

} // namespace varnoth
