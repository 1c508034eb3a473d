#include "umgebung.h"

#include "startzustand.h"

#include <stdexcept>

namespace varnoth {

namespace {
Umgebung* dieUmgebung = nullptr;
const Startwert startwert(dieUmgebung);
} // namespace

Umgebung& DieUmgebung() {
    if (dieUmgebung == nullptr)
        throw std::logic_error("no environment is fitted in");
    return *dieUmgebung;
}

void SetzeUmgebung(Umgebung* umgebung) {
    dieUmgebung = umgebung;
}

void ZeigeWarnung(const std::string& text, const std::string& titel) {
    DieUmgebung().ZeigeMeldung({.text = text, .titel = titel});
}

} // namespace varnoth
