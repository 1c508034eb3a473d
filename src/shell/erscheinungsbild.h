#pragma once

#include "darstellungswahl.h"

#include <QPalette>
#include <QString>

namespace varnoth {

/// Gives the application its looks, and back those that it had.
class Erscheinungsbild {
public:
    /// The application looks like this from now on.
    explicit Erscheinungsbild(const Darstellung& darstellung = {}) { WendeAn(darstellung); }
    Erscheinungsbild(const Erscheinungsbild&) = delete;
    Erscheinungsbild& operator=(const Erscheinungsbild&) = delete;
    /// The application looks as it did before.
    ~Erscheinungsbild();

    /// Every open window looks like this at once.
    void WendeAn(const Darstellung& neue);
    const Darstellung& Gewaehlt() const { return gewaehlt; }

private:
    void Gib(Erscheinung erscheinung);

    Darstellung gewaehlt;
    QString systemstil; ///< empty while the system's looks are in force
};

} // namespace varnoth
