#pragma once

#include "umgebung.h"

#include <QAccessible>
#include <QString>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

namespace varnoth {

/// Tells screen readers of texts that have changed, each at most twice a second.
class Ansager {
public:
    /// Tells everything to a listener instead, as if a screen reader were there; none: to the screen reader.
    static void SetzeHoerer(std::function<void(const QAccessibleEvent&)> hoerer);

    /// Watches a text of an element; `art` is the event that tells of its change.
    void Beobachte(QWidget& element, QAccessible::Event art, std::function<QString()> text);
    /// Tells of what has changed since the last time that was told, when its time has come. Gives whether
    /// nothing is left to be told; without a screen reader nothing ever is.
    bool Melde(Zeit jetzt);

private:
    struct Stelle {
        QWidget* element;
        QAccessible::Event art;
        std::function<QString()> text;
        QString gemeldet;
    };

    std::vector<Stelle> stellen;
    std::optional<Zeit> zuletzt;
};

} // namespace varnoth
