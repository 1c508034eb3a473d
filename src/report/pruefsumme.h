#pragma once

#include "abbild.h"

#include <string>

namespace varnoth {

/// The checksum of a configuration: the same for two images exactly when nothing that stays in a controller
/// differs between them, up to chance. Eight hexadecimal digits.
std::string Konfigurationspruefsumme(const Abbild& abbild);

} // namespace varnoth
