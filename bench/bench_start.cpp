// The real program on a screen: how soon its main window is there, and how much memory it holds while
// polling.

#include "bericht.h"
#include "fensterwaechter.h"
#include "simulatorprozess.h"
#include "statistik.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace {

using namespace varnoth::bench;
using varnoth::pruefung::Simulatorprozess;

/// The monitor as a process of its own in a folder of its own.
class Monitorprozess {
public:
    explicit Monitorprozess(const QStringList& schalter) {
        const QString programm = QDir(ordner.path()).filePath(QStringLiteral("varnoth"));
        QFile::copy(QStringLiteral(MONITORPROGRAMM), programm);
        QProcessEnvironment umgebung = QProcessEnvironment::systemEnvironment();
        umgebung.insert(QStringLiteral("TMPDIR"), ordner.path()); // the lock of the single instance
        umgebung.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        prozess.setProcessEnvironment(umgebung);
        prozess.setProcessChannelMode(QProcess::ForwardedChannels);
        beginn = Uhrzeit();
        prozess.start(programm, schalter);
    }
    ~Monitorprozess() {
        prozess.terminate();
        prozess.waitForFinished();
    }

    double SeitBeginn() const { return Uhrzeit() - beginn; }

    /// Resident memory in MB of a million bytes.
    double Speicher() const {
        QFile status(QStringLiteral("/proc/%1/status").arg(prozess.processId()));
        if (!status.open(QIODevice::ReadOnly))
            Scheitere(QStringLiteral("the program has ended"));
        const QRegularExpression zeile(QStringLiteral("VmRSS:\\s+(\\d+) kB"));
        return zeile.match(QString::fromLatin1(status.readAll())).captured(1).toDouble() * 1024 / 1e6;
    }

private:
    QTemporaryDir ordner;
    QProcess prozess;
    double beginn = 0;
};

void MissFenster(const QString& geraet) {
    constexpr int Anlauf = 2;
    constexpr int Starts = 15;
    std::vector<double> dauern;
    for (int i = -Anlauf; i < Starts; ++i) {
        Fensterwaechter waechter;
        if (!waechter.Bereit())
            Scheitere(QStringLiteral("no screen: run under xvfb-run"));
        const Monitorprozess monitor({QStringLiteral("/Geraet=") + geraet});
        if (!waechter.WarteAuf("Varnoth Monitor"))
            Scheitere(QStringLiteral("the main window does not appear"));
        if (i >= 0)
            dauern.push_back(1e3 * monitor.SeitBeginn());
    }
    Berichte(QStringLiteral("main window shown and painted after start"), Median(dauern),
             QStringLiteral("ms"), Ziel::Hoechstens, 300,
             QStringLiteral("slowest of %1: %2 ms").arg(Starts).arg(Quantil(dauern, 1), 0, 'f', 0));
}

void MissSpeicher(Simulatorprozess& simulator) {
    constexpr int Strahlenlesungen = 100;
    const Monitorprozess monitor({QStringLiteral("/Geraet=") + simulator.Geraet()});
    if (!simulator.WarteAufZeilen("read specific[3] 353", Strahlenlesungen))
        Scheitere(QStringLiteral("no live data"));
    Berichte(QStringLiteral("resident memory while polling four views"), monitor.Speicher(),
             QStringLiteral("MB"), Ziel::Hoechstens, 90);
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication anwendung(argc, argv);
    Simulatorprozess simulator({QStringLiteral("--beams"), QStringLiteral("128,128,128,128"),
                                QStringLiteral("--log"), QStringLiteral("-")});
    MissFenster(simulator.Geraet());
    MissSpeicher(simulator);
    return 0;
}
