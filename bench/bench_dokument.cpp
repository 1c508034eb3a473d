// The report about a controller of four parts, every setting of which differs from the default: as PDF, and
// in its window.

#include "abbildproben.h"
#include "bericht.h"
#include "berichtsdruck.h"
#include "frmBericht.h"
#include "konfigurationsbericht.h"
#include "pruefumgebung.h"
#include "registerabbild.h"
#include "seitenvorschau.h"
#include "statistik.h"

#include <QApplication>

#include <algorithm>

namespace {

using namespace varnoth;
using namespace varnoth::bench;

constexpr int Durchgaenge = 10;

double MissPdf(const Abbild& abbild) {
    const double beginn = Uhrzeit();
    const Berichtsdruck druck{QString::fromStdString(Bericht(abbild, {}, Deutsch)),
                              QString::fromStdString(Berichtsfuss(abbild, {}, Deutsch)),
                              QStringLiteral("%1/%2")};
    if (AlsPdf(druck, QStringLiteral("Bericht")).isEmpty())
        Scheitere(QStringLiteral("no PDF was made"));
    return 1e3 * (Uhrzeit() - beginn);
}

struct Oeffnung {
    double bisGezeigt = 0;    ///< ms until the pages are there and painted
    double laengsterHalt = 0; ///< ms that a click waits at most
};

Oeffnung OeffneFenster() {
    constexpr double Hoechstens = 10e3;
    const double beginn = Uhrzeit();
    double zuletzt = beginn;
    Oeffnung oeffnung;
    const auto merke = [&] {
        oeffnung.laengsterHalt = std::max(oeffnung.laengsterHalt, 1e3 * (Uhrzeit() - zuletzt));
        zuletzt = Uhrzeit();
        oeffnung.bisGezeigt = 1e3 * (zuletzt - beginn);
        if (oeffnung.bisGezeigt > Hoechstens)
            Scheitere(QStringLiteral("no pages appear"));
    };
    frmBericht fenster(
        {.angaben = [] { return Berichtsangaben{}; }, .drucker = [] { return QStringList(); }});
    fenster.show();
    merke();
    const auto& vorschau = *fenster.findChild<Seitenvorschau*>();
    while (vorschau.Seitenzahl() == 0) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        merke();
    }
    QCoreApplication::processEvents(); // the painting
    merke();
    return oeffnung;
}

void MissFenster() {
    std::vector<double> gezeigt;
    std::vector<double> halte;
    for (int i = 0; i < Durchgaenge; ++i) {
        const Oeffnung oeffnung = OeffneFenster();
        gezeigt.push_back(oeffnung.bisGezeigt);
        halte.push_back(oeffnung.laengsterHalt);
    }
    Berichte(QStringLiteral("report window: longest wait of a click"), Median(halte), QStringLiteral("ms"),
             Ziel::Hoechstens, 100,
             QStringLiteral("slowest of %1: %2 ms; pages shown after %3 ms")
                 .arg(Durchgaenge)
                 .arg(Quantil(halte, 1), 0, 'f', 0)
                 .arg(Median(gezeigt), 0, 'f', 0));
}

} // namespace

int main(int argc, char** argv) {
    QApplication anwendung(argc, argv);
    pruefung::PruefEinstellungen einstellungen;
    const Abbild abbild = abbildproben::Vierteilig();
    modDaten::ErsetzeAbbild(abbild);
    std::vector<double> dauern;
    for (int i = 0; i < Durchgaenge; ++i)
        dauern.push_back(MissPdf(abbild));
    Berichte(QStringLiteral("report of four parts to PDF"), Median(dauern), QStringLiteral("ms"),
             Ziel::Hoechstens, 500, QStringLiteral("first %1 ms").arg(dauern.front(), 0, 'f', 0));
    MissFenster();
    return 0;
}
