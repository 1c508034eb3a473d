#pragma once

namespace varnoth {

/// Lets screen readers get from every BeamBarControl what its picture shows: as value and, behind the status,
/// as description. May be called again.
void RichteStrahlbalkenzugangEin();

} // namespace varnoth
