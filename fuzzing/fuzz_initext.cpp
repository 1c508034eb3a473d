// Any text as that of a settings file, and any value to be set in it: the value reads back, no other key
// changes, and no byte but those of the value's own line.
//
// The input's first line is the value, the rest the text.

#include "initext.h"

#include "pruefe.h"

#include <algorithm>
#include <array>

namespace {

using namespace varnoth;
using namespace varnoth::fuzzing;

struct Schluessel {
    std::string_view abschnitt;
    std::string_view name;
};

constexpr std::array<Schluessel, 4> DieSchluessel{
    {{"Settings", "Sprache"}, {"Settings", "ComSettings"}, {"MDIForm", "Left"}, {"a", "b"}}};

std::string_view OhneBlanks(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t'))
        text.remove_suffix(1);
    return text;
}

/// How many bytes of the old text stand at the beginning and at the end of the new one.
std::size_t Geblieben(std::string_view alt, std::string_view neu) {
    const auto vorn = std::ranges::mismatch(alt, neu).in1 - alt.begin();
    const auto hinten =
        std::mismatch(alt.rbegin(), alt.rend(), neu.rbegin(), neu.rend()).first - alt.rbegin();
    return static_cast<std::size_t>(vorn + hinten);
}

void PruefeAenderung(const std::string& text, const Schluessel& gesetzt, std::string_view wert) {
    const Initext alt(text);
    Initext neu(text);
    if (!neu.Setze(gesetzt.abschnitt, gesetzt.name, wert)) {
        Pruefe(wert.find_first_of(std::string_view("\r\n\0", 3)) != wert.npos, "what fits in a line is set");
        Pruefe(neu.Text() == text, "a refused value changes nothing");
        return;
    }
    Pruefe(neu.Lies(gesetzt.abschnitt, gesetzt.name) == OhneBlanks(wert), "a value reads back");
    for (const auto& anderer : DieSchluessel)
        if (anderer.name != gesetzt.name)
            Pruefe(neu.Lies(anderer.abschnitt, anderer.name) == alt.Lies(anderer.abschnitt, anderer.name),
                   "another value stays");
    const std::size_t altesWert = alt.Lies(gesetzt.abschnitt, gesetzt.name).value_or("").size();
    Pruefe(Geblieben(text, neu.Text()) >= text.size() - altesWert, "every other byte stays");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
    const std::string_view bytes = AlsText(daten, laenge);
    const std::size_t ende = std::min(bytes.find('\n'), bytes.size());
    const std::string text(bytes.substr(std::min(ende + 1, bytes.size())));
    for (const auto& schluessel : DieSchluessel)
        PruefeAenderung(text, schluessel, bytes.substr(0, ende));
    return 0;
}
