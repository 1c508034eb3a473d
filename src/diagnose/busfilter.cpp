#include "busfilter.h"

namespace varnoth {

namespace {

bool IstUeber(std::string_view anforderung, const Registerbezug& gesuchter) {
    const auto bezug = RegisterbezugVon(anforderung);
    return bezug && bezug->bereich == gesuchter.bereich &&
           bezug->adresse < gesuchter.adresse + gesuchter.anzahl &&
           gesuchter.adresse < bezug->adresse + bezug->anzahl;
}

} // namespace

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
    return !filter.bezug || IstUeber(austausch.anforderung, *filter.bezug);
}

} // namespace varnoth
