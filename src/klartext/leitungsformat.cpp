#include "leitungsformat.h"

#include "texte.h"

#include <algorithm>
#include <iterator>

namespace varnoth {

namespace {

constexpr std::int16_t TextFormat = 5601;

// The text for odd parity stands at 0x600, which lies partly outside the parity bits: odd parity is never
// recognised. Controllers and their documents are used to it: the text stays as it is.
constexpr Option DieParitaeten[] = {{0x000, 5619}, {0x800, 5621}};

std::string MitKomma(std::string_view text) {
    return std::string(text) + ", ";
}

std::string Baudtext(std::int32_t code) {
    const auto stelle = static_cast<std::size_t>(code - ErsterBaudcode);
    return MitKomma(code >= ErsterBaudcode && stelle < std::size(Baudtexte) ? Baudtexte[stelle] : "?");
}

std::string Paritaetstext(std::int32_t paritaet) {
    const auto* const treffer = std::ranges::find(DieParitaeten, paritaet, &Option::wert);
    return treffer == std::end(DieParitaeten) ? MitKomma("?") : LadeText(treffer->text);
}

} // namespace

std::span<const Option> Paritaeten() {
    return DieParitaeten;
}

std::string Formattext(std::int32_t format) {
    using namespace leitungsbits;
    return LadeText(TextFormat) + Baudtext(format & Baud) +
           MitKomma(Stopbittexte[(format & Stop) >> Stopversatz]) + Paritaetstext(format & Paritaet);
}

} // namespace varnoth
