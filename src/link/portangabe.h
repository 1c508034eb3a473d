#pragma once

#include "anschluss.h"

#include <optional>
#include <string>
#include <vector>

namespace varnoth {

/// One serial port of the machine. Texts are UTF-8; what the system does not tell is empty.
struct Portangabe {
    std::string geraet{};         ///< path of the device, such as /dev/ttyUSB0
    std::string bezeichnung{};    ///< what it is, in the words of its maker: "FT232R USB UART"
    std::string hersteller{};     ///< who made it
    std::string seriennummer{};   ///< of the adapter
    std::vector<std::string> stabileNamen{}; ///< paths that lead to it wherever it is plugged in, the best first
    Portbefund befund{};          ///< what stands in its way, and who has it open
    std::string verzoegerungsdatei{};     ///< where the adapter's latency timer is; empty where it has none
    std::optional<int> verzoegerungMs{};  ///< for how long the adapter holds bytes back, in milliseconds

    bool operator==(const Portangabe&) const = default;
};

} // namespace varnoth
