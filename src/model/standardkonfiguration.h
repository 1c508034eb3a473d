#pragma once

#include "abbild.h"

namespace varnoth {

/// The default configuration: every value 0 except the table of default values, so no optical part has a
/// beam.
Abbild Standardkonfiguration();

/// The default configuration of a controller like that of the image: what no write changes (beam counts, bus
/// type, line format, serial number and so on) is that of the image.
Abbild StandardkonfigurationWie(const Abbild& geraet);

} // namespace varnoth

namespace varnoth::modDaten {

/// Replaces the image in use by the default configuration. Leaves the changed mark alone.
void LadeStandardkonfiguration();

} // namespace varnoth::modDaten
