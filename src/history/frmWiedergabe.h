#pragma once

#include "ereignissuche.h"
#include "wiedergabesteuerung.h"

#include <QTimer>
#include <QWidget>

#include <cstdint>
#include <memory>
#include <optional>

namespace varnoth {

namespace Ui {
class frmWiedergabe;
}

/// The bar from which a replay is played: time line, play and pause, single passes, events, speed, and the
/// ways to the record's configuration and out of the replay.
class frmWiedergabe : public QWidget {
    Q_OBJECT

public:
    /// `steuerung` must outlive the bar.
    explicit frmWiedergabe(Wiedergabesteuerung& steuerung, QWidget* parent = nullptr);
    ~frmWiedergabe() override;

    /// Another record is replayed: all begins anew.
    void Beginne();
    /// The replay is over: the bar does nothing more.
    void Beende();
    /// The replay was moved from elsewhere.
    void Folge();
    /// Fills all texts in the current language again.
    void Lokalisiere();

protected:
    void changeEvent(QEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;

private:
    void RichteMeldungEin();
    void ZeigeMeldung();
    void VerbindeKnoepfe();
    void VerbindeZeitleiste();
    void FuelleArten();
    void FuelleTempi();
    void BaueMenue();

    void Takt();
    void SucheNotizen();
    void SucheWeiter();
    void PlaneTakt();

    void SchalteUm();
    void GeheZu(Zeit laufzeit);
    void GeheZurEingabe();
    void Schreite(bool vorwaerts);
    void Springe(bool vorwaerts);
    void AendereTempo(bool schneller);
    void Zeige();
    void ZeigeKnopf();
    void Melde(const std::string& text);
    void MeldeEingabefehler(const std::string& text);

    std::unique_ptr<Ui::frmWiedergabe> ui;
    Wiedergabesteuerung& steuerung;
    QTimer uhrwerk{this};
    std::optional<Ereignissuche> suche;
    std::uint64_t naechstesPaket = 0; ///< in which notes are still to be looked for
    bool spielt = false;              ///< as the button shows it
    bool eingabeFalsch = false;       ///< the message says what is wrong with what was typed
    bool lageGenannt = false;         ///< the message says why there is nothing to be seen
};

} // namespace varnoth
