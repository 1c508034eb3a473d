#pragma once

#include "messquelle.h"

#include <optional>
#include <string>
#include <string_view>

/// A packet as bytes: its first pass whole, each later one as what has changed in it, so that it can be read
/// alone. docs/RECORD_FORMAT.md tells every byte.
namespace varnoth {

/// The most passes and the most events of a packet.
inline constexpr std::size_t GroessterPaketinhalt = 4096;
/// The longest text of an event, in bytes; what is beyond is left out, whole characters at a time.
inline constexpr std::size_t LaengsterEreignistext = 4096;
/// The latest time of a source, and the greatest distance of a time of day from 1970.
inline constexpr Zeit GroessteZeit{9'000'000'000'000'000};

/// A packet's bytes. Times of passes must not go back nor leave the packet's span; times of day are kept to
/// the microsecond. Passes and events beyond the most there may be are left out.
std::string AlsBytes(const Messpaket& paket);

/// The packet of some bytes, whatever they are; nothing when they are none.
std::optional<Messpaket> PaketAus(std::string_view bytes);

} // namespace varnoth
