#pragma once

#include "stoerungen.h"
#include "zeichenformat.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varnoth::simulator {

/// Time on a monotonic clock; all times given to one simulator come from the same clock.
using Zeit = std::chrono::microseconds;

inline constexpr int Optikteile = 4;
inline constexpr int MaxStrahlen = 512;
inline constexpr std::size_t Passwortlaenge = 16;

class Band;

/// What is put on the bench: the controller, its optical parts and the line to it.
struct Aufbau {
    std::array<int, Optikteile> strahlen{32, 64, 128, 288}; ///< beam counts, 0 = no part; at most 512 in all
    int adresse = 1;                                        ///< station address, 1..240
    std::uint64_t startwert = 1;                            ///< seed of the scene
    int baud = 38400;
    std::optional<Zeichenformat> format{}; ///< the only one in which it is understood; nothing: any
    int los = 8;          ///< bytes a UART's buffer gathers before it hands them over, at least 1
    bool getaktet = true; ///< bytes take their time on the wire; otherwise a reply is there at once
    Zeit bedenkzeit{0};   ///< from the end of a request to the start of its reply
    std::string passwort = "Varnoth-Service1"; ///< opens the factory data, 16 characters
    std::filesystem::path speicherdatei{}; ///< keeps configuration and factory data; empty = in memory only
    std::vector<Stoerung> stoerungen{};
    std::shared_ptr<Band> band{}; ///< a record that is replayed in place of the scene; may be none
    bool schleife = false;        ///< the record begins anew at its end
    std::function<void(std::string_view)> protokoll{}; ///< takes the log, line by line without line ends
};

/// Checks the beam counts: each 0..512, at least one beam, at most 512 in all.
/// @throws std::invalid_argument with a sentence for the user
void PruefeStrahlen(const std::array<int, Optikteile>& strahlen);

} // namespace varnoth::simulator
