#include "busfarben.h"

#include "busprotokoll.h"
#include "strahlfarben.h"

namespace varnoth {

namespace {

constexpr double Lesbar = 4.6; // contrast of small writing with its ground
constexpr QColor Fehlerfarbe(200, 30, 30);
constexpr QColor Fremdfarbe(190, 105, 0);

/// Something came, but not what was asked for.
bool KamAnderes(Austauschergebnis ergebnis) {
    return ergebnis == Austauschergebnis::Verspaetet || ergebnis == Austauschergebnis::Fremd ||
           ergebnis == Austauschergebnis::Echo;
}

} // namespace

QColor Ergebnisfarbe(Austauschergebnis ergebnis, const QPalette& palette) {
    if (!IstFehler(ergebnis))
        return palette.color(QPalette::Text);
    return Abgehoben(KamAnderes(ergebnis) ? Fremdfarbe : Fehlerfarbe, palette.color(QPalette::Base), Lesbar);
}

} // namespace varnoth
