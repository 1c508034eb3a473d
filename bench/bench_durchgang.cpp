// Time of a polling pass with the views open and drawing, beside the time that the line alone needs.

#include "bericht.h"
#include "messplatz.h"
#include "statistik.h"

#include <QApplication>

#include <numeric>

namespace {

using namespace varnoth;
using namespace varnoth::bench;

double Mittel(const std::vector<double>& werte) {
    return std::accumulate(werte.begin(), werte.end(), 0.0) / static_cast<double>(werte.size());
}

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

/// Something beside polling that is switched on and off.
struct Beiwerk {
    QString wort;
    void (Messplatz::*schalte)(bool);
    double hoechstensWeniger; ///< percent of the limit
};

/// Limit over median of the passes, once with something beside them and once without, alternating so that
/// both see the same machine.
void MissMit(const Beiwerk& beiwerk, const QString& strahlen, const QString& name, int baud, int paare) {
    constexpr int Anlauf = 5;
    constexpr int JeReihe = 20;
    Messplatz platz({QStringLiteral("--beams"), strahlen}, baud);
    platz.Verbinde();
    std::vector<double> dauern[2];
    double grenze = 0;
    for (int reihe = 0; reihe < 2 * paare; ++reihe) {
        const bool offen = reihe % 2 == 1;
        (platz.*beiwerk.schalte)(offen);
        for (int i = -Anlauf; i < JeReihe; ++i) {
            const Durchgang durchgang = MissDurchgang(platz, baud);
            grenze = durchgang.grenze;
            if (i >= 0)
                dauern[offen ? 1 : 0].push_back(durchgang.dauer);
        }
    }
    const auto anteil = [&](const std::vector<double>& reihe) { return 100 * grenze / Median(reihe); };
    Berichte(QStringLiteral("pass %1 at %2 baud: share lost to %3").arg(name).arg(baud).arg(beiwerk.wort),
             anteil(dauern[0]) - anteil(dauern[1]), QStringLiteral("%"), Ziel::Hoechstens,
             beiwerk.hoechstensWeniger,
             QStringLiteral("of the limit: %1 % without, %2 % with it, mean %3 and %4 %, %5 passes each")
                 .arg(anteil(dauern[0]), 0, 'f', 2)
                 .arg(anteil(dauern[1]), 0, 'f', 2)
                 .arg(100 * grenze / Mittel(dauern[0]), 0, 'f', 2)
                 .arg(100 * grenze / Mittel(dauern[1]), 0, 'f', 2)
                 .arg(paare * JeReihe));
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
    const Beiwerk protokoll{QStringLiteral("the bus log"), &Messplatz::ZeigeProtokoll, 0.2};
    MissMit(protokoll, QStringLiteral("512"), QStringLiteral("1 x 512"), Standardbaud, 5);
    MissMit(protokoll, vierTeile, QStringLiteral("4 x 128"), 115200, 5);
    const Beiwerk aufzeichnung{QStringLiteral("recording, trend and beam history"), &Messplatz::ZeichneAuf,
                               0.2};
    MissMit(aufzeichnung, vierTeile, QStringLiteral("4 x 128"), Standardbaud, 5);
    return 0;
}
