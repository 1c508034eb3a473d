#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace varnoth::ctl {

/// What of a name counts when it is typed: blanks and the case of letters do not, and "ae" is as good as "ä".
std::string Namenskern(std::string_view name);

/// Those of the names that a word was probably meant to be, the nearest first, at most three.
std::vector<std::string> Aehnliche(std::string_view wort, const std::vector<std::string>& namen);

/// The same where each name stands for something that is offered in its place.
std::vector<std::string> Aehnliche(std::string_view wort, const std::vector<std::string>& namen,
                                   const std::vector<std::string>& angebote);

/// "a", "b" or "c", in the current language.
std::string Aufzaehlung(const std::vector<std::string>& namen);

} // namespace varnoth::ctl
