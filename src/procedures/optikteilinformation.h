#pragma once

#include "ablaufanzeige.h"

#include <string>

namespace varnoth {

/// Whoever shows which optical parts are present.
class Optikteilanzeige : public Ablaufanzeige {
public:
    /// The line of an optical part 0..3, first without and then with what the controller said.
    virtual void ZeigeOptikteil(int optikteil, const std::string& text) = 0;
    /// How many of the optical parts have been asked.
    virtual void ZeigeFortschritt(int erledigt, int gesamt) = 0;
};

/// Asks the controller for each of the four optical parts whether it is present, and keeps the answers in the
/// register image. Every exchange is retried without limit. False when the user cancelled.
bool HoleOptikteilInformation(Optikteilanzeige& anzeige);

/// Stores the presence of each part that specific register 44 tells, and how many parts a polling pass asks:
/// up to the last one that is present.
void UebernimmOptikteile();

} // namespace varnoth
