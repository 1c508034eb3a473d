#pragma once

#include "umgebung.h"

namespace varnoth {

/// Shows a message box over the window in front and waits for its answer.
Antwort ZeigeMeldungsfenster(const Meldung& meldung);

} // namespace varnoth
