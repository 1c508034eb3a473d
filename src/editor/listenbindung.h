#pragma once

#include "auswahlliste.h"

class QComboBox;
class QLabel;

namespace varnoth {

/// Refills the box with the list's items and selects the one of the register value. A value outside the list
/// leaves the box empty; its tool tip then tells the value until something is selected.
void ZeigeListe(QComboBox& box, const Auswahlliste& liste, std::int32_t zyklus, std::int32_t registerwert);

/// Lets the tool tip tell the value that the box was filled with, if nothing is selected.
void ZeigeHinweis(QComboBox& box);

/// The register value of the selected item.
std::int32_t GewaehlterWert(const QComboBox& box, const Auswahlliste& liste);

/// Lets the label show from now on the value that the selection sends. It keeps its width meanwhile.
void VerbindeUebertragenenWert(QComboBox& box, const Auswahlliste& liste, QLabel& zeile);

} // namespace varnoth
