// Any bytes as a configuration in text form: errors name a line that there is, and what is read is written
// and read again as the same image.

#include "standtext.h"

#include "pruefe.h"

#include <algorithm>

namespace {

using namespace varnoth;
using namespace varnoth::fuzzing;

void PruefeFehler(const Standbefund& befund, std::string_view text) {
    const auto zeilen = static_cast<std::size_t>(std::ranges::count(text, '\n')) + 1;
    Pruefe(!befund.fehler.empty() && befund.fehler.size() <= HoechstensStandfehler, "an error is told");
    for (const Standfehler& fehler : befund.fehler) {
        Pruefe(fehler.zeile <= zeilen, "the line exists");
        Pruefe(!Fehlertext(fehler).empty(), "it is told in words");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
    const std::string_view text = AlsText(daten, laenge);
    const Standbefund befund = LiesStandtext(text);
    if (!befund.abbild) {
        PruefeFehler(befund, text);
        return 0;
    }
    Pruefe(befund.fehler.empty(), "what is read has no errors");
    for (const std::int16_t sprache : {Deutsch, Englisch})
        Pruefe(LiesStandtext(Standtext(*befund.abbild, sprache)).abbild == befund.abbild,
               "what was read is written and read again");
    return 0;
}
