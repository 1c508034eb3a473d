#pragma once

#include "messquelle.h"

#include <optional>
#include <string>

namespace varnoth {

struct Strahlbericht;

/// What the windows of the past ask of the program around them.
class Messanbieter {
public:
    Messanbieter() = default;
    Messanbieter(const Messanbieter&) = delete;
    Messanbieter& operator=(const Messanbieter&) = delete;
    virtual ~Messanbieter() = default;

    /// What is looked at: the memory of this run or, while a record is open, the record. It grows and may be
    /// another one at the next call; whoever keeps what it was drawn from compares `Quellenzahl`.
    virtual const Messquelle& Quelle() = 0;
    /// Counts the sources that `Quelle` has given so far.
    virtual int Quellenzahl() = 0;
    /// Whether a record is shown as if it were live.
    virtual bool IstWiedergabe() = 0;
    /// The time of the source that counts as now: its end while live data runs, the place where a replay
    /// stands.
    virtual Zeit Jetzt() = 0;
    /// Lets a replay go on from a time; nothing happens while there is none.
    virtual void SpringeZu(Zeit laufzeit) = 0;
    /// Keeps a note of somebody at a time, in memory and in the recording that runs.
    virtual void Notiere(Zeit laufzeit, const std::string& text) = 0;
    /// Asks where a file is to go. `filter` as in a file dialog; nothing when the user changes his mind.
    virtual std::optional<std::string> FrageNachDatei(const std::string& titel, const std::string& filter,
                                                      const std::string& name) = 0;
    /// Writes a file; says why not, and false.
    virtual bool Schreibe(const std::string& pfad, const std::string& bytes) = 0;
    /// Opens the blanking editor of an optical part with a pattern (32 registers) as a suggestion.
    virtual void SchlageBlankingVor(int teil, const Werte& muster) = 0;
    /// Shows the report with a section about beams.
    virtual void BerichteStrahlen(const Strahlbericht& /*abschnitt*/) {}
};

} // namespace varnoth
