#include "portsperre.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace varnoth {

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

} // namespace varnoth
