#include "einstellungen.h"

#include "startzustand.h"

#include <stdexcept>

namespace varnoth {

namespace {
Einstellungen* dieEinstellungen = nullptr;
const Startwert startwert(dieEinstellungen);
} // namespace

Einstellungen& DieEinstellungen() {
    if (dieEinstellungen == nullptr)
        throw std::logic_error("no settings are fitted in");
    return *dieEinstellungen;
}

void SetzeEinstellungen(Einstellungen* einstellungen) {
    dieEinstellungen = einstellungen;
}

} // namespace varnoth
