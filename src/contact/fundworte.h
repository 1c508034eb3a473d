#pragma once

#include "anschlussstand.h"
#include "portangabe.h"
#include "suchlauf.h"

#include <cstdint>
#include <string>
#include <vector>

namespace varnoth {

/// What is known of a found controller, a line each: its texts, its address, and where and how it answers, in
/// the current language.
std::string Fundzeilen(const Suchfund& fund);

/// Where a controller was found; nullptr where that port is not there any more.
const Portangabe* Fundport(const Suchfund& fund, const std::vector<Portangabe>& ports);

/// The name under which the device is best kept where a controller was found.
std::string Fundgeraet(const Suchfund& fund, const std::vector<Portangabe>& ports);

/// The COM number that a found controller is offered for: one that means its port already, the one in use
/// before others; else the one in use.
int Fundnummer(const Suchfund& fund, const std::vector<Portangabe>& ports, const Anschlussstand& stand);

/// The result of a try in words of the current language. Words that were made in another one give way to
/// shorter ones.
std::string Versuchsergebnis(const Suchstand& versuch, std::int16_t spracheDerWorte);

/// The same for the outcome of a search.
std::string Suchausgang(const Suchfund& fund, std::int16_t spracheDerWorte);

/// The devices of the ports, to tell whether ports have come or gone.
std::vector<std::string> Geraetenamen(const std::vector<Portangabe>& ports);

} // namespace varnoth
