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

namespace {

/// Early enough to know what holds at the time, and the burst that it lies in.
std::uint64_t Beginn(const Messquelle& quelle, Zeit nach) {
    return quelle.Erstes() == quelle.Ende() ? quelle.Erstes()
                                            : quelle.PaketUm(nach - Ereignisableitung::Schubruhe);
}

} // namespace

Ereignissuche::Ereignissuche(const Messquelle& quelle, Zeit hinter)
    : nach(hinter), lauf(quelle, Beginn(quelle, hinter)) {}

bool Ereignissuche::Weiter(std::size_t pakete) {
    for (; pakete > 0 && !fund && !lauf.IstFertig(); --pakete) {
        lauf.Weiter(1);
        const Ereignisspeicher& gefundene = lauf.Ereignisse();
        for (betrachtet = std::max(betrachtet, gefundene.Erstes()); !fund && betrachtet < gefundene.Ende();
             ++betrachtet)
            if (const Zeit wann = gefundene.Hole(betrachtet).laufzeit; wann > nach)
                fund = wann;
    }
    return !fund && !lauf.IstFertig();
}

} // namespace varnoth
