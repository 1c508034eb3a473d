#include "letzterdatensatz.h"

#include "einstellungen.h"

#include <QFile>
#include <QFileInfo>

namespace varnoth {

namespace {

bool IstLesbareDatei(const QString& pfad) {
    return QFileInfo(pfad).isFile() && QFile(pfad).open(QIODevice::ReadOnly);
}

} // namespace

std::string LetzterDatensatz() {
    const std::string pfad = DieEinstellungen().LiesText("frmMain", "mnuSpeichernUnter", "");
    return IstLesbareDatei(QString::fromStdString(pfad)) ? pfad : std::string();
}

} // namespace varnoth
