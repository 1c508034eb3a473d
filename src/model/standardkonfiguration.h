#pragma once

#include "abbild.h"

namespace varnoth {

/// The default configuration: every value 0 except the table of default values, so no optical part has a
/// beam.
Abbild Standardkonfiguration();

} // namespace varnoth

namespace varnoth::modDaten {

/// Replaces the image in use by the default configuration. Leaves the changed mark alone.
void LadeStandardkonfiguration();

} // namespace varnoth::modDaten
