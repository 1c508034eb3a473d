#pragma once

#include <cstdint>
#include <optional>

/// What a light curtain can detect. Lengths in mm, times in ms, speeds in m/s
/// (which is mm/ms). tz is the cycle time of an optical part. A part that is
/// not there has tz 0; nothing follows from that. A result below 0 or beyond all numbers is none.
namespace varnoth {

/// The highest speed at which an object of a length is detected, rounded to two decimals (halves to even).
std::optional<double> MaximaleGeschwindigkeit(double laenge, double tz);

/// The shortest object that is detected at a speed.
std::optional<double> MinimaleLaenge(double geschwindigkeit, double tz);

/// The smallest hole that is recognised at a speed.
std::optional<double> MinimalerLochdurchmesser(double geschwindigkeit, double tz, double strahlabstand);

/// The smallest holes that are recognised with a beam distance: those from `kleinsterDurchmesser` to below 1
/// mm more have a formula of their own.
struct Lochregel {
    std::int32_t strahlabstand;
    std::int32_t kleinsterDurchmesser;
    std::int16_t textKleinste; ///< string id: the formula for the smallest holes
    std::int16_t textZuKlein;  ///< string id: the diameter that is required

    /// The first diameter for which the general formula holds.
    double EndeDerKleinsten() const { return kleinsterDurchmesser + 1.0; }
};

/// The rule for a beam distance of 5, 10, 20 or 40 mm; null for others, with which no hole is recognised.
const Lochregel* LochregelFuer(std::int32_t strahlabstand);

/// String id of the formula for holes above the smallest ones.
inline constexpr std::int16_t TextLochformel = 8037;

/// The highest speed for a hole, and the string id of what to say of it: the formula that was used, or the
/// diameter that is required.
struct Lochergebnis {
    std::optional<double> vmax;
    std::int16_t text = TextLochformel;

    bool operator==(const Lochergebnis&) const = default;
};

/// The highest speed at which a hole is recognised. For the smallest holes it is not rounded, for others to
/// two decimals. The text does not depend on tz.
Lochergebnis MaximaleLochgeschwindigkeit(double durchmesser, double tz, std::int32_t strahlabstand);

/// The same speeds, neither rounded nor limited, for tz above 0: of an object, of the smallest holes, of the
/// others.
double Objektgeschwindigkeit(double laenge, double tz);
double GeschwindigkeitKleinsterLoecher(double tz);
double Lochgeschwindigkeit(double durchmesser, double tz);

/// The shortest object for which there is a speed at all.
inline constexpr double KuerzestesObjekt = 5;

} // namespace varnoth
