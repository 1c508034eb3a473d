#pragma once

#include "anschluss.h"
#include "umgebung.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace varnoth {

/// The event code of a receive buffer overflow.
inline constexpr int EreignisEmpfangspufferUeberlauf = 1008;

/// The input buffer's size in bytes.
inline constexpr std::size_t Eingabepuffergroesse = 20480;

/// One serial port, as the link needs it. Bytes are the characters of a string. No operation throws.
class SeriellerPort {
public:
    SeriellerPort() = default;
    SeriellerPort(const SeriellerPort&) = delete;
    SeriellerPort& operator=(const SeriellerPort&) = delete;
    virtual ~SeriellerPort() = default;

    /// Names the device that every number means from the next Oeffne on; empty: the one that the settings
    /// name. A port that leads to no device of the system does not care.
    virtual void SetzeGeraet(const std::string& /*pfad*/) {}
    /// Opens port 1..4 with a settings string such as "38400,n,8,2", without handshaking, RTS and DTR on.
    /// False when it cannot be opened; Fehlertext then says why.
    virtual bool Oeffne(int nummer, const std::string& einstellungen) = 0;
    /// Closes the port; harmless when it is closed.
    virtual void Schliesse() = 0;
    /// Whether the port is open and its line still there.
    virtual bool IstOffen() = 0;
    /// Why the last Oeffne failed, in the current language; empty when it has not.
    virtual std::string Fehlertext() const = 0;
    /// What port 1..4 leads to.
    virtual Anschluss AnschlussVon(int /*nummer*/) const { return {}; }
    /// What stands in the way of port 1..4, looked for now; why its last Oeffne failed plays a part. Takes
    /// some milliseconds.
    virtual Portbefund BefundVon(int /*nummer*/) const { return {}; }

    /// Discards what was received.
    virtual void Verwirf() = 0;
    /// Number of received bytes waiting.
    virtual std::size_t BytesWartend() = 0;
    /// Every byte waiting.
    virtual std::string LiesAlles() = 0;
    /// Sends the bytes whole.
    virtual void Schreibe(std::string_view bytes) = 0;
    /// Sleeps, serving events, until something has arrived, an event was served or the time has passed.
    virtual void WarteAufEingang(Zeit hoechstens) = 0;
    /// Sleeps through the bytes that arrive until the time has passed, or until the window's turn comes again
    /// when that is sooner. A port that cannot returns at once.
    virtual void Schlafe(Zeit hoechstens) = 0;
    /// Waits, serving events, until the last byte sent has left the system, but at most so long. False when
    /// the time is up.
    virtual bool LeereSender(Zeit hoechstens) = 0;

    /// Sets who hears of the port's error events.
    virtual void SetzeEreignisbehandlung(std::function<void(int ereignis)> behandlung) = 0;
};

} // namespace varnoth
