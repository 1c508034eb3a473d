#include "blankingmuster.h"

#include "strahlbits.h"
#include "texte.h"

#include <algorithm>
#include <cstddef>

namespace varnoth {

namespace {
constexpr int KeinStrahl = 65535;
constexpr std::int16_t TextStrahl = 7610;
} // namespace

Geblankte GeblankteAusMuster(const Werte& muster, int strahlen) {
    Geblankte geblankte(static_cast<std::size_t>(std::max(0, strahlen)));
    for (std::size_t strahl = 0; strahl < geblankte.size(); ++strahl)
        geblankte[strahl] = StrahlBit(muster, static_cast<int>(strahl));
    return geblankte;
}

Werte MusterAus(const Geblankte& geblankte) {
    Werte muster(Blankingregister, 0);
    for (std::size_t strahl = 0; strahl < geblankte.size(); ++strahl)
        SetzeStrahlBit(muster, static_cast<int>(strahl), geblankte[strahl]);
    return muster;
}

int AnzahlGeblankter(const Geblankte& geblankte) {
    return static_cast<int>(std::count(geblankte.begin(), geblankte.end(), true));
}

std::string TextUnterMaus(int strahl, std::int32_t aufloesungMm) {
    if (strahl < 0 || strahl == KeinStrahl)
        return {};
    std::string text = LadeText(TextStrahl) + std::to_string(strahl + 1);
    if (aufloesungMm != 0)
        text += ", " + std::to_string(std::int64_t{strahl} * aufloesungMm) + "mm";
    return text;
}

} // namespace varnoth
