#pragma once

#include "ablaufanzeige.h"
#include "konfigurationstransfer.h"
#include "parameterstelle.h"
#include "schrittfolge.h"
#include "werte.h"

#include <functional>
#include <span>
#include <vector>

namespace varnoth {

/// Hears what was read, once it is certain.
using Registerziel = std::function<void(const Transferparameter& parameter, const Werte& werte)>;

/// The exchanges that read these registers, with the selection of the optical part before each that needs
/// one.
std::vector<Transferschritt> Leseschritte(std::span<const Transferparameter> parameter,
                                          const Registerziel& ziel);

/// Reads registers past the image in use, each retried without limit. False when the user cancelled.
bool LiesRegister(Ablaufanzeige& anzeige, std::span<const Transferparameter> parameter,
                  const Registerziel& ziel);

/// Writes registers past the image in use, retried without limit; they need not be a parameter. What the
/// controller held of them is not known any more (`modGeraetestand`). False when the user cancelled: the
/// controller may have taken them all the same.
bool SchreibeRegister(Ablaufanzeige& anzeige, const Transferparameter& parameter, const Werte& werte);

/// The readable parameters that have one of these registers.
Parametermenge ParameterMitRegistern(const Transferparameter& parameter);

} // namespace varnoth
