#include "eigenerordner.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace varnoth {

#ifdef Q_OS_UNIX

namespace {

/// Nothing that is there already is touched: what others put in the way stays theirs.
void LegeAn(const QString& ordner) {
    ::mkdir(QFile::encodeName(ordner).constData(), S_IRWXU);
}

QString Sitzungsordner() {
    return QFile::decodeName(qgetenv("XDG_RUNTIME_DIR"));
}

QString Nutzername() {
    return QString::number(::geteuid());
}

} // namespace

bool GehoertNurMir(const QString& ordner) {
    struct stat stand {};
    return ::lstat(QFile::encodeName(ordner).constData(), &stand) == 0 && S_ISDIR(stand.st_mode) &&
           stand.st_uid == ::geteuid() && (stand.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

#else

namespace {

void LegeAn(const QString& ordner) {
    QDir().mkdir(ordner);
}

QString Sitzungsordner() {
    return {};
}

QString Nutzername() {
    return {};
}

} // namespace

bool GehoertNurMir(const QString& ordner) {
    return QFileInfo(ordner).isDir();
}

#endif

QString ErsterEigenerOrdner(const QStringList& kandidaten) {
    for (const QString& ordner : kandidaten) {
        if (!QDir::isAbsolutePath(ordner))
            continue;
        LegeAn(ordner);
        if (GehoertNurMir(ordner))
            return ordner;
    }
    return {};
}

QString LaufzeitOrdner() {
    const QString eigener = QStringLiteral("varnoth-") + Nutzername();
    const QDir cache(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation));
    cache.mkpath(QStringLiteral("."));
    return ErsterEigenerOrdner({Sitzungsordner(), QDir::temp().filePath(eigener), cache.filePath(eigener)});
}

} // namespace varnoth
