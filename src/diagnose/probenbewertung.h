#pragma once

#include "identprobe.h"
#include "leitungspruefung.h"

namespace varnoth {

/// How an identification has ended.
/// @param bekannte a reply of this controller that was in order; empty before the first
Pruefende EndeVon(const Identprobe& probe, const std::string& bekannte);

/// Counts an identification in the finding.
/// @param mitParitaet whether the system marks broken bytes
void Zaehle(Pruefbefund& befund, const Identprobe& probe, const std::string& bekannte, bool mitParitaet);

} // namespace varnoth
