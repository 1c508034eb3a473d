#pragma once

#include "ereignisableitung.h"

namespace varnoth {

/// The events of a source, found step by step, since a long record takes its time.
class Ereignislauf {
public:
    /// The most events that are kept of a source; of more the oldest go.
    static constexpr std::size_t Hoechstzahl = 100'000;

    /// Begins at a packet, and ends where the source ends now. The source must outlive this object.
    Ereignislauf(const Messquelle& quelle, std::uint64_t abPaket);
    explicit Ereignislauf(const Messquelle& ganze) : Ereignislauf(ganze, ganze.Erstes()) {}

    /// Looks at so many further packets at most. A packet that is gone or damaged is a gap.
    void Weiter(std::size_t pakete);
    bool IstFertig() const { return naechstes >= ende; }
    /// How much was looked at, 0..1.
    double Anteil() const;
    const Ereignisspeicher& Ereignisse() const { return ereignisse; }

private:
    const Messquelle* quelle;
    std::uint64_t anfang;
    std::uint64_t naechstes;
    std::uint64_t ende;
    Ereignisspeicher ereignisse{Hoechstzahl};
    Ereignisableitung ableitung{ereignisse};
};

} // namespace varnoth
