#pragma once

#include "ansichten.h"
#include "aufzeichnungsleser.h"
#include "befehlstabelle.h"
#include "geraetebetrieb.h"
#include "hauptmenue.h"
#include "hauptteile.h"
#include "konfigurationsablauf.h"
#include "menuebefehle.h"
#include "statusleiste.h"

#include <QMainWindow>
#include <QString>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace varnoth {

namespace Ui {
class frmMain;
}

class Vergleichsablauf;
class Aufzeichnungsablauf;
class Busablauf;
class Ereignisablauf;
class Messablauf;
class Verbindungsablauf;
class Sicherungsablauf;
class frmDocument;
class Erscheinungsbild;
class Werkzeugleiste;
class Wiedergabeablauf;
class Willkommensseite;

/// The main window: its children are the views of the four optical parts, its menu bar carries every command.
/// A click only stores a command; the main loop runs it through MenuAusführen between two polling passes.
class frmMain : public QMainWindow, private Befehlsziel, private Befehlswirkung {
    Q_OBJECT

public:
    /// @param programmordner where the program that transfers firmware lies
    /// @throws std::logic_error when the form lacks an action of the command table
    explicit frmMain(const QString& programmordner = {});
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
    /// Opens a file (UTF-8 path) that came from outside, as the Open command does, as soon as no dialog and
    /// no command is in the way; of several at once it only says so. Does nothing once the program is to end.
    void Uebergib(std::vector<std::string> dateien);
    /// Whether files that came from outside are still to be opened.
    bool HatUebergebene() const { return !uebergebene.empty(); }
    /// Whether the program is to end, so that nothing more is opened.
    bool Beendet() const { return entladen || befehle.WartetAuf(Befehl::Beenden); }
    /// Brings the window, minimised or behind others, in front of them, and the dialog that is open before
    /// it.
    void KommNachVorn();
    /// Connects to the controller and starts live data.
    void Autostart();

    /// Whether a command waits to be run.
    bool BefehlWartet() const { return befehle.Wartet(); }
    /// Number of open forms as the main loop counts them: 0 once the program is to end.
    int OffeneFormulare() const { return entladen ? 0 : 1; }
    /// Ticks the menu entry of the current language.
    void ZeigeSprache() { menue.HakeSprache(); }
    /// Shows the two menu items of the service mode.
    void ZeigeServicemenue() { menue.ZeigeService(); }
    /// Sets what shows the help topics.
    void SetzeHilfe(std::function<void()> neue) { hilfe = std::move(neue); }
    /// Sets what leads the line to the built-in controller (true) or to the serial ports (false); it gives
    /// whether that has changed anything. Without it the line always leads to the serial ports.
    void SetzePortwechsel(std::function<bool(bool simuliert)> neuer) { portwechsel = std::move(neuer); }
    /// Sets what lends the line a serial port while something is done, whatever it leads to otherwise.
    /// Without it that is done on the line as it is.
    void SetzeLeihport(std::function<void(const std::function<void()>& tat)> neuer) {
        leihport = std::move(neuer);
    }
    /// Sets what opens records to replay.
    void SetzeAufzeichnungsleser(Aufzeichnungsleser neuer) { aufzeichnungsleser = std::move(neuer); }
    /// Says that the line leads to the built-in controller for the whole run.
    void SetzeImmerSimuliert(bool ist) { immerSimuliert = ist; }
    /// Says in the status bar whether the line leads to the built-in controller.
    void ZeigeSimuliert(bool simuliert) { status.SetzeSimuliert(simuliert); }
    /// Uses serial port 1..4 for this run, whatever the settings say.
    void NimmComPort(int nummer);
    /// Tells where the settings of this run lie.
    void SetzeEinstellungsdatei(const QString& pfad) { einstellungsdatei = pfad; }
    /// Writes into panel 1..3 of the status bar.
    void ZeigeStatustext(int feld, const std::string& text) { status.Zeige(feld, text); }
    /// The view of optical part 0..3.
    frmDocument& Fenster(int optikteil) { return ansichten->Ansicht(optikteil); }
    /// Arranges the shown views.
    void Ordne(Anordnung art) { ansichten->Ordne(art); }

protected:
    void closeEvent(QCloseEvent* ereignis) override;
    void dragEnterEvent(QDragEnterEvent* ereignis) override;
    void dropEvent(QDropEvent* ereignis) override;

private:
    static constexpr const char* Fensterabschnitt = "MDIForm"; // of the settings file

    void LiesEinstellungen();
    void ZeigePort();
    std::unique_ptr<Verbindungsablauf> MacheVerbindungsablauf();
    std::unique_ptr<Wiedergabeablauf> MacheWiedergabeablauf(const Hauptteile& teile);
    void BeendeWiedergabe();
    std::unique_ptr<Aufzeichnungsablauf> MacheAufzeichnungsablauf();
    bool WechslePort(bool simuliert) { return portwechsel && portwechsel(simuliert); }
    void BaueAnsichtenAuf();
    void ZeigeWillkommen();
    void SchaffePlatzFuerAnsichten();
    void StelleInArbeitsflaeche(QSize groesse);
    bool IstErsterStart() const;
    void StelleUebergebeneAn();
    void LadeVonAussen(const std::string& pfad);
    void Entlade();

