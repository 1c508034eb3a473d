#pragma once

#include "umgebung.h"

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace varnoth {

// The line between a second start and the running program. A call is the greeting and the path of a file, and
// comes to an end: of the stream, or on Windows of the message. The answer is one line.
inline constexpr std::string_view Rufgruss = "varnoth: open\n";
inline constexpr std::string_view RufAngenommen = "taken\n";
inline constexpr std::string_view RufAbgelehnt = "refused\n";

inline constexpr std::size_t LaengsterRuf = 65536;
inline constexpr std::size_t HoechstensAnrufe = 8;              ///< who are heard at a time
inline constexpr Zeit Rufpause = std::chrono::milliseconds(20); ///< between two attempts to call

/// What a call asks for, an absolute path; nothing when it is no call of ours.
std::optional<std::string> GerufenerPfad(std::string_view anruf);

/// The time that a handing-over may take.
class Ruffrist {
public:
    explicit Ruffrist(Zeit dauer);
    bool Laeuft() const { return Rest() > 0; }
    /// What is left of it in milliseconds; 0 when it is over.
    int Rest() const;

private:
    std::chrono::steady_clock::time_point ende;
};

} // namespace varnoth
