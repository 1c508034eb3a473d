// Any text as a port's settings: it is refused, or gives settings in their ranges that can be written down
// and read again.

#include "porteinstellungen.h"
#include "pruefe.h"

#include <string>

namespace {

using namespace varnoth;
using namespace varnoth::fuzzing;

const char* Stoppbittext(Stoppbits stoppbits) {
    return stoppbits == Stoppbits::Eins ? "1" : stoppbits == Stoppbits::Zwei ? "2" : "1.5";
}

std::string Aufgeschrieben(const Porteinstellungen& einstellungen, const std::string& blanks) {
    constexpr std::string_view buchstaben = "neoms";
    const char buchstabe = buchstaben.at(static_cast<std::size_t>(einstellungen.paritaet));
    return blanks + std::to_string(einstellungen.baud) + blanks + "," + blanks + buchstabe + blanks + "," +
           blanks + std::to_string(einstellungen.datenbits) + blanks + "," + blanks +
           Stoppbittext(einstellungen.stoppbits) + blanks;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
    const auto gelesen = LiesPorteinstellungen(AlsText(daten, laenge));
    if (!gelesen)
        return 0;
    Pruefe(gelesen->baud >= 1 && gelesen->baud <= 4000000, "the baud rate is in its range");
    Pruefe(gelesen->datenbits >= 5 && gelesen->datenbits <= 8, "the data bits are in their range");
    Pruefe(Bitzeiten(*gelesen) >= 7 && Bitzeiten(*gelesen) <= 12, "a character takes 7 to 12 bits");
    Pruefe(LiesPorteinstellungen(Aufgeschrieben(*gelesen, "")) == gelesen, "written down it reads the same");
    Pruefe(LiesPorteinstellungen(Aufgeschrieben(*gelesen, "  ")) == gelesen, "blanks do not count");
    return 0;
}
