#include "simulatorprozess.h"

#include <QDir>
#include <gtest/gtest.h>

#include <cstdlib>

namespace varnoth::pruefung {

namespace {

constexpr int Frist = 10000; // milliseconds

QByteArray LiesZeile(QIODevice& quelle) {
    while (!quelle.canReadLine() && quelle.waitForReadyRead(Frist)) {
    }
    return quelle.readLine().trimmed();
}

} // namespace

Simulatorprozess::Simulatorprozess(const QString& ordner, const QStringList& optionen)
    : geraet(QDir(ordner).filePath("line")) {
    const QString steuerkanal = QDir(ordner).filePath("control");
    prozess.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    prozess.start(SIMULATORPROGRAMM,
                  QStringList{"--link", geraet, "--control", steuerkanal, "--exit-with-parent"} + optionen);
    EXPECT_TRUE(LiesZeile(prozess).startsWith("serving ")) << qPrintable(prozess.errorString());
    kanal.connectToServer(steuerkanal);
    EXPECT_TRUE(kanal.waitForConnected(Frist)) << qPrintable(kanal.errorString());
}

Simulatorprozess::~Simulatorprozess() {
    prozess.terminate();
    if (!prozess.waitForFinished(Frist))
        prozess.kill();
    prozess.waitForFinished(Frist);
}

std::string Simulatorprozess::Befehl(const std::string& zeile) {
    kanal.write(QByteArray::fromStdString(zeile + '\n'));
    kanal.flush();
    const QByteArray antwort = LiesZeile(kanal);
    EXPECT_TRUE(antwort.startsWith("ok")) << zeile << ": " << antwort.toStdString();
    return antwort.mid(3).toStdString();
}

int Simulatorprozess::Register(const std::string& name) {
    return std::atoi(Befehl("get " + name).c_str());
}

} // namespace varnoth::pruefung
