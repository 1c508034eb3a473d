#pragma once

#include "vergleichsanbieter.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace varnoth {

class frmVergleich;
class Geraetebetrieb;

/// The comparison as the main window runs it: its window, the files it compares, and the controller, which is
/// read between two polling passes.
class Vergleichsablauf : private Vergleichsanbieter {
public:
    /// `verlangeGeraet` stores the command that reads the controller (`LiesGeraet`).
    explicit Vergleichsablauf(std::function<void()> verlangeGeraet);
    ~Vergleichsablauf() override;

    /// Shows the window; the first time it compares what was read last with what is being edited.
    void Zeige();
    /// Shows the window with these two sides.
    void Zeige(const Vergleichsseite& a, const Vergleichsseite& b);
    /// Reads the controller for the side that asked for it. Live data must not run meanwhile.
    void LiesGeraet(Geraetebetrieb& betrieb);
    /// The configuration may have changed.
    void Erneuere();
    /// Fills all texts in the current language again.
    void Lokalisiere();
    /// The program ends.
    void Schliesse();

private:
    frmVergleich& Fenster();
    std::vector<Vergleichsquelle> Fragbare() override;
    void Verlange(Vergleichsquelle quelle, Seitenwahl seite) override;
    void SpeichereText(const std::string& text) override;
    void OeffneDatei(Vergleichsquelle quelle, const std::string& ordner, Seitenwahl seite);
    void OeffneSicherung(Seitenwahl seite);

    std::function<void()> verlangeGeraet;
    Seitenwahl geraeteseite = Seitenwahl::A;
    std::unique_ptr<frmVergleich> fenster;
};

} // namespace varnoth
