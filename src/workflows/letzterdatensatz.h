#pragma once

#include <string>

namespace varnoth {

/// The configuration file (UTF-8 path) that was saved last; empty when none was or when it cannot be read.
std::string LetzterDatensatz();

} // namespace varnoth
