#pragma once

class QWidget;

namespace varnoth {

/// The window over which a box or dialog opens: the dialog in front or the active window; nullptr when the
/// program has none.
QWidget* FensterVorn();

} // namespace varnoth
