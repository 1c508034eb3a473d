#pragma once

#include "felder.h"
#include "lesart.h"

#include <vector>

/// The fields of the registers that say one thing for each part of their bits. A register whose fields depend
/// on one another can be put together in several ways, each with fields of its own.
namespace varnoth {

using Fuegungen = std::vector<Felder>;

Fuegungen Geraetetypfelder(const Lesart& lesart);
Fuegungen PnpAusgangsfelder(const Lesart& lesart);
Fuegungen Geraetestatusfelder(const Lesart& lesart);

Fuegungen Aufloesungsfelder(const Lesart& lesart);
Fuegungen Reichweitenfelder(const Lesart& lesart);
Fuegungen Integrationsfelder(const Lesart& lesart);
Fuegungen Gruppenzaehlerfelder(const Lesart& lesart);
Fuegungen Haltezeitfelder(const Lesart& lesart);
Fuegungen Lochgroessenfelder(const Lesart& lesart);
Fuegungen Toleranzfelder(const Lesart& lesart);
Fuegungen Optikteilstatusfelder(const Lesart& lesart);

Fuegungen Bustypfelder(const Lesart& lesart);
Fuegungen Formatfelder(const Lesart& lesart);
Fuegungen Stationsfelder(const Lesart& lesart);
Fuegungen Autosendfelder(const Lesart& lesart);
Fuegungen Autosendformatfelder(const Lesart& lesart);

} // namespace varnoth
