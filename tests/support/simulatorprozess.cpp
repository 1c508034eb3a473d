#include "simulatorprozess.h"

#include <QDeadlineTimer>
#include <QDir>

#include <cstdlib>
#include <stdexcept>

namespace varnoth::pruefung {

namespace {

constexpr int Frist = 10000;       // milliseconds
constexpr int Zeilenfrist = 30000; // milliseconds
constexpr const char* Linienname = "line";
constexpr const char* Kanalname = "control";

QByteArray LiesZeile(QIODevice& quelle) {
    while (!quelle.canReadLine() && quelle.waitForReadyRead(Frist)) {
    }
    return quelle.readLine().trimmed();
}

[[noreturn]] void Scheitere(const std::string& was, const QString& grund) {
    throw std::runtime_error("simulated controller: " + was + ": " + grund.toStdString());
}

QStringList Dateien(const QString& ordner) {
    return {"--link", QDir(ordner).filePath(Linienname), "--control", QDir(ordner).filePath(Kanalname)};
}

} // namespace

Simulatorprozess::Simulatorprozess(const QStringList& optionen) {
    prozess.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    prozess.start(SIMULATORPROGRAMM, optionen + QStringList{"--exit-with-parent"});
    const QList<QByteArray> worte = LiesZeile(prozess).split(' '); // serving PATH ...
    if (worte.size() < 2 || worte[0] != "serving")
        Scheitere("it does not start", prozess.errorString());
    geraet = QString::fromLocal8Bit(worte[1]);
}

Simulatorprozess::Simulatorprozess(const QString& ordner, const QStringList& optionen)
    : Simulatorprozess(Dateien(ordner) + optionen) {
    geraet = QDir(ordner).filePath(Linienname);
    kanal.connectToServer(QDir(ordner).filePath(Kanalname));
    if (!kanal.waitForConnected(Frist))
        Scheitere("no control channel", kanal.errorString());
}

Simulatorprozess::~Simulatorprozess() {
    Beende();
}

bool Simulatorprozess::WarteAufZeilen(const QByteArray& text, int anzahl) {
    const QDeadlineTimer frist(Zeilenfrist);
    while (!frist.hasExpired()) {
        prozess.waitForReadyRead(100);
        while (prozess.canReadLine())
            if (prozess.readLine().contains(text) && --anzahl <= 0)
                return true;
    }
    return false;
}

void Simulatorprozess::Beende() {
    prozess.terminate();
    if (!prozess.waitForFinished(Frist))
        prozess.kill();
    prozess.waitForFinished(Frist);
}

std::string Simulatorprozess::Befehl(const std::string& zeile) {
    kanal.write(QByteArray::fromStdString(zeile + '\n'));
    kanal.flush();
    const QByteArray antwort = LiesZeile(kanal);
    if (!antwort.startsWith("ok"))
        Scheitere(zeile, QString::fromUtf8(antwort));
    return antwort.mid(3).toStdString();
}

int Simulatorprozess::Register(const std::string& name) {
    return std::atoi(Befehl("get " + name).c_str());
}

} // namespace varnoth::pruefung
