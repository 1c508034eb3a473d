#pragma once

#include "leitungswerte.h"
#include "umgebung.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace varnoth {

/// An open serial line of Windows. A read always waits on it, for one byte while nothing has come: its event
/// is what a thread sleeps on. Whatever the driver refuses on an open line means that the adapter is gone;
/// the line is then useless, and says so until it is closed.
class Comleitung {
public:
    Comleitung();
    Comleitung(const Comleitung&) = delete;
    Comleitung& operator=(const Comleitung&) = delete;
    ~Comleitung();

    /// Opens the line under its path and sets it up: no handshake, RTS and DTR on, '?' in place of a byte
    /// with a wrong parity. Gives 0, or the system's number for why that was not possible; it is closed then.
    unsigned long Oeffne(const std::string& pfad, const Leitungswerte& werte);
    /// Ends what is under way, gives the line its former settings back and closes it. Waits for the driver
    /// for a second at most. Harmless when it is closed.
    void Schliesse();
    bool IstOffen() const { return offen != nullptr; }

    /// Whether something has failed on the open line, which is therefore gone.
    bool IstVerloren() const;
    /// The same; the driver is asked for it.
    bool IstWeg();
    /// Whether the driver has thrown bytes away that found no room, as far as it was asked for anything else
    /// since this was asked last.
    bool NimmUeberlauf();

    /// Number of bytes that have come; 0 on a line that is gone, or closed.
    std::size_t BytesWartend();
    /// All of them.
    std::string Lies();
    /// Throws them away.
    void Verwirf();

    /// Hands the bytes to the driver, behind those that it still has.
    void Sende(std::string_view bytes);
    /// Whether the driver still has bytes to send, and about how many; 0 on a line that is gone, or closed.
    std::size_t Ungesendet();
    /// Lets the driver forget them.
    void BrichSendungAb();

    /// Whether there are messages for windows of this thread.
    static bool HatMeldungen();
    /// Sleeps until a byte has come, the line is gone or the time has passed. Messages for windows of this
    /// thread wake it up only when told so. Gives whether nothing tells that the line is gone.
    bool Schlafe(Zeit hoechstens, bool auchFuersFenster);

private:
    struct Leitung;

    std::unique_ptr<Leitung> offen;
};

} // namespace varnoth
