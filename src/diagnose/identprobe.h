#pragma once

#include "identifikation.h"
#include "umgebung.h"

#include <functional>
#include <string>
#include <string_view>

namespace varnoth {

/// For how long a reply to an identification request is waited for.
struct Probefristen {
    Zeit pause;  ///< of quiet that a request waits for on a busy line
    Zeit beginn; ///< until the first byte must have come
    Zeit luecke; ///< between two bytes of a reply
    Zeit ganze;  ///< until the end of the longest reply
};

/// The times at a line format; those of the standard format where the text is none.
Probefristen FristenBei(std::string_view format);

/// One identification request and all that came on the line.
struct Identprobe {
    std::string davor{};     ///< bytes that came before the request
    std::string gesendet{};  ///< the request
    std::string empfangen{}; ///< all bytes since the request
    std::string antwort{};   ///< the whole valid reply among them; empty where there is none
    Identifikation ident{};  ///< what it says; valid where there is one
    Zeit umlauf{0};          ///< from the handing over of the request to the end of the reply
    bool aufgehalten =
        false; ///< the window held the program up meanwhile: the reply may have come long before
};

/// Asks for an identification on the open port and takes what comes, within the times. Where the line is busy
/// it is asked in a pause, if one comes within 50 ms. What the port had received before is kept apart.
/// Nothing of the exchange changes what the link knows of the controller.
/// @param abgebrochen asked whenever something has come; true ends the wait
Identprobe FrageIdentifikation(const Probefristen& fristen, const std::function<bool()>& abgebrochen);

/// Whether what was sent came back.
bool HatEcho(const Identprobe& probe);

/// What the bytes besides the reply are: all that was received without the reply itself.
std::string Daneben(const Identprobe& probe);

} // namespace varnoth
