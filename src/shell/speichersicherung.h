#pragma once

#include "nebenfaden.h"
#include "quellenabschrift.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace varnoth {

/// What memory holds becomes a record. Its bytes are made in slices, beside everything else that the window's
/// thread does; a thread of its own brings them to the disk, however long that takes.
class Speichersicherung {
public:
    /// Puts a file with these bytes in place of the one that is there; gives the error's text, empty when all
    /// went well. Runs in the other thread.
    using Schreiber = std::function<std::string(const std::string& pfad, std::string_view bytes)>;

    /// @param quelle must outlive the slices
    Speichersicherung(const Messquelle& quelle, Zeitspanne spanne, std::string pfad, Schreiber schreibe);

    /// Works for so long, about. Whether there is more to do in slices.
    bool Arbeite(Zeit dauer);
    /// How much of its bytes are made, 0 to 1.
    double Anteil() const { return abschrift.Anteil(); }
    /// Whether the disk has it, or has failed.
    bool IstFertig();
    /// Ends it, within the time given. Whether it is done; if not, it is left to itself.
    bool Beende(std::chrono::milliseconds hoechstens);
    /// Why the file could not be written, once it is done; empty when it was.
    std::string Fehler() const { return inhalt->fehler; }
    const std::string& Pfad() const { return inhalt->pfad; }

private:
    /// What the other thread has, also when it is left behind.
    struct Inhalt {
        std::string pfad;
        std::string bytes;
        std::string fehler;
    };

    Quellenabschrift abschrift;
    Schreiber schreibe;
    std::shared_ptr<Inhalt> inhalt;
    std::optional<Nebenfaden> faden;
};

} // namespace varnoth
