#pragma once

#include "ereignisspeicher.h"
#include "messquelle.h"

#include <array>
#include <optional>

namespace varnoth {

/// Tells from passes, and from what has happened to live data, what has changed: parts, status bits, the
/// switching output, the connection. What changes again and again becomes one event a burst: it ends when
/// nothing has changed for `Schubruhe`, and after `LaengsterSchub` the next one begins.
class Ereignisableitung {
public:
    static constexpr Zeit Schubruhe = std::chrono::seconds(10);
    static constexpr Zeit LaengsterSchub = std::chrono::seconds(60);

    /// `ziel` gets the events, and must outlive this object.
    explicit Ereignisableitung(Ereignisspeicher& ziel);

    // In the order of their times.

    void Nimm(const Messdurchgang& durchgang);
    void Nimm(const Messereignis& ereignis);
    /// Passes and events of a packet.
    void Nimm(const Messpaket& paket);
    /// It has become so late: bursts that are over end.
    void Verstreiche(Zeit laufzeit);
    /// Nothing is known of what follows: all bursts end, and what comes is compared with nothing before.
    void Vergiss();

private:
    /// Something with a value, and the burst in which that changes.
    struct Groesse {
        Ereignisart art{};
        std::int8_t teil = -1;
        std::optional<std::int32_t> wert{};
        Zeit gewechselt{}; ///< when it last did; when it was first seen
        std::optional<std::uint64_t> nummer{};
        Ereignis schub{};
    };

    void Betrachte(Groesse& groesse, std::int32_t wert, const Messdurchgang& durchgang);
    void BeginneSchub(Groesse& groesse, std::int32_t wert, const Messdurchgang& durchgang);
    void Schliesse(Groesse& groesse);
    bool IstVorbei(const Groesse& groesse, Zeit laufzeit) const;

    Ereignisspeicher* ziel;
    Groesse ausgang{.art = Ereignisart::AusgangGeschaltet};
    Groesse geraet{.art = Ereignisart::GeraeteStatus};
    std::array<Groesse, AnzahlOptikteile> anwesenheit{};
    std::array<Groesse, AnzahlOptikteile> teilstatus{};
    std::optional<Zeit> verloren;
};

} // namespace varnoth
