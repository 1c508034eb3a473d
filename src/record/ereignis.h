#pragma once

#include "messdurchgang.h"

#include <cstdint>
#include <string>

namespace varnoth {

/// What can happen. What the values of an event mean depends on it.
enum class Ereignisart : std::uint8_t {
    LiveBegonnen,
    LiveBeendet,
    Verloren, ///< the controller no longer answers
    Zurueck,  ///< it answers again; `dauer`: after how long
    Zustand,  ///< the connection as the status bar shows it: `neu`; `alt` 1: simulated; `text`: the line
    TeilGewechselt,    ///< `neu` 1: there, `dauer`: how long it was away; 0: gone
    TeilStatus,        ///< `alt` and `neu`: status bits of part `teil`
    GeraeteStatus,     ///< `alt` and `neu`: status bits of the controller without the output
    AusgangGeschaltet, ///< `neu` 1: active
    Meldung,           ///< `text`: of a message box
    Befehl,            ///< `alt`: its code, `neu`: the id of its text or 0, `text`: where that has none
    KonfigurationGeschrieben, ///< `anzahl` registers
    RegisterGeschrieben,      ///< `anzahl` registers from address `alt` on
    Neustart,                 ///< the controller was told to start anew
    Werksdaten,               ///< factory data were written
    Gesichert,                ///< a backup; `neu`: its Sicherungsanlass or -1; `text`: the error
    AufzeichnungBegonnen,     ///< `text`: the file
    AufzeichnungBeendet,      ///< `text`: the file; `dauer`, `anzahl` passes
    AufzeichnungOhnePlatz,    ///< `text`: what the system says
    Verworfen,                ///< `anzahl` passes that could not be kept
    Fehlgeschlagen, ///< `anzahl` exchanges within `dauer`; `neu`: how they ended, 1..4 as they are counted
    Notiz,          ///< `text`
};

/// Kinds that belong together for whoever looks for something.
enum class Ereignisgruppe : std::uint8_t {
    Verbindung,
    Optikteil,
    Ausgang,
    Meldung,
    Befehl,
    Schreiben,
    Aufzeichnung,
    Fehlschlag,
    Notiz,
};
inline constexpr int AnzahlEreignisgruppen = 9;

/// Something that has happened, as kind and values: the words are made when it is shown.
struct Ereignis {
    Ereignisart art{};
    Systemzeit zeit{};     ///< when it began
    Zeit laufzeit{};       ///< the same on the clock of its source
    std::int8_t teil = -1; ///< optical part 0..3, where it is about one
    bool offen = false;    ///< more of the kind may be added to it
    bool gelungen = true;
    std::uint32_t anzahl = 1; ///< how many it stands for
    std::int32_t alt = 0;
    std::int32_t neu = 0;
    Zeit dauer{};       ///< of several: from the first to the last
    std::string text{}; ///< UTF-8, one line

    bool operator==(const Ereignis&) const = default;
};

/// The group of a kind.
Ereignisgruppe GruppeVon(Ereignisart art);

} // namespace varnoth
