#include "bussuche.h"

#include "busworte.h"
#include "textschutz.h"

#include <algorithm>
#include <array>

namespace varnoth {

namespace {

std::string OhneBlanks(std::string text) {
    std::erase(text, ' ');
    return text;
}

bool IstHexfolge(const std::string& text) {
    constexpr std::size_t Kuerzeste = 4;
    return text.size() >= Kuerzeste && text.size() % 2 == 0 &&
           text.find_first_not_of("0123456789abcdef") == std::string::npos;
}

/// Whether the bytes begin somewhere with these, and not in the middle of one.
bool HatBytes(const std::string& bytes, const std::string& gesuchte) {
    for (auto stelle = bytes.find(gesuchte); stelle != std::string::npos;
         stelle = bytes.find(gesuchte, stelle + 1))
        if (stelle % 2 == 0)
            return true;
    return false;
}

} // namespace

bool Enthaelt(const Busaustausch& austausch, const std::string& text) {
    const std::string gesucht = Gefaltet(text);
    if (gesucht.empty())
        return false;
    const auto enthaelt = [&](const std::string& worte) {
        return Gefaltet(worte).find(gesucht) != std::string::npos;
    };
    if (enthaelt(Bytetext(austausch)) || enthaelt(Ergebnistext(austausch)) ||
        enthaelt(Funktionstext(austausch)) || enthaelt(Richtungstext(austausch)) ||
        enthaelt(Registerangabe(austausch)) || enthaelt(Wertetext(austausch)))
        return true;
    const std::string dicht = OhneBlanks(gesucht);
    return IstHexfolge(dicht) && (HatBytes(OhneBlanks(Gefaltet(Anforderungsbytes(austausch))), dicht) ||
                                  HatBytes(OhneBlanks(Gefaltet(Empfangsbytes(austausch))), dicht));
}

void Bussuche::Beginne(std::size_t zeilen, std::ptrdiff_t ab, bool aufwaerts) {
    anzahl = offen = zeilen;
    rueckwaerts = aufwaerts;
    if (zeilen == 0)
        return;
    const auto letzte = static_cast<std::ptrdiff_t>(zeilen) - 1;
    if (aufwaerts)
        naechste = static_cast<std::size_t>(ab <= 0 ? letzte : std::min(ab - 1, letzte));
    else
        naechste = static_cast<std::size_t>(ab >= letzte ? 0 : ab + 1);
}

std::optional<std::size_t> Bussuche::Weiter(std::size_t hoechstens,
                                            const std::function<bool(std::size_t zeile)>& trifft) {
    for (; hoechstens > 0 && offen > 0; --hoechstens, --offen) {
        const std::size_t zeile = naechste;
        naechste =
            rueckwaerts ? (zeile == 0 ? anzahl - 1 : zeile - 1) : (zeile + 1 == anzahl ? 0 : zeile + 1);
        if (!trifft(zeile))
            continue;
        offen = 0;
        return zeile;
    }
    return std::nullopt;
}

void Bussuche::Verschiebe(std::size_t entfernte) {
    anzahl -= std::min(entfernte, anzahl);
    offen = std::min(offen, anzahl);
    naechste -= std::min(entfernte, naechste);
    if (anzahl > 0)
        naechste = std::min(naechste, anzahl - 1);
}

} // namespace varnoth
