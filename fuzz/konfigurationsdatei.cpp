// Any bytes as the body of a configuration file: they are refused, or every value in them can be written out
// again as it was.

#include "konfigurationsdatei.h"

#include "registerabbild.h"

#include <cstdint>
#include <cstdlib>

namespace {

using namespace varnoth;
using namespace varnoth::modDaten;

void ErwarteDieselbeDatei(const Dateiinhalt& inhalt, std::string_view bytes) {
    for (const auto bereich : AlleSpeicherbereiche)
        if (ErsetzeBereich(bereich, inhalt[static_cast<std::size_t>(bereich)]) == False)
            std::abort();
    if (SpeichereKonfigurationsdatei() != bytes.substr(0, LaengeKonfigurationsdatei))
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
    const std::string_view bytes(reinterpret_cast<const char*>(daten), laenge);
    Dateiinhalt inhalt;
    const auto befund = ZerlegeKonfigurationsdatei(bytes, inhalt);
    if (befund == Dateibefund::Gut)
        ErwarteDieselbeDatei(inhalt, bytes);
    return 0;
}
