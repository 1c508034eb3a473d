#pragma once

#include "sicherungen.h"

#include <functional>
#include <memory>
#include <string>

namespace varnoth {

class frmSicherungen;

/// The backups as the main window runs them: their window, and what it asks for.
class Sicherungsablauf {
public:
    /// What the window asks of the program around it.
    struct Ziel {
        std::function<void()> oeffne; ///< stores the command that opens `ZuOeffnende`
        std::function<void(const Sicherung& sicherung, const Abbild& abbild)>
            vergleiche; ///< with what is in use
    };

    explicit Sicherungsablauf(Ziel ziel);
    ~Sicherungsablauf();

    /// Shows the window; nothing happens where no backups are kept.
    void Zeige();
    /// The path of the backup that is to be opened.
    const std::string& ZuOeffnende() const { return gewaehlte; }
    /// The configuration may have changed.
    void Erneuere();
    /// Fills all texts in the current language again.
    void Lokalisiere();
    /// The program ends.
    void Schliesse();

private:
    void Vergleiche(const Sicherung& sicherung) const;
    static void SpeichereKopie(const Sicherung& sicherung);

    Ziel ziel;
    std::string gewaehlte;
    std::unique_ptr<frmSicherungen> fenster;
};

} // namespace varnoth
