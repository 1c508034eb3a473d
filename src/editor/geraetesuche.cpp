#include "geraetesuche.h"

#include "transaktionen.h"
#include "umgebung.h"

namespace varnoth {

namespace {
constexpr int Versuche = 2;
}

bool FindeGeraet(const std::function<bool()>& abgebrochen) {
    for (int versuch = 0; versuch < Versuche && !abgebrochen(); ++versuch) {
        if (modModbus::RTUModeH11IndentifikationsAnforderung() != False)
            return !abgebrochen();
        DieUmgebung().LasseEreignisseLaufen();
    }
    return false;
}

} // namespace varnoth
