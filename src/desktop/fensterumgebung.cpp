#include "fensterumgebung.h"

#include "meldungsfenster.h"

namespace varnoth {

Antwort Fensterumgebung::Frage(const Meldung& meldung) {
    return ZeigeMeldungsfenster(meldung);
}

} // namespace varnoth
