#include "fensterumgebung.h"

#include "meldungsfenster.h"

namespace varnoth {

void Fensterumgebung::BedieneEreignisse() {
    malen.LasseEreignisseLaufen();
}

Antwort Fensterumgebung::Frage(const Meldung& meldung) {
    return ZeigeMeldungsfenster(meldung);
}

} // namespace varnoth
