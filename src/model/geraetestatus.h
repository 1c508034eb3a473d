#pragma once

#include <cstdint>
#include <string>

namespace varnoth::modDaten {

/// What the controller's status word (`global::Geraetestatus`) has to tell the user, in the current language:
/// no optical part connected, changed beam counts, unreadable part configurations. Empty when there is
/// nothing.
std::string Geraetestatustext(std::int32_t statuswort);

/// Whether an optical part's status word (`spezifisch::Optikteilstatus`) says that the part is present.
bool IstOptikteilVorhanden(std::int32_t statuswort);

/// Shows the text of the status word in the image in a warning box, unless it is empty.
void ZeigeGeraetestatus();

} // namespace varnoth::modDaten
