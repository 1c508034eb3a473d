#pragma once

#include "registerspeicher.h"

#include <filesystem>

namespace varnoth::simulator {

/// What the controller keeps without power: configuration, factory data and the beam counts it last knew.
/// With a file it outlives the program too.
class Dauerspeicher {
public:
    /// Begins with the given values, or with those of the file when there is one.
    /// @throws std::runtime_error with a sentence for the user when the file cannot be understood
    Dauerspeicher(const Registerspeicher& anfang, std::filesystem::path ablage);

    const Registerspeicher& Inhalt() const { return inhalt; }
    /// Keeps the configuration and the beam counts, or the factory data, of the given registers. False when
    /// the file could not be written.
    bool Behalte(const Registerspeicher& speicher, Art art);

private:
    void Lies();
    bool Schreibe() const;

    Registerspeicher inhalt;
    std::filesystem::path datei;
};

} // namespace varnoth::simulator
