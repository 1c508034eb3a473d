#pragma once

#include "busprotokoll.h"
#include "werte.h"

#include <string>

namespace varnoth::busprobe {

/// An exchange for a log, with bytes of its own.
struct Probe {
    Austauschart art = Austauschart::Auftrag;
    Austauschergebnis ergebnis = Austauschergebnis::Beantwortet;
    std::string anforderung{};
    std::string empfangen{};
    Zeit gesendet{0};
    Zeit umlauf{0};

    /// A probe stands for one everywhere.
    operator Mitschnitt() const {
        return {art, ergebnis, anforderung, empfangen, gesendet, gesendet + umlauf};
    }
};

/// A read of registers that got these values; the address is that in the controller.
Probe Gelesen(int adresse, const Werte& werte);
/// A read that got nothing.
Probe Unbeantwortet(int adresse, int anzahl = 1);
/// A write that was confirmed.
Probe Geschrieben(int adresse, const Werte& werte);
/// Bytes that nobody was waiting for.
Probe Ungefragtes(const std::string& bytes);

/// Lets it go over the line, as whoever listens there hears it. Its result follows from its bytes; `gelungen`
/// says whether whoever asked was content.
void LassHoeren(const Probe& probe, bool gelungen = true);

/// The log's view of one exchange alone.
Busaustausch Austausch(const Probe& probe);

} // namespace varnoth::busprobe
