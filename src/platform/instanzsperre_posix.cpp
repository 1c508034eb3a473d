#include "instanzsperre.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace varnoth {

Instanzsperre::~Instanzsperre() {
    if (griff >= 0)
        ::close(static_cast<int>(griff));
}

bool Instanzsperre::Belege() {
    constexpr int wie = O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    if (griff < 0)
        griff = ::open(QFile::encodeName(pfad).constData(), wie, S_IRUSR | S_IWUSR);
    return griff < 0 || ::flock(static_cast<int>(griff), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

} // namespace varnoth
