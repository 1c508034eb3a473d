#include "umgebung.h"

#include <stdexcept>

namespace varnoth {

namespace {
Umgebung* dieUmgebung = nullptr;
}

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
