#pragma once

#include "befehlszeile.h"
#include "endecode.h"
#include "json.h"
#include "konsole.h"

#include <string>
#include <string_view>
#include <vector>

namespace varnoth::ctl {

/// A command on its way: what it was told, and where its output goes.
struct Lauf {
    const Befehlszeile& zeile;
    Konsole& konsole;

    bool InJson() const { return zeile.Hat("json"); }
    /// Says what a person may want to know, unless it shall be quiet.
    void Sage(std::string_view text) const;
    /// Shows how far the command has come, unless it shall be quiet.
    void ZeigeFortschritt(std::string_view text) const;
    /// Says why the command ends so.
    Ende Scheitere(Ende ende, std::string_view text) const;
    /// Writes the command's data: in JSON these fields behind the command's name, otherwise the text, line by
    /// line.
    void Gib(std::string_view text, const std::vector<Json::Feld>& felder) const;
    /// The same for what is no command, by a name of its own.
    void GibAls(std::string_view name, std::string_view text, const std::vector<Json::Feld>& felder) const;
    /// Whether the command may go on with what changes something: the user has said so beforehand, or is
    /// asked. Where nobody can be asked it says what is missing.
    Ende Erlaubnis(std::string_view frage) const;
    /// Whether the command will be able to ask, or need not.
    Ende KannErlaubnisBekommen() const;
};

/// The lines of a text, the end of each left out; an empty text has none.
std::vector<std::string_view> Zeilen(std::string_view text);

/// Runs a command line: help, version or a command.
Ende FuehreAus(std::span<const std::string> worte, Konsole& konsole);

} // namespace varnoth::ctl
