#include "seriennummer.h"

#include "transaktionen.h"

namespace varnoth {

std::string GeraeteSeriennummer() {
    return IdenttextAlsUtf8(modModbus::GetIdentText2());
}

} // namespace varnoth
