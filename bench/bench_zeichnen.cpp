// Drawing one whole scan of 512 beams of which every one has changed.

#include "bericht.h"
#include "scan.h"
#include "statistik.h"

#include <QApplication>
#include <QImage>

namespace {

void Miss(const QSize& groesse) {
    using namespace varnoth::bench;
    constexpr int Scans = 500;
    varnoth::BeamBarControl balken;
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
