#include "hardwarereset.h"

#include "ereignisse.h"
#include "geraetestand.h"
#include "kommandoregister.h"
#include "versuche.h"

namespace varnoth {

bool SetzeHardwareZurueck(Resetanzeige& anzeige) {
    const auto zeige = [&anzeige](int versuch) {
        if (versuch > 1)
            anzeige.ZeigeWiederholung(versuch);
    };
    const bool bestaetigt =
        VersucheBisErfolg(anzeige, zeige, [] { return SendeKommando(Kommando::StarteNeu); });
    // Even without a confirmation the controller may have started anew.
    modGeraetestand::BeginneVerbindung();
    modEreignisse::Merke({.art = Ereignisart::Neustart, .gelungen = bestaetigt});
    return bestaetigt;
}

} // namespace varnoth
