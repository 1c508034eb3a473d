#pragma once

#include <limits>

class QTreeWidget;

namespace varnoth {

/// Makes the columns of a list as wide as what stands in them, at most so many average characters, with room
/// between them. The last one has what is left.
void PasseSpaltenAn(QTreeWidget& liste, int hoechstensZeichen = std::numeric_limits<int>::max());

} // namespace varnoth
