#pragma once

#include <QEvent>
#include <QObject>

#include <map>

namespace varnoth::pruefung {

/// Counts the events of each kind that an object gets.
class Ereigniszaehler : public QObject {
public:
    explicit Ereigniszaehler(QObject& ziel) { ziel.installEventFilter(this); }

    bool eventFilter(QObject* /*ziel*/, QEvent* ereignis) override {
        ++anzahl[ereignis->type()];
        return false;
    }

    std::map<QEvent::Type, int> anzahl;
};

} // namespace varnoth::pruefung
