#include "simulatorprozess.h"

#include "bericht.h"

#include <QDeadlineTimer>

namespace varnoth::bench {

Simulatorprozess::Simulatorprozess(const QStringList& worte) {
    prozess.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    prozess.start(QStringLiteral(SIMULATORPROGRAMM),
                  worte + QStringList{QStringLiteral("--exit-with-parent")});
    while (!prozess.canReadLine())
        if (!prozess.waitForReadyRead())
            Scheitere(QStringLiteral("the simulated controller does not start"));
    geraet = QString::fromLocal8Bit(prozess.readLine()).trimmed().section(u' ', 1, 1);
}

Simulatorprozess::~Simulatorprozess() {
    Beende();
}

bool Simulatorprozess::WarteAufZeilen(const QByteArray& text, int anzahl) {
    const QDeadlineTimer frist(30000);
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
    prozess.waitForFinished();
}

} // namespace varnoth::bench
