#pragma once

#include "ereignisspeicher.h"

#include <array>
#include <optional>

namespace varnoth {

/// Sums failed exchanges up by how they ended: one event a stretch of time, which ends when none has failed
/// for `Ruhe`, and after `LaengsteStrecke` the next one begins.
class Fehlschlagsumme {
public:
    static constexpr std::size_t Enden = 5; ///< how an exchange can end; the first is a reply
    static constexpr Zeit Ruhe = std::chrono::seconds(10);
    static constexpr Zeit LaengsteStrecke = std::chrono::minutes(10);

    /// `ziel` gets the events, and must outlive this object.
    explicit Fehlschlagsumme(Ereignisspeicher& ziel);

    /// So many exchanges had ended in each way until now, on a clock that never goes back. To be called about
    /// once a second; the first call tells from where it is counted.
    void Nimm(const std::array<unsigned long, Enden>& anzahl, Zeit uhr, Systemzeit zeit);

private:
    struct Strecke {
        std::optional<std::uint64_t> nummer{};
        Zeit letzter{};
        Ereignis ereignis{};
    };

    void Zaehle(Strecke& strecke, const Ereignis& neues);
    void Schliesse(Strecke& strecke);

    Ereignisspeicher* ziel;
    std::optional<std::array<unsigned long, Enden>> vorher;
    std::array<Strecke, Enden> strecken{};
};

} // namespace varnoth
