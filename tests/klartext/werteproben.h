#pragma once

#include "registerbeschreibung.h"

#include <string>
#include <utility>
#include <vector>

/// Values of the controller's parameters to try words on.
namespace varnoth::werteproben {

struct Ort {
    Speicherbereich bereich;
    std::int16_t adresse;
};

struct Probe {
    Ort ort;
    Werte werte;

    Probe(Speicherbereich bereich, std::int16_t adresse, Werte alle)
        : ort{bereich, adresse}, werte(std::move(alle)) {}
};

/// Where the description table has a parameter.
std::vector<Ort> AlleOrte();

/// Every value that the controls of the editor offer.
std::vector<Probe> AllesWasDerEditorAnbietet();
/// The same, and what the editor stores where nothing is selected or more is typed than fits.
std::vector<Probe> AllesAusDemEditor();

/// So many random values of every parameter, the same in each run.
std::vector<Probe> Beliebige(int jeParameter);

/// Words of random values in which characters have been changed, the same in each run.
std::vector<std::pair<Ort, std::string>> VerdrehteWorte(int anzahl);

} // namespace varnoth::werteproben
