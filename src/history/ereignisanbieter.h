#pragma once

#include <optional>
#include <string>

namespace varnoth {

/// The files of the days, to which events are appended from the time on that somebody asks for it.
struct Mitschriftstand {
    bool laeuft = false;
    std::string ordner{}; ///< where they lie, UTF-8; empty as long as none was chosen
    std::string datei{};  ///< the one written last
    std::string fehler{}; ///< why the last attempt has failed; empty when it has not

    bool operator==(const Mitschriftstand&) const = default;
};

/// What the window of events asks of the program around it, beside what all windows of the past ask.
class Ereignisanbieter {
public:
    Ereignisanbieter() = default;
    Ereignisanbieter(const Ereignisanbieter&) = delete;
    Ereignisanbieter& operator=(const Ereignisanbieter&) = delete;
    virtual ~Ereignisanbieter() = default;

    virtual Mitschriftstand Mitschrift() = 0;
    /// Begins or ends writing the files of the days, also for later runs. It begins with what happens from
    /// now on.
    virtual void SetzeMitschrift(bool laeuft, const std::string& ordner) = 0;
    /// Asks for a folder; nothing when the user changes his mind.
    virtual std::optional<std::string> FrageNachOrdner(const std::string& titel,
                                                       const std::string& anfang) = 0;
};

} // namespace varnoth
