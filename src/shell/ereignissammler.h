#pragma once

#include "ereignisableitung.h"
#include "fehlschlagsumme.h"
#include "messhoerer.h"

#include <QTimer>

namespace varnoth {

/// Gathers what happens in this run: what the polling passes tell, and how exchanges fail, at which it looks
/// once a second. It sends nothing and holds up nobody.
class Ereignissammler : private Messhoerer {
public:
    Ereignissammler();
    ~Ereignissammler() override;

    /// Looks now.
    void Sieh();

private:
    void Hoere(const Messdurchgang& durchgang) override;
    void Hoere(const Liveereignis& ereignis) override;

    Ereignisableitung ableitung;
    Fehlschlagsumme fehlschlaege;
    QTimer takt;
};

} // namespace varnoth
