#pragma once

#include <QVariantList>

class QWidget;

namespace varnoth {

/// What the controls below an element hold: selections, checks and texts, in a fixed order. Two of them
/// differ when the user has changed something between.
QVariantList EingabestandVon(const QWidget& element);

} // namespace varnoth
