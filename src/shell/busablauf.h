#pragma once

#include "protokollanbieter.h"

#include <QString>

#include <functional>
#include <memory>

namespace varnoth {

class frmBusprotokoll;

/// The bus log as the main window runs it: its window, the files it writes, and what the program knows for
/// support.
class Busablauf : private Protokollanbieter {
public:
    /// `einstellungsdatei` tells where the settings of this run lie.
    explicit Busablauf(std::function<QString()> einstellungsdatei);
    ~Busablauf() override;

    /// Shows the window, which listens as long as it is open.
    void Zeige();
    /// Fills all texts in the current language again.
    void Lokalisiere();
    /// The program ends.
    void Schliesse();

private:
    std::optional<std::string> FrageNachDatei(const std::string& titel, const std::string& filter,
                                              const std::string& name) override;
    bool Schreibe(const std::string& pfad, const std::string& bytes) override;
    Supportangaben Angaben() override;

    std::function<QString()> einstellungsdatei;
    std::unique_ptr<frmBusprotokoll> fenster;
};

} // namespace varnoth
