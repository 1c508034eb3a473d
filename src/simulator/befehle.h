#pragma once

#include "steuergeraet.h"

namespace varnoth::simulator {

/// What a command can reach.
struct Werkbank {
    Steuergeraet& geraet;
    Optik& optik;
    Stoerungen& stoerungen;
    Protokoll& protokoll;
    Zaehlwerk& zaehlwerk;
    Zeit jetzt;
};

/// Carries one command line out (help lists them). Gives one line, "ok ..." or "error ...".
std::string FuehreBefehlAus(const Werkbank& werkbank, std::string_view zeile);

} // namespace varnoth::simulator
