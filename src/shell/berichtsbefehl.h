#pragma once

#include <functional>

class QWidget;

namespace varnoth {

/// Shows the report about the configuration in use until its window is closed. `nachImport` runs when another
/// configuration has been imported there.
void ZeigeBericht(QWidget* eltern, const std::function<void()>& nachImport);

} // namespace varnoth