    bool LiveDatenLaufen() const override { return betrieb->LiveDatenLaufen(); }
    void FuehreAus(Befehl befehl, int index) override;
    bool IstZuSpaet(Befehl befehl) const;
    template<class Dienstdialog>
    void OeffneDienst();

    void Verbinde() override { Autostart(); }
    void StoppeLiveDaten() override { SubMessdatenVisualisierenStop(); }
    /// Not behind a configuration that was imported meanwhile: the controller's values are not measured with
    /// it.
    void SetzeLiveDatenFort() override {
        if (std::exchange(liveDatenPassen, true) && !RuhtFuerWiedergabe())
            betrieb->SetzeLiveDatenFort();
    }
    bool RuhtFuerWiedergabe();
    void ZeigeAnsicht(int optikteil) override;
    void Beende() override { SubBeenden(); }
    void BearbeiteEinzelwerte() override;
    void StelleNebeneinander() override { Ordne(Anordnung::Nebeneinander); }
    void StelleUeberlappend() override { ansichten->Staffle(); }
    void StelleUntereinander() override { Ordne(Anordnung::Untereinander); }
    void ErneuereFirmware() override { AktualisiereFirmware(*betrieb); }
    void InitialisiereHardware() override;
    void BearbeiteKonfiguration() override { ablauf->Bearbeite(); }
    void OeffneKonfiguration() override { SubOeffnen(); }
    void SpeichereKonfiguration() override;
    void WechsleUebertragenerWert() override { menue.WechsleUebertragenerWert(); }
    void MacheNeueKonfiguration() override { ablauf->MacheNeue(); }
    void SetzeHardwareZurueck() override;
    void WaehleComPort(int nummer) override;
    void ZeigeSimulation() override;
    void ZeigeHilfethemen() override { hilfe(); }
    void ZeigeInfo() override;
    void StarteAutosend() override { SubAutosendStarten(); }
    void SchalteSprache(std::int16_t offset) override;
    void OeffneLetzteDatei(int platz) override;
    void VerbindeSimuliert() override;
    void OeffneUebergebeneDateien() override;
    void ZeigeSicherungen() override;
    void OeffneSicherung() override;
    void ZeigeBericht() override { liveDatenPassen = !ablauf->Berichte(); }
    void ZeigeVergleich() override;
    void LiesGeraetZumVergleich() override;
    void ZeigeVerbindung(bool suche) override;
    void UebernimmAnschluss() override;
    void SucheGeraet() override;
    void PruefeLeitung() override;
    void BieteDarstellung() override;
    void ZeigeBusprotokoll() override;
    void OeffneAufzeichnung() override;
    void OeffneUebergebeneAufzeichnung() override;
    void VerlasseWiedergabe() override;
    void SchalteAufzeichnung() override;
    void ZeigeAufzeichnungen() override;
    void ZeigeEreignisse() override;
    void ZeigeVerlauf() override;
    void MerkeBefehl(const Befehlszeile& zeile, int index) const;

    std::unique_ptr<Erscheinungsbild> erscheinungsbild; ///< comes first: what is made below has its colours
    std::unique_ptr<Ui::frmMain> ui;
    std::function<void()> hilfe;
    std::function<bool(bool)> portwechsel;
    std::function<void(const std::function<void()>&)> leihport;
    bool immerSimuliert = false;
    Befehlsspeicher befehle;
    Statusleiste status;
    Hauptmenue menue;
    std::unique_ptr<Ansichten> ansichten;
    Werkzeugleiste* leiste = nullptr;
    Willkommensseite* willkommen = nullptr;
    std::unique_ptr<Konfigurationsablauf> ablauf;
    std::unique_ptr<Geraetebetrieb> betrieb;
    std::unique_ptr<Vergleichsablauf> vergleich;
    std::unique_ptr<Sicherungsablauf> sicherungen;
    std::unique_ptr<Busablauf> bus;
    std::unique_ptr<Aufzeichnungsablauf> aufzeichnung;
    std::unique_ptr<Messablauf> messung;
    std::unique_ptr<Ereignisablauf> ereignisse;       ///< comes after the past that it shows
    std::deque<std::vector<std::string>> uebergebene; ///< files from outside, those that came together as one
    QString einstellungsdatei;
    std::unique_ptr<Verbindungsablauf> verbindung;
    std::unique_ptr<Wiedergabeablauf> wiedergabe;
    Aufzeichnungsleser aufzeichnungsleser = LiesAufzeichnung;
    bool liveNachWiedergabe = false; ///< live data ran when the replay began
    bool liveDatenPassen = true;     ///< to the configuration, when a command that paused them has ended
    bool entladen = false;
};

} // namespace varnoth
