#pragma once

#include "messdurchgang.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// The past of live data, wherever it is kept: in the memory of this run or in a record. Times of a source
/// count from its beginning on a clock that never goes back (`laufzeit`); the time of day stands beside them.
namespace varnoth {

class Uebersicht;

/// What stands in a source beside the passes.
enum class Messereignisart : std::uint8_t {
    LiveBegonnen,
    LiveBeendet,
    Verloren,  ///< the controller no longer answered
    Zurueck,   ///< it answered again
    Notiz,     ///< somebody's note; `text`
    Verworfen, ///< passes that could not be kept; `text` is how many
};

/// What stands in a source for what has happened to live data.
constexpr Messereignisart ArtVon(Liveereignisart art) {
    constexpr Messereignisart arten[] = {Messereignisart::LiveBegonnen, Messereignisart::LiveBeendet,
                                         Messereignisart::Verloren, Messereignisart::Zurueck};
    return arten[static_cast<std::size_t>(art)];
}

struct Messereignis {
    Messereignisart art{};
    Zeit laufzeit{};
    Systemzeit zeit{};
    std::string text{}; ///< UTF-8, one line

    bool operator==(const Messereignis&) const = default;
};

/// From when to when, both included.
struct Zeitspanne {
    Zeit von{};
    Zeit bis{};

    bool operator==(const Zeitspanne&) const = default;
};

/// About a second of the past. The clock of each pass is its `laufzeit`.
struct Messpaket {
    Zeitspanne spanne{};
    std::vector<Messdurchgang> durchgaenge{};
    std::vector<Messereignis> ereignisse{};

    bool operator==(const Messpaket&) const = default;
};

/// Of what a source tells.
struct Messangaben {
    Systemzeit beginn{};        ///< the time of day at `laufzeit` 0
    int zoneMinuten = 0;        ///< how far local time was ahead of UTC then
    std::string bezeichnung{};  ///< what the controller called itself, UTF-8; may be empty
    std::string seriennummer{}; ///< UTF-8; may be empty
    std::string programm{};     ///< version of the program that made it

    bool operator==(const Messangaben&) const = default;
};

/// Packets are numbered through; in memory the oldest go, so that the first number grows. The newest packet
/// may still grow, and one may get a note: whoever keeps packets reads the newest again when the end of
/// `Spanne` has moved, and others never hear of a note that came later.
class Messquelle {
public:
    Messquelle() = default;
    Messquelle(const Messquelle&) = delete;
    Messquelle& operator=(const Messquelle&) = delete;
    virtual ~Messquelle() = default;

    /// The number of the oldest packet there is.
    virtual std::uint64_t Erstes() const = 0;
    /// One more than the number of the newest; the same as `Erstes` when there is none.
    virtual std::uint64_t Ende() const = 0;
    /// From the beginning of the oldest packet to the end of the newest.
    virtual Zeitspanne Spanne() const = 0;
    /// When a packet begins and ends; `nummer` is one of those there are.
    virtual Zeitspanne Spanne(std::uint64_t nummer) const = 0;
    /// The packet of a time: the last one that begins at it or before; the oldest for any earlier time.
    virtual std::uint64_t PaketUm(Zeit laufzeit) const = 0;
    /// What a packet holds; nothing when it is gone or damaged. Those read lately are at hand.
    virtual std::shared_ptr<const Messpaket> Lies(std::uint64_t nummer) const = 0;
    /// Whether events may stand in a packet; true where that is not known without reading it.
    virtual bool HatEreignisse(std::uint64_t /*nummer*/) const { return true; }
    /// The configuration that was in use at a packet's beginning; nothing when it is damaged.
    virtual std::shared_ptr<const Abbild> Konfiguration(std::uint64_t nummer) const = 0;
    /// What can be drawn of the whole without reading it.
    virtual const Uebersicht& DieUebersicht() const = 0;
    virtual Messangaben Angaben() const = 0;
};

} // namespace varnoth
