#pragma once

#include "abbild.h"
#include "boolean.h"

#include <cstddef>
#include <string>
#include <string_view>

/// The body of a configuration file (*.con), which holds a whole register image. Little-endian, without
/// gaps:
///
///     offset  bytes  content
///          0     21  the text "Varnoth Konfiguration"
///         21      1  format version, always 0
///         22   1024  GlobaleGeraetedaten, 256 signed 32-bit values
///       1046   8192  SpezifischeGeraetedaten, 4 x 512 values, the optical part varying fastest
///       9238   1024  Kommunikationsdaten, 256 values
namespace varnoth {

/// Number of bytes of a complete body.
inline constexpr std::size_t LaengeKonfigurationsdatei = 10262;

enum class Dateibefund { Gut, UnbekanntesFormat, UnbekannteVersion };

/// Checks a body and takes its values over into `abbild`, which changes only when the body is good. Bytes
/// behind a complete body are ignored; a wrong version is reported before a short body.
[[nodiscard]] Dateibefund ZerlegeKonfigurationsdatei(std::string_view bytes, Abbild& abbild);

/// The same; a body that is not good gives a warning box (3100 unknown format, 3101 unknown version) and
/// false.
[[nodiscard]] bool ZerlegeMitMeldung(std::string_view bytes, Abbild& abbild);

/// The body of a file with the image as it stands, values beyond 16 bits included.
std::string AlsKonfigurationsdatei(const Abbild& abbild);

} // namespace varnoth

namespace varnoth::modDaten {

/// The body of a file with the image in use.
std::string SpeichereKonfigurationsdatei();

/// Replaces the image in use by the values of a body and marks the configuration as changed. A body that is
/// not good gives a warning box (3100 unknown format, 3101 unknown version) and False; the image then stays
/// as it was.
Boolean LadeKonfigurationsdatei(std::string_view bytes);

} // namespace varnoth::modDaten
