#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace varnoth::pruefung {

/// What this process holds of the machine.
struct Speicherstand {
    std::size_t belegtKb;     ///< resident memory
    std::size_t benutztKb;    ///< of it, what was allocated and not given back
    std::size_t deskriptoren; ///< open file descriptors
};

Speicherstand LiesSpeicherstand();
/// Of each figure the greater one.
Speicherstand Hoechststand(const Speicherstand& a, const Speicherstand& b);

/// Two lines about memory and descriptors after warm-up and at the end.
std::string Speicherzeilen(const std::optional<Speicherstand>& warm, const Speicherstand& ende);
/// What is wrong with the end beside the state after warm-up; empty when nothing is, and without the latter.
/// @param hoechstensKb how much more allocated memory is still called none; none judges descriptors alone
std::string Speicherurteil(const std::optional<Speicherstand>& warm, const Speicherstand& ende,
                           std::optional<std::size_t> hoechstensKb);

} // namespace varnoth::pruefung
