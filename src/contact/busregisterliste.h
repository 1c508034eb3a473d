#pragma once

#include "busrahmen.h"

#include <optional>

class QComboBox;

namespace varnoth {

/// The list of registers that the bus log can be narrowed to: all, those that have a name, and one more that
/// somebody has met.

/// Fills the list in the current language; what is chosen stays chosen.
void FuelleRegisterliste(QComboBox& liste);
/// What is chosen; nothing for all.
std::optional<Registerbezug> GewaehlterBezug(const QComboBox& liste);
/// Chooses these registers, which come into the list where they are missing.
void WaehleBezug(QComboBox& liste, const Registerbezug& bezug);

} // namespace varnoth
