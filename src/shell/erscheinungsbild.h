#pragma once

#include "darstellungswahl.h"
#include "systemdarstellung.h"

#include <QPalette>
#include <QString>

#include <functional>
#include <utility>

namespace varnoth {

/// Gives the application its looks, and back those that it had.
class Erscheinungsbild {
public:
    using Systemwunsch = std::function<bool()>;

    /// The application looks like this from now on.
    /// @param wunsch whether "like the system" means dark windows that Qt does not show by itself; asked
    /// whenever a
    ///               choice is put in force
    explicit Erscheinungsbild(const Darstellung& darstellung = {}, Systemwunsch wunsch = SystemWillDunkel)
        : systemWillDunkel(std::move(wunsch)) {
        WendeAn(darstellung);
    }
    Erscheinungsbild(const Erscheinungsbild&) = delete;
    Erscheinungsbild& operator=(const Erscheinungsbild&) = delete;
    /// The application looks as it did before.
    ~Erscheinungsbild();

    /// Every open window looks like this at once.
    void WendeAn(const Darstellung& neue);
    const Darstellung& Gewaehlt() const { return gewaehlt; }

private:
    void Zeige(Erscheinung erscheinung, Strahlfarbsatz farbsatz);
    void Gib(Erscheinung erscheinung);

    Systemwunsch systemWillDunkel;
    Darstellung gewaehlt;
    Erscheinung inKraft = Erscheinung::System;
    QString systemstil; ///< empty while the system's looks are in force
};

} // namespace varnoth
