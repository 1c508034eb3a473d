#pragma once

#include "vrecleser.h"

#include <string>

namespace varnoth {

/// What came of opening a record, a sentence in the current language for each thing; empty when all of it is
/// there.
std::string Befundtext(const Vreczustand& zustand);

} // namespace varnoth
