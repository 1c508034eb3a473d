#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace varnoth {

/// A place in the diagram: object size in mm, speed in m/s.
struct Diagrammpunkt {
    double x = 0;
    double y = 0;

    bool operator==(const Diagrammpunkt&) const = default;
};

struct Strecke {
    Diagrammpunkt von{};
    Diagrammpunkt bis{};

    bool operator==(const Strecke&) const = default;
};

/// What a curve or a marked point is about.
enum class Kurvenart { Objekt, Loch };

/// A size and a speed that belong together, marked in the diagram.
struct Marke {
    Kurvenart art = Kurvenart::Objekt;
    Diagrammpunkt ort{};

    bool operator==(const Marke&) const = default;
};

/// Highest speed over size for one optical part. Both axes begin at 0.
struct Diagramm {
    std::vector<Strecke> objekt; ///< the curve of objects, as pieces of straight lines; empty without a part
    std::vector<Strecke> loch;   ///< the curve of holes; empty where no hole is recognised
    std::vector<Marke> marken;
    double xEnde = 0; ///< where the axes end, round numbers; yEnde is 0 without a curve or a point
    double yEnde = 0;

    bool operator==(const Diagramm&) const = default;
};

/// The diagram of a part with the cycle time tz (ms, 0: no part) and the beam distance (mm), wide enough for
/// all points marked. Points that no axis could hold (negative or enormous) are left out.
Diagramm DiagrammFuer(double tz, std::int32_t strahlabstand, std::span<const Marke> marken);

/// The rectangle in which the curves are drawn, and what its right and upper edges stand for.
struct Kurvenfeld {
    double links = 0;
    double oben = 0;
    double breite = 0;
    double hoehe = 0;
    double xEnde = 1;
    double yEnde = 1;

    double X(double groesse) const { return links + breite * groesse / xEnde; }
    double Y(double geschwindigkeit) const { return Unten() - hoehe * geschwindigkeit / yEnde; }
    double Rechts() const { return links + breite; }
    double Unten() const { return oben + hoehe; }
};

} // namespace varnoth
