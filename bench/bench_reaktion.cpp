// How late a timer of the window fires while the program waits for the line.

#include "bericht.h"
#include "frmKonfigurationLesenAusHardware.h"
#include "messplatz.h"
#include "statistik.h"

#include <QApplication>
#include <QTimer>

namespace {

using namespace varnoth;
using namespace varnoth::bench;

constexpr int Messzeit = 6000; // milliseconds

/// A timer that notes how late it fires.
class Zeitgeber {
public:
    Zeitgeber() {
        uhr.setTimerType(Qt::PreciseTimer);
        uhr.setSingleShot(true);
        QObject::connect(&uhr, &QTimer::timeout, &uhr, [this] {
            verspaetungen.push_back(1e3 * (Uhrzeit() - gestellt) - Takt);
            Stelle();
        });
        Stelle();
    }
    void Berichte(const QString& wobei) const {
        bench::Berichte(QStringLiteral("timer of the window late, 95 %: ") + wobei,
                        Quantil(verspaetungen, 0.95), QStringLiteral("ms"), Ziel::Hoechstens, 16,
                        QStringLiteral("at most %1 ms, fired %2 times")
                            .arg(Quantil(verspaetungen, 1), 0, 'f', 2)
                            .arg(verspaetungen.size()));
    }

private:
    static constexpr int Takt = 10;
    void Stelle() {
        gestellt = Uhrzeit();
        uhr.start(Takt);
    }

    QTimer uhr;
    double gestellt = 0;
    std::vector<double> verspaetungen;
};

void MissPolling() {
    Messplatz platz({QStringLiteral("--beams"), QStringLiteral("128,128,128,128")});
    platz.Verbinde();
    const Zeitgeber zeitgeber;
    for (const double ende = Uhrzeit() + 1e-3 * Messzeit; Uhrzeit() < ende;)
        platz.Programm().Runde();
    zeitgeber.Berichte(QStringLiteral("polling"));
}

void MissTotenDialog(Messplatz& platz, const QString& wobei) {
    platz.UebergeheMeldungen();
    frmKonfigurationLesenAusHardware dialog(&platz.Programm().Hauptfenster());
    QTimer::singleShot(Messzeit, &dialog, &QDialog::reject);
    const Zeitgeber zeitgeber;
    dialog.exec();
    zeitgeber.Berichte(wobei);
}

void MissStummeLeitung() {
    Messplatz platz({QStringLiteral("--fault"), QStringLiteral("silence")});
    MissTotenDialog(platz, QStringLiteral("silent line"));
}

void MissGezogeneLeitung() {
    Messplatz platz({});
    platz.Steuergeraet().Beende();
    MissTotenDialog(platz, QStringLiteral("line gone"));
}

} // namespace

int main(int argc, char** argv) {
    QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    MissPolling();
    MissStummeLeitung();
    MissGezogeneLeitung();
    return 0;
}
