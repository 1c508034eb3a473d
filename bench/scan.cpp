#include "scan.h"

#include <array>

namespace varnoth::bench {

void ZeigeScan(BeamBarControl& balken, int scan) {
    constexpr std::array zustaende{Strahlzustand::Frei, Strahlzustand::Unterbrochen, Strahlzustand::Geblankt};
    balken.SetzeAutomatischesZeichnen(false);
    for (int strahl = 0; strahl < balken.Strahlanzahl(); ++strahl) {
        balken.WaehleStrahl(strahl);
        balken.SetzeZustand(zustaende.at(static_cast<std::size_t>(strahl + scan) % zustaende.size()));
    }
    balken.SetzeAutomatischesZeichnen(true);
}

} // namespace varnoth::bench
