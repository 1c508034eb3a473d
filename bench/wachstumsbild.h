#pragma once

#include "wachstum.h"

namespace varnoth::bench {

/// The series as an SVG picture: a panel a series, both axes logarithmic, a line for each kind of cost, and a
/// dashed one that shows how steep linear growth is.
QString Wachstumsbild(const std::vector<Messreihe>& reihen);

} // namespace varnoth::bench
