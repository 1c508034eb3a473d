// Any bytes as the body of a configuration file: the verdict is the one that its mark, version and length
// give, and of a good file every value can be written out again as it was.

#include "konfigurationsdatei.h"

#include "pruefe.h"

namespace {

using namespace varnoth;
using namespace varnoth::fuzzing;

Dateibefund Erwartet(std::string_view bytes) {
    constexpr std::string_view kennung = "Varnoth Konfiguration";
    constexpr std::size_t laenge = 10262;
    if (!bytes.starts_with(kennung) || bytes.size() == kennung.size())
        return Dateibefund::UnbekanntesFormat;
    if (bytes[kennung.size()] != 0)
        return Dateibefund::UnbekannteVersion;
    return bytes.size() < laenge ? Dateibefund::UnbekanntesFormat : Dateibefund::Gut;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
    const std::string_view bytes = AlsText(daten, laenge);
    Abbild inhalt;
    const auto befund = ZerlegeKonfigurationsdatei(bytes, inhalt);
    Pruefe(befund == Erwartet(bytes), "the verdict is right");
    if (befund == Dateibefund::Gut)
        Pruefe(AlsKonfigurationsdatei(inhalt) == bytes.substr(0, LaengeKonfigurationsdatei),
               "what is written is what was read");
    return 0;
}
