#pragma once

#include <string>
#include <vector>

namespace varnoth {

/// The words behind the program's name as they were typed: on Linux the bytes that came, on Windows in UTF-8
/// whatever characters they hold.
/// @param anzahl, worte what main was given
std::vector<std::string> Programmworte(int anzahl, char** worte);

/// What the environment says under a name of POSIX: "LANG", "LC_ALL". On Windows, where none of these is set
/// as a rule, "LANG" is then the language in which this user has Windows ("de", "en"). Empty where there is
/// none.
std::string Umgebungswert(const char* name);

} // namespace varnoth
