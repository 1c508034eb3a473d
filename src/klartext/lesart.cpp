#include "lesart.h"

#include "registeradressen.h"
#include "zykluszeiten.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace varnoth {

namespace {

constexpr int Ziffern = 15;

Zykluszeiten ZykluszeitenIn(const Abbild& abbild) {
    std::array<std::int32_t, AnzahlOptikteile> strahlen{};
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        strahlen.at(static_cast<std::size_t>(teil)) =
            abbild.HoleRegister(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Strahlenzahl, teil);
    return ZykluszeitenFuer(strahlen);
}

} // namespace

Lesart LesartFuer(const Abbild& abbild, Speicherbereich bereich, int optikteil) {
    const Zykluszeiten zeiten = ZykluszeitenIn(abbild);
    Lesart lesart;
    lesart.zyklus = bereich == Speicherbereich::SpezifischeGeraetedaten
                        ? zeiten.zyklus.at(static_cast<std::size_t>(optikteil))
                        : zeiten.gesamt;
    lesart.bustyp = abbild.HoleRegister(Speicherbereich::Kommunikationsdaten, kommunikation::Bustyp);
    return lesart;
}

std::string Zahlwort(double zahl, const Lesart& lesart) {
    if (lesart.zahlformat)
        return lesart.zahlformat(zahl);
    char zeichen[32];
    const auto ende =
        std::to_chars(zeichen, zeichen + sizeof zeichen, zahl, std::chars_format::general, Ziffern).ptr;
    if (lesart.sprache == Deutsch)
        std::replace(zeichen, ende, '.', ',');
    return {zeichen, ende};
}

} // namespace varnoth
