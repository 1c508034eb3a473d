#pragma once

#include "bedienelement.h"
#include "frmMain.h"
#include "pruefumgebung.h"
#include "simulatorport.h"
#include "startzustand.h"

#include <QImage>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

namespace varnoth::hilfebilder {

using pruefung::Kind;

/// Lets time jump and events run, and shows status texts in the main window.
class Buehnenumgebung : public pruefung::PruefUmgebung {
public:
    Buehnenumgebung();

    void WarteAufEreignis(Zeit hoechstens) override;
    void ZeigeStatustext(int feld, const std::string& text) override;

    frmMain* hauptfenster = nullptr;
};

/// Where a picture is taken: the program's modules with the built-in controller on a clock that jumps, so
/// that the same scene comes out every time.
class Buehne {
public:
    explicit Buehne(std::int16_t sprachoffset);
    ~Buehne();
    Buehne(const Buehne&) = delete;
    Buehne& operator=(const Buehne&) = delete;

    /// The main window, connected, its views side by side, after some passes of live data; the first call
    /// makes it.
    frmMain& Hauptfenster();
    /// Live data ends; what was read stays in the image.
    void HalteAn();
    /// The window as it is once the condition holds. It is shown for that and closed afterwards.
    /// @throws std::runtime_error when that does not come within a minute of the jumping clock
    QImage Bild(QWidget& fenster, const std::function<bool()>& bedingung);
    /// The window as it is this long after it was shown.
    QImage BildNach(QWidget& fenster, Zeit dauer);
    /// What went wrong on the stage: the text of a message box that nobody expected; empty otherwise.
    std::string Zwischenfall() const;

private:
    void Fotografiere(QWidget& fenster, const std::function<bool()>& bedingung, QImage& bild);

    Startzustand startzustand; ///< comes first: what is fitted in below stays
    Buehnenumgebung umgebung;
    pruefung::PruefEinstellungen einstellungen;
    SimulatorPort port;
    std::unique_ptr<frmMain> hauptfenster;
};

/// The window as it is.
QImage Foto(QWidget& fenster);

} // namespace varnoth::hilfebilder
