#pragma once

#include <string>
#include <string_view>

namespace varnoth::ctl {

/// Where a command's output goes, and who may be asked. Texts are UTF-8.
class Konsole {
public:
    Konsole() = default;
    Konsole(const Konsole&) = delete;
    Konsole& operator=(const Konsole&) = delete;
    virtual ~Konsole() = default;

    /// Data for a program or a file: these bytes and no others.
    virtual void Daten(std::string_view bytes) = 0;
    /// A line of data for a person, in the characters that can be shown.
    virtual void Zeile(std::string_view text) = 0;
    /// Whether anybody still reads the data.
    virtual bool WirdGelesen() const = 0;
    /// A message, of one line or more.
    virtual void Meldung(std::string_view text) = 0;
    /// How far a command has come, in place of what this last said; nothing is shown where nobody watches.
    virtual void Fortschritt(std::string_view text) = 0;

    /// Whether a person can be asked.
    virtual bool KannFragen() const = 0;
    /// Asks a question. False for any answer but yes.
    virtual bool Frage(std::string_view text) = 0;

    /// Whether the user wants the command to end.
    virtual bool Unterbrochen() const = 0;
};

} // namespace varnoth::ctl
