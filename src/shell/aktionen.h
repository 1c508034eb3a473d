#pragma once

#include <QString>

class QAction;
class QObject;

namespace varnoth {

/// The action of that name below `fenster`.
/// @throws std::logic_error when there is none: a table names an action that its form does not have
QAction& Aktion(const QObject& fenster, const QString& name);

} // namespace varnoth
