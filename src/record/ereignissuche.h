#pragma once

#include "messquelle.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace varnoth {

/// What a replay can jump to.
enum class Sprungart : std::uint8_t {
    Zustand,    ///< bits of a part's status, or of the controller's, have changed
    Ausgang,    ///< the output was switched
    Teil,       ///< a part was gone, or was there again
    Verbindung, ///< live data began or ended, the connection was lost or came back
    Notiz,
};

inline constexpr Sprungart AlleSprungarten[] = {Sprungart::Zustand, Sprungart::Ausgang, Sprungart::Teil,
                                                Sprungart::Verbindung, Sprungart::Notiz};

/// An event of a source.
struct Sprungfund {
    Zeit laufzeit{};
    Sprungart art{};
    int teil = -1;    ///< 0..3 of Zustand and Teil; -1: the controller itself
    bool ein = false; ///< the output is on, the part is there, the controller answers
    std::optional<Messereignisart> ereignis{}; ///< what has happened, of Verbindung
    std::string text{};                        ///< of a note

    bool operator==(const Sprungfund&) const = default;
};

/// The events of a packet in order of time. What has changed since the packet before counts, across gaps
/// too.
std::vector<Sprungfund> FundeIn(const Messquelle& quelle, std::uint64_t nummer);

/// Looks for the next event of some kinds, forwards or backwards, a piece at a time. Stretches in which
/// nothing has changed are passed over by the overview.
class Ereignissuche {
public:
    /// Looks for one behind `von`, or before it. No kind at all stands for every kind. The source must
    /// outlive this object, and lose no packets meanwhile.
    Ereignissuche(const Messquelle& quelle, Zeit von, bool vorwaerts, std::vector<Sprungart> arten = {});

    /// Looks further, and reads no more than so many packets. False when the search has come to its end.
    bool Weiter(int hoechstensPakete);
    /// What was found; nothing while it looks, and when there is none.
    const std::optional<Sprungfund>& Fund() const { return fund; }

private:
    bool Passt(const Sprungfund& einer) const;
    bool IstEintoenig() const;

    const Messquelle& quelle;
    Zeit von;
    bool vorwaerts;
    std::vector<Sprungart> arten;
    std::uint64_t naechstes;
    std::uint64_t uebrige;
    std::optional<Sprungfund> fund;
};

} // namespace varnoth
