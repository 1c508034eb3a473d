#pragma once

#include "strahlbericht.h"
#include "strahltabelle.h"

#include <span>

namespace varnoth {

/// The statistics as a section of the report, in the language in use. Beams that were never interrupted and
/// are not suspicious are only counted.
Strahlbericht Berichtsabschnitt(std::span<const Strahlwerte> strahlen,
                                std::span<const Strahlverdacht> verdaechte, const Strahlbezug& bezug);

} // namespace varnoth
