#pragma once

#include <QIcon>
#include <QString>

namespace varnoth {

/// The program's own picture, for window frames, splash window and about box.
QIcon Programmsymbol();

/// One of the program's pictures, by its file name without ending; empty where there is none of that name.
QIcon Symbolbild(const QString& name);

} // namespace varnoth
