#include "strahlposition.h"

namespace varnoth {

std::optional<int> Strahlposition(int nummer, int abstandMm) {
    if (nummer < 1 || abstandMm <= 0)
        return std::nullopt;
    return (nummer - 1) * abstandMm;
}

std::optional<int> Strahlenbreite(int anzahl, int abstandMm) {
    if (anzahl < 0 || abstandMm <= 0)
        return std::nullopt;
    return anzahl * abstandMm;
}

std::string Positionstext(std::optional<int> positionMm) {
    return positionMm ? std::to_string(*positionMm) + " mm" : std::string();
}

} // namespace varnoth
