#pragma once

#include "fensteranordnung.h"
#include "firmware.h"
#include "menuebefehle.h"
#include "menuezustand.h"
#include "polling.h"
#include "verbindung.h"

#include <QMainWindow>
#include <QString>

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <utility>

class QLabel;
class QMdiSubWindow;

namespace varnoth {

namespace Ui {
class frmMain;
}

class Ausgangsanzeige;
class frmDocument;

/// The main window: its children are the views of the four optical parts, its menu bar carries every command.
/// A click only stores a command; the main loop runs it through MenuAusführen between two polling passes.
class frmMain : public QMainWindow,
                private Befehlsziel,
                private PollingZiel,
                private Verbindungsziel,
                private Firmwareziel {
    Q_OBJECT

public:
    /// @param programmordner where the program that transfers firmware lies
    explicit frmMain(QString programmordner = {});
    ~frmMain() override;

    /// Runs the command that waits, if any.
    void MenuAusführen();
    /// Asks, and on OK lets the controller send by itself.
    void SubAutosendStarten();
    /// What a click on the menu item does: stores the command.
    void mnuBeenden_Click();
    /// Asks whether changes shall be saved, and ends the program unless the user cancels.
    void SubBeenden();
    /// What a click on the menu item does: stores the command.
    void mnuMessdatenVisualisierenStop_Click();
    /// Stops live data and takes the controller out of autosend.
    void SubMessdatenVisualisierenStop();
    /// What a click on the menu item does: stores the command.
    void mnuOeffnen_Click();
    /// Asks for a configuration file, loads it and shows its parts.
    void SubOeffnen();
    /// Loads a configuration file (UTF-8 path) and shows its parts.
    void LadeDatei(const std::string& pfad);
    /// Connects to the controller and starts live data.
    void Autostart();

    /// Whether a command waits to be run.
    bool BefehlWartet() override { return befehle.Wartet(); }
    /// Number of open forms as the main loop counts them: 0 once the program is to end.
    int OffeneFormulare() const { return entladen ? 0 : 1; }
    /// Ticks the menu entry of the current language.
    void ZeigeSprache();
    /// Shows the two menu items of the service mode.
    void ZeigeServicemenue();
    /// Sets what shows the help topics.
    void SetzeHilfe(std::function<void()> die) { hilfe = std::move(die); }
    /// Uses serial port 1..4 for this run, whatever the settings say.
    void NimmComPort(int nummer);
    /// Writes into panel 1..3 of the status bar.
    void ZeigeStatustext(int feld, const std::string& text);
    /// The view of optical part 0..3.
    frmDocument& Fenster(int optikteil);
    /// Arranges the shown views.
    void Ordne(Anordnung art);

protected:
    void closeEvent(QCloseEvent* ereignis) override;

private:
    static constexpr const char* Fensterabschnitt = "MDIForm"; // of the settings file

    struct Befehlszeile;
    struct Menuezeile;

    bool LiveDatenLaufen() const override;
    void StoppeLiveDaten() override { SubMessdatenVisualisierenStop(); }
    void FuehreAus(Befehl befehl, int index) override;

    LiveAnsicht& Ansicht(int optikteil) override;
    void AktualisiereGeraetestatus() override;

    bool Identifiziere() override;
    bool LiesKonfiguration() override;
    bool HoleOptikteilInformation() override;
    bool FrageNachKonfiguration() override;
    void ZeigeAlleOffline() override;
    void BaueAnsichtenAuf() override;
    void LiveDatenLaufenAn() override;
    void ZeigeLichtleistenmenue() override;
    bool IstZuSpaet(Befehl befehl) const;
    bool Beendet() const override { return entladen || befehle.WartetAuf(Befehl::Beenden); }

    std::string StarteFlasher(const std::string& parameter) override;

    void VerbindeMenue();
    void VerbindeAktion(const QString& name, Befehl befehl, int index);
    void RichteStatusleisteEin();
    void LiesEinstellungen();
    void LadeAnsicht(int optikteil);
    void SetzeMessdatenMenue(int modus);
    void AktualisiereMenue();
    void ZeigePort();
    void SetzeTitel(int optikteil, std::int16_t textId);
    void MerkeAnsicht(int optikteil, bool gezeigt);
    QSize KleinsterRahmen() const;
    void SchaffePlatzFuerAnsichten();
    void Entlade();

    void ZeigeLichtleiste(int optikteil);
    void SchalteGrossanzeige();
    void WaehleComPort(int nummer);
    void SchalteSprache(std::int16_t offset);
    void ZeigeInfo();
    template<class Dienstdialog>
    void OeffneDienst();

    void ZeigeKonfiguration();
    void NeueKonfiguration();
    void BearbeiteKonfiguration();
    void SchreibeKonfiguration();

    std::unique_ptr<Ui::frmMain> ui;
    QString programmordner;
    std::function<void()> hilfe;
    std::array<frmDocument*, AnzahlOptikteile> Fensterliste{};
    std::array<QMdiSubWindow*, AnzahlOptikteile> rahmen{};
    std::array<bool, AnzahlOptikteile> hatPlatz{}; // stands where the user or an arrangement has put it
    std::array<std::int16_t, AnzahlOptikteile> titeltexte{};
    std::array<QLabel*, 3> statusfelder{};
    std::unique_ptr<Ausgangsanzeige> ausgang;
    Befehlsspeicher befehle;
    Programmzustand zustand;
    bool entladen = false;
};

} // namespace varnoth
