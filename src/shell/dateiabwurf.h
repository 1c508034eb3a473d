#pragma once

#include <string>
#include <vector>

class QMimeData;

namespace varnoth {

/// The files (UTF-8 paths) that are dragged over a window; none when not everything dragged is a file of this
/// computer.
std::vector<std::string> GezogeneDateien(const QMimeData& daten);

} // namespace varnoth
