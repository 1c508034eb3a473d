#pragma once

#include <chrono>
#include <cstddef>
#include <deque>
#include <string>

/// What has happened in this run, for whoever is to find out later: commands that ran, connections that came
/// and went.
namespace varnoth::modEreignisse {

/// No more are kept; the oldest go.
inline constexpr std::size_t Hoechstzahl = 500;

struct Ereignis {
    std::chrono::system_clock::time_point zeit;
    std::string text; ///< UTF-8, one line
};

/// Keeps an event of now. One like the last one is kept all the same.
void Merke(const std::string& text);

/// All that are kept, the oldest first.
const std::deque<Ereignis>& Alle();

} // namespace varnoth::modEreignisse
