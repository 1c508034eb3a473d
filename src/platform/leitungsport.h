#pragma once

#include "seriellerport.h"

#include <string>

namespace varnoth {

/// A port on a line of the system. Whose turn it is while somebody waits on it, the line's or the window's,
/// and how often the line is asked whether it is still there, are the same on every system; how a system
/// opens, reads, writes and sleeps, its own port says.
class Leitungsport : public SeriellerPort {
public:
    void SetzeGeraet(const std::string& pfad) override;
    bool IstOffen() override;
    Anschluss AnschlussVon(int nummer) const override;

    void Schreibe(std::string_view bytes) override;
    void WarteAufEingang(Zeit hoechstens) override;
    void Schlafe(Zeit hoechstens) override;

protected:
    /// While a reply comes in, window events are served this often.
    static constexpr Zeit Fensterblick = std::chrono::milliseconds(4);

    /// The device that a number means.
    std::string Pfad(int nummer) const;

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
    void UebergibUndMale();
    void SchaueNachDemFenster();
    void Schlummere(Zeit hoechstens);

    std::string genanntes; // the device that all numbers mean; empty: what the settings say
    Zeit naechsterFensterblick{0};
    Zeit naechsterLeitungsblick{0};
};

} // namespace varnoth
