#pragma once

#include "portangabe.h"

#include <cstdint>
#include <string>
#include <vector>

namespace varnoth::ctl {

/// What a port is, in one line without its end: "/dev/ttyUSB0: FT232R USB UART, FTDI, serial number A50285BI,
/// COM1". What says no more than the device's own name is left out.
/// @param nummern those of COM1 to COM4 that mean the port
std::string Portworte(const Portangabe& port, const std::vector<std::int32_t>& nummern);

} // namespace varnoth::ctl
