#include "scanmaler.h"

#include <array>

namespace varnoth::bench {

Scanmaler::Scanmaler(int strahlen, const QSize& groesse) : bild(groesse, QImage::Format_RGB32) {
    constexpr int Abstand = 5; // mm
    balken.SetzeStrahlabstand(Abstand);
    balken.SetzeStrahlanzahl(strahlen);
    balken.resize(groesse);
    balken.render(&bild);
}

void Scanmaler::Zeichne() {
    ++scan;
    ZeigeScan();
    balken.render(&bild);
}

void Scanmaler::ZeigeScan() {
    constexpr std::array zustaende{Strahlzustand::Frei, Strahlzustand::Unterbrochen, Strahlzustand::Geblankt};
    balken.SetzeAutomatischesZeichnen(false);
    for (int strahl = 0; strahl < balken.Strahlanzahl(); ++strahl) {
        balken.WaehleStrahl(strahl);
        balken.SetzeZustand(zustaende.at(static_cast<std::size_t>(strahl + scan) % zustaende.size()));
    }
    balken.SetzeAutomatischesZeichnen(true);
}

} // namespace varnoth::bench
