#pragma once

#include "qtseriellerport.h"
#include "statistik.h"

#include <string>
#include <vector>

namespace varnoth::bench {

/// The pause before each request, in seconds.
inline constexpr double Sendepause = 0.002;
/// Bits that a character takes on the wire.
inline constexpr double BitsJeZeichen = 11;
inline constexpr int Standardbaud = 38400;

/// What went over the line.
struct Verkehr {
    unsigned long bytes = 0;
    unsigned long sendungen = 0;

    Verkehr operator-(const Verkehr& frueher) const {
        return {bytes - frueher.bytes, sendungen - frueher.sendungen};
    }
    /// The least time, in seconds, that this takes at so many baud: the characters on the wire and 2 ms
    /// before each request.
    double Grenze(int baud = Standardbaud) const {
        return static_cast<double>(bytes) * BitsJeZeichen / baud +
               static_cast<double>(sendungen) * Sendepause;
    }
};

/// The system's serial port, counting and, when told to, keeping what is sent.
class Zaehlport : public QtSeriellerPort {
public:
    std::string LiesAlles() override {
        std::string gelesen = QtSeriellerPort::LiesAlles();
        verkehr.bytes += gelesen.size();
        if (!gelesen.empty())
            letzteLesung = Uhrzeit();
        return gelesen;
    }
    void Schreibe(std::string_view bytes) override {
        verkehr.bytes += bytes.size();
        if (ersteSendung == 0)
            ersteSendung = Uhrzeit();
        ++verkehr.sendungen;
        if (zeichnetAuf)
            aufzeichnung.emplace_back(bytes);
        QtSeriellerPort::Schreibe(bytes);
    }
    const Verkehr& Bisher() const { return verkehr; }
    /// When bytes were read last, in seconds.
    double LetzteLesung() const { return letzteLesung; }
    /// When bytes were sent for the first time since the last call of VergissSendungen, in seconds.
    double ErsteSendung() const { return ersteSendung; }
    void VergissSendungen() { ersteSendung = 0; }
    /// Keeps every request from now on, or no longer.
    void ZeichneAuf(bool an) { zeichnetAuf = an; }
    /// The requests that were kept, whole frames.
    const std::vector<std::string>& Aufzeichnung() const { return aufzeichnung; }

private:
    double ersteSendung = 0;
    double letzteLesung = 0;
    bool zeichnetAuf = false;
    std::vector<std::string> aufzeichnung;
    Verkehr verkehr;
};

} // namespace varnoth::bench
