#pragma once

#include "porteinstellungen.h"
#include "seriellerport.h"

#include <functional>
#include <optional>
#include <string>

namespace varnoth {

/// A port on a line of the system. Whose turn it is while somebody waits on it, the line's or the window's,
/// and how often the line is asked whether it is still there, are the same on every system; how a system
/// opens, reads, writes and sleeps, its own port says.
class Leitungsport : public SeriellerPort {
public:
    void SetzeGeraet(const std::string& pfad) override;
    bool Oeffne(int nummer, const std::string& einstellungen) override;
    bool IstOffen() override;
    std::string Fehlertext() const override;
    Anschluss AnschlussVon(int nummer) const override;
    Portbefund BefundVon(int nummer) const override;

    void Schreibe(std::string_view bytes) override;
    void WarteAufEingang(Zeit hoechstens) override;
    void Schlafe(Zeit hoechstens) override;

    void SetzeEreignisbehandlung(std::function<void(int ereignis)> behandlung) override;

protected:
    /// While a reply comes in, window events are served this often.
    static constexpr Zeit Fensterblick = std::chrono::milliseconds(4);

    /// Opens the line of a device; the port is closed. Gives whether it is open, and remembers why not.
    virtual bool OeffneLeitung(const std::string& pfad, const Porteinstellungen& einstellungen) = 0;
    /// Why the last opening of a line failed, in the current language; empty when it has not.
    virtual std::string Oeffnungsfehler() const = 0;
    /// The same as what stands in the way, where the device's path and rights are in order.
    virtual Hindernis Oeffnungshindernis() const = 0;
    /// The input buffer has overflowed.
    void MeldeUeberlauf() const;

    /// Whether the port is open, as far as it has noticed.
    virtual bool IstAuf() const = 0;
    /// Whether the line behind the open port is gone.
    virtual bool LeitungIstWeg() = 0;
    /// Gives the bytes to the system, whole.
    virtual void Sende(std::string_view bytes) = 0;
    /// Number of bytes that were taken up while events ran.
    virtual std::size_t BytesGelesen() const = 0;
    /// Number of bytes that wait in the system.
    virtual std::size_t BytesImSystem() = 0;
    /// Whether there may be anything for the window. A port that is not told says yes.
    virtual bool KannFensterWarten() const { return true; }
    /// Sleeps on the open line until something has arrived or the time has passed. A port that wakes for
    /// nothing else sleeps for Fensterblick at most; one that can leave a message for the window for so long,
    /// and then wakes for it, may sleep on. Gives whether the line is known to be still there.
    virtual bool SchlafeAnDerLeitung(Zeit hoechstens) = 0;

private:
    std::string Pfad(int nummer) const;
    void UebergibUndMale();
    void SchaueNachDemFenster();
    void Male();
    void Schlummere(Zeit hoechstens);

    std::string genanntes; // the device that all numbers mean; empty: what the settings say
    std::optional<std::string> falscheEinstellung; // the settings string that is no line format
    std::function<void(int)> ereignisbehandlung;
    Zeit gesendetUm{0};
    Zeit naechsterFensterblick{0};
    Zeit naechsterLeitungsblick{0};
};

} // namespace varnoth
