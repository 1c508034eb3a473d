#pragma once

#include "aufzeichnungsanbieter.h"

#include <string>

namespace varnoth {

/// "HH:MM:SS", hours without end.
std::string Aufnahmedauer(Zeit dauer);
/// "812 KB", "1,2 MB", with the separator of the language.
std::string Groessentext(std::uint64_t bytes);

/// What the mark in the status bar says: duration, size, rate, and what is wrong. `liveDaten`: whether any
/// are running.
std::string Markentext(const Aufzeichnungslage& lage, bool liveDaten);

/// The name of a recording: the controller's serial number, date and time of day, in letters that every file
/// system takes.
std::string Aufzeichnungsname(const std::string& seriennummer, Systemzeit zeit);

/// A name that somebody typed, as a file's name without ending: it leads into no other folder, and every file
/// system takes it.
std::string Dateinamensteil(const std::string& getipptes);

/// How many passes a second were recorded over the last seconds.
class Aufzeichnungsrate {
public:
    /// The rate now, of what was recorded so far.
    double Betrachte(const Aufzeichnungsstand& stand);

private:
    struct Blick {
        Zeit dauer{};
        std::uint64_t durchgaenge = 0;
    };

    Blick alter;
    Blick neuer;
    double rate = 0;
};

} // namespace varnoth
