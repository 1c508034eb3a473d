#pragma once

namespace varnoth {

/// What the connection start-up flow asks of the main window. Its three dialogs close themselves when they
/// have succeeded.
class Verbindungsziel {
public:
    Verbindungsziel() = default;
    Verbindungsziel(const Verbindungsziel&) = delete;
    Verbindungsziel& operator=(const Verbindungsziel&) = delete;
    virtual ~Verbindungsziel() = default;

    /// Identifies the controller in its dialog; false when it was cancelled.
    virtual bool Identifiziere() = 0;
    /// Reads the whole configuration in its dialog; false when it was cancelled.
    virtual bool LiesKonfiguration() = 0;
    /// Fetches the optical parts' presence in its dialog; false when it was cancelled.
    virtual bool HoleOptikteilInformation() = 0;
    /// Lets the user choose a configuration when none could be read; false when he chose none.
    virtual bool FrageNachKonfiguration() = 0;
    /// Live data stops.
    virtual void StoppeLiveDaten() = 0;
    /// The captions and menu items of all parts as they are while nothing is known of them.
    virtual void ZeigeAlleOffline() = 0;
    /// The views follow the beam counts: those of parts with beams are built anew and shown.
    virtual void BaueAnsichtenAuf() = 0;
    /// Live data begins: polling is on.
    virtual void LiveDatenLaufenAn() = 0;
    /// Each part's menu item is visible exactly when the part has beams.
    virtual void ZeigeLichtleistenmenue() = 0;
    /// Whether live data is running.
    virtual bool LiveDatenLaufen() const = 0;
    /// Whether the program is to end: nothing more is shown or asked.
    virtual bool Beendet() const = 0;
};

/// Connects: an end to autosend, if this run has started it, then identification, whole configuration,
/// optical parts, status report, plausibility, cycle times, views, polling. True when live data runs at the
/// end. Nothing happens where changes that would be lost could not be put aside and the user keeps them.
bool Autostart(Verbindungsziel& ziel);

} // namespace varnoth
