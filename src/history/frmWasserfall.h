#pragma once

#include "strahlmodell.h"
#include "strahlstatistik.h"
#include "strahltabelle.h"

#include <QTimer>
#include <QWidget>

#include <memory>
#include <optional>

class QSortFilterProxyModel;

namespace varnoth {

namespace Ui {
class frmWasserfall;
}

class Messanbieter;
class Messtakt;

/// The past of the beams of one optical part: the waterfall, the statistics of a time that is chosen in it
/// (of all the time where none is), and what they make suspicious. The statistics are counted in short pieces
/// while the line is busy anyway.
class frmWasserfall : public QWidget {
    Q_OBJECT

public:
    /// `anbieter` must outlive the window.
    explicit frmWasserfall(Messanbieter& anbieter);
    ~frmWasserfall() override;

    /// Fills all texts in the current language again.
    void Lokalisiere();
    /// Shows the window or brings it to the front.
    void ZeigeVor();
    /// What the statistics are about, and their numbers so far.
    Strahlbezug Bezug() const;
    const Strahlmodell& Statistik() const { return *modell; }

protected:
    void showEvent(QShowEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;

private:
    void RichteTabelleEin();
    void Verbinde();
    void VerbindeKnoepfe();
    void VerbindeTasten();
    void FuelleTeile();
    void WaehleTeil();
    void NimmNeueQuelle();
    void NimmZuwachs();

    void BeginneAuswertung();
    void Plane();
    void Arbeite();
    void ZeigeStatistik();
    void ZeigeVerdacht();
    void ZeigeStand();
    void ZeigeStelle();
    void ZeigeTitel();
    void ZeigeMeldung(const std::string& text);
    void BrichAb();

    void KopiereBild();
    void SpeichereTabelle();
    void SchlageBlankingVor();
    void Berichte();
    void ZeigeStrahl(int strahl);

    std::unique_ptr<Ui::frmWasserfall> ui;
    Messanbieter& anbieter;
    Messtakt* takt;
    Strahlmodell* modell;
    QSortFilterProxyModel* auswahl;
    QTimer verzug{this}; ///< between a chosen time and its statistics, and between two of live data
    QTimer bildtakt{this};
    std::optional<Strahlauswertung> auswertung;
    bool rechnet = false;
    bool abgebrochen = false;
    bool geplant = false;
};

} // namespace varnoth
