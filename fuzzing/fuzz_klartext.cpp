// Any words for any parameter: what they are read as is told in words that are read as the same. Two bytes
// choose parameter and reading; the rest are the words.

#include "klartext.h"

#include "pruefe.h"

namespace {

using namespace varnoth;
using namespace varnoth::fuzzing;

Lesart LesartAus(std::uint8_t byte) {
    constexpr std::int32_t zyklen[] = {0, 1, 1500, 65535};
    return {.sprache = byte % 2 == 0 ? Deutsch : Englisch,
            .zyklus = zyklen[byte / 2 % 4],
            .bustyp = byte / 8 % 2};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
    std::string_view worte = AlsText(daten, laenge);
    const auto alle = AlleParameter();
    const Parameter& parameter = alle[NimmByte(worte) % alle.size()];
    const Lesart lesart = LesartAus(NimmByte(worte));
    const auto werte = WerteAus(parameter.bereich, parameter.adresse, worte, lesart);
    if (!werte)
        return 0;
    Pruefe(werte->size() == static_cast<std::size_t>(parameter.beschreibung.Laenge),
           "all registers are told");
    const std::string wieder = Klartext(parameter.bereich, parameter.adresse, *werte, lesart);
    Pruefe(WerteAus(parameter.bereich, parameter.adresse, wieder, lesart) == werte,
           "what words mean is told in words that mean the same");
    return 0;
}
