#include "pnpspeicherung.h"

#include "umgebung.h"

namespace varnoth {

void SpeicherePnpAusgang(std::int32_t registerwert, const std::function<bool(std::int32_t)>& speichere) {
    if (!speichere(registerwert))
        DieUmgebung().ZeigeMeldung(
            {.text = "Error in frmKonfigurationEdit,  PNP-Ausgang", .symbol = Symbol::Ohne});
}

} // namespace varnoth
