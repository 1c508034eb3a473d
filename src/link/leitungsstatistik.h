#pragma once

#include "umgebung.h"

#include <array>
#include <optional>
#include <string_view>

namespace varnoth {

/// How an exchange with the controller has ended.
enum class Austauschende {
    Gelungen,
    KeinPort,     ///< the port was not open
    Stille,       ///< nothing came
    Unverstanden, ///< something came that was no reply to the request
    Echo,         ///< what was sent came back
};

/// What becomes of the exchanges on the line, counted by kind. The port module and the exchanges report to
/// it; it sends nothing and changes nothing.
namespace modLeitungsstatistik {

struct Stand {
    /// Number of exchanges since the start, by Austauschende.
    std::array<unsigned long, 5> anzahl{};
    /// When the last reply came, on the clock.
    std::optional<Zeit> letzteAntwort{};
    /// When the first request was sent that has had no reply since; empty after a reply, and from the time
    /// the port is opened until a request is sent.
    std::optional<Zeit> wartetSeit{};
    /// For how long the window had held the program up then.
    Zeit aufenthaltDavor{0};
    /// How the last exchange has ended; empty from the time the port is opened until one has.
    std::optional<Austauschende> letztesEnde{};
    /// Whether an exchange is under way.
    bool unterwegs = false;
};

/// The port is opened: a new row of exchanges.
void NeueReihe();

void Beginnt();
/// The bytes of a request or a frame have left.
void Gesendet(std::string_view bytes);
/// Bytes have arrived.
void Empfangen(std::string_view bytes);
void Endet(bool gelungen, bool portOffen);

const Stand& GetStand();
/// Since when no request has had a reply, without what the window has held the program up since then, in
/// which nobody listened.
std::optional<Zeit> WartetSeit();
/// How many exchanges have failed in the last minute.
int FehlschlaegeDerLetztenMinute();

} // namespace modLeitungsstatistik

} // namespace varnoth
