#pragma once

#include "abbild.h"

#include <functional>
#include <string>

class QWidget;

namespace varnoth {

/// Shows the report about the configuration in use until its window is closed. `nachImport` runs when another
/// configuration has been imported there.
void ZeigeBericht(QWidget* eltern, const std::function<void()>& nachImport);

/// Shows the report about another configuration, of which only `quelle` is known.
/// @param name proposed for files, without ending
void ZeigeBerichtUeber(QWidget* eltern, const Abbild& abbild, const std::string& quelle,
                       const std::string& name);

} // namespace varnoth
