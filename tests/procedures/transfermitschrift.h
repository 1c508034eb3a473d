#pragma once

#include "konfigurationstransfer.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace varnoth::pruefung {

/// An attempt as it was shown.
struct Schritt {
    std::string bereich;
    std::string registertext;
    int anzahl;
    int versuch;
    bool operator==(const Schritt&) const = default;
};

/// Writes down what a transfer shows, and cancels at the step that `abbruchBei` picks.
struct Mitschrift : Transferanzeige {
    void ZeigeBereich(const std::string& text) override { bereich = text; }
    void ZeigeRegister(const std::string& registertext, int anzahl, int versuch) override {
        schritte.push_back({bereich, registertext, anzahl, versuch});
        if (abbruchBei && abbruchBei(schritte.back()))
            abbruch = true;
    }
    void ZeigeFortschritt(int erledigt, int gesamt) override { fortschritt.emplace_back(erledigt, gesamt); }
    void ZeigeEnde(const std::string& text) override { ende = text; }
    bool Abgebrochen() override { return abbruch; }

    std::string bereich;
    std::string ende;
    std::vector<Schritt> schritte;
    std::vector<std::pair<int, int>> fortschritt;
    std::function<bool(const Schritt&)> abbruchBei;
    bool abbruch = false;
};

} // namespace varnoth::pruefung
