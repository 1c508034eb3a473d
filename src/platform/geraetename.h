#pragma once

#include <string>

namespace varnoth {

/// The whole name of a serial device: on Linux a path, of "/dev" where a bare name leads to no file; on
/// Windows the name as it is, "COM12".
std::string GanzerGeraetename(const std::string& name);

/// Where the name of a device leads once every link is followed; the name itself where it leads nowhere, and
/// on Windows, which has no such links.
std::string Geraeteziel(const std::string& name);

/// Whether a port may be named "COM" and any number: on Windows; on Linux these names stand for the four
/// ports of the settings.
bool KenntComNummern();

} // namespace varnoth
