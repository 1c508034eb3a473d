#pragma once

#include "anwendung.h"
#include "simulatorprozess.h"
#include "zaehlport.h"

#include <QTemporaryDir>

namespace varnoth::bench {

using pruefung::Simulatorprozess;

/// The whole program beside a simulated controller on a pseudo terminal, with settings of its own.
class Messplatz {
public:
    /// Starts both, set to so many baud; the main window is shown, nothing is connected. `simulatorworte` go
    /// to the controller. A message to the user fails the bench.
    explicit Messplatz(const QStringList& simulatorworte, int baud = Standardbaud);
    ~Messplatz();

    /// Connects; fails the bench unless live data runs then.
    void Verbinde();
    /// Runs the main loop until the next polling pass has ended.
    void Durchlaufe();
    /// Opens the bus log as its command does, or closes it.
    void ZeigeProtokoll(bool offen);
    /// Opens trend and beam history and begins a recording in both forms, or ends all of it.
    void ZeichneAuf(bool ob);
    /// Stops live data as a click on the menu item does.
    void Stoppe();
    /// Answers messages with OK from now on instead of failing.
    void UebergeheMeldungen();

    Anwendung& Programm() { return programm; }
    Simulatorprozess& Steuergeraet() { return simulator; }
    /// What went over the line so far.
    const Verkehr& Bisher() const { return port.Bisher(); }
    Zaehlport& Port() { return port; }

private:
    void Zeige(const QString& aktion, const QString& name, bool offen);

    QTemporaryDir ordner;
    Simulatorprozess simulator;
    Anwendung programm;
    Zaehlport port;
};

} // namespace varnoth::bench
