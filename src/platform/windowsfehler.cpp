#include "windowsfehler.h"

#include <algorithm>
#include <cerrno>
#include <iterator>

namespace varnoth {

namespace {

struct Zeile {
    unsigned long windows;
    int posix;
};

constexpr Zeile DieZeilen[] = {
    {1, ENOTTY},         // the device does not know this request
    {2, ENOENT},         // no such file
    {3, ENOENT},         // no such folder
    {4, EMFILE},         // too many open files
    {5, EACCES},         // access denied
    {19, EROFS},         // write-protected
    {21, EIO},           // not ready
    {22, EIO},           // the device does not know this command
    {31, EIO},           // the device does not work
    {32, EBUSY},         // in use by another process
    {33, EBUSY},         // locked by another process
    {39, ENOSPC},        // disk full
    {55, ENODEV},        // the device is no longer there
    {109, EIO},          // the other end is gone
    {112, ENOSPC},       // disk full
    {123, ENOENT},       // no name of a file
    {161, ENOENT},       // no path
    {170, EBUSY},        // in use
    {206, ENAMETOOLONG}, // name or path too long
    {223, EFBIG},        // file too large
    {267, ENOTDIR},      // not a folder
    {433, ENODEV},       // a device that was named is not there
    {995, EIO},          // ended by the driver
    {1117, EIO},         // device error
    {1167, ENODEV},      // not connected
    {1617, ENODEV},      // removed
};

constexpr unsigned long ZugriffVerweigert = 5;

} // namespace

int AlsFehlernummer(unsigned long windowsnummer) {
    const auto zeile = std::ranges::find(DieZeilen, windowsnummer, &Zeile::windows);
    return zeile != std::ranges::end(DieZeilen) ? zeile->posix : 0;
}

Hindernis HindernisNachOeffnen(unsigned long windowsnummer) {
    if (windowsnummer == 0)
        return Hindernis::Keines;
    if (windowsnummer == ZugriffVerweigert)
        return Hindernis::Belegt;
    switch (AlsFehlernummer(windowsnummer)) {
    case ENOENT:
    case ENODEV:
        return Hindernis::Fehlt;
    case EBUSY:
        return Hindernis::Belegt;
    default:
        return Hindernis::Systemfehler;
    }
}

} // namespace varnoth
