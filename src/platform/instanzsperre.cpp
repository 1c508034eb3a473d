#include "instanzsperre.h"

#include "eigenerordner.h"

#include <QDir>
#include <QFile>

#ifdef Q_OS_UNIX
#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace varnoth {

namespace {

const QString Endung = QStringLiteral(".lock");

/// The lock's file; empty where there is no folder for it.
QString Sperrdatei(const QString& name, const QString& ordner) {
    const QString wo = ordner.isEmpty() ? LaufzeitOrdner() : ordner;
    const QString wer = QString::number(qHash(QDir::homePath()), 16);
    return wo.isEmpty() ? QString() : QDir(wo).filePath(name + QLatin1Char('-') + wer + Endung);
}

} // namespace

QString Instanzsperre::Briefkasten() const {
    return pfad.isEmpty() ? QString() : pfad.chopped(Endung.size()) + QStringLiteral(".socket");
}

#ifdef Q_OS_UNIX

Instanzsperre::Instanzsperre(const QString& name, const QString& ordner) : pfad(Sperrdatei(name, ordner)) {}

Instanzsperre::~Instanzsperre() {
    if (handle >= 0)
        ::close(handle);
}

bool Instanzsperre::Belege() {
    constexpr int wie = O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    if (handle < 0)
        handle = ::open(QFile::encodeName(pfad).constData(), wie, S_IRUSR | S_IWUSR);
    return handle < 0 || ::flock(handle, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

#else

Instanzsperre::Instanzsperre(const QString& name, const QString& ordner)
    : pfad(Sperrdatei(name, ordner)), sperre(pfad) {
    sperre.setStaleLockTime(0);
}

Instanzsperre::~Instanzsperre() = default;

bool Instanzsperre::Belege() {
    return sperre.tryLock() || sperre.error() != QLockFile::LockFailedError;
}

#endif

} // namespace varnoth
