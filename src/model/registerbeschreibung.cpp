#include "registerbeschreibung.h"

#include "registeradressen.h"

#include <algorithm>
#include <array>

namespace varnoth {

namespace {

// Length, configuration or not, access. The line format belongs to the configuration and yet is only read: no
// whole-configuration write changes the line that it runs on.
constexpr Parameter DieParameter[] = {
    {Global, global::Geraetetyp, {1, 0, zugriff::NurLesen}},
    {Global, global::Seriennummer, {10, 0, zugriff::NurLesen}},
    {Global, global::Herstelldatum, {4, 0, zugriff::NurLesen}},
    {Global, global::Hardwareversion, {1, 0, zugriff::NurLesen}},
    {Global, global::Softwareversion, {1, 0, zugriff::NurLesen}},
    {Global, global::PnpAusgang, {1, 1, zugriff::LesenUndSchreiben}},
    {Global, global::Geraetestatus, {1, 0, zugriff::NurLesen}},
    {Spezifisch, spezifisch::Strahlenzahl, {1, 0, zugriff::NurLesen}},
    {Spezifisch, spezifisch::Aufloesung, {1, 1, zugriff::LesenUndSchreiben}},
    {Spezifisch, spezifisch::Reichweite, {1, 1, zugriff::LesenUndSchreiben}},
    {Spezifisch, spezifisch::Filterdurchlaeufe, {1, 1, zugriff::LesenUndSchreiben}},
    {Spezifisch, spezifisch::Gruppenzaehler, {1, 1, zugriff::LesenUndSchreiben}},
    {Spezifisch, spezifisch::MinMaxHaltezeit, {1, 1, zugriff::LesenUndSchreiben}},
    {Spezifisch, spezifisch::Lochgroesse, {1, 1, zugriff::LesenUndSchreiben}},
    {Spezifisch, spezifisch::Mittentoleranz, {1, 1, zugriff::LesenUndSchreiben}},
    {Spezifisch, spezifisch::Optikteilstatus, {1, 0, zugriff::KeineUebertragung}},
    {Spezifisch, spezifisch::Blankingmuster, {spezifisch::Blankingregister, 1, zugriff::LesenUndSchreiben}},
    {Spezifisch, spezifisch::Messwerte, {18, 0, zugriff::KeineUebertragung}},
    {Kommunikation, kommunikation::Bustyp, {1, 0, zugriff::NurLesen}},
    {Kommunikation, kommunikation::Format, {1, 1, zugriff::NurLesen}},
    {Kommunikation, kommunikation::Stationsadresse, {1, 1, zugriff::LesenUndSchreiben}},
    {Kommunikation, kommunikation::Pausenzeit, {1, 1, zugriff::LesenUndSchreiben}},
    {Kommunikation, kommunikation::Autosend, {1, 1, zugriff::LesenUndSchreiben}},
    {Kommunikation,
     kommunikation::Datenblock,
     {kommunikation::Datenblockregister, 1, zugriff::LesenUndSchreiben}},
    {Kommunikation, kommunikation::Autosendformat, {1, 1, zugriff::LesenUndSchreiben}},
};

constexpr std::int32_t AlleBits = -1;
constexpr std::int32_t Aufloesungen[] = {5, 10, 20, 40};
constexpr std::int32_t Autosendarten[] = {0, 1, 3, 4};

constexpr Werteregel DieRegeln[] = {
    {Spezifisch, spezifisch::Strahlenzahl, AlleBits, 0, MaxStrahlen},
    {Spezifisch, spezifisch::Aufloesung, AlleBits, 0, 0, Aufloesungen},
    {Spezifisch, spezifisch::Reichweite, AlleBits, 0, 5},
    {Spezifisch, spezifisch::Filterdurchlaeufe, AlleBits, 1, 63},
    {Spezifisch, spezifisch::Gruppenzaehler, 0x7FFF, 1, 127},
    {Spezifisch, spezifisch::MinMaxHaltezeit, AlleBits, 1, 255},
    {Spezifisch, spezifisch::Lochgroesse, AlleBits, 1, 255},
    {Spezifisch, spezifisch::Mittentoleranz, AlleBits, 1, 255},
    {Kommunikation, kommunikation::Stationsadresse, AlleBits, 1, 240},
    {Kommunikation, kommunikation::Pausenzeit, AlleBits, 0, 65535},
    {Kommunikation, kommunikation::Autosend, 0x7F, 0, 0, Autosendarten},
    {Kommunikation, kommunikation::Datenblock, 0xFF, 0, 20},
    {Kommunikation, kommunikation::Datenblock, ~0xFF, 0, 0x300},
};

constexpr Standardwert DieStandardwerte[] = {
    {Spezifisch, spezifisch::Aufloesung, 5},
    {Spezifisch, spezifisch::Reichweite, 3},
    {Spezifisch, spezifisch::Filterdurchlaeufe, 1},
    {Spezifisch, spezifisch::Gruppenzaehler, 1},
    {Spezifisch, spezifisch::MinMaxHaltezeit, 1},
    {Spezifisch, spezifisch::Lochgroesse, 1},
    {Spezifisch, spezifisch::Mittentoleranz, 1},
    {Kommunikation, kommunikation::Stationsadresse, 1},
    {Kommunikation, kommunikation::Autosend, 259},
    {Kommunikation, kommunikation::Datenblock, 20},
    {Kommunikation, kommunikation::Datenblock + 1, 276},
    {Kommunikation, kommunikation::Datenblock + 2, 258},
    {Kommunikation, kommunikation::Datenblock + 3, 259},
    {Kommunikation, kommunikation::Datenblock + 4, 260},
    {Kommunikation, kommunikation::Datenblock + 5, 261},
    {Kommunikation, kommunikation::Datenblock + 6, 262},
    {Kommunikation, kommunikation::Datenblock + 7, 263},
    {Kommunikation, kommunikation::Autosendformat, 783},
};

template<Speicherbereich bereich>
constexpr auto JeAdresse() {
    std::array<Registerbeschreibung, AnzahlAdressen(bereich)> tabelle{};
    for (const auto& parameter : DieParameter)
        if (parameter.bereich == bereich)
            tabelle[static_cast<std::size_t>(parameter.adresse)] = parameter.beschreibung;
    return tabelle;
}

/// One entry per address of the range.
std::span<const Registerbeschreibung> Tabelle(Speicherbereich bereich) {
    static constexpr auto globale = JeAdresse<Global>();
    static constexpr auto spezifische = JeAdresse<Spezifisch>();
    static constexpr auto kommunikative = JeAdresse<Kommunikation>();
    switch (bereich) {
    case Global:
        return globale;
    case Spezifisch:
        return spezifische;
    case Kommunikation:
        return kommunikative;
    }
    return {};
}

} // namespace

Registerbeschreibung Beschreibung(Speicherbereich bereich, std::int16_t adresse) {
    if (adresse < 0 || adresse >= AnzahlAdressen(bereich))
        return {};
    return Tabelle(bereich)[static_cast<std::size_t>(adresse)];
}

std::span<const Parameter> AlleParameter() {
    return DieParameter;
}

std::span<const Werteregel> AlleWerteregeln() {
    return DieRegeln;
}

bool Erfuellt(const Werteregel& regel, std::int32_t wert) {
    const std::int32_t feld = wert & regel.maske;
    if (!regel.auswahl.empty())
        return std::ranges::find(regel.auswahl, feld) != regel.auswahl.end();
    return feld < 0 || (regel.kleinster <= feld && feld <= regel.groesster);
}

std::span<const Standardwert> AlleStandardwerte() {
    return DieStandardwerte;
}

} // namespace varnoth
