#pragma once

#include "geraetestand.h"
#include "schreibvorgang.h"

#include <optional>
#include <string>

namespace varnoth {

/// What a write changes of what the line itself needs: station address and the format in which autosend
/// sends, and how to find the controller again. In the current language, a line each; empty when neither
/// changes or it is not known what the controller holds; of its address the identification tells that too.
std::string Leitungswarnung(const Schreibauftrag& auftrag, const std::optional<Geraetestand>& stand);

} // namespace varnoth
