#pragma once

#include <functional>

class QWidget;

namespace varnoth {

/// Writes the image in use to the controller in its dialog. Where that was broken off or its check found
/// anything but equality, a list tells so and offers what can be written next, until the user has enough.
/// @param beendet whether the program is to end: nothing more is shown then
void SchreibeInDialogen(QWidget* eltern, const std::function<bool()>& beendet);

} // namespace varnoth
