#pragma once

#include "ablaufanzeige.h"

namespace varnoth {

/// Whoever shows a restart of the controller.
class Resetanzeige : public Ablaufanzeige {
public:
    /// An attempt after the first begins: 2, 3, 4 ...
    virtual void ZeigeWiederholung(int versuch) = 0;
};

/// Has the controller restart as at power-up; retried without limit. False when the user cancelled.
bool SetzeHardwareZurueck(Resetanzeige& anzeige);

} // namespace varnoth
