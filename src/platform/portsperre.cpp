#include "portsperre.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace varnoth {

#ifdef Q_OS_UNIX

bool Portsperre::Nimm(const std::string& pfad) {
    Gib();
    // A file of its own: what stands behind the path is asked for before anything of the line is changed.
    handle = ::open(pfad.c_str(), O_RDONLY | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (handle < 0 || ::flock(handle, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK)
        return true;
    Gib();
    return false;
}

void Portsperre::Gib() {
    if (handle >= 0)
        ::close(handle);
    handle = -1;
}

#else

// The system opens a port for one process alone.
bool Portsperre::Nimm(const std::string& /*pfad*/) {
    return true;
}

void Portsperre::Gib() {}

#endif

} // namespace varnoth
