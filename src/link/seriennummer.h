#pragma once

#include <string>

namespace varnoth {

/// The serial number that the controller has told with its identification, as UTF-8; empty before.
std::string GeraeteSeriennummer();

} // namespace varnoth
