#include "hardwarereset.h"

#include "kommandoregister.h"
#include "versuche.h"

namespace varnoth {

bool SetzeHardwareZurueck(Resetanzeige& anzeige) {
    const auto zeige = [&anzeige](int versuch) {
        if (versuch > 1)
            anzeige.ZeigeWiederholung(versuch);
    };
    return VersucheBisErfolg(anzeige, zeige, [] { return SendeKommando(Kommando::StarteNeu); });
}

} // namespace varnoth
