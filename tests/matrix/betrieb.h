#pragma once

#include "anwendung.h"
#include "fahrer.h"
#include "puls.h"
#include "simulatorprozess.h"

#include <QAction>
#include <QElapsedTimer>
#include <QObject>
#include <QTemporaryDir>

#include <functional>
#include <map>
#include <string>

namespace varnoth::pruefung {

/// The whole program in this process, beside a simulated controller on a pseudo terminal. Settings, line and
/// store lie in a folder of their own.
class Betrieb : public QObject {
public:
    /// Starts both; nothing is connected. `speicher` is the text of the controller's store.
    Betrieb(const QByteArray& speicher, const QStringList& simulatoroptionen, const QStringList& worte);
    ~Betrieb() override;

    /// The main loop, until the condition holds or the last form is closed.
    void LaufeBis(const std::function<bool()>& bedingung);
    /// Has the main loop do something, as it does commands.
    void Gib(std::function<void()> neuerAuftrag) { auftrag = std::move(neuerAuftrag); }
    /// Neither a command nor an order runs or waits, and no dialog is open.
    bool HatRuhe();
    /// Chooses a menu item as a user does.
    void Waehle(const QString& aktion);
    /// The text of an element of a visible window; empty when there is none.
    QString Text(const QString& fenster, const QString& element) const;
    /// Milliseconds since a window was last shown, 0 while it is not to be seen.
    qint64 SeitGezeigt(const QString& fenster) const;
    /// Does something the moment a window appears, before what it shows begins. Once; a later call replaces
    /// it.
    void BeiFenster(const QString& name, std::function<void()> was);

    frmMain& Hauptfenster() { return programm.Hauptfenster(); }
    /// Whether whole passes come in over a line that answers.
    static bool IstLive();
    /// Whether every present view says so.
    bool ZeigtAlleOnline();
    bool ZeigtAlleOffline();

    QTemporaryDir ordner;
    Simulatorprozess geraet;
    Fahrer fahrer;
    Anwendung programm;
    Puls puls;

protected:
    bool eventFilter(QObject* ziel, QEvent* ereignis) override;

private:
    std::function<void()> auftrag;
    bool arbeitet = false;
    std::map<QString, QElapsedTimer> gezeigt;
    QString ausloeser;
    std::function<void()> ausgeloest;
};

/// Clicks a button of a visible window as soon as the events that are pending were served; nothing when there
/// is none.
void Klicke(const QString& fenster, const QString& knopf);

} // namespace varnoth::pruefung
