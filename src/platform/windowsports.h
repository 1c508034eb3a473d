#pragma once

#include <string>
#include <string_view>

namespace varnoth {

/// What Windows calls a port, without the name of the port itself: "USB Serial Port" for
/// "USB Serial Port (COM3)".
std::string OhnePortnamen(std::string_view anzeigename, std::string_view port);

/// The serial number in the system's name of a USB device; empty where the device has none and the system
/// made something up for it, and for what is no USB device. "A50285BI" for "USB\VID_0403&PID_6001\A50285BI"
/// and for "FTDIBUS\VID_0403+PID_6001+A50285BIA\0000".
std::string SeriennummerAusInstanz(std::string_view instanz);

} // namespace varnoth
