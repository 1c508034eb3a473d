#include "instanzsperre.h"

#include <QDir>
#include <QStandardPaths>

namespace varnoth {

namespace {

QString Sperrdatei(const QString& name, const QString& ordner) {
    QString wo = ordner;
    if (wo.isEmpty())
        wo = QStandardPaths::writableLocation(QStandardPaths::TempLocation);
    const QString wer = QString::number(qHash(QDir::homePath()), 16);
    return QDir(wo).filePath(name + QLatin1Char('-') + wer + QStringLiteral(".lock"));
}

} // namespace

Instanzsperre::Instanzsperre(const QString& name, const QString& ordner) : sperre(Sperrdatei(name, ordner)) {
    // Only the end of the process that holds the lock makes it stale, never its age.
    sperre.setStaleLockTime(0);
}

bool Instanzsperre::Belege() {
    // A folder that refuses lock files must not keep the program from starting.
    return sperre.tryLock() || sperre.error() != QLockFile::LockFailedError;
}

} // namespace varnoth
