// The same polling side by side: the whole program with its views drawing, libmodbus, and Qt Serial Bus, each
// against a simulated controller of its own, taking turns so that what disturbs the machine disturbs all of
// them.

#include "bericht.h"
#include "libmodbusmaster.h"
#include "messplatz.h"
#include "qtmodbusmaster.h"
#include "statistik.h"

#include <QApplication>

#include <functional>

namespace {

using namespace varnoth;
using namespace varnoth::bench;

/// Who polls, and what it took.
struct Teilnehmer {
    QString name;
    std::function<void()> durchlaufe;
    std::vector<double> dauern{};       ///< seconds of each pass
    std::vector<double> rechenzeiten{}; ///< processor seconds of each round
};

struct Umfang {
    int runden;
    int durchgaenge; ///< of each in a round
};

/// The requests of one pass of the program, in their order, and what they and their replies take on the wire.
struct Durchgangsfolge {
    std::vector<Anfrage> anfragen;
    double grenze;
};

Durchgangsfolge NimmAuf(Messplatz& platz) {
    platz.Durchlaufe();
    const Verkehr vorher = platz.Bisher();
    platz.Port().ZeichneAuf(true);
    platz.Durchlaufe();
    platz.Port().ZeichneAuf(false);
    return {LiesAnfragen(platz.Port().Aufzeichnung()), (platz.Bisher() - vorher).Grenze()};
}

void MissRunde(Teilnehmer& teilnehmer, int durchgaenge) {
    QCoreApplication::processEvents(); // what another left undone is not this one's
    const double verbraucht = Rechenzeit();
    for (int i = 0; i < durchgaenge; ++i) {
        const double beginn = Uhrzeit();
        teilnehmer.durchlaufe();
        teilnehmer.dauern.push_back(Uhrzeit() - beginn);
    }
    teilnehmer.rechenzeiten.push_back(Rechenzeit() - verbraucht);
}

void BerichteAnteil(const QString& wobei, const Teilnehmer& teilnehmer, double grenze) {
    const double median = Median(teilnehmer.dauern);
    Berichte(QStringLiteral("pass %1, %2: limit / median").arg(wobei, teilnehmer.name), 100 * grenze / median,
             QStringLiteral("%"),
             QStringLiteral("limit %1 ms, median %2 ms, fastest %3 ms, 95 % %4 ms, %5 passes")
                 .arg(1e3 * grenze, 0, 'f', 2)
                 .arg(1e3 * median, 0, 'f', 2)
                 .arg(1e3 * Quantil(teilnehmer.dauern, 0), 0, 'f', 2)
                 .arg(1e3 * Quantil(teilnehmer.dauern, 0.95), 0, 'f', 2)
                 .arg(teilnehmer.dauern.size()));
}

void BerichteVerhaeltnis(const QString& wobei, const Teilnehmer& wir, const Teilnehmer& andere) {
    Berichte(QStringLiteral("pass %1: time of %2 / ours").arg(wobei, andere.name),
             100 * Median(andere.dauern) / Median(wir.dauern), QStringLiteral("%"), Ziel::Mindestens, 100);
}

void BerichteRechenzeit(const QString& wobei, const Teilnehmer& wir, const Teilnehmer& einer,
                        std::size_t transaktionenJeRunde) {
    const double rechenzeit = Median(einer.rechenzeiten);
    Berichte(QStringLiteral("processor a transaction %1, %2").arg(wobei, einer.name),
             1e6 * rechenzeit / static_cast<double>(transaktionenJeRunde), QStringLiteral("µs"),
             QStringLiteral("ours / this %1").arg(Median(wir.rechenzeiten) / rechenzeit, 0, 'f', 2));
}

void BerichteAlle(const QString& wobei, const std::vector<Teilnehmer>& alle, double grenze,
                  std::size_t transaktionenJeRunde) {
    const Teilnehmer& wir = alle.front();
    for (const Teilnehmer& einer : alle)
        BerichteAnteil(wobei, einer, grenze);
    for (const Teilnehmer& einer : alle)
        if (&einer != &wir)
            BerichteVerhaeltnis(wobei, wir, einer);
    for (const Teilnehmer& einer : alle)
        BerichteRechenzeit(wobei, wir, einer, transaktionenJeRunde);
}

void Miss(const QString& strahlen, const QString& wobei, const Umfang& umfang) {
    const QStringList worte{QStringLiteral("--beams"), strahlen};
    Messplatz platz(worte);
    platz.Verbinde();
    const Durchgangsfolge folge = NimmAuf(platz);

    const QStringList mitTakt = worte + QStringList{QStringLiteral("--baud"), QString::number(Standardbaud)};
    const Simulatorprozess fuerLibmodbus(mitTakt);
    const Simulatorprozess fuerQt(mitTakt);
    Libmodbusmaster libmodbus(fuerLibmodbus.Geraet(), Standardbaud);
    Qtmodbusmaster qt(fuerQt.Geraet(), Standardbaud);
    std::vector<Teilnehmer> alle{
        {QStringLiteral("this program"), [&] { platz.Durchlaufe(); }},
        {QStringLiteral("libmodbus"), [&] { libmodbus.Durchlaufe(folge.anfragen); }},
        {QStringLiteral("Qt Serial Bus"), [&] { qt.Durchlaufe(folge.anfragen); }},
    };
    for (int runde = 0; runde < umfang.runden; ++runde)
        for (Teilnehmer& teilnehmer : alle)
            MissRunde(teilnehmer, umfang.durchgaenge);

    BerichteAlle(wobei, alle, folge.grenze,
                 folge.anfragen.size() * static_cast<std::size_t>(umfang.durchgaenge));
}

} // namespace

int main(int argc, char** argv) {
    QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    Miss(QStringLiteral("512"), QStringLiteral("1 x 512"), {.runden = 12, .durchgaenge = 12});
    Miss(QStringLiteral("128,128,128,128"), QStringLiteral("4 x 128"), {.runden = 12, .durchgaenge = 4});
    return 0;
}
