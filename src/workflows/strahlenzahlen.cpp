#include "strahlenzahlen.h"

#include "registerabbild.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"

#include <numeric>

namespace varnoth {

int Strahlensumme(const Strahlenzahlen& strahlenzahlen) {
    return std::accumulate(strahlenzahlen.begin(), strahlenzahlen.end(), 0);
}

bool ErstelleKonfiguration(const Strahlenzahlen& strahlenzahlen) {
    modDaten::LadeStandardkonfiguration();
    if (!IstZulaessigeStrahlensumme(Strahlensumme(strahlenzahlen)))
        return false;
    std::int16_t teil = 0;
    for (const std::int32_t anzahl : strahlenzahlen)
        modDaten::SetzeSpezifischeDaten(spezifisch::Strahlenzahl, 1, teil++, {anzahl});
    return true;
}

} // namespace varnoth
