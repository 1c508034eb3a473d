#pragma once

#include <QObject>
#include <QString>

#include <stdexcept>

namespace varnoth::pruefung {

/// The element of that name below a window; a missing one fails the test by an exception.
template<class Element>
Element& Kind(const QObject& fenster, const QString& name) {
    auto* const element = fenster.findChild<Element*>(name);
    if (element == nullptr)
        throw std::runtime_error("no element " + name.toStdString());
    return *element;
}

} // namespace varnoth::pruefung
