// How the cost of a pass, of a scan's drawing and of a language switch grows with the number of parts and of
// beams.
//   bench_wachstum [FILE]    FILE: where the plot goes, an SVG

#include "bericht.h"
#include "messplatz.h"
#include "scan.h"
#include "statistik.h"
#include "wachstumsbild.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QList>
#include <QTextStream>

#include <functional>

namespace {

using namespace varnoth;
using namespace varnoth::bench;

/// Median of so many runs, in milliseconds.
double MedianVon(int laeufe, const std::function<void()>& lauf) {
    std::vector<double> dauern;
    for (int i = 0; i < laeufe; ++i) {
        const double beginn = Uhrzeit();
        lauf();
        dauern.push_back(1e3 * (Uhrzeit() - beginn));
    }
    return Median(dauern);
}

void MissDurchgaenge(Messplatz& platz, Kosten& kosten) {
    constexpr int Anlauf = 5;
    constexpr int Durchgaenge = 60;
    for (int i = 0; i < Anlauf; ++i)
        platz.Durchlaufe();
    std::vector<double> rechenzeiten;
    kosten.durchgang = MedianVon(Durchgaenge, [&] {
        const double verbraucht = Rechenzeit();
        platz.Durchlaufe();
        rechenzeiten.push_back(1e3 * (Rechenzeit() - verbraucht));
    });
    kosten.rechenzeit = Median(rechenzeiten);
}

double MissSprachwechsel(Messplatz& platz) {
    constexpr int Wechsel = 40;
    const frmMain& fenster = platz.Programm().Hauptfenster();
    QAction* naechste = fenster.findChild<QAction*>(QStringLiteral("mnuEnglisch"));
    QAction* andere = fenster.findChild<QAction*>(QStringLiteral("mnuDeutsch"));
    return MedianVon(Wechsel, [&] {
        naechste->trigger();
        platz.Programm().Runde();
        QCoreApplication::processEvents();
        std::swap(naechste, andere);
    });
}

/// Draws scans in the views that are shown, as the program does: all of them with one paint of the window.
double MissZeichnen(Messplatz& platz) {
    constexpr int Scans = 300;
    QList<BeamBarControl*> balken = platz.Programm().Hauptfenster().findChildren<BeamBarControl*>();
    balken.removeIf([](const BeamBarControl* einer) { return !einer->isVisible(); });
    int scan = 0;
    return MedianVon(Scans, [&] {
        ++scan;
        for (BeamBarControl* einer : balken)
            ZeigeScan(*einer, scan);
        QCoreApplication::processEvents();
    });
}

/// Measures a controller with so many beams at each part.
Kosten Miss(double groesse, const std::vector<int>& strahlen) {
    QStringList worte;
    for (const int anzahl : strahlen)
        worte.append(QString::number(anzahl));
    Messplatz platz({QStringLiteral("--beams"), worte.join(u',')});
    platz.Verbinde();
    Kosten kosten{};
    kosten.groesse = groesse;
    MissDurchgaenge(platz, kosten);
    platz.Stoppe();
    kosten.sprache = MissSprachwechsel(platz);
    kosten.zeichnen = MissZeichnen(platz);
    return kosten;
}

Messreihe MissTeile() {
    constexpr int StrahlenJeTeil = 128;
    Messreihe reihe{QStringLiteral("optical parts of 128 beams"), {}};
    for (std::size_t teile = 1; teile <= AnzahlOptikteile; ++teile)
        reihe.punkte.push_back(Miss(static_cast<double>(teile), std::vector<int>(teile, StrahlenJeTeil)));
    return reihe;
}

Messreihe MissStrahlen() {
    Messreihe reihe{QStringLiteral("beams of one optical part"), {}};
    for (const int strahlen : {16, 32, 64, 128, 256, 512})
        reihe.punkte.push_back(Miss(strahlen, {strahlen}));
    return reihe;
}

void BerichteWachstum(const Messreihe& reihe) {
    constexpr double Linear = 1.1; // a tenth for what the machine's noise adds
    QTextStream(stdout) << "\n" << Tabelle(reihe) << "\n";
    for (const Kostenart& art : Kostenarten)
        Berichte(QStringLiteral("exponent of %1").arg(QLatin1String(art.name)), Exponent(reihe, art.wert), {},
                 Ziel::Hoechstens, Linear,
                 QStringLiteral("over %1; steepest step %2")
                     .arg(reihe.name)
                     .arg(SteilsterSchritt(reihe, art.wert), 0, 'f', 2));
}

void SchreibeBild(const QString& pfad, const std::vector<Messreihe>& reihen) {
    QFile datei(pfad);
    if (!datei.open(QIODevice::WriteOnly) || datei.write(Wachstumsbild(reihen).toUtf8()) < 0 ||
        !datei.flush())
        Scheitere(pfad + QStringLiteral(" cannot be written: ") + datei.errorString());
}

} // namespace

int main(int argc, char** argv) {
    QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const std::vector<Messreihe> reihen{MissTeile(), MissStrahlen()};
    for (const Messreihe& reihe : reihen)
        BerichteWachstum(reihe);
    if (argc > 1)
        SchreibeBild(QString::fromLocal8Bit(argv[1]), reihen);
    return 0;
}
