#pragma once

#include "lesart.h"
#include "registerbeschreibung.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varnoth {

/// The selection of a list in which nothing is selected.
inline constexpr int KeineAuswahl = -1;

/// What the items of a list say about the values they stand for.
enum class Postenart {
    Texte,      ///< a text for each item
    Zahl,       ///< the value: 12
    Millimeter, ///< the value: 12mm
    Dauer,      ///< the value times the cycle time, in milliseconds: 1,5ms
    Hex,        ///< the value in hexadecimal: CH
};

/// A list from which one register, or a part of its bits, takes its value.
struct Auswahlliste {
    std::int16_t titel; ///< the text id of its caption
    Speicherbereich bereich;
    std::int16_t adresse;
    std::int32_t maske;  ///< the bits that select the item
    std::int32_t erster; ///< the value of the first item; the others follow one after another ...
    int anzahl;          ///< ... so many in all
    Postenart posten;
    std::span<const std::string_view> texte{};
    std::span<const std::int32_t> werte{}; ///< the items' values where they do not follow one another
    std::int32_t feld = maske;             ///< the bits that belong to the list, selecting or not
};

/// The lists of an optical part, in the order in which they are written back.
enum class Teilliste {
    Aufloesung,
    Reichweite,
    Filterdurchlaeufe,
    Gruppenzaehler,
    MinMaxHaltezeit,
    Lochgroesse,
    Mittentoleranz
};
std::span<const Auswahlliste> AlleTeillisten();
const Auswahlliste& Beschreibung(Teilliste liste);

/// The station address, 1 to `groesste`.
Auswahlliste Stationsadressen(int groesste);
/// The rate with which a controller sends by itself, 1 to `groesste` cycles, in the bits of its register
/// moved to the right.
Auswahlliste Autosendraten(int groesste);
/// The baud rates of the line on which a controller sends by itself.
const Auswahlliste& Autosendbaudraten();

/// The item that a register value selects; KeineAuswahl for a value outside the list.
int AuswahlFuer(const Auswahlliste& liste, std::int32_t wert);

/// The value of an item. KeineAuswahl gives one less than the first item's value; in a list whose values do
/// not follow one another it gives 0.
std::int32_t WertFuer(const Auswahlliste& liste, int auswahl);

/// The texts (UTF-8) of the items. `zyklus` is the cycle time in microseconds that durations count in.
std::vector<std::string> Postentexte(const Auswahlliste& liste, std::int32_t zyklus,
                                     const Zahlformat& zahlformat);

/// What a list says of the register value it cannot show; empty when it shows it.
std::string Hinweistext(const Auswahlliste& liste, std::int32_t wert);

/// The value that a selection sends, "(12)"; empty while nothing is selected.
std::string UebertragenerWert(const Auswahlliste& liste, int auswahl);

} // namespace varnoth
