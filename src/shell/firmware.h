#pragma once

#include <string>

namespace varnoth {

/// What a firmware update asks of the main window.
class Firmwareziel {
public:
    virtual ~Firmwareziel() = default;

    /// Shows the identification dialog; false when it was cancelled.
    virtual bool Identifiziere() = 0;
    /// Starts the program that transfers the firmware, without waiting for it.
    /// @return empty, or why it could not be started, in the system's words
    virtual std::string StarteFlasher(const std::string& parameter) = 0;
};

/// The firmware update: asks, identifies the controller, sends it the command that makes it ready and starts
/// the program that does the rest. Nothing happens when the settings name no parameter for that program. When
/// it cannot be started, a warning box says why.
void AktualisiereFirmware(Firmwareziel& ziel);

} // namespace varnoth
