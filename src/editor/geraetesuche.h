#pragma once

#include <functional>

namespace varnoth {

/// Asks at the open port whether a controller is there, twice at most; between the tries pending events run.
/// It ends early when `abgebrochen` says so; an answer then does not count.
bool FindeGeraet(const std::function<bool()>& abgebrochen);

} // namespace varnoth
