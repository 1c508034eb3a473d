#include "autosendbudget.h"

#include "leitungsformat.h"

#include <cmath>
#include <iterator>

namespace varnoth {

namespace {

constexpr double Sendeverzug = 0.5; // ms
constexpr double BitsJeByte = 11;   // on the line
constexpr double MillisekundenJeSekunde = 1000;

constexpr std::int32_t Baudraten[] = {1200, 2400, 4800, 9600, 19200, 38400, 57600};

} // namespace

std::int32_t AutosendBaudrate(std::int32_t autosendformat) {
    const std::int32_t stelle = (autosendformat & 0xFF) - ErsterBaudcode;
    return stelle >= 0 && stelle < std::ssize(Baudraten) ? Baudraten[stelle] : 0;
}

std::int32_t UebertragbareBytes(double tzl, std::int32_t baudrate) {
    const double bytesJeMs = baudrate / BitsJeByte / MillisekundenJeSekunde;
    return static_cast<std::int32_t>(std::floor((tzl - Sendeverzug) * bytesJeMs - 1));
}

} // namespace varnoth
