#include "registertext.h"

#include "zahlen.h"

namespace varnoth {

std::string Registertext(Speicherbereich bereich, std::int16_t adresse) {
    if (bereich == Speicherbereich::GlobaleGeraetedaten)
        return std::to_string(adresse);
    return AlsHex(Bereichsanfang(bereich)) + "H + " + std::to_string(adresse);
}

} // namespace varnoth
