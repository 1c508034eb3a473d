#pragma once

#include "abbild.h"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace varnoth {

/// Before what a configuration was put aside.
enum class Sicherungsanlass { VorDemSchreiben, VorDemVerbinden, VorNeuer, VorDemOeffnen };

/// What stands beside a backup. Texts are UTF-8 and of one line.
struct Sicherungsangaben {
    std::chrono::system_clock::time_point zeit; ///< whole milliseconds count
    std::optional<Sicherungsanlass> anlass{};   ///< nothing where that is not known
    std::string seriennummer{};                 ///< empty where the configuration has none
    std::string softwareversion{};              ///< of the controller, "2.3"; empty where it is not known
    std::string strahlen{};                     ///< the beam counts of the parts: "32, 64, 0, 0"
    std::string programm{};                     ///< the version of the program that made it

    bool operator==(const Sicherungsangaben&) const = default;
};

/// What can be told of an image: all but occasion and program.
Sicherungsangaben AngabenZu(const Abbild& abbild, std::chrono::system_clock::time_point zeit);

/// The serial number in an image (UTF-8), without blanks around it; empty where it has none.
std::string Seriennummer(const Abbild& abbild);

/// The text beside a backup: lines "key=value" for people and programs. Characters that would break a line
/// become blanks.
std::string AlsSicherungstext(const Sicherungsangaben& angaben);
/// What such a text says, whatever it is; what it does not say stays empty. The time stands in the name.
Sicherungsangaben LiesSicherungstext(std::string_view text);

/// The folder for a controller: its serial number, of which only letters, digits, "-" and "_" stay and the
/// rest becomes "_", at most 40 characters. No number gives "ohne-nummer". It never leads out of its folder.
std::string Sicherungsordnername(std::string_view seriennummer);

/// The name of a backup's files without their ending: the time in UTC, so that names sort by age.
std::string Sicherungsname(std::chrono::system_clock::time_point zeit);
/// The time in such a name, which may end with a number behind "_"; nothing for any other text.
std::optional<std::chrono::system_clock::time_point> ZeitAusName(std::string_view name);

} // namespace varnoth
