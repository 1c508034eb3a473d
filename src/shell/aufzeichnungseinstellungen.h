#pragma once

#include "aufzeichnungsanbieter.h"

#include <string>

namespace varnoth {

class Einstellungen;

/// What the settings say of recordings; what is missing there or out of range is as in a new choice.
Aufzeichnungswahl LiesAufzeichnungswahl(Einstellungen& einstellungen);
/// Stores what differs from what the settings say.
void SchreibAufzeichnungswahl(Einstellungen& einstellungen, const Aufzeichnungswahl& wahl);

Flugschreiber LiesFlugschreiber(Einstellungen& einstellungen);
void SchreibFlugschreiber(Einstellungen& einstellungen, const Flugschreiber& wahl);

/// Where recordings go; at first a folder of the program's own among the user's documents.
std::string LiesAufzeichnungsordner(Einstellungen& einstellungen);
void SchreibAufzeichnungsordner(Einstellungen& einstellungen, const std::string& ordner);

} // namespace varnoth
