#include "ereignislauf.h"

#include <algorithm>

namespace varnoth {

Ereignislauf::Ereignislauf(const Messquelle& inQuelle, std::uint64_t abPaket)
    : quelle(&inQuelle), anfang(abPaket), naechstes(abPaket), ende(inQuelle.Ende()) {}

void Ereignislauf::Weiter(std::size_t pakete) {
    for (; pakete > 0 && !IstFertig(); --pakete, ++naechstes) {
        if (const auto paket = quelle->Lies(naechstes))
            ableitung.Nimm(*paket);
        else
            ableitung.Vergiss();
    }
    if (IstFertig())
        ableitung.Vergiss();
}

double Ereignislauf::Anteil() const {
    return IstFertig() ? 1 : static_cast<double>(naechstes - anfang) / static_cast<double>(ende - anfang);
}

} // namespace varnoth
