// Time of a polling pass with the views open and drawing, beside the time that the line alone needs.

#include "bericht.h"
#include "messplatz.h"
#include "statistik.h"

#include <QApplication>

namespace {

using namespace varnoth;
using namespace varnoth::bench;

struct Durchgang {
    double dauer;
    double grenze;
};

Durchgang MissDurchgang(Messplatz& platz, int baud) {
    const double beginn = Uhrzeit();
    const Verkehr vorher = platz.Bisher();
    platz.Durchlaufe();
    return {Uhrzeit() - beginn, (platz.Bisher() - vorher).Grenze(baud)};
}

void Miss(const QString& strahlen, const QString& name, int baud, double zielanteil, int anzahl) {
    constexpr int Anlauf = 5;
    Messplatz platz({QStringLiteral("--beams"), strahlen}, baud);
    platz.Verbinde();
    std::vector<double> dauern;
    double grenze = 0;
    for (int i = -Anlauf; i < anzahl; ++i) {
        const Durchgang durchgang = MissDurchgang(platz, baud);
        grenze = durchgang.grenze;
        if (i >= 0)
            dauern.push_back(durchgang.dauer);
    }
    const double median = Median(dauern);
    Berichte(QStringLiteral("pass %1 at %2 baud: limit / median").arg(name).arg(baud), 100 * grenze / median,
             QStringLiteral("%"), Ziel::Mindestens, zielanteil,
             QStringLiteral("limit %1 ms, median %2 ms, fastest %3 ms, 95 % %4 ms, %5 passes")
                 .arg(1e3 * grenze, 0, 'f', 2)
                 .arg(1e3 * median, 0, 'f', 2)
                 .arg(1e3 * Quantil(dauern, 0), 0, 'f', 2)
                 .arg(1e3 * Quantil(dauern, 0.95), 0, 'f', 2)
                 .arg(anzahl));
}

} // namespace

int main(int argc, char** argv) {
    QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QString vierTeile = QStringLiteral("128,128,128,128");
    Miss(QStringLiteral("512"), QStringLiteral("1 x 512"), Standardbaud, 99.0, 200);
    Miss(vierTeile, QStringLiteral("4 x 128"), Standardbaud, 98.8, 80);
    Miss(vierTeile, QStringLiteral("4 x 128"), 115200, 97.6, 160);
    return 0;
}
