#include "formeln.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace varnoth {

namespace {

constexpr double Lochzuschlag = 1; // mm

constexpr Lochregel Lochregeln[] = {
    {5, 1, 8040, 8044},
    {10, 6, 8041, 8045},
    {20, 16, 8042, 8046},
    {40, 26, 8043, 8047},
};

/// Two decimals; a zero has no sign.
double Gerundet(double wert) {
    constexpr double Hundertstel = 100;
    return std::nearbyint(wert * Hundertstel) / Hundertstel + 0.0;
}

std::optional<double> AlsErgebnis(double wert) {
    if (!std::isfinite(wert) || wert < 0)
        return std::nullopt;
    return wert;
}

} // namespace

double Objektgeschwindigkeit(double laenge, double tz) {
    return (laenge - KuerzestesObjekt) / tz;
}

double GeschwindigkeitKleinsterLoecher(double tz) {
    return 1 / (tz * 2);
}

double Lochgeschwindigkeit(double durchmesser, double tz) {
    return (durchmesser - Lochzuschlag) / tz;
}

std::optional<double> MaximaleGeschwindigkeit(double laenge, double tz) {
    if (tz <= 0)
        return std::nullopt;
    return AlsErgebnis(Gerundet(Objektgeschwindigkeit(laenge, tz)));
}

std::optional<double> MinimaleLaenge(double geschwindigkeit, double tz) {
    if (tz <= 0)
        return std::nullopt;
    return AlsErgebnis(geschwindigkeit * tz + KuerzestesObjekt);
}

std::optional<double> MinimalerLochdurchmesser(double geschwindigkeit, double tz, double strahlabstand) {
    if (tz <= 0)
        return std::nullopt;
    return AlsErgebnis(
        std::max(strahlabstand - KuerzestesObjekt + Lochzuschlag, geschwindigkeit * tz + Lochzuschlag));
}

const Lochregel* LochregelFuer(std::int32_t strahlabstand) {
    const auto* const regel = std::ranges::find(Lochregeln, strahlabstand, &Lochregel::strahlabstand);
    return regel == std::end(Lochregeln) ? nullptr : regel;
}

Lochergebnis MaximaleLochgeschwindigkeit(double durchmesser, double tz, std::int32_t strahlabstand) {
    const Lochregel* const regel = LochregelFuer(strahlabstand);
    if (regel == nullptr)
        return {};
    if (durchmesser < regel->kleinsterDurchmesser)
        return {std::nullopt, regel->textZuKlein};
    const bool kleinstes = durchmesser < regel->EndeDerKleinsten();
    const std::int16_t text = kleinstes ? regel->textKleinste : TextLochformel;
    if (tz <= 0)
        return {std::nullopt, text};
    return {AlsErgebnis(kleinstes ? GeschwindigkeitKleinsterLoecher(tz)
                                  : Gerundet(Lochgeschwindigkeit(durchmesser, tz))),
            text};
}

} // namespace varnoth
