#pragma once

#include "abbild.h"
#include "json.h"
#include "konfigurationstransfer.h"
#include "parameterstelle.h"
#include "registerbefund.h"
#include "vergleichsworte.h"

#include <vector>

namespace varnoth::ctl {

/// Where a parameter lies and what it is called: group, name, range, part (1 to 4; null outside the specific
/// range), register (in its range), deviceAddress.
std::vector<Json::Feld> Ortsfelder(const Transferparameter& parameter);
std::vector<Json::Feld> Ortsfelder(const Parameterstelle& stelle);

/// A parameter with its words and the values of all its registers.
Json WertAlsJson(const Abbild& abbild, const Parameterstelle& stelle);

/// A row of a comparison, the value of a side that has none being null.
Json ZeileAlsJson(const Vergleichsworte& worte, const Vergleichszeile& zeile, const Vergleichsbild& a,
                  const Vergleichsbild& b);

/// The rows of a finding; what stands in their third and fourth column takes these names.
Json BefundAlsJson(const Registerbefund& befund, std::string_view links, std::string_view rechts);

} // namespace varnoth::ctl
