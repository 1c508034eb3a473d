#pragma once

namespace varnoth {

/// From now on the signals that ask a program to end (Ctrl+C, the terminal closed, the system's own) are only
/// remembered; each ends the program at once when it comes a second time. Writing to a pipe that nobody reads
/// any more gives an error instead of a signal.
void FangeAbbruchsignaleAb();

/// Whether one of them has come.
bool IstAbbruchVerlangt();

} // namespace varnoth
