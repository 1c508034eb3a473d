#pragma once

#include "anschlussstand.h"

#include <string>

namespace varnoth {

/// What is wrong with the name of a device, in words of the current language; empty where nothing is. Whether
/// the device is there plays no part.
std::string GeraetenameBefund(const std::string& name);

/// What is wrong with a line format, in words of the current language; empty where nothing is.
std::string FormatBefund(const std::string& format);

/// Whether everything a person has chosen can be put in force.
bool IstGueltig(const Anschlusswahl& wahl);

/// What a person has typed, without blanks around the texts.
Anschlusswahl OhneBlanks(Anschlusswahl wahl);

/// Whether the choice changes what the program is or would be connected to: live data has to stop for it.
bool BetrifftVerbindung(const Anschlussstand& stand, const Anschlusswahl& wahl);

/// Whether there is anything to put in force: a device that was named for this run ends with it.
bool HatWirkung(const Anschlussstand& stand, const Anschlusswahl& wahl);

/// What a person has entered, once other values are in force: what was untouched follows.
Anschlusswahl Nachgefuehrt(const Anschlusswahl& eingabe, const Anschlusswahl& alt, const Anschlusswahl& neu);

/// The choice with a found controller: its device and line format, and the number in use.
Anschlusswahl MitFund(Anschlusswahl wahl, int com, const std::string& geraet, const std::string& format);

} // namespace varnoth
