#pragma once

#include <memory>
#include <string>

namespace varnoth::bench {

/// Watches, as another client of the X server, for a window to appear. The screen must be black behind it.
class Fensterwaechter {
public:
    /// Connects to the screen that DISPLAY names; what opens from now on is seen.
    Fensterwaechter();
    ~Fensterwaechter();

    /// Whether there is a screen.
    bool Bereit() const { return verbindung != nullptr; }
    /// Waits until a window with the title is on the screen and its upper left corner is painted. False after
    /// ten seconds without one.
    bool WarteAuf(const std::string& titel);

private:
    struct Verbindung;
    std::unique_ptr<Verbindung> verbindung;
};

} // namespace varnoth::bench
