#include "eigenerordner.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <sys/stat.h>
#include <unistd.h>

namespace varnoth {

bool GehoertNurMir(const QString& ordner) {
    struct stat stand {};
    return ::lstat(QFile::encodeName(ordner).constData(), &stand) == 0 && S_ISDIR(stand.st_mode) &&
           stand.st_uid == ::geteuid() && (stand.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

void LegeEigenenOrdnerAn(const QString& ordner) {
    ::mkdir(QFile::encodeName(ordner).constData(), S_IRWXU);
}

QString LaufzeitOrdner() {
    const QString sitzung = QFile::decodeName(qgetenv("XDG_RUNTIME_DIR"));
    const QString eigener = QStringLiteral("varnoth-") + QString::number(::geteuid());
    const QDir cache(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation));
    cache.mkpath(QStringLiteral("."));
    return ErsterEigenerOrdner({sitzung, QDir::temp().filePath(eigener), cache.filePath(eigener)});
}

} // namespace varnoth
