#pragma once

#include "abbild.h"
#include "parameterstelle.h"

#include <chrono>
#include <optional>
#include <string>

namespace varnoth {

/// What is known of the configuration in the controller.
struct Geraetestand {
    Abbild abbild;
    /// Readable parameters that no read or write has told; their values mean nothing.
    Parametermenge unbekannt;
    std::chrono::system_clock::time_point zeit; ///< when the read or write was done
    std::string seriennummer;                   ///< UTF-8; of the controller that answered
    bool ausDieserVerbindung = true;            ///< no connection was begun since

    bool IstVollstaendig() const { return unbekannt.empty(); }
};

} // namespace varnoth

/// Remembers what the controller held when it was last read or written, whatever becomes of the image in use.
namespace varnoth::modGeraetestand {

/// Nothing before the first read or write of this run.
[[nodiscard]] std::optional<Geraetestand> HoleGeraetestand();

/// After a read of the whole configuration: the controller holds what the image holds.
void MerkeGelesen(const Abbild& abbild, const std::string& seriennummer);

/// After a write: the controller holds the image's values of what was written (of each register the 16 bits
/// that travel). Of the rest it holds what was known before, unless that was another controller's.
void MerkeGeschrieben(const Abbild& abbild, const Parametermenge& geschriebenes,
                      const std::string& seriennummer);

/// A new connection begins: what is known is from an earlier one.
void BeginneVerbindung();

} // namespace varnoth::modGeraetestand
