#pragma once

#include <QString>

#include <string>

namespace varnoth {

/// Starts a program without waiting for its end, no shell in between.
/// @param programm path of the executable
/// @param parameter its arguments in one line; blanks separate them, double quotes keep them together
/// @return empty, or why it could not be started, in the system's words
std::string StarteProgramm(const QString& programm, const QString& parameter);

} // namespace varnoth
