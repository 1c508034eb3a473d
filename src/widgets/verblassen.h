#pragma once

#include <QWidget>

namespace varnoth {

/// Gives an element's text half of the contrast that it has in a palette, or its own colour back. With high
/// contrast pale is what cannot be chosen, which stays legible. To be called anew when that palette has
/// changed.
void Verblasse(QWidget& element, bool blass, const QPalette& vorbild);

} // namespace varnoth
