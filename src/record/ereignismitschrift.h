#pragma once

#include "ereignisspeicher.h"

#include <string>
#include <vector>

namespace varnoth {

/// What is to be appended to the file of a day.
struct Tageszeilen {
    std::string tag{};    ///< local: "2026-11-22"
    std::string zeilen{}; ///< UTF-8, in the language of the moment

    bool operator==(const Tageszeilen&) const = default;
};

/// Tells which events are still to be written to the files of the days: those since its beginning, each once,
/// and those that go on once they are over.
class Ereignismitschrift {
public:
    /// The most events that are written at one go.
    static constexpr std::size_t JeSchritt = 500;

    /// Begins with what comes from now on. The store must outlive this object.
    explicit Ereignismitschrift(const Ereignisspeicher& speicher);

    /// What is to be written next: some lines of one day, none when there is nothing.
    Tageszeilen Faellige() const;
    /// What `Faellige` gave last has been written.
    void Erledige();

private:
    struct Stand {
        std::uint64_t naechstes = 0;
        std::vector<std::uint64_t> offene{}; ///< passed over because they went on
    };

    const Ereignisspeicher* speicher;
    Stand stand;
    mutable Stand danach; ///< when what was given last has been written
};

} // namespace varnoth
