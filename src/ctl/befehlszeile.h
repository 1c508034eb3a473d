#pragma once

#include "ctlbefehle.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varnoth::ctl {

/// A command line, taken apart. Nothing of it is checked but that the tables have such options and commands.
struct Befehlszeile {
    const Befehl* befehl = nullptr; ///< null where only help or version is asked for
    std::vector<std::string> argumente{};
    std::map<std::string, std::string, std::less<>> optionen{}; ///< by long name

    bool Hat(std::string_view option) const { return optionen.contains(option); }
    std::optional<std::string> Wert(std::string_view option) const;
};

/// A command line, or what is wrong with it.
struct Zeilenbefund {
    Befehlszeile zeile{};
    std::string fehler{}; ///< in the current language; empty: nothing
};

/// Reads the words behind the program's name. Options may stand anywhere, their value behind "=" or as the
/// next word; behind
/// "--" there is none any more, and a number is none.
Zeilenbefund LiesBefehlszeile(std::span<const std::string> worte);

/// The language that the words ask for, or else the variables LC_ALL, LC_MESSAGES and LANG, of which the
/// first that is not empty counts.
/// @param variable gives the value of a variable, empty where there is none
std::int16_t SpracheAus(std::span<const std::string> worte,
                        const std::function<std::string(const char* name)>& variable);

} // namespace varnoth::ctl
