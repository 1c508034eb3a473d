// Drawing one whole scan of 512 beams of which every one has changed.

#include "beambarcontrol.h"
#include "bericht.h"
#include "statistik.h"

#include <QApplication>
#include <QImage>

#include <array>

namespace {

using namespace varnoth;

/// Another state for each beam than the scan before had it.
void ZeigeScan(BeamBarControl& balken, int scan) {
    constexpr std::array zustaende{Strahlzustand::Frei, Strahlzustand::Unterbrochen, Strahlzustand::Geblankt};
    balken.SetzeAutomatischesZeichnen(false);
    for (int strahl = 0; strahl < balken.Strahlanzahl(); ++strahl) {
        balken.WaehleStrahl(strahl);
        balken.SetzeZustand(zustaende.at(static_cast<std::size_t>(strahl + scan) % zustaende.size()));
    }
    balken.SetzeAutomatischesZeichnen(true);
}

void Miss(const QSize& groesse) {
    using namespace varnoth::bench;
    constexpr int Scans = 500;
    BeamBarControl balken;
    balken.SetzeStrahlabstand(5);
    balken.SetzeStrahlanzahl(512);
    balken.resize(groesse);
    QImage bild(groesse, QImage::Format_RGB32);
    balken.render(&bild);
    std::vector<double> dauern;
    for (int scan = 1; scan <= Scans; ++scan) {
        const double beginn = Uhrzeit();
        ZeigeScan(balken, scan);
        balken.render(&bild);
        dauern.push_back(1e3 * (Uhrzeit() - beginn));
    }
    Berichte(QStringLiteral("drawing one scan of 512 beams, %1 x %2 pixels")
                 .arg(groesse.width())
                 .arg(groesse.height()),
             Median(dauern), QStringLiteral("ms"), Ziel::Hoechstens, 1,
             QStringLiteral("95 % %1 ms").arg(Quantil(dauern, 0.95), 0, 'f', 2));
}

} // namespace

int main(int argc, char** argv) {
    QApplication anwendung(argc, argv);
    Miss({320, 420});
    Miss({1200, 600});
    return 0;
}
