#pragma once

#include "abbild.h"

#include <string>

namespace varnoth {

/// What differs between two images, in words of the current language (UTF-8): "K1 Auflösung: 5mm → 20mm", one
/// parameter after the other; empty when no parameter differs.
std::string Aenderungsworte(const Abbild& vorher, const Abbild& nachher);

} // namespace varnoth
