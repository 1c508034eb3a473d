#include "busfilter.h"

namespace varnoth {

Busart ArtVon(const Busaustausch& austausch) {
    switch (austausch.art) {
    case Austauschart::Ungefragt:
        return Busart::Ungefragt;
    case Austauschart::OhneAntwort:
        return Busart::OhneAntwort;
    case Austauschart::Klaerung:
        return Busart::Klaerung;
    case Austauschart::Auftrag:
        break;
    }
    if (IstLeserahmen(austausch.anforderung))
        return Busart::Lesen;
    return IstSchreibrahmen(austausch.anforderung) ? Busart::Schreiben : Busart::Identifikation;
}

bool Passt(const Busaustausch& austausch, const Busfilter& filter) {
    if (filter.nurFehler && !IstFehler(austausch.ergebnis))
        return false;
    if (filter.art != Busart::Alle && ArtVon(austausch) != filter.art)
        return false;
    if (!filter.bezug)
        return true;
    const auto bezug = RegisterbezugVon(austausch.anforderung);
    return bezug && Beruehren(*bezug, *filter.bezug);
}

} // namespace varnoth
