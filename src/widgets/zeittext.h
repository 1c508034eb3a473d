#pragma once

#include <QString>

#include <chrono>

namespace varnoth {

/// A moment in local time, to the minute, as readers of the language in use write it: "22.11.2026 05:30",
/// "2026-11-22 05:30".
QString Zeittext(std::chrono::system_clock::time_point zeit);

} // namespace varnoth
