#pragma once

#include "endecode.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

/// What can be chosen on the command line: a row for each option and each command. Reading a command line,
/// the help and whatever describes the program elsewhere follow these tables.
namespace varnoth::ctl {

struct Lauf;

/// An option: its long name without "--".
struct Option {
    std::string_view name;
    char kurz;                ///< the letter behind "-"; 0: none
    std::int16_t platzhalter; ///< text id of what its value is called; 0: it has none
    std::int16_t zweck;       ///< text id
};

/// The options that every command takes.
std::span<const Option> AllgemeineOptionen();
/// Those that only some take.
std::span<const Option> EigeneOptionen();

/// The most own options that a command has, and the most arguments where their number is not limited.
inline constexpr std::size_t HoechstensEigene = 5;
inline constexpr std::uint16_t BeliebigViele = 1000;

/// A command.
struct Befehl {
    std::string_view name;
    std::int16_t argumente;   ///< text id of what they are called; 0: it has none
    std::uint16_t mindestens; ///< arguments
    std::uint16_t hoechstens;
    std::int16_t zweck;                          ///< text id: one line
    std::int16_t einzelheiten;                   ///< text id: what else is to be known; 0: nothing
    std::string_view optionen[HoechstensEigene]; ///< names of its own options; the rest is empty
    Ende (*tat)(Lauf& lauf);
};

/// All commands, in the order of the help.
std::span<const Befehl> AlleBefehle();

/// Whether a command takes an option of its own.
bool Nimmt(const Befehl& befehl, std::string_view option);

} // namespace varnoth::ctl
