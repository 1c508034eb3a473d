#pragma once

#include "firmware.h"
#include "hauptteile.h"
#include "polling.h"
#include "verbindung.h"

#include <QString>

#include <string>

namespace varnoth {

class Befehlsspeicher;
struct Geraeteabzug;
class Konfigurationsablauf;

/// The main window's dealings with the controller: connecting, live data and its end, the dialogs that every
/// connection begins with.
class Geraetebetrieb : public PollingZiel, public Verbindungsziel, public Firmwareziel {
public:
    /// @param programmordner where the program that transfers firmware lies
    Geraetebetrieb(const Hauptteile& teile, const Befehlsspeicher& befehle, Konfigurationsablauf& ablauf,
                   QString programmordner);
    ~Geraetebetrieb() override;

    /// Connects to the controller and starts live data.
    void Verbinde();
    /// Stops live data and takes the controller out of autosend.
    void StoppeLiveDaten() override;
    bool LiveDatenLaufen() const override;
    /// Live data that has rested goes on with the parts and values that were known, if the port can be
    /// opened.
    void SetzeLiveDatenFort();
    /// Identifies the controller and reads its configuration aside, in dialogs over a window. What was not
    /// read is told by `abzug`: all of it when nobody has answered, the rest when the user has cancelled.
    void LiesAbzug(QWidget& ueber, Geraeteabzug& abzug);
    /// Whether live data is running on a line that answers.
    bool IstLive() const;
    /// Asks, and on OK lets the controller send by itself.
    void StarteAutosend();

    bool BefehlWartet() override;
    LiveAnsicht& Ansicht(int optikteil) override;
    void AktualisiereGeraetestatus() override;

    bool Identifiziere() override;
    bool LiesKonfiguration() override;
    bool HoleOptikteilInformation() override;
    bool FrageNachKonfiguration() override;
    void ZeigeAlleOffline() override;
    void BaueAnsichtenAuf() override { teile.baueAnsichtenAuf(); }
    void LiveDatenLaufenAn() override;
    void ZeigeLichtleistenmenue() override;
    bool Beendet() const override { return teile.beendet(); }

    std::string StarteFlasher(const std::string& parameter) override;

private:
    void FolgeAutosendart();

    Hauptteile teile;
    const Befehlsspeicher& befehle;
    Konfigurationsablauf& ablauf;
    QString programmordner;
};

} // namespace varnoth
