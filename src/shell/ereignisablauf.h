#pragma once

#include "ereignisanbieter.h"
#include "ereignissammler.h"
#include "ereignistagebuch.h"

#include <functional>
#include <memory>

namespace varnoth {

class frmEreignisse;
class Messanbieter;

/// The events as the main window runs them: what gathers them, their window, and the files of the days.
class Ereignisablauf : private Ereignisanbieter {
public:
    /// The past must outlive this object.
    explicit Ereignisablauf(Messanbieter& messungen);
    ~Ereignisablauf() override;

    void Zeige();
    /// Fills all texts in the current language again.
    void Lokalisiere();
    /// The program ends: what is due is written.
    void Schliesse();

private:
    Mitschriftstand Mitschrift() override { return tagebuch.Stand(); }
    void SetzeMitschrift(bool laeuft, const std::string& ordner) override { tagebuch.Setze(laeuft, ordner); }
    std::optional<std::string> FrageNachOrdner(const std::string& titel, const std::string& anfang) override;

    Messanbieter& messungen;
    Ereignissammler sammler;
    Ereignistagebuch tagebuch;
    std::unique_ptr<frmEreignisse> fenster;
};

} // namespace varnoth
