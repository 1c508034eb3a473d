#include "optikteilstatus.h"
#include "registerfelder.h"
#include "statusbits.h"

namespace varnoth {

namespace {

using namespace geraetestatus;
using optikteilstatus::Vorhanden;

constexpr std::int16_t TextErstesOptikteil = 5200;
constexpr std::int16_t TextKeinOptikteil = 9310;
constexpr std::int16_t TextStrahlenzahlGeaendert = 9311;
constexpr std::int16_t TextNichtLesbar = 9312;

constexpr Option Schaltausgang[] = {{PnpAktiv, 9308}, {0, 9309}};
constexpr Option Anwesenheit[] = {{Vorhanden, 9313}, {0, 9314}};

/// A bit for each optical part, of which the text speaks.
void HaengeTeileAn(Felder& felder, int erstesBit, std::int16_t text, const Lesart& lesart) {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
        const auto teiltext = static_cast<std::int16_t>(TextErstesOptikteil + teil);
        felder.push_back(Schalter(1 << (erstesBit + teil),
                                  LadeText(text, lesart.sprache) + LadeText(teiltext, lesart.sprache)));
    }
}

} // namespace

Fuegungen Geraetestatusfelder(const Lesart& lesart) {
    Felder felder{FeldAus(PnpAktiv, Schaltausgang, lesart.sprache),
                  Schalter(KeinOptikteil, LadeText(TextKeinOptikteil, lesart.sprache))};
    HaengeTeileAn(felder, StrahlenzahlGeaendertBit, TextStrahlenzahlGeaendert, lesart);
    HaengeTeileAn(felder, NichtLesbarBit, TextNichtLesbar, lesart);
    return {felder};
}

Fuegungen Optikteilstatusfelder(const Lesart& lesart) {
    Felder felder{FeldAus(Vorhanden, Anwesenheit, lesart.sprache)};
    for (const Option& merkmal : Optikteilmerkmale)
        felder.push_back(Schalter(merkmal.wert, LadeText(merkmal.text, lesart.sprache)));
    return {felder};
}

} // namespace varnoth
