#pragma once

#include <string_view>

namespace varnoth {

/// The version of the programs: major, minor and revision, joined by points, as the project states it.
std::string_view Programmversion();

} // namespace varnoth
