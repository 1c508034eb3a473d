#pragma once

#include "qtseriellerport.h"

#include <utility>

namespace varnoth::bench {

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
        return static_cast<double>(bytes) * 11 / 38400 + static_cast<double>(sendungen) * 0.002;
    }
};

/// The system's serial port, counting.
class Zaehlport : public QtSeriellerPort {
public:
    std::string LiesAlles() override {
        std::string gelesen = QtSeriellerPort::LiesAlles();
        verkehr.bytes += gelesen.size();
        return gelesen;
    }
    void Schreibe(std::string_view bytes) override {
        verkehr.bytes += bytes.size();
        ++verkehr.sendungen;
        QtSeriellerPort::Schreibe(bytes);
    }
    const Verkehr& Bisher() const { return verkehr; }

private:
    Verkehr verkehr;
};

} // namespace varnoth::bench
