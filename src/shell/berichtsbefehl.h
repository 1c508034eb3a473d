#pragma once

#include "abbild.h"
#include "strahlbericht.h"

#include <functional>
#include <optional>
#include <string>

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

/// Shows the report about another configuration, of which only `quelle` is known.
/// @param name proposed for files, without ending
void ZeigeBerichtUeber(QWidget* eltern, const Abbild& abbild, const std::string& quelle,
                       const std::string& name);

} // namespace varnoth
