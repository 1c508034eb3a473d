#pragma once

#include <vector>

namespace varnoth {

/// The smallest of 1, 2 and 5 times a power of ten that is not below a number above 0.
double RunderSchritt(double mindestens);

/// The end of an axis: a round number, at least the given one (above 0).
double RundesEnde(double wert);

/// The round numbers from 0 to the end of an axis that are at least so far apart; none for an axis without
/// length.
std::vector<double> Achsenzahlen(double ende, double mindestabstand);

/// The whole round numbers on an axis from one end to the other that are at least so far apart; none for an
/// axis without length.
std::vector<double> GanzeAchsenzahlen(double von, double bis, double mindestabstand);

} // namespace varnoth
