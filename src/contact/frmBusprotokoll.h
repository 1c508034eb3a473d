#pragma once

#include "busmodell.h"
#include "busschreiber.h"
#include "bussuche.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace varnoth {

namespace Ui {
class frmBusprotokoll;
}

class Protokollanbieter;

/// Shows what goes over the line, exchange by exchange, in a window of its own beside the main window. It
/// listens as long as it is open; what it has heard stays when it is closed. What takes long is done in short
/// pieces while the line is busy anyway.
class frmBusprotokoll : public QWidget {
    Q_OBJECT

public:
    /// `anbieter` must outlive the window.
    explicit frmBusprotokoll(Protokollanbieter& anbieter);
    ~frmBusprotokoll() override;

    const Busprotokoll& Protokoll() const { return protokoll; }
    /// Fills all texts in the current language again.
    void Lokalisiere();
    /// Shows the window or brings it to the front.
    void ZeigeVor();

protected:
    void showEvent(QShowEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;
    void changeEvent(QEvent* ereignis) override;

private:
    /// A piece of writing that goes on step by step.
    struct Auftrag {
        Busschreiber schreiber;
        std::function<void(const std::string& text)> fertig;
    };

    void RichteTabelleEin();
    void VerbindeFilter();
    void VerbindeAnzeige();
    void VerbindeKnoepfe();
    void VerbindeTasten();

    void BlickeNach();
    void Plane();
    void Arbeite();
    void Folge();
    void SucheWeiter();
    void SchreibeWeiter();

    void Filtere();
    void BeginneNeu(const Busfilter& filter);
    std::size_t Rueckstand() const;
    void FuelleArten();
    void Suche(bool aufwaerts);
    void Leere();
    void Kopiere();
    void Speichere();
    void StelleZusammen();
    void Beginne(Busschreiber schreiber, std::function<void(const std::string& text)> fertig);
    void BrichAb();
    void BieteMenue(const QPoint& stelle);
    void ZeigeEinzelheiten();
    void ZeigeStand();
    void ZeigeMeldung(const std::string& text);
    void Rolle(int wert);
    std::optional<std::size_t> GewaehlteZeile() const;

    std::unique_ptr<Ui::frmBusprotokoll> ui;
    Protokollanbieter& anbieter;
    Busprotokoll protokoll;
    Busmodell* modell;
    QTimer takt{this};
    Bussuche suche;
    std::string gesucht;
    std::optional<Auftrag> auftrag;
    std::uint64_t gesehen = 0;   ///< the newest exchange when the window last looked
    std::size_t nachzuholen = 0; ///< of what there was when the filter was chosen
    bool geplant = false;
    bool rolltSelbst = false;
};

} // namespace varnoth
