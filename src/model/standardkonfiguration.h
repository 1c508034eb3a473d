#pragma once

namespace varnoth::modDaten {

/// Replaces the whole image by the default configuration: every value 0 except the table of default values,
/// so no optical part has a beam. Leaves the changed mark alone.
void LadeStandardkonfiguration();

} // namespace varnoth::modDaten
