#pragma once

#include "schreibwerk.h"

#include <optional>
#include <string>

namespace varnoth {

/// How the recording of this run stands, for a person.
struct Aufzeichnungslage {
    bool laeuft = false;
    Aufzeichnungsstand stand{};      ///< of the one that runs, else of the last one
    double durchgaengeJeSekunde = 0; ///< recorded lately
    std::string hindernis{};         ///< why nothing can be written now, in the current language; else empty
};

/// What is kept in memory although nobody records.
struct Flugschreiber {
    bool alleTeile = false; ///< also those that no view shows
    int megabyte = 64;      ///< memory for it

    bool operator==(const Flugschreiber&) const = default;
};

/// How the saving of the memory stands.
struct Speicherlage {
    bool laeuft = false;
    double anteil = 0;       ///< of what is to be done before the disk has it all, 0 to 1
    std::string gesichert{}; ///< path of the last one that was saved
};

inline constexpr Wahlbereich Flugschreiberbereich{16, 512};

/// What the window of recordings asks of the program around it.
class Aufzeichnungsanbieter {
public:
    Aufzeichnungsanbieter() = default;
    Aufzeichnungsanbieter(const Aufzeichnungsanbieter&) = delete;
    Aufzeichnungsanbieter& operator=(const Aufzeichnungsanbieter&) = delete;
    virtual ~Aufzeichnungsanbieter() = default;

    virtual Aufzeichnungslage Lage() = 0;
    /// The same in one line.
    virtual std::string Standtext() = 0;
    virtual Aufzeichnungswahl Wahl() = 0;
    /// Keeps a choice; the recording after the one that runs follows it.
    virtual void Waehle(const Aufzeichnungswahl& wahl) = 0;
    /// Where the next recording goes.
    virtual std::string Ordner() = 0;
    virtual void WaehleOrdner(const std::string& ordner) = 0;
    /// What the next recording is called unless somebody names it.
    virtual std::string Namensvorschlag() = 0;
    /// Begins a recording, or says why not; an empty name stands for the one that is proposed.
    virtual void Beginne(const std::string& name) = 0;
    virtual void Beende() = 0;
    /// Asks for a folder; nothing when the user changes his mind.
    virtual std::optional<std::string> FrageNachOrdner(const std::string& titel,
                                                       const std::string& anfang) = 0;
    /// Shows a folder in the system's file manager.
    virtual void ZeigeOrdner(const std::string& ordner) = 0;

    virtual Flugschreiber DerFlugschreiber() = 0;
    virtual void Waehle(const Flugschreiber& wahl) = 0;
    /// How much is in memory, as a person writes it: "00:12:34"; empty while there is nothing.
    virtual std::string ImSpeicher() = 0;
    /// Asks for a file and begins to save the last so many minutes of the memory there as a record. What goes
    /// wrong is told by a message.
    virtual void SichereSpeicher(int minuten) = 0;
    virtual Speicherlage Sicherung() = 0;
};

} // namespace varnoth
