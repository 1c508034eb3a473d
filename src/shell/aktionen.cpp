#include "aktionen.h"

#include <QAction>

#include <stdexcept>

namespace varnoth {

QAction& Aktion(const QObject& fenster, const QString& name) {
    auto* const aktion = fenster.findChild<QAction*>(name);
    if (aktion == nullptr)
        throw std::logic_error("no action " + name.toStdString());
    return *aktion;
}

} // namespace varnoth
