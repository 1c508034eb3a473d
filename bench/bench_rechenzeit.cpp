// Processor time of this process: a transaction, polling, and doing nothing.

#include "bericht.h"
#include "messplatz.h"
#include "registeradressen.h"
#include "speicherbereich.h"
#include "statistik.h"
#include "transaktionen.h"

#include <QApplication>

namespace {

using namespace varnoth;
using namespace varnoth::bench;

const QStringList VierTeile{QStringLiteral("--beams"), QStringLiteral("128,128,128,128")};

/// Share of a core, in percent, that the main loop uses for so many seconds.
double Auslastung(Messplatz& platz, double sekunden) {
    const double beginn = Uhrzeit();
    const double verbraucht = Rechenzeit();
    while (Uhrzeit() < beginn + sekunden)
        platz.Programm().Runde();
    return 100 * (Rechenzeit() - verbraucht) / (Uhrzeit() - beginn);
}

void MissTransaktion() {
    constexpr int Anzahl = 2000;
    constexpr std::uint16_t Register = 18;
    Messplatz platz(VierTeile + QStringList{QStringLiteral("--unpaced")});
    platz.Verbinde();
    Werte werte(Register);
    const Verkehr vorher = platz.Bisher();
    const double verbraucht = Rechenzeit();
    for (int i = 0; i < Anzahl; ++i)
        if (modModbus::RTUModeH03LeseAnforderung(
                Geraeteadresse(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Messwerte), Register,
                werte) == False)
            Scheitere(QStringLiteral("a transaction failed"));
    const double jeTransaktion = (Rechenzeit() - verbraucht) / Anzahl;
    if ((platz.Bisher() - vorher).sendungen != Anzahl)
        Scheitere(QStringLiteral("not every transaction went over the line"));
    Berichte(QStringLiteral("own processor time a transaction, unpaced"), 1e6 * jeTransaktion,
             QStringLiteral("µs"), Ziel::Hoechstens, 50,
             QStringLiteral("%1 reads of 18 registers").arg(Anzahl));
}

void MissPolling() {
    constexpr double Sekunden = 10;
    Messplatz platz(VierTeile);
    platz.Verbinde();
    Auslastung(platz, 1);
    Berichte(QStringLiteral("processor while polling 4 x 128 at 38400 baud"), Auslastung(platz, Sekunden),
             QStringLiteral("%"), Ziel::Hoechstens, 2.5,
             QStringLiteral("of one core, four views drawing, bytes in lots of eight"));
    platz.ZeichneAuf(true);
    Auslastung(platz, 1);
    const double mitAufzeichnung = Auslastung(platz, Sekunden);
    platz.ZeichneAuf(false);
    Berichte(QStringLiteral("the same while recording, trend and beam history open"),
             mitAufzeichnung - Auslastung(platz, Sekunden), QStringLiteral("%"), Ziel::Hoechstens, 2,
             QStringLiteral("of one core more than without; %1 % in all").arg(mitAufzeichnung, 0, 'f', 2));
    platz.Stoppe();
    Berichte(QStringLiteral("processor idle, polling stopped"), Auslastung(platz, Sekunden),
             QStringLiteral("%"), Ziel::Hoechstens, 0.3, QStringLiteral("of one core"));
}

/// The line hands over each byte by itself.
void MissPollingByteweise() {
    constexpr double Sekunden = 10;
    Messplatz platz(VierTeile + QStringList{QStringLiteral("--lot"), QStringLiteral("1")});
    platz.Verbinde();
    Auslastung(platz, 1);
    Berichte(QStringLiteral("processor while polling, byte by byte"), Auslastung(platz, Sekunden),
             QStringLiteral("%"), Ziel::Hoechstens, 2.5, QStringLiteral("of one core, four views drawing"));
}

} // namespace

int main(int argc, char** argv) {
    QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    MissTransaktion();
    MissPolling();
    MissPollingByteweise();
    return 0;
}
