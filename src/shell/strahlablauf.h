#pragma once

#include "menuebefehle.h"

#include <functional>
#include <memory>

namespace varnoth {

class Konfigurationsablauf;
class Messablauf;

/// The beam history as the main window runs it: its window, the blanking that it suggests and its section of
/// the report.
class Strahlablauf {
public:
    /// The first two must outlive this object. `klick` stores a command.
    Strahlablauf(Messablauf& messung, Konfigurationsablauf& ablauf,
                 const std::function<void(Befehl befehl)>& klick);
    ~Strahlablauf();

    /// Shows the window.
    void Zeige();
    /// Opens the editor with the pattern that was suggested last, once for each suggestion.
    void BearbeiteVorschlag();
    /// Shows the report. The user can add the section that was handed over last; it is there at first when
    /// asked for. Whether another configuration was imported there.
    [[nodiscard]] bool Berichte(bool mitStrahlen);
    /// The language has changed: a section that speaks the other one is gone.
    void Lokalisiere();

private:
    struct Wunsch;

    Messablauf& messung;
    Konfigurationsablauf& ablauf;
    std::unique_ptr<Wunsch> wunsch;
};

} // namespace varnoth
