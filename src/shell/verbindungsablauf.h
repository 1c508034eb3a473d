#pragma once

#include "leitungspruefung.h"
#include "menuebefehle.h"
#include "portliste.h"
#include "suchlauf.h"
#include "verbindungsanbieter.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace varnoth {

class frmVerbindung;

/// The connection window as the main window runs it: ports and settings of the machine, and the search and
/// the line check, which have the line to themselves between two polling passes.
class Verbindungsablauf : private Verbindungsanbieter, private Suchzeiger, private Pruefzeiger {
public:
    /// What the window needs of the program around it.
    struct Ziel {
        std::function<void(Befehl befehl)> klick;     ///< stores a command
        std::function<bool(Befehl befehl)> wartetAuf; ///< whether it waits still
        std::function<bool()> unterbrochen;           ///< something else is wanted while a command runs
        std::function<void(int nummer)>
            nimmPort; ///< closes the line; it leads to this serial port from now on
        std::function<void(const std::function<void()>& tat)> amPort; ///< does something on the serial ports
        std::function<bool()> immerSimuliert; ///< the built-in controller answers for the whole run
    };

    explicit Verbindungsablauf(Ziel ziel);
    ~Verbindungsablauf() override;

    /// Shows the window, at the page of the search where that is wanted.
    void Zeige(bool suche);
    /// Puts in force what was chosen in the window. Live data must not run.
    void FuehreUebernahmeAus();
    /// Searches the controller on the ports that were chosen. Live data must not run meanwhile.
    void FuehreSucheAus();
    /// Checks the line in use. Live data must not run meanwhile.
    void FuehrePruefungAus();
    /// A command has run: what is shown may have changed, and what was asked for may have been displaced.
    void Erneuere();
    /// Fills all texts in the current language again.
    void Lokalisiere();
    /// The program ends: the window closes, and with it a search or check under way.
    void Schliesse();

private:
    frmVerbindung& Fenster();
    void SetzeInKraft(const Anschlusswahl& wahl);

    std::vector<Portangabe> Ports() override;
    Anschlussstand Stand() override;
    Portbefund Befund(const std::string& geraet) override;
    void Uebernimm(const Anschlusswahl& wahl, bool verbinde) override;
    void Suche(const std::vector<std::string>& geraete) override;
    void PruefeLeitung() override;
    void BrichAb() override { abbruch = true; }
    std::string StelleVerzoegerung(const Portangabe& port) override;

    void Zeige(const Suchstand& stand) override;
    void Zeige(const Pruefbefund& bisher) override;
    bool Abgebrochen() override;

    Ziel ziel;
    Portbeobachter beobachter;
    std::unique_ptr<frmVerbindung> fenster;
    Anschlusswahl gewaehltes;          ///< to be put in force
    bool dannVerbinden = false;        ///< and then connected
    std::vector<std::string> gesuchte; ///< devices to search
    Befehl verlangt = Befehl::Keiner;  ///< search or check that was asked for and has not begun
    bool abbruch = false;
};

} // namespace varnoth
