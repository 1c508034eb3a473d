#include "zuordnung.h"

#include "gestalt.h"
#include "rahmen.h"

#include <algorithm>
#include <utility>

namespace varnoth {

namespace {

Funktion FunktionVon(const std::string& anforderung) {
    return static_cast<Funktion>(anforderung.at(1));
}

} // namespace

void Zuordnung::Gesendet(const std::string& anforderung) {
    if (!offene.empty() && offene.back().anforderung == anforderung) {
        ++offene.back().anzahl;
        return;
    }
    if (offene.size() == Hoechstzahl)
        offene.erase(offene.begin());
    offene.push_back({anforderung});
}

void Zuordnung::Beantwortet(const std::string& anforderung) {
    zuletztBeantwortet = anforderung;
    const auto gleicheGestalt = [gestalt = Gestalt(anforderung)](const Offene& offen) {
        return Gestalt(offen.anforderung) == gestalt;
    };
    const auto aelteste = std::ranges::find_if(offene, gleicheGestalt);
    if (aelteste == offene.end())
        return;
    const bool bleibt = --aelteste->anzahl > 0;
    offene.erase(offene.begin(), bleibt ? aelteste : aelteste + 1);
    for (Offene& offen : offene)
        offen.uebrig = true;
}

void Zuordnung::Ueberzaehliges() {
    if (zuletztBeantwortet.empty())
        return;
    Gesendet(std::exchange(zuletztBeantwortet, {}));
    offene.back().uebrig = true;
}

bool Zuordnung::Verwechselbar(const std::string& anforderung) const {
    // Identification settles the others; there is nothing to settle it with, and it always tells the same.
    if (FunktionVon(anforderung) == Funktion::Identifikation)
        return false;
    if (offene.size() == Hoechstzahl)
        return true;
    bool dieselbeIstOffen = false;
    for (const Offene& offen : offene) {
        const bool dieselbe = offen.anforderung == anforderung;
        if (dieselbeIstOffen && !dieselbe && Schreibt(offen.anforderung))
            return true;
        if (Gestalt(offen.anforderung) == Gestalt(anforderung) && (!dieselbe || offen.uebrig))
            return true;
        dieselbeIstOffen = dieselbeIstOffen || dieselbe;
    }
    return false;
}

} // namespace varnoth
