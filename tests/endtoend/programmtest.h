#pragma once

#include "anwendung.h"
#include "fahrer.h"
#include "fenstertest.h"
#include "frmDocument.h"
#include "simulatorprozess.h"

#include <QAction>
#include <QLabel>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace varnoth::pruefung {

/// Fails the test and closes the main window, so that the program comes out of whatever it waits for, when
/// this object lives longer than allowed.
class Zeitgrenze {
public:
    Zeitgrenze(frmMain& hauptfenster, int hoechstensMs);

private:
    QTimer wecker;
};

/// Setting of the tests that run the whole program in this process: its start-up, main loop and windows, and
/// its serial port on the pseudo terminal of the simulated controller. Program, settings file, line and
/// control channel lie in a folder of the test's own.
class ProgrammTest : public testing::Test {
protected:
    ProgrammTest();
    ~ProgrammTest() override;

    /// Starts a controller without the timing of a real wire, and enters its line in the settings.
    void SchliesseGeraetAn(const QStringList& optionen = {});
    /// Writes the settings file.
    void SchreibeEinstellungen(const QByteArray& inhalt) const;
    /// The settings file as it is now.
    QByteArray LiesEinstellungen() const;
    QString Pfad(const QString& name) const { return ordner.filePath(name); }

    /// Runs the program's start-up.
    void Starte(const QStringList& worte = {});
    /// Connects as the program does after its start-up.
    void Verbinde();
    /// Starts with a controller, connects and waits for the first whole pass.
    void GeheLive(const QStringList& optionen = {});
    /// Ends the program; it can be started again.
    void Beende() { programm.reset(); }

    /// Runs the main loop until the condition holds or the time is up; gives whether it holds.
    template<class Bedingung>
    bool LaufeBis(Bedingung bedingung, int hoechstensMs = 15000) {
        const Zeitgrenze grenze(Hauptfenster(), hoechstensMs + LaengsterAblaufMs);
        QElapsedTimer uhr;
        uhr.start();
        while (!bedingung())
            if (uhr.elapsed() > hoechstensMs || !programm->Runde())
                return bedingung();
        return true;
    }
    /// Runs the main loop for so many more whole passes.
    bool LaufeDurchgaenge(unsigned anzahl);
    /// Chooses a menu item as a user does; the main loop runs its command.
    void Waehle(const QString& aktion) { Aktion(aktion).trigger(); }

    /// Chooses a menu item and runs the main loop until its command is done.
    bool FuehreAus(const QString& aktion) {
        Waehle(aktion);
        return LaufeBis([this] { return !Hauptfenster().BefehlWartet(); });
    }
    /// Does something with a window as soon as it is shown.
    void InFenster(const QString& name, std::function<void(QWidget&)> tat) {
        fahrer.Sobald([name] { return SichtbaresFenster(name) != nullptr; },
                      [name, tat = std::move(tat)] { tat(*SichtbaresFenster(name)); });
    }

    frmMain& Hauptfenster() { return programm->Hauptfenster(); }
    QAction& Aktion(const QString& name);
    frmDocument& Ansicht(int teil) { return Hauptfenster().Fenster(teil); }
    std::string Titel(int teil) { return Ansicht(teil).windowTitle().toStdString(); }
    std::vector<std::string> AlleTitel();
    /// The six measured values that the view of a part shows.
    std::vector<int> GezeigteWerte(int teil);
    std::string Statusfeld(int nummer);
    const std::vector<std::string>& Meldungen() const { return fahrer.Meldungen(); }
    /// Whether this process has the controller's line open, by what the operating system knows.
    bool HatLeitungOffen() const;
    /// Whether whole passes come in over a line that answers.
    static bool IstLive();

    /// What one round of the main loop may take at most: a lost connection is found out in ten seconds.
    static constexpr int LaengsterAblaufMs = 15000;

    QTemporaryDir ordner;
    std::optional<Simulatorprozess> geraet;
    Fahrer fahrer;
    std::unique_ptr<Anwendung> programm;
};

/// The four captions with the same text behind the number.
std::vector<std::string> ViermalTitel(const std::string& text);

} // namespace varnoth::pruefung
