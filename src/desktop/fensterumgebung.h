#pragma once

#include "malaufschub.h"
#include "qtumgebung.h"

namespace varnoth {

/// The environment of a program with windows: painting waits until the line is busy, messages are boxes.
class Fensterumgebung : public QtUmgebung {
protected:
    Antwort Frage(const Meldung& meldung) override;

private:
    Malaufschub malen{Pumpe()};
};

} // namespace varnoth
