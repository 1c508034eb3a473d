#pragma once

#include "polling.h"

#include <QString>

#include <cstdint>

namespace varnoth {

inline constexpr std::int16_t TextOnline = 4000;
inline constexpr std::int16_t TextNichtVorhanden = 4001;
inline constexpr std::int16_t TextOffline = 4002;

/// Which text follows the part's number in its view's caption.
/// @param live live data is running on a line that answers
std::int16_t Titeltext(modPolling::Optikteilzustand zustand, bool live);

/// The caption of the view of optical part 0..3: its number from 1 and a text.
QString Ansichtstitel(int optikteil, std::int16_t textId);
/// The same of a view that shows a replay.
QString Wiedergabetitel(int optikteil, std::int16_t textId);

} // namespace varnoth
