#include "kurven.h"

#include "achse.h"
#include "formeln.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace varnoth {

namespace {

constexpr double KleinstesXEnde = 50; // mm: holds the smallest holes of every beam distance
constexpr double Luft = 1.1;          // from the farthest point to the end of the axis
constexpr double GroessteAchse = 1e9;

bool IstDarstellbar(const Marke& marke) {
    const auto passt = [](double wert) { return wert >= 0 && wert <= GroessteAchse; };
    return passt(marke.ort.x) && passt(marke.ort.y);
}

std::vector<Strecke> Objektkurve(double tz, double xEnde) {
    return {{{KuerzestesObjekt, 0}, {xEnde, Objektgeschwindigkeit(xEnde, tz)}}};
}

std::vector<Strecke> Lochkurve(const Lochregel& regel, double tz, double xEnde) {
    const double kleinste = GeschwindigkeitKleinsterLoecher(tz);
    const double grenze = regel.EndeDerKleinsten();
    const double durchmesser = regel.kleinsterDurchmesser;
    return {{{durchmesser, kleinste}, {grenze, kleinste}},
            {{grenze, Lochgeschwindigkeit(grenze, tz)}, {xEnde, Lochgeschwindigkeit(xEnde, tz)}}};
}

double HoechsterPunkt(const Diagramm& diagramm) {
    double hoechster = 0;
    for (const auto& kurve : {diagramm.objekt, diagramm.loch})
        for (const Strecke& strecke : kurve)
            hoechster = std::max(hoechster, strecke.bis.y);
    for (const Marke& marke : diagramm.marken)
        hoechster = std::max(hoechster, marke.ort.y);
    return hoechster;
}

} // namespace

Diagramm DiagrammFuer(double tz, std::int32_t strahlabstand, std::span<const Marke> marken) {
    Diagramm diagramm;
    std::ranges::copy_if(marken, std::back_inserter(diagramm.marken), IstDarstellbar);
    double weitester = 0;
    for (const Marke& marke : diagramm.marken)
        weitester = std::max(weitester, marke.ort.x);
    diagramm.xEnde = RundesEnde(std::max(KleinstesXEnde, weitester * Luft));
    if (tz > 0) {
        diagramm.objekt = Objektkurve(tz, diagramm.xEnde);
        if (const Lochregel* const regel = LochregelFuer(strahlabstand))
            diagramm.loch = Lochkurve(*regel, tz, diagramm.xEnde);
    }
    if (const double hoechster = HoechsterPunkt(diagramm); hoechster > 0)
        diagramm.yEnde = RundesEnde(hoechster);
    return diagramm;
}

} // namespace varnoth
