#include "pausenzeit.h"

#include "zahlen.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace varnoth {

namespace {
constexpr std::int32_t GroesstePausenzeit = 65535;
}

std::string PausenzeitBeimVerlassen(const std::string& text) {
    return Val(text) > GroesstePausenzeit ? std::to_string(GroesstePausenzeit) : text;
}

std::int32_t Pausenzeitwert(std::string_view text) {
    using Grenzen = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(
        std::clamp<double>(std::nearbyint(Val(text)), Grenzen::min(), Grenzen::max()));
}

} // namespace varnoth
