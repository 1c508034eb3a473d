#include "einstellungen.h"

#include "startzustand.h"

#include <stdexcept>

namespace varnoth {

namespace {
Einstellungen* dieEinstellungen = nullptr;
const Startwert startwert(dieEinstellungen);

/// A byte of UTF-8 that goes on with a character.
bool IstFolgebyte(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}
} // namespace

Einstellungen& DieEinstellungen() {
    if (dieEinstellungen == nullptr)
        throw std::logic_error("no settings are fitted in");
    return *dieEinstellungen;
}

void SetzeEinstellungen(Einstellungen* einstellungen) {
    dieEinstellungen = einstellungen;
}

std::string LiesBegrenzt(const std::string& abschnitt, const std::string& schluessel,
                         const std::string& standard) {
    std::string text = DieEinstellungen().LiesText(abschnitt, schluessel, standard);
    int zeichen = 0;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (!IstFolgebyte(text[i]) && zeichen++ == LaengsterText) {
            text.resize(i);
            break;
        }
    return text;
}

} // namespace varnoth
