#pragma once

namespace varnoth {

/// The POSIX error number for one of this system's own; EIO for those that have none.
int FehlernummerVon(unsigned long systemfehler);

/// That of the call that has just failed in this thread.
int LetzteFehlernummer();

} // namespace varnoth
