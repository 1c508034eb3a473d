#pragma once

#include <cstdint>

/// Names of the registers, by memory range; an address counts from the start of its range. The table of
/// parameters describes those that the image keeps. The others are only ever sent to.
namespace varnoth {

namespace global {
inline constexpr std::int16_t Geraetetyp = 0;
inline constexpr std::int16_t Seriennummer = 9;
inline constexpr std::int16_t Herstelldatum = 20;
inline constexpr std::int16_t Hardwareversion = 24;
inline constexpr std::int16_t Softwareversion = 25;
inline constexpr std::int16_t Passwort = 178; ///< the service password begins here
inline constexpr std::int16_t Kommando = 189; ///< takes what the controller is to do at once
inline constexpr std::int16_t PnpAusgang = 193;
inline constexpr std::int16_t Geraetestatus = 196;
inline constexpr std::int16_t Optikteilauswahl = 212; ///< the optical part 0..3 that the specific range shows
inline constexpr std::int16_t Kanalauswahl = 213;     ///< the channel that the communication range shows
} // namespace global

namespace spezifisch {
inline constexpr std::int16_t Strahlenzahl = 12;
inline constexpr std::int16_t Aufloesung = 13;
inline constexpr std::int16_t Reichweite = 14;
inline constexpr std::int16_t Filterdurchlaeufe = 19;
inline constexpr std::int16_t Gruppenzaehler = 24;
inline constexpr std::int16_t MinMaxHaltezeit = 25;
inline constexpr std::int16_t Lochgroesse = 26;
inline constexpr std::int16_t Mittentoleranz = 27;
inline constexpr std::int16_t Optikteilstatus = 44;
inline constexpr std::int16_t Blankingmuster = 52;
inline constexpr std::int16_t Blankingregister = 32; ///< registers of the blanking pattern, 16 beams each
inline constexpr std::int16_t Messwerte = 335;
inline constexpr std::int16_t Strahlzustaende = 353;
} // namespace spezifisch

namespace kommunikation {
inline constexpr std::int16_t Bustyp = 0;
inline constexpr std::int16_t Format = 2;
inline constexpr std::int16_t Stationsadresse = 4;
inline constexpr std::int16_t Pausenzeit = 8;
inline constexpr std::int16_t Autosend = 74;
inline constexpr std::int16_t Datenblock = 75;
inline constexpr std::int16_t Datenblockregister = 30; ///< registers of the autosend data block, one an entry
inline constexpr std::int16_t Autosendformat = 126;
inline constexpr std::int16_t Steuerwert = 132; ///< 2 starts autosend, 4 ends it
} // namespace kommunikation

} // namespace varnoth
