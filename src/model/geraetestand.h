#pragma once

#include "abbild.h"
#include "parameterstelle.h"

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace varnoth {

/// What is known of the configuration in the controller.
struct Geraetestand {
    Abbild abbild;
    /// Readable parameters that no read or write has told; their values mean nothing.
    Parametermenge unbekannt;
    /// Written since they were last read: confirmed, not read back.
    Parametermenge ungeprueft;
    std::chrono::system_clock::time_point zeit; ///< when the last read or write was done
    /// When the read was done that tells what is neither unknown nor unchecked; nothing before any.
    std::optional<std::chrono::system_clock::time_point> gelesen;
    std::string seriennummer;        ///< UTF-8; of the controller that answered
    bool ausDieserVerbindung = true; ///< no connection was begun since

    bool IstVollstaendig() const { return unbekannt.empty(); }
    /// Whether all of it was read from the controller.
    bool IstGelesen() const { return gelesen && unbekannt.empty() && ungeprueft.empty(); }
};

/// What the optical parts said of their state, and when.
struct Teilzustaende {
    std::vector<std::int32_t>
        status; ///< the status registers of those that live data asked, from the first on
    std::chrono::system_clock::time_point zeit;
};

} // namespace varnoth

/// Remembers what the controller held when it was last read or written, whatever becomes of the image in use.
namespace varnoth::modGeraetestand {

/// Nothing before the first read or write of this run.
[[nodiscard]] std::optional<Geraetestand> HoleGeraetestand();

/// After a read of the whole configuration: the controller holds what the image holds.
void MerkeGelesen(const Abbild& abbild, const std::string& seriennummer);

/// After a write: the controller has confirmed the image's values of what was written (of each register the
/// 16 bits that travel), which is less than a read of them. Of the rest it holds what was known before,
/// unless that was another controller's.
void MerkeGeschrieben(const Abbild& abbild, const Parametermenge& geschriebenes,
                      const std::string& seriennummer);

/// After some parameters were read back: of them the controller holds what the image holds. The time of the
/// read is new once nothing is left that was only written.
void MerkeZurueckgelesen(const Abbild& abbild, const Parametermenge& gelesenes,
                         const std::string& seriennummer);

/// After something else has written these parameters, or may have: what the controller holds of them is not
/// known any more.
void Vergiss(const Parametermenge& stellen);

/// After an identification: what is known of a controller with another serial number is not known of this
/// one.
void Antwortet(const std::string& seriennummer);

/// What the optical parts last said of their state in this connection; nothing before live data has ended.
[[nodiscard]] std::optional<Teilzustaende> HoleTeilzustaende();

/// After live data of the first so many parts, whose last values, of that time, the image holds.
void MerkeTeilzustaende(const Abbild& abbild, int anzahl, std::chrono::system_clock::time_point zeit);

/// A new connection begins, or the controller starts anew: what is known of the configuration is from before,
/// the states are not known any more.
void BeginneVerbindung();

} // namespace varnoth::modGeraetestand
