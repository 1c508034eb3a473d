#pragma once

#include "beambarcontrol.h"

namespace varnoth::bench {

/// Gives every beam another state than the scan before had it; the bar draws that with its next paint.
void ZeigeScan(BeamBarControl& balken, int scan);

} // namespace varnoth::bench
