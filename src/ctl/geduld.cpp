#include "geduld.h"

#include "lauf.h"
#include "sekunden.h"

#include <utility>

namespace varnoth::ctl {

namespace {

constexpr Zeit Uebliche = std::chrono::seconds(5);
constexpr double KuerzesteSekunden = 0.1;
constexpr double LaengsteSekunden = 86400;
constexpr int Prozent = 100;

} // namespace

Geduld::Geduld(const Lauf& derLauf)
    : lauf(derLauf), hoechstens(Hoechstdauer(lauf).value_or(Uebliche)), seit(DieUmgebung().Uhr()) {}

void Geduld::Beginne() {
    seit = DieUmgebung().Uhr();
}

bool Geduld::IstAmEnde() const {
    return lauf.konsole.Unterbrochen() || DieUmgebung().Uhr() - seit >= hoechstens;
}

std::optional<Zeit> Hoechstdauer(const Lauf& lauf) {
    const auto wert = lauf.zeile.Wert("timeout");
    return wert ? SekundenAus(*wert, KuerzesteSekunden, LaengsteSekunden) : Uebliche;
}

Fortgang::Fortgang(const Lauf& derLauf, Geduld& dieGeduld, std::string wasGeschieht)
    : lauf(derLauf), geduld(dieGeduld), was(std::move(wasGeschieht)) {
    geduld.Beginne();
}

Fortgang::~Fortgang() {
    lauf.konsole.Fortschritt({});
}

/// After a disturbance a transfer goes back; only what is further than ever counts as getting on.
void Fortgang::ZeigeFortschritt(int erledigt, int gesamt) {
    if (erledigt <= weitester)
        return;
    weitester = erledigt;
    geduld.Beginne();
    if (gesamt > 0)
        lauf.ZeigeFortschritt(was + " " + std::to_string(Prozent * erledigt / gesamt) + " %");
}

} // namespace varnoth::ctl
