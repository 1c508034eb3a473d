#include "dauerhaft.h"

#include "systemfehler.h"

#include <cerrno>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace varnoth {

#ifdef Q_OS_WIN

std::string BringeAufDatentraeger(const QFile& datei) {
    return _commit(datei.handle()) == 0 ? std::string() : Systemfehler(errno);
}

void BringeOrdnerAufDatentraeger(const QString& /*ordner*/) {}

#else

std::string BringeAufDatentraeger(const QFile& datei) {
    const bool gelungen = ::fsync(datei.handle()) == 0 || errno == EINVAL || errno == ENOTSUP;
    return gelungen ? std::string() : Systemfehler(errno);
}

void BringeOrdnerAufDatentraeger(const QString& ordner) {
    const int handle = ::open(QFile::encodeName(ordner).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return;
    ::fsync(handle);
    ::close(handle);
}

#endif

} // namespace varnoth
