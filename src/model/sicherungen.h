#pragma once

#include "sicherung.h"

#include <optional>
#include <string>
#include <vector>

namespace varnoth {

/// A backup that is there.
struct Sicherung {
    std::string pfad; ///< of its configuration file, UTF-8
    Sicherungsangaben angaben;
};

/// Where configurations are put aside. Paths and error texts are UTF-8.
class Sicherungen {
public:
    Sicherungen() = default;
    Sicherungen(const Sicherungen&) = delete;
    Sicherungen& operator=(const Sicherungen&) = delete;
    virtual ~Sicherungen() = default;

    /// Puts an image aside, so that it outlives a loss of power; the oldest ones go when there are too many.
    /// Gives the system's error text and the path, empty when all went well.
    [[nodiscard]] virtual std::string Lege(const Abbild& abbild, const Sicherungsangaben& angaben) = 0;
    /// Every backup, the newest first.
    [[nodiscard]] virtual std::vector<Sicherung> Alle() const = 0;
    /// The image of a backup; nothing when its file cannot be read or makes no sense.
    [[nodiscard]] virtual std::optional<Abbild> Lies(const Sicherung& sicherung) const = 0;
    /// Writes a copy of a backup's file, in place of one that is there. Gives the system's error text, empty
    /// when all went well.
    [[nodiscard]] virtual std::string Kopiere(const Sicherung& sicherung, const std::string& ziel) const = 0;
    /// Removes a backup. Gives the system's error text, empty when it is gone.
    [[nodiscard]] virtual std::string Loesche(const Sicherung& sicherung) = 0;
};

/// The backups in force; nullptr where none were fitted in: nothing is put aside then.
Sicherungen* DieSicherungen();

/// Fits backups in (nullptr takes them out). They must live until they are taken out.
void SetzeSicherungen(Sicherungen* sicherungen);

/// The image in use is what a file or the controller holds: nothing of it would be lost.
void MerkeAusgangslage();

/// Puts the image in use aside if it has changes that would be lost: changes that are not saved, since the
/// last `MerkeAusgangslage`, and that the controller does not hold either. Gives an error text as
/// `Sicherungen::Lege`, empty when nothing is lost.
[[nodiscard]] std::string SichereAenderungen(Sicherungsanlass anlass);

/// Puts changes aside as `SichereAenderungen` and tells whether the image in use may be replaced. Where that
/// failed the user is asked; false when he rather keeps his changes.
[[nodiscard]] bool DarfErsetzen(Sicherungsanlass anlass);

/// Whether it is known in whole what the controller holds, so that it can be put aside.
bool IstGeraetestandSicherbar();

/// Puts aside what the controller held when it was last read or written. Gives an error text as
/// `Sicherungen::Lege`; empty also when nothing is known that could be put aside.
[[nodiscard]] std::string SichereGeraetestand();

} // namespace varnoth
