#pragma once

#include "menuebefehle.h"

#include <cstdint>
#include <span>
#include <string>

namespace varnoth {

/// What the commands do.
class Befehlswirkung {
public:
    Befehlswirkung() = default;
    Befehlswirkung(const Befehlswirkung&) = delete;
    Befehlswirkung& operator=(const Befehlswirkung&) = delete;
    virtual ~Befehlswirkung() = default;

    virtual void Verbinde() = 0;
    virtual void StoppeLiveDaten() = 0;
    virtual void ZeigeAnsicht(int optikteil) = 0;
    virtual void Beende() = 0;
    virtual void BearbeiteEinzelwerte() = 0;
    virtual void StelleNebeneinander() = 0;
    virtual void StelleUeberlappend() = 0;
    virtual void StelleUntereinander() = 0;
    virtual void ErneuereFirmware() = 0;
    virtual void InitialisiereHardware() = 0;
    virtual void BearbeiteKonfiguration() = 0;
    virtual void OeffneKonfiguration() = 0;
    virtual void SpeichereKonfiguration() = 0;
    virtual void WechsleUebertragenerWert() = 0;
    virtual void MacheNeueKonfiguration() = 0;
    virtual void SetzeHardwareZurueck() = 0;
    virtual void WaehleComPort(int nummer) = 0;
    virtual void ZeigeSimulation() = 0;
    virtual void ZeigeHilfethemen() = 0;
    virtual void ZeigeInfo() = 0;
    virtual void StarteAutosend() = 0;
    virtual void SchalteSprache(std::int16_t offset) = 0;
    /// Opens one of the files used last, by its place from 0.
    virtual void OeffneLetzteDatei(int platz) = 0;
    /// Connects to the built-in controller, which takes the place of the serial ports in this run.
    virtual void VerbindeSimuliert() = 0;
    /// Opens the files that came from outside first.
    virtual void OeffneUebergebeneDateien() = 0;
    virtual void ZeigeSicherungen() = 0;
    /// Opens the backup that the window of backups asked for.
    virtual void OeffneSicherung() = 0;
    virtual void ZeigeBericht() = 0;
    virtual void ZeigeVergleich() = 0;
    /// Reads the controller for the comparison that asked for it.
    virtual void LiesGeraetZumVergleich() = 0;
    /// Shows the connection window, at the page of the search where `suche` is set, else where it was.
    virtual void ZeigeVerbindung(bool suche) = 0;
    /// Puts in force what was chosen in the connection window.
    virtual void UebernimmAnschluss() = 0;
    /// Searches the controller, or checks the line, for the connection window.
    virtual void SucheGeraet() = 0;
    virtual void PruefeLeitung() = 0;
    /// Offers looks and beam colours.
    virtual void BieteDarstellung() = 0;
    virtual void ZeigeBusprotokoll() = 0;
    virtual void ZeigeStrahlverlauf() = 0;
    /// Opens the blanking editor with the pattern that the beam history suggests.
    virtual void BearbeiteBlankingvorschlag() = 0;
    /// Shows the report with the section about beams that the beam history has handed over.
    virtual void ZeigeStrahlbericht() = 0;
    /// Asks for a record and replays it.
    virtual void OeffneAufzeichnung() = 0;
    /// Replays the record that came from outside first.
    virtual void OeffneUebergebeneAufzeichnung() = 0;
    /// Leaves the replay; what was shown before is shown again.
    virtual void VerlasseWiedergabe() = 0;
    /// Begins a recording, or ends the one that runs.
    virtual void SchalteAufzeichnung() = 0;
    virtual void ZeigeAufzeichnungen() = 0;
    virtual void ZeigeEreignisse() = 0;
    virtual void ZeigeVerlauf() = 0;
};

/// How a command gets along with live data: whether it stops before, starts again after as when connecting,
/// or only rests meanwhile.
enum class Live { LaeuftWeiter, Stoppt, StopptUndStartetWieder, Ruht };
/// Whether a command opens a dialog or asks a question; the others do their work without the user.
enum class Auftritt { Still, Zeigt };

/// The groups of the tool bar in their order; a line stands between two.
enum class Leistengruppe { Verbindung, Konfiguration, Pruefen, Verlauf, Darstellung, Hilfe };

/// A command as the program knows it; the fields stand in the order in which a row is read.
struct Befehlszeile { // NOLINT(clang-analyzer-optin.performance.Padding): read as a row
    Befehl befehl;
    const char*
        aktion; ///< object name of its action; of one of several: what stands before "_" and the index
    Live live;
    Auftritt auftritt;
    void (*tut)(Befehlswirkung& ziel, int index);
    int ersterIndex = 0;      ///< of several actions: the index of the first one
    int anzahl = 1;           ///< how many actions the command has; 0: other controls lead to it
    const char* kuerzel = ""; ///< keys, in Qt's portable form; "%1" stands for the action's place from 1
    std::int16_t textId = 0;  ///< its text in the tool bar; 0: it does not stand there
    const char* symbol = "";  ///< file name of its picture without ending
    std::int16_t tippId = 0;  ///< its tool tip there; 0: the same as its text
    Leistengruppe gruppe = Leistengruppe::Pruefen;
};

/// Every command, once.
std::span<const Befehlszeile> Befehlstabelle();

/// Whether the command's actions stand in a menu, and so in the form; those of the others are made for them.
bool StehtImMenue(const Befehlszeile& zeile);

/// The row of a command; nullptr for Befehl::Keiner.
const Befehlszeile* ZeileZu(Befehl befehl);

/// The object name of one of a command's actions, by its place 0 .. anzahl - 1.
std::string Aktionsname(const Befehlszeile& zeile, int platz);
/// The keys of one of a command's actions, in Qt's portable form; empty where it has none.
std::string Kuerzel(const Befehlszeile& zeile, int platz);

} // namespace varnoth
