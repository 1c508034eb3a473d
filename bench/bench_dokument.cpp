// The report about a controller of four parts, every setting of which differs from the default, as PDF.

#include "abbildproben.h"
#include "bericht.h"
#include "berichtsdruck.h"
#include "konfigurationsbericht.h"
#include "statistik.h"

#include <QApplication>

int main(int argc, char** argv) {
    using namespace varnoth;
    using namespace varnoth::bench;
    constexpr int Durchgaenge = 10;
    QApplication anwendung(argc, argv);
    const Abbild abbild = abbildproben::Vierteilig();
    std::vector<double> dauern;
    for (int i = 0; i < Durchgaenge; ++i) {
        const double beginn = Uhrzeit();
        const Berichtsdruck druck{QString::fromStdString(Bericht(abbild, {}, Deutsch)),
                                  QString::fromStdString(Berichtsfuss(abbild, {}, Deutsch)),
                                  QStringLiteral("%1/%2")};
        if (AlsPdf(druck, QStringLiteral("Bericht")).isEmpty())
            Scheitere(QStringLiteral("no PDF was made"));
        dauern.push_back(1e3 * (Uhrzeit() - beginn));
    }
    Berichte(QStringLiteral("report of four parts to PDF"), Median(dauern), QStringLiteral("ms"),
             Ziel::Hoechstens, 500, QStringLiteral("first %1 ms").arg(dauern.front(), 0, 'f', 0));
    return 0;
}
