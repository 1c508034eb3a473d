#pragma once

namespace varnoth {

/// The menu commands. A click stores its code; the main loop runs it between two polling passes.
enum class Befehl {
    Keiner = 0,
    VisualisierenStart = 1,
    VisualisierenStop = 2,
    LichtleisteAnzeigen = 3,
    Beenden = 4,
    Einzelwerte = 5,
    FensterNebeneinander = 6,
    FensterUeberlappend = 7,
    FensterUntereinander = 8,
    FirmwareUpdate = 9,
    InitHardware = 10,
    KonfigurationAnzeigen = 11,
    KonfigurationOeffnen = 12,
    KonfigurationSpeichernUnter = 13,
    UebertragenerWert = 14,
    NeueKonfiguration = 15,
    ResetHardware = 16,
    ComPort = 17,
    Simulation = 18,
    Hilfethemen = 19,
    Info = 20,
    AutosendStarten = 21,
    SpracheDeutsch = 22,
    SpracheEnglisch = 23,
    LetzteDatei = 101,
    SimuliertesGeraet = 102,
    UebergebeneDateien = 103,
    Sicherungen = 120,
    SicherungOeffnen = 121,
    Vergleich = 110,
    GeraetVergleichen = 111,
    Bericht = 112,
    Darstellung = 130,
    Busprotokoll = 140,
    Verbindung = 150,
    AnschlussUebernehmen = 151,
    GeraetSuchen = 152,
    LeitungPruefen = 153,
    Strahlverlauf = 180,
    BlankingVorschlagen = 181,
    Strahlbericht = 182,
    Wiedergabe = 190,
    WiedergabeVerlassen = 191,
    UebergebeneAufzeichnung = 192,
    Aufzeichnung = 160,
    Aufzeichnungen = 161,
    Ereignisse = 200,
    Verlauf = 170,
};

/// Whether the command has the serial line for itself, so that live data stops before it runs.
bool StopptLiveDaten(Befehl befehl);
/// Whether live data that ran before the command starts again after it.
bool StartetLiveDatenWieder(Befehl befehl);

/// Whether live data that ran before the command goes on after it where it was: nothing is connected or read
/// anew.
bool SetztLiveDatenFort(Befehl befehl);

/// Whether the command opens a dialog or asks a question; the others do their work without the user.
bool ZeigtFenster(Befehl befehl);

/// What the command queue asks of the main window.
class Befehlsziel {
public:
    Befehlsziel() = default;
    Befehlsziel(const Befehlsziel&) = delete;
    Befehlsziel& operator=(const Befehlsziel&) = delete;
    virtual ~Befehlsziel() = default;

    virtual bool LiveDatenLaufen() const = 0;
    virtual void StoppeLiveDaten() = 0;
    virtual void SetzeLiveDatenFort() = 0;
    /// Runs a command; the index is that of the clicked item where the item is one of several.
    virtual void FuehreAus(Befehl befehl, int index) = 0;
};

/// The one command that waits. A later click replaces an earlier one; a click while a command runs is kept
/// and runs next.
class Befehlsspeicher {
public:
    /// Stores a click.
    void Klick(Befehl befehl, int index = 0);
    bool Wartet() const { return befehlscode != Befehl::Keiner; }
    bool WartetAuf(Befehl befehl) const { return befehlscode == befehl; }
    /// Whether something was clicked since the command that runs now began.
    bool KlickSeitBeginn() const { return klicks != klicksBeimBeginn; }
    /// Runs the command that waits, if any.
    void FuehreAus(Befehlsziel& ziel);

private:
    Befehl befehlscode = Befehl::Keiner;
    int menueindex = 0;
    unsigned klicks = 0;
    unsigned klicksBeimBeginn = 0;
};

} // namespace varnoth
