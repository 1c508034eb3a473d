#pragma once

#include "messdurchgang.h"

namespace varnoth {

/// The registers as a pass has found them: a configuration and, on it, what the pass has read. Of parts that
/// it has not measured, beam states and measured values are 0; parts that it has not asked have no beams.
Abbild AlsAbbild(const Abbild& konfiguration, const Messdurchgang& durchgang);

} // namespace varnoth
