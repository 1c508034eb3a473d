#pragma once

#include "ereignisspeicher.h"

#include <optional>

namespace varnoth {

/// Keeps states that follow one another, an event each. One that goes to and fro between two of them, as on
/// a disturbed line, stays one event as long as it never rests for `Ruhe`, a minute at most.
class Zustandsmerker {
public:
    static constexpr Zeit Ruhe = std::chrono::seconds(10);
    static constexpr Zeit LaengstesHinUndHer = std::chrono::seconds(60);

    /// `ziel` gets the events, and must outlive this object.
    explicit Zustandsmerker(Ereignisspeicher& ziel) : speicher(&ziel) {}

    /// The state in `neu` of an event has begun, at its `laufzeit` on a clock that never goes back.
    void Merke(const Ereignis& ereignis);

private:
    Ereignisspeicher* speicher;
    std::uint64_t nummer = 0;
    std::optional<Ereignis> letztes; ///< as it is kept
    std::int32_t davor = -1;         ///< the state before the one that holds
    Zeit gewechselt{};
};

} // namespace varnoth
