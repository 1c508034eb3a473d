#include "seriennummer.h"

#include "transaktionen.h"
#include "zeichensatz.h"

#include <cstdint>

namespace varnoth {

std::string GeraeteSeriennummer() {
    std::string text;
    for (const char zeichen : modModbus::GetIdentText2())
        text += AlsUtf8(static_cast<std::uint8_t>(zeichen));
    return text;
}

} // namespace varnoth
