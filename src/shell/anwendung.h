#pragma once

#include "dateiannahme.h"
#include "dateisicherungen.h"
#include "dateiuebergabe.h"
#include "dialogplatz.h"
#include "fensterumgebung.h"
#include "frmMain.h"
#include "gemeldetesicherungen.h"
#include "hilfe.h"
#include "hilfetaste.h"
#include "inieinstellungen.h"
#include "instanzsperre.h"
#include "kommandozeile.h"
#include "seriellerport.h"
#include "startzustand.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace varnoth {

/// Where a run of the program finds its surroundings.
struct Startbedingungen {
    QStringList worte;         ///< the command line without the program's name
    QString programmordner;    ///< where settings and help files lie
    QString programmname;      ///< file name of the executable without ending
    QString sperrordner{};     ///< where the lock of the single instance lies; empty: the usual place
    QString datenordner{};     ///< where backups lie; empty: the usual place
    double splashSekunden = 2; ///< how long the splash window stays at least
    Zeit laengsteUebergabe = LaengsteUebergabe; ///< how long a second start waits for the first
};

/// The running program: start-up, main loop, end.
class Anwendung {
public:
    explicit Anwendung(Startbedingungen bedingungen);
    ~Anwendung();

    /// Start-up up to the connected main window. False ends the program: it runs already, or its trace file
    /// cannot be written, which the user was told.
    bool Starte();
    /// Connects to the controller, unless a file was handed over, which then is to be opened instead; the
    /// main loop's work begins with it.
    void Verbinde();
    /// One round of the main loop. False when no form is open any more.
    bool Runde();
    /// Starts, connects and runs until the last form is closed.
    /// @return the exit code of the process
    int Laufe();

    frmMain& Hauptfenster() { return *hauptfenster; }
    Fensterumgebung& DieFensterumgebung() { return umgebung; }
    /// The help file of the current language: beside the executable, else in the data folder of an installed
    /// program, else in the system's. Where none is there, the path beside the executable.
    QString Hilfedatei() const;

private:
    void LiesSprache();
    bool IstErsteInstanz();
    void MeldeZweitstart();
    void NimmDateienAn();
    void LadeHauptfenster();
    void ZeigeSplash();
    bool WerteKommandozeileAus();
    bool StarteTrace();
    bool WechslePort(bool simuliert);
    void LeiheSeriellenPort(const std::function<void()>& tat);

    Startzustand startzustand; ///< comes first: what is fitted in below stays
    Startbedingungen bedingungen;
    Kommandozeile kommandozeile;
    std::vector<std::string> dateien; ///< of the command line, absolute, UTF-8
    Fensterumgebung umgebung;
    IniEinstellungen einstellungen;
    Dateisicherungen sicherungen;
    GemeldeteSicherungen gemeldete{sicherungen};
    Instanzsperre sperre;
    bool simuliert;
    std::unique_ptr<SeriellerPort> port;
    std::unique_ptr<frmMain> hauptfenster;
    std::optional<Dateiannahme> annahme;
    Hilfe hilfe;
    Hilfetaste hilfetaste;
    Dialogplatz dialogplatz;
};

} // namespace varnoth
