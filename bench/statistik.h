#pragma once

#include <vector>

namespace varnoth::bench {

/// The value below which the given share (0 to 1) of all values lies; `werte` must not be empty.
double Quantil(std::vector<double> werte, double anteil);
double Median(const std::vector<double>& werte);

/// Seconds on a clock that never goes back.
double Uhrzeit();
/// Seconds of processor time, user and system, that this process has used.
double Rechenzeit();

} // namespace varnoth::bench
