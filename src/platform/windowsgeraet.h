#pragma once

#include <string>
#include <string_view>

namespace varnoth {

/// The name of a serial port of Windows as people write it and the list of ports shows it: "COM12" for
/// "\\.\com12". A name without a number, as some drivers give them, stays as it is. Blanks around it do not
/// count.
std::string Windowsgeraet(std::string_view name);

/// The path under which such a port is opened. The prefix is needed from COM10 on and for names without a
/// number, and does no harm for the others. Empty where the name is.
std::string WindowsgeraetPfad(std::string_view name);

/// Whether a name can be that of a device, and not that of a file or folder.
bool KannWindowsgeraetSein(std::string_view name);

} // namespace varnoth
