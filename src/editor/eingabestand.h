#pragma once

#include <QVariantMap>

class QWidget;

namespace varnoth {

/// What the named controls below an element hold: selections, checks and texts, by the controls' names. Two
/// of them differ when the user has changed something between.
QVariantMap EingabestandVon(const QWidget& element);

} // namespace varnoth
