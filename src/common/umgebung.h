#pragma once

#include <chrono>
#include <functional>
#include <string>

namespace varnoth {

/// Time on the system's monotonic clock, and durations on it.
using Zeit = std::chrono::microseconds;

/// The panels of the main window's status bar.
inline constexpr int FeldMeldungen = 1;
inline constexpr int FeldPort = 2;
inline constexpr int FeldSchaltausgang = 3;

enum class Symbol { Ohne, Warnung, Frage };
enum class Knoepfe { Ok, OkAbbrechen, JaNeinAbbrechen };
enum class Antwort { Ok, Abbrechen, Ja, Nein };

/// A message box. Texts are UTF-8; an empty title stands for the application's title.
struct Meldung {
    std::string text;
    std::string titel{};
    Symbol symbol = Symbol::Warnung;
    Knoepfe knoepfe = Knoepfe::Ok;
    bool abbrechenVorgegeben =
        false; ///< Enter cancels, as it should where OK changes the controller or loses work
    std::string informativtext{}; ///< below the text; empty: none
    std::string details{};        ///< shown when asked for; empty: none

    bool operator==(const Meldung&) const = default;
};

/// For how long the window has held the program up: rounds of events that do not come back, as while a person
/// drags a window whose system keeps the program waiting for that, or has a menu open. Below half a second
/// nothing counts.
struct Aufenthalt {
    Zeit gesamt{0};        ///< since the start, the present one included
    bool dauertAn = false; ///< there is one now

    bool operator==(const Aufenthalt&) const = default;
};

/// What the rooms below the windows ask of the world above them. The shell fits the real one in at start-up,
/// tests fit in a scripted one.
class Umgebung {
public:
    Umgebung() = default;
    Umgebung(const Umgebung&) = delete;
    Umgebung& operator=(const Umgebung&) = delete;
    virtual ~Umgebung() = default;

    /// Runs every window event that is pending, unless that was done a moment ago, and gives the number of
    /// open forms. Painting may be left to the next wait.
    virtual int LasseEreignisseLaufen() = 0;
    /// Runs every pending event and does what was put off for this (FuerWartezeit), painting too: the line is
    /// busy for a while, and nobody waits for this thread.
    virtual void NutzeWartezeit() = 0;
    /// Whether there is anything that was put off for this.
    virtual bool BrauchtWartezeit() = 0;
    /// Puts work off until the line is busy anyway. Between a reply and the next request it would slow the
    /// exchange down; where nothing is exchanged, it is done as soon as events run. In the order of the
    /// calls.
    virtual void FuerWartezeit(std::function<void()> arbeit) = 0;
    /// Sleeps until an event was served or the time has passed, whichever comes first.
    virtual void WarteAufEreignis(Zeit hoechstens) = 0;
    /// The clock. Only differences mean something.
    virtual Zeit Uhr() = 0;
    /// Without a window there is none.
    virtual Aufenthalt GetAufenthalt() { return {}; }
    /// Shows a message box and waits for its answer. A box that is closed answers Abbrechen, or Ok where it
    /// has no other button.
    virtual Antwort ZeigeMeldung(const Meldung& meldung) = 0;
    /// Writes a text into a panel, 1..3, of the main window's status bar.
    virtual void ZeigeStatustext(int feld, const std::string& text) = 0;
};

/// The environment in force.
/// @throws std::logic_error when none was fitted in
Umgebung& DieUmgebung();

/// Fits an environment in (nullptr takes it out). It must live until it is taken out.
void SetzeUmgebung(Umgebung* umgebung);

/// Shows a message box with a warning sign and an OK button under the given title.
void ZeigeWarnung(const std::string& text, const std::string& titel = {});

} // namespace varnoth
