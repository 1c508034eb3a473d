#pragma once

#include <string>

namespace varnoth {

/// What a POSIX error number means, in the current language (UTF-8); in the system's words for a number
/// that people seldom meet.
std::string Systemfehler(int nummer);

/// What is said of a path that leads to something that keeps no file: a pipe, a device.
std::string KeineGewoehnlicheDatei();

/// What is said of a file whose content makes no sense.
std::string DateiIstBeschaedigt();

} // namespace varnoth
