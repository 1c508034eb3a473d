#pragma once

#include <gmock/gmock.h>

#include <regex>
#include <string>

namespace varnoth::pruefung {

/// A text that holds somewhere what the regular expression describes. Google Test's own matcher knows no
/// brackets on Windows.
MATCHER_P(EnthaeltMuster, muster, "") {
    return std::regex_search(std::string(arg), std::regex(muster));
}

} // namespace varnoth::pruefung
