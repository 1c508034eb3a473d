#pragma once

#include "strahlbericht.h"

#include <functional>
#include <optional>

class QWidget;

namespace varnoth {

/// A section about beams that the report can have, and whether it has it at first.
struct Strahlzusatz {
    std::optional<Strahlbericht> strahlen{};
    bool mitStrahlen = false;
};

/// Shows the report about the configuration in use until its window is closed. `nachImport` runs when another
/// configuration has been imported there.
void ZeigeBericht(QWidget* eltern, const std::function<void()>& nachImport, const Strahlzusatz& zusatz = {});

} // namespace varnoth
