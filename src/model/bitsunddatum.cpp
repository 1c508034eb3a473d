#include "bitsunddatum.h"

#include "texte.h"
#include "umgebung.h"
#include "zeichensatz.h"

#include <string_view>

namespace varnoth::modDaten {

namespace {

constexpr std::int32_t AlleRegisterbits = 0xFFFF;

bool IstRegisterbit(std::int16_t bit) {
    return bit >= 0 && bit <= 15;
}

/// These boxes speak to the programmer, not to the user: no sign, no translation.
void ZeigeFehler(std::string_view text) {
    DieUmgebung().ZeigeMeldung({.text = std::string(text), .symbol = Symbol::Ohne});
}

std::string Zeichenpaar(const Werte& daten, std::size_t i) {
    return RegisterAlsUtf8(i < daten.size() ? daten[i] : 0);
}

} // namespace

void SetBit(std::int32_t& wert, std::int16_t bit, Boolean zustand) {
    if (!IstRegisterbit(bit)) {
        ZeigeFehler("Error in SetBit()");
        return;
    }
    const std::int32_t maske = 1 << bit;
    if (zustand == True)
        wert |= maske;
    else
        wert &= AlleRegisterbits & ~maske;
}

Boolean GetBit(std::int32_t wert, std::int16_t bit) {
    if (!IstRegisterbit(bit)) {
        ZeigeFehler("Error in GetBit()");
        return False;
    }
    return AlsBoolean((wert & (1 << bit)) != 0);
}

std::string KonvertDatenToDatum(const Werte& daten) {
    const std::string jahr = Zeichenpaar(daten, 0) + Zeichenpaar(daten, 1);
    const std::string monat = Zeichenpaar(daten, 2);
    const std::string tag = Zeichenpaar(daten, 3);
    switch (GetSprachoffset()) {
    case Deutsch:
        return tag + "." + monat + "." + jahr;
    case Englisch:
        return monat + "/" + tag + "/" + jahr;
    default:
        ZeigeFehler("Error in KonvertDatenToDatum(), unbekannte Sprache");
        return {};
    }
}

} // namespace varnoth::modDaten
