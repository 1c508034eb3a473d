#pragma once

#include "seriellerport.h"

#include <memory>

namespace varnoth {

/// A serial port of the system that the program runs on: QtSeriellerPort, on Windows WindowsPort.
std::unique_ptr<SeriellerPort> MacheGeraeteport();

} // namespace varnoth
