#include "geraetetexte.h"

#include "bitsunddatum.h"
#include "bustyp.h"
#include "texte.h"
#include "zeichensatz.h"

#include <algorithm>
#include <iterator>

namespace varnoth {

namespace {

constexpr Option Geraetetypen[] = {{50, 5104}};

} // namespace

std::span<const Option> AlleGeraetetypen() {
    return Geraetetypen;
}

std::string Geraetetyptext(std::int32_t typ) {
    const auto* const zeile = std::ranges::find(Geraetetypen, typ, &Option::wert);
    return LadeText(zeile == std::end(Geraetetypen) ? TextUnbekannt : zeile->text);
}

std::string Seriennummertext(const Werte& daten) {
    if (daten.at(0) == 0)
        return LadeText(TextUnbekannt);
    std::string text;
    for (const std::int32_t wert : daten)
        text += RegisterAlsUtf8(wert);
    return text;
}

std::string Herstelldatumtext(const Werte& daten) {
    return daten.at(0) == 0 ? LadeText(TextUnbekannt) : modDaten::KonvertDatenToDatum(daten);
}

std::string Versionstext(std::int32_t version) {
    if (version == 0)
        return LadeText(TextUnbekannt);
    return std::to_string((version >> 8) & 0xFF) + "." + std::to_string(version & 0xFF);
}

std::string Bustyptext(std::int32_t typ) {
    const auto* const zeile = std::ranges::find(Bustypen, typ, &Option::wert);
    return LadeText(zeile == std::end(Bustypen) ? TextUnbekannt : zeile->text);
}

} // namespace varnoth
