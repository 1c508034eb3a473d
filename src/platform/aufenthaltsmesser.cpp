#include "aufenthaltsmesser.h"

namespace varnoth {

namespace {

constexpr Zeit KuerzesterAufenthalt = std::chrono::milliseconds(500);

} // namespace

Zeit Aufenthaltsmesser::Ueberzogen(Zeit jetzt) const {
    const Zeit ueberzogen = tiefe > 0 ? jetzt - erwartet : Zeit{0};
    return ueberzogen >= KuerzesterAufenthalt ? ueberzogen : Zeit{0};
}

void Aufenthaltsmesser::Beginnt(Zeit jetzt, Zeit wartezeit) {
    gesamt += Ueberzogen(jetzt);
    ++tiefe;
    erwartet = jetzt + wartezeit;
}

void Aufenthaltsmesser::Endet(Zeit jetzt) {
    gesamt += Ueberzogen(jetzt);
    --tiefe;
    erwartet = jetzt;
}

Aufenthalt Aufenthaltsmesser::Stand(Zeit jetzt) const {
    const Zeit ueberzogen = Ueberzogen(jetzt);
    return {.gesamt = gesamt + ueberzogen, .dauertAn = ueberzogen > Zeit{0}};
}

} // namespace varnoth
