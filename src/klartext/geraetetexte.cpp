#include "geraetetexte.h"

#include "bitsunddatum.h"
#include "bustyp.h"
#include "texte.h"
#include "zeichensatz.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <string_view>

namespace varnoth {

namespace {

constexpr std::int16_t TextUnbekannt = 5103;
constexpr std::int16_t TextGeraet = 5104;
constexpr std::int16_t TextModbus = 5113;
constexpr std::int16_t TextProfibus = 5114;
constexpr std::int16_t TextFormat = 5601;
constexpr std::int16_t TextKeineParitaet = 5619;
constexpr std::int16_t TextUngerade = 5620;
constexpr std::int16_t TextGerade = 5621;

constexpr std::int32_t DasGeraet = 50;

constexpr std::string_view Unerkannt = "?, ";

struct Wertetext {
    std::int32_t wert;
    std::string_view text;
};

constexpr std::int32_t Baudbits = 0xFF;
constexpr Wertetext Baudtexte[] = {
    {10, "1,2 KB, "},  {11, "2,4 KB, "},  {12, "4,8 KB, "},  {13, "9,6 KB, "},
    {14, "19,2 KB, "}, {15, "38,4 KB, "}, {16, "57,6 KB, "},
};

constexpr std::int32_t Stopbits = 0x300;
constexpr Wertetext Stopbittexte[] = {{0x000, "0, "}, {0x100, "1, "}, {0x200, "1,5, "}, {0x300, "2, "}};

struct Paritaet {
    std::int32_t wert;
    std::int16_t text;
};

constexpr std::int32_t Paritaetsbits = 0xC00;
// 0x600 lies partly outside the parity bits, so odd parity is never recognised. Controllers and their
// documents are used to it: the text stays as it is.
constexpr Paritaet Paritaeten[] = {{0x000, TextKeineParitaet}, {0x600, TextUngerade}, {0x800, TextGerade}};

std::string_view Suche(std::span<const Wertetext> texte, std::int32_t wert) {
    const auto treffer = std::ranges::find(texte, wert, &Wertetext::wert);
    return treffer == texte.end() ? Unerkannt : treffer->text;
}

std::string Paritaetstext(std::int32_t format) {
    const auto* const treffer = std::ranges::find(Paritaeten, format & Paritaetsbits, &Paritaet::wert);
    return treffer == std::end(Paritaeten) ? std::string(Unerkannt) : LadeText(treffer->text);
}

} // namespace

std::string Geraetetyptext(std::int32_t typ) {
    return LadeText(typ == DasGeraet ? TextGeraet : TextUnbekannt);
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
    switch (typ) {
    case bustyp::Modbus:
        return LadeText(TextModbus);
    case bustyp::Profibus:
        return LadeText(TextProfibus);
    default:
        return LadeText(TextUnbekannt);
    }
}

std::string Formattext(std::int32_t format) {
    std::string text = LadeText(TextFormat);
    text += Suche(Baudtexte, format & Baudbits);
    text += Suche(Stopbittexte, format & Stopbits);
    return text + Paritaetstext(format);
}

} // namespace varnoth
