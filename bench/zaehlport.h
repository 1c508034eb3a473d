#pragma once

#include "qtseriellerport.h"
#include "statistik.h"

namespace varnoth::bench {

/// The pause before each request, in seconds.
inline constexpr double Sendepause = 0.002;

/// What went over the line.
struct Verkehr {
    unsigned long bytes = 0;
    unsigned long sendungen = 0;

    Verkehr operator-(const Verkehr& frueher) const {
        return {bytes - frueher.bytes, sendungen - frueher.sendungen};
    }
    /// The least time, in seconds, that this takes at 38400 baud: 11 bits a character and 2 ms before each
    /// request.
    double Grenze() const {
        return static_cast<double>(bytes) * 11 / 38400 + static_cast<double>(sendungen) * Sendepause;
    }
};

/// The system's serial port, counting.
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
        QtSeriellerPort::Schreibe(bytes);
    }
    const Verkehr& Bisher() const { return verkehr; }
    /// When bytes were read last, in seconds.
    double LetzteLesung() const { return letzteLesung; }
    /// When bytes were sent for the first time since the last call of VergissSendungen, in seconds.
    double ErsteSendung() const { return ersteSendung; }
    void VergissSendungen() { ersteSendung = 0; }

private:
    double ersteSendung = 0;
    double letzteLesung = 0;
    Verkehr verkehr;
};

} // namespace varnoth::bench
