#include "achse.h"

#include <algorithm>
#include <cmath>

namespace varnoth {

namespace {
constexpr double Toleranz = 1e-9; // of computed multiples
constexpr int TeileJeAchse = 10;
} // namespace

double RunderSchritt(double mindestens) {
    const double zehner = std::pow(10, std::floor(std::log10(mindestens)));
    for (const double vielfaches : {1, 2, 5})
        if (vielfaches * zehner >= mindestens * (1 - Toleranz))
            return vielfaches * zehner;
    return 10 * zehner;
}

double RundesEnde(double wert) {
    const double schritt = RunderSchritt(wert / TeileJeAchse);
    return std::ceil(wert / schritt - Toleranz) * schritt;
}

std::vector<double> Achsenzahlen(double ende, double mindestabstand) {
    std::vector<double> zahlen;
    if (ende <= 0 || mindestabstand <= 0)
        return zahlen;
    const double schritt = RunderSchritt(mindestabstand);
    const int anzahl = static_cast<int>(ende / schritt * (1 + Toleranz));
    for (int i = 0; i <= anzahl; ++i)
        zahlen.push_back(i * schritt);
    return zahlen;
}

std::vector<double> GanzeAchsenzahlen(double von, double bis, double mindestabstand) {
    std::vector<double> zahlen;
    if (bis <= von || mindestabstand <= 0)
        return zahlen;
    const double schritt = std::max(1.0, RunderSchritt(mindestabstand));
    const double erste = std::ceil(von / schritt - Toleranz);
    const int weitere = static_cast<int>(std::floor(bis / schritt + Toleranz) - erste);
    for (int i = 0; i <= weitere; ++i)
        zahlen.push_back((erste + i) * schritt);
    return zahlen;
}

} // namespace varnoth
