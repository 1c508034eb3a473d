#pragma once

#include "ereignisspeicher.h"

/// What has happened in this run, for whoever looks at it or is to find out later.
namespace varnoth::modEreignisse {

/// Keeps an event; one without a time is of now. Gives its number.
std::uint64_t Merke(Ereignis ereignis);

/// Keeps a text as an event of now that has no kind of its own.
std::uint64_t Merke(const std::string& text);

/// All that are kept.
Ereignisspeicher& Alle();

} // namespace varnoth::modEreignisse
