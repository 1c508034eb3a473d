#pragma once

#include <QVariantMap>

class QWidget;

namespace varnoth {

/// What the named controls below an element hold: selections, checks and texts, by the controls' names. Two
/// of them differ when the user has changed something between.
QVariantMap EingabestandVon(const QWidget& element);

/// Lets the named controls below an element hold again what they held. A list in which nothing was selected
/// then tells the value outside of it again.
void StelleEingabestandHer(const QWidget& element, const QVariantMap& stand);

} // namespace varnoth
