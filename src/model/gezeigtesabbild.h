#pragma once

#include "abbild.h"

/// The image that the views show: the one in use or, while a record is replayed, another one. What reads,
/// changes, writes and saves the configuration never meets that other one.
namespace varnoth::modDaten {

[[nodiscard]] const Abbild& GezeigtesAbbild();
/// Lets the views show another image, which must live until another call; nullptr: the image in use again.
void ZeigeAnderesAbbild(const Abbild* anderes);
/// Whether the views show another image than the one in use.
[[nodiscard]] bool IstAnderesGezeigt();

/// The beam count of an optical part, as the views show it; 0 for a part that does not exist.
[[nodiscard]] std::int32_t GezeigteStrahlenzahl(int optikteil);

} // namespace varnoth::modDaten
