#pragma once

#include "umgebung.h"

#include <QString>

#include <functional>
#include <memory>
#include <string>

namespace varnoth {

/// Where a running program takes the paths of files that a second start of it hands over: a socket that only
/// this user can reach. Whoever is of another user is turned away, and so is what is no path; a caller that
/// says nothing keeps nobody waiting.
class Dateiannahme {
public:
    struct Ziel {
        std::function<bool()> bereit;                        ///< whether the program still opens files
        std::function<void(const std::string& pfad)> oeffne; ///< an absolute path (UTF-8)
        /// How long a caller may take to say what he wants.
        Zeit laengsterSatz = std::chrono::seconds(2);
    };

    /// Listens from now on; one that a program which died has left there is replaced. Where the folder is not
    /// this user's alone, or the path too long for a socket, nothing listens.
    /// @param ort path of the socket; empty: nothing listens
    Dateiannahme(const QString& ort, Ziel ziel);
    Dateiannahme(const Dateiannahme&) = delete;
    Dateiannahme& operator=(const Dateiannahme&) = delete;
    ~Dateiannahme();

    /// Whether it listens.
    bool Hoert() const;

private:
    class Innen;
    std::unique_ptr<Innen> innen;
};

} // namespace varnoth
