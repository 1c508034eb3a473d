// Any text typed into a field for a number: what the dialogs make of it lies in their ranges and does not
// depend on how often it is read, nor on the language of the system.
//
// The first byte chooses the memory range of a register's address, the rest is the text.

#include "eingabe.h"
#include "einzelwert.h"
#include "pausenzeit.h"
#include "pruefe.h"
#include "zahlen.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace {

using namespace varnoth;
using namespace varnoth::fuzzing;

void PruefeRegister(int bereich, const std::string& text) {
    const Einzelregister gefragt{.adressOffset = BereichsOffset(bereich), .adresse = text};
    if (const auto adresse = Registeradresse(gefragt))
        Pruefe(*adresse == gefragt.adressOffset + std::nearbyint(Val(text)),
               "an address is the range's first one plus the number");
    const auto wert = Registerwert(text);
    if (!wert)
        return;
    Pruefe(*wert >= -0x8000 && *wert <= 0xFFFF, "a register's value has 16 bits");
    Pruefe(Registerwert(std::to_string(*wert)) == wert, "a value reads back as the number it is");
    if (*wert >= 0)
        Pruefe(Registerwert("&H" + AlsHex(static_cast<unsigned>(*wert))) == wert,
               "a value reads back from what is shown");
}

void PruefePausenzeit(const std::string& text) {
    const std::string verlassen = PausenzeitBeimVerlassen(text);
    Pruefe(Pausenzeitwert(verlassen) <= 0xFFFF, "a pause has at most 65535");
    Pruefe(PausenzeitBeimVerlassen(verlassen) == verlassen, "leaving a field twice changes nothing more");
}

QString MitVertauschtenTrennzeichen(QString text) {
    for (QChar& zeichen : text) {
        if (zeichen == QLatin1Char('.'))
            zeichen = QLatin1Char(',');
        else if (zeichen == QLatin1Char(','))
            zeichen = QLatin1Char('.');
    }
    return text;
}

void PruefeRechnereingabe(const std::string& bytes) {
    const QString text = QString::fromStdString(bytes);
    const auto englisch = LiesEingabe(text, QLocale(QLocale::English, QLocale::UnitedStates));
    const auto deutsch =
        LiesEingabe(MitVertauschtenTrennzeichen(text), QLocale(QLocale::German, QLocale::Germany));
    Pruefe(englisch == deutsch, "a number is the same in both ways of writing");
    Pruefe(!englisch || (std::isfinite(*englisch) && text.size() <= LaengsteEingabe),
           "a number is finite and has 8 characters at most");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t laenge) {
    constexpr std::size_t hoechstens = 200;
    std::string_view bytes = AlsText(daten, std::min(laenge, hoechstens));
    const int bereich = NimmByte(bytes) % 4;
    const std::string text(bytes);
    PruefeRegister(bereich, text);
    PruefePausenzeit(text);
    PruefeRechnereingabe(text);
    return 0;
}
