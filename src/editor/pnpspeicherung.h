#pragma once

#include <cstdint>
#include <functional>

namespace varnoth {

/// Stores the register value in the given way; a box tells the programmer when it was refused.
void SpeicherePnpAusgang(std::int32_t registerwert, const std::function<bool(std::int32_t)>& speichere);

} // namespace varnoth
