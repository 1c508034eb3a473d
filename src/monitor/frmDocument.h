#pragma once

#include "ansager.h"
#include "ansichtsregeln.h"
#include "datenstand.h"
#include "liveansicht.h"
#include "werte.h"
#include "wertealter.h"

#include <QTimer>
#include <QWidget>

#include <array>
#include <cstdint>
#include <memory>

class QLabel;
class QMenu;

namespace varnoth {

namespace Ui {
class frmDocument;
}

class Strahlhinweis;
class Wertfeld;
class Zahlfeld;
class Zeigerschild;
class Zoomkopf;

/// Shows one optical part live: its beams, its measured values, its status. It lives in a frame of the main
/// window's area as long as the main window; closing hides it.
class frmDocument : public QWidget, public LiveAnsicht {
    Q_OBJECT

public:
    /// `teil` is 0..3.
    explicit frmDocument(int teil, QWidget* eltern = nullptr);
    ~frmDocument() override;

    /// Takes the measured values and the number of blanked beams over from the image. What is shown is true
    /// from then on.
    void SetAktuellMinMaxStatus();
    /// Sets the state of one beam: blanked where `blanking` is not 0, else free where `state` is not 0, else
    /// interrupted. Beam 0 begins a scan; an index that is no beam is ignored.
    void SetBeamIndexState(std::int16_t Index, std::int32_t state, std::int32_t blanking);
    /// A scan begins: nothing is drawn until EndeBeamRefresh.
    void StartBeamRefresh();
    /// Draws the scan, once.
    void EndeBeamRefresh();
    /// Sets the view up for the beam count and spacing in the image. It has no values then: all beams are
    /// interrupted and drawn as unknown until the next scan.
    void InitfrmDocument();
    /// Moves the view to its place in the settings file, if there is one. The view must be in its frame.
    void InitForm();
    /// Takes the status over from the image.
    void SetStatusSubgerät();

    /// Nothing that is shown holds any longer: no values and no status until the next ones come.
    void VerwirfWerte();
    /// Shows at once what else waits until the line is busy.
    void ZeigeFaelliges();
    /// Whether what is shown is of another time, as in a replay, and so does not become old.
    void SetzeZeitlos(bool ob);

    /// Fills all texts in the current language again.
    void Lokalisiere();
    /// Shows the view and brings it to the front.
    void Zeige();
    /// Lets the view fill the main window, or gives it its former place back.
    void SchalteGrossanzeige();
    bool IstGrossanzeige() const;
    /// Stores the place of the view; a minimised view and one that was never shown keep what is stored.
    void SpeicherePlatz() const;

    QSize minimumSizeHint() const override;

    bool ZeigtLiveDaten() const override;
    void NeuerDatensatz() override;
    void StrahlzustaendeLiegenVor() override;
    void BlankingBekannt() override;
    void MesswerteLiegenVor() override;

signals:
    /// The view was set up: its menu item is to be checked.
    void Eingerichtet();
    /// The view was closed: its menu item is to be unchecked.
    void Geschlossen();

protected:
    void changeEvent(QEvent* ereignis) override;
    void closeEvent(QCloseEvent* ereignis) override;
    void contextMenuEvent(QContextMenuEvent* ereignis) override;
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    void showEvent(QShowEvent* ereignis) override;

private:
    std::int32_t Register(std::int16_t adresse) const;
    std::string Abschnitt() const;
    void Verbinde();
    void RichteWerteEin();
    void RichteAnsagenEin();
    void VergissAnzeige();
    void ZeigeScan();
    void ZeigeWerte();
    void ZeigeStatus(const QString& text);
    void ZeigePosition(std::size_t k, std::int32_t wert);
    void ErgaenzeAnsage(std::size_t k);
    void WerteSindDa();
    void Takt();
    void PruefeAlter();
    void SetzeStand(Datenstand neuer);
    void FaerbeTexte();
    void ZeigeHinweis();
    void ZeigeStrahltext(int index);
    void ZeigeZustand(int index, Strahlzustand zustand);
    void KopiereWerte() const;
    void KopiereBild();
    void FuelleMenue(QMenu& menue);
    void BenenneWerte();
    void PasseZiffernAn();
    void PasseBreiteAn();
    void OrdneStatuszeile();

    std::unique_ptr<Ui::frmDocument> ui;
    std::int16_t optikteil;
    std::array<Wertfeld*, AnzahlMesswerte> felder{};
    std::array<Zahlfeld*, AnzahlMesswerte> positionen{}; // none for those that are counts
    std::array<std::int32_t, AnzahlMesswerte> gezeigteWerte{};
    int versatz = 0;
    std::int16_t gezeigterStatus = -1;
    std::int16_t gezeigteGeblankte = -1;
    Strahlanzeige anzeige;
    Datenstand stand = Datenstand::Gueltig;
    Wertealter alter;
    QTimer uhrwerk;
    Strahlhinweis* hinweis;
    Zeigerschild* zeigerschild;
    Zoomkopf* zoomkopf;
    Ansager ansager;
    bool scanBekannt = false; // a scan of the data set is in the image
    bool faellig = false;     // what is in the image is to be shown
    int strahlUnterMaus = -1;
    bool zeitlos = false;
    bool warSichtbar = false;
};

} // namespace varnoth
