#pragma once

#include "umgebung.h"

#include <QString>

#include <string>

namespace varnoth {

/// How long a second start waits for the running program, which may be busy for a moment.
inline constexpr Zeit LaengsteUebergabe = std::chrono::seconds(3);

/// Hands the path of a file (absolute, UTF-8) to the program that listens there. False when that has not
/// taken it within the time, be it that nothing listens, that it hangs, that it is about to end, or that the
/// socket is not this user's; it will then not open the file later either.
bool UebergibDatei(const QString& ort, const std::string& pfad, Zeit hoechstens = LaengsteUebergabe);

} // namespace varnoth
