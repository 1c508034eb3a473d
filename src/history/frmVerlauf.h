#pragma once

#include "verlaufsschreiber.h"
#include "verlaufswahl.h"

#include <QPrinter>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <string>

class QCheckBox;

namespace varnoth {

namespace Ui {
class frmVerlauf;
}

class Messanbieter;
class Messtakt;

/// Shows measured values over time in a window of its own beside the main window. What is chosen and its
/// place are kept in the settings. What takes long is done in short pieces while the line is busy anyway.
class frmVerlauf : public QWidget {
    Q_OBJECT

public:
    /// `anbieter` must outlive the window.
    explicit frmVerlauf(Messanbieter& anbieter);
    ~frmVerlauf() override;

    /// Fills all texts in the current language again.
    void Lokalisiere();
    /// Shows the window or brings it to the front.
    void ZeigeVor();
    /// Whether it needs optical part 0..3 measured although no view shows it.
    bool Braucht(int teil) const;

    /// Lets the user choose and set up a printer; false when he does not. Without one that is set it is the
    /// system's dialog.
    using Druckerwahl = std::function<bool(QPrinter& drucker)>;
    void SetzeDruckerwahl(Druckerwahl neue) { druckerwahl = std::move(neue); }

protected:
    void showEvent(QShowEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;

private:
    void BaueTafel();
    void VerbindeWahl();
    void VerbindeBild();
    void VerbindeKnoepfe();
    void LiesEinstellungen();
    void SchreibEinstellungen() const;
    void BeginneNeu();
    void Erneuere();
    void WaehleAnfang();
    void UebernimmWahl();
    void ZeigeWahl();
    void ZeigeTitel();
    void FuelleBreiten();
    void ZeigeBlick();
    void ZeigeWorte();
    void ZeigeMeldung(const std::string& text);
    void Notiere(bool amZeiger);
    void KopiereBild();
    void Drucke();
    QString Ueberschrift() const;
    void Speichere();
    void Plane();
    void SchreibeWeiter();
    void BrichAb();
    QCheckBox& Kreuz(int stelle) const;

    std::unique_ptr<Ui::frmVerlauf> ui;
    Messanbieter& anbieter;
    Messtakt* takt = nullptr;
    Druckerwahl druckerwahl;
    bool selbstGewaehlt = false; ///< the user, now or when the window was last open
    bool anfangGewaehlt = false; ///< for a source that has something
    std::string pfad;            ///< of what is written
    std::optional<Verlaufsschreiber> schreiber;
    bool geplant = false;
};

} // namespace varnoth
