#pragma once

#include "aufzeichnungsform.h"

#include <optional>

namespace varnoth {

/// Writes a stretch of a source as a file, step by step: what memory holds becomes a record. The file begins
/// where its first packet does. What the source forgets meanwhile is left out.
class Quellenabschrift {
public:
    /// All packets that touch the stretch, as far as they are there now; a copy of the source's own time.
    /// @param quelle must outlive this object
    Quellenabschrift(const Messquelle& quelle, std::unique_ptr<Aufzeichnungsform> form, Zeitspanne spanne);

    /// The next bytes of the file, some milliseconds of work; nothing once it is whole.
    std::optional<std::string> Weiter();
    /// How much is done, 0 to 1.
    double Anteil() const;
    /// Passes that were written so far.
    std::uint64_t Durchgaenge() const { return durchgaenge; }

private:
    enum class Schritt { Beginn, Pakete, Fertig };

    std::string Beginne();
    std::string NimmPakete();
    Messpaket AbBeginn(Messpaket paket) const;

    const Messquelle& quelle;
    std::unique_ptr<Aufzeichnungsform> form;
    Schritt schritt = Schritt::Beginn;
    std::uint64_t erstes = 0;
    std::uint64_t naechstes = 0;
    std::uint64_t ende = 0;
    Zeit beginn{}; ///< of the file, in the source's time
    std::uint64_t durchgaenge = 0;
};

} // namespace varnoth
