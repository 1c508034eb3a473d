#include "dauerhaft_posix.h"

#include "systemfehler.h"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace varnoth {

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

} // namespace varnoth
