#pragma once

#include "abbild.h"
#include "texte.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A configuration as text that a person can read, compare and keep in version control. UTF-8, one line a
/// value, in the order of ranges and registers, below a first line that tells the language:
///
///     Varnoth Konfiguration als Text 1
///     Optikteil 2 / Auflösung / 13 / 20mm
///
/// The same configuration gives the same bytes. What is read back is the same image to the last register.
/// A parameter of the configuration always has a line; what is measured at the moment, and a register that
/// belongs to no parameter, has one only where it is not 0. Empty lines and those with "#" in front do not
/// count.
namespace varnoth {

/// The longest text that is looked at, in bytes. A whole image has less than a fifth of it.
inline constexpr std::size_t LaengsterStandtext = std::size_t{1024} * 1024;

/// The most errors that are told of a text.
inline constexpr std::size_t HoechstensStandfehler = 20;

/// The text of an image in the given language.
std::string Standtext(const Abbild& abbild, std::int16_t sprache = GetSprachoffset());

/// The image without what is measured at the moment: it keeps what stays the same until somebody changes it.
Abbild OhneMomentanes(Abbild abbild);

/// What can be wrong with a text.
enum class Standmangel {
    ZuGross,
    KeinStand, ///< the first line is not the one that such a text begins with
    KeinUtf8,
    KeineFelder,        ///< not four fields with " / " between them
    UnbekannterBereich, ///< `erste`: its name
    UnbekannterName,    ///< `erste`: the name
    FalschesRegister,   ///< `erste`: the name, `zweite`: the register that it has
    FreiesRegister,     ///< `erste`: a register that the range does not have, or that a name stands for
    UnverstandenerWert, ///< `erste`: the words, `zweite`: the name
    Doppelt,            ///< `erste`: the line in which the value stands already
    Fehlt,              ///< `erste`: range and name
};

/// An error, with the number of its line from 1; 0 where no line is wrong.
struct Standfehler {
    Standmangel mangel;
    std::size_t zeile = 0;
    std::string erste{};
    std::string zweite{};

    bool operator==(const Standfehler&) const = default;
};

/// What came of reading a text: an image, or what is wrong with it, by line.
struct Standbefund {
    std::optional<Abbild> abbild;
    std::vector<Standfehler> fehler{};
};

/// Reads a text, every line of which is checked; lines may stand in any order. Whether the values are
/// plausible is not looked at.
Standbefund LiesStandtext(std::string_view text);

/// An error as a sentence in the current language (UTF-8), with its line where it has one.
std::string Fehlertext(const Standfehler& fehler);

} // namespace varnoth
