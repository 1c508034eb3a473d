#pragma once

#include "hardwareinitialisierung.h"

#include <vector>

namespace varnoth::pruefung {

/// Writes down what the factory data procedure reports, and cancels where a test wants it.
struct Initialisierungsmitschrift : Initialisierungsanzeige {
    void ZeigeSchritt(const std::string& text) override { schritte.push_back(text); }
    void ZeigeVersuch(int versuch) override {
        versuche.push_back(versuch);
        abbruch = versuch == abbruchBeiVersuch || static_cast<int>(schritte.size()) == abbruchBeiSchritt;
    }
    bool Abgebrochen() override { return abbruch; }

    std::vector<std::string> schritte;
    std::vector<int> versuche;
    int abbruchBeiVersuch = 0; ///< 0 = at none
    int abbruchBeiSchritt = 0; ///< counted from 1; 0 = at none
    bool abbruch = false;
};

} // namespace varnoth::pruefung
