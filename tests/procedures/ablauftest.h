#pragma once

#include "pruefgeraet.h"
#include "registeradressen.h"
#include "schnittstelle.h"
#include "transaktionen.h"

#include <gtest/gtest.h>

namespace varnoth::pruefung {

/// Setting of the tests of procedures: an identified controller on an open port, an empty image, German
/// texts.
class AblaufTest : public testing::Test {
protected:
    AblaufTest() {
        modSchnittstelle::OpenCommPort();
        modModbus::RTUModeH11IndentifikationsAnforderung();
        port.gesendet.clear();
    }

    int AnzahlAnforderungen() const { return static_cast<int>(port.gesendet.size()); }
    /// The device swallows the next requests.
    void SchweigeBei(int anforderungen) {
        geraet.schweige = [this, bis = AnzahlAnforderungen() + anforderungen](const std::string&) {
            return AnzahlAnforderungen() <= bis;
        };
    }
    void SchweigeImmer() {
        geraet.schweige = [](const std::string&) { return true; };
    }

    PruefUmgebung umgebung;
    PruefPort port{umgebung};
    PruefGeraet geraet{port};
};

} // namespace varnoth::pruefung
