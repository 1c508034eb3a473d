#include "strahlenzahlen.h"

#include "registerabbild.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"

#include <algorithm>
#include <numeric>

namespace varnoth {

int Strahlensumme(const Strahlenzahlen& strahlenzahlen) {
    return std::accumulate(strahlenzahlen.begin(), strahlenzahlen.end(), 0);
}

bool ErstelleKonfiguration(const Strahlenzahlen& strahlenzahlen) {
    modDaten::LadeStandardkonfiguration();
    int teil = 0;
    return IstZulaessigeStrahlensumme(Strahlensumme(strahlenzahlen)) &&
           std::ranges::all_of(strahlenzahlen, [&](std::int32_t anzahl) {
               return modDaten::SetzeRegister(Speicherbereich::SpezifischeGeraetedaten,
                                              spezifisch::Strahlenzahl, anzahl, teil++);
           });
}

} // namespace varnoth
