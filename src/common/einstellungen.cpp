#include "einstellungen.h"

#include <stdexcept>

namespace varnoth {

namespace {
Einstellungen* dieEinstellungen = nullptr;
}

Einstellungen& DieEinstellungen() {
    if (dieEinstellungen == nullptr)
        throw std::logic_error("no settings are fitted in");
    return *dieEinstellungen;
}

void SetzeEinstellungen(Einstellungen* einstellungen) {
    dieEinstellungen = einstellungen;
}

} // namespace varnoth
