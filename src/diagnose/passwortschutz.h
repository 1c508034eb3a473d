#pragma once

#include "mithoeren.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace varnoth {

/// Keeps the service password out of what is written down of the line. It goes out in the registers made for
/// it, may come back as an echo or a late reply, and may be typed into others.
class Passwortschutz {
public:
    /// How many bytes of an exchange may be shown, from its beginning; the others may not even be kept.
    struct Zeigbares {
        std::size_t anforderung = 0;
        std::size_t empfangen = 0;

        bool operator==(const Zeigbares&) const = default;
    };

    /// To be asked for every exchange, in the order in which they come.
    Zeigbares Pruefe(const Mitschnitt& mitschnitt);

private:
    bool nachhall = false; ///< bytes of the password may still be on their way
};

/// The text with every occurrence of the service password hidden. Blanks at its end do not count; one of less
/// than four characters is none.
std::string OhnePasswort(std::string text);

/// Whether a settings key by its name may hold something that nobody else should read.
bool IstVertraulich(std::string_view schluessel);

/// What stands in place of something hidden.
inline constexpr const char* Verdecktes = "••";

} // namespace varnoth
