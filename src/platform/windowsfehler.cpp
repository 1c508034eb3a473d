#include "windowsfehler.h"

#include <algorithm>
#include <iterator>

namespace varnoth {

namespace {

struct Zeile {
    unsigned long fehler;
    Hindernis hindernis;
};

constexpr Zeile DieZeilen[] = {
    {0, Hindernis::Keines},   {2, Hindernis::Fehlt}, // no such file
    {3, Hindernis::Fehlt},                           // no such folder
    {5, Hindernis::Belegt},                          // access denied
    {32, Hindernis::Belegt},                         // in use by another process
    {55, Hindernis::Fehlt},                          // the device is no longer there
    {123, Hindernis::Fehlt},                         // no name of a file
    {161, Hindernis::Fehlt},                         // no path
    {170, Hindernis::Belegt},                        // in use
    {433, Hindernis::Fehlt},                         // a device that was named is not there
    {1167, Hindernis::Fehlt},                        // not connected
    {1617, Hindernis::Fehlt},                        // removed
};

constexpr unsigned long Geraetefehler[] = {
    21,   // not ready
    22,   // does not know the command
    31,   // does not work
    483,  // a hardware error that cannot be mended
    995,  // the driver has ended what was under way
    1117, // an error of input or output
};

} // namespace

Hindernis HindernisNachOeffnen(unsigned long fehler) {
    const auto zeile = std::ranges::find(DieZeilen, fehler, &Zeile::fehler);
    return zeile != std::ranges::end(DieZeilen) ? zeile->hindernis : Hindernis::Systemfehler;
}

bool IstGeraetefehler(unsigned long fehler) {
    return std::ranges::find(Geraetefehler, fehler) != std::ranges::end(Geraetefehler);
}

} // namespace varnoth
