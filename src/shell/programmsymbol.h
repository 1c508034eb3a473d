#pragma once

#include <QIcon>

namespace varnoth {

/// The program's own picture, for window frames, splash window and about box.
QIcon Programmsymbol();

} // namespace varnoth
