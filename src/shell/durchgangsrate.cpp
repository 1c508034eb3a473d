#include "durchgangsrate.h"

#include <algorithm>

namespace varnoth {

namespace {

constexpr Zeit Fenster = std::chrono::seconds(2);

double Sekunden(Zeit dauer) {
    return std::chrono::duration<double>(dauer).count();
}

} // namespace

void Durchgangsrate::Nimm(Zeit jetzt, unsigned durchgaenge) {
    if (!proben.empty() && durchgaenge < proben.back().durchgaenge)
        proben.clear();
    if (proben.empty() || durchgaenge != proben.back().durchgaenge)
        proben.push_back({jetzt, durchgaenge});
    while (proben.size() > 2 && proben[1].wann <= jetzt - Fenster)
        proben.pop_front();
}

double Durchgangsrate::ProSekunde(Zeit jetzt) const {
    if (proben.size() < 2)
        return 0;
    const Probe& erste = proben.front();
    const Probe& letzte = proben.back();
    const double anzahl = letzte.durchgaenge - erste.durchgaenge;
    const Zeit dauer = letzte.wann - erste.wann;
    // A pass that is overdue counts as the wait for it.
    const Zeit ueberfaellig = jetzt - letzte.wann - dauer;
    return anzahl / Sekunden(dauer + std::max(ueberfaellig, Zeit{0}));
}

} // namespace varnoth
