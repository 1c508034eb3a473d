#include "startzustand.h"

namespace varnoth {

namespace {

/// The list is built while the program's variables come to be, so it must be there before them.
constinit const Ruecksetzbares* erstes = nullptr;

} // namespace

Ruecksetzbares::Ruecksetzbares() : naechstes(erstes) {
    erstes = this;
}

Startzustand::Startzustand() {
    for (const Ruecksetzbares* eines = erstes; eines != nullptr; eines = eines->naechstes)
        eines->SetzeZurueck();
}

} // namespace varnoth
