#pragma once

#include "aufbau.h"
#include "registerplan.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// The contents of a record (`*.vrec`), read as docs/RECORD_FORMAT.md tells them.
namespace varnoth::simulator {

struct Bandteil {
    bool vorhanden = false;
    bool gemessen = false; ///< in this pass; else values and beams are 0
    std::uint16_t status = 0;
    int strahlen = 0;
    std::array<std::uint16_t, reg::Messwertregister> werte{};
    std::array<std::uint16_t, reg::Strahlenregister> strahlregister{};
};

/// A pass.
struct Bandbild {
    Zeit laufzeit{0};
    std::uint16_t geraetestatus = 0;
    std::array<Bandteil, Optikteile> teile{};
};

enum class Bandereignisart : std::uint8_t { Begonnen, Beendet, Verloren, Zurueck, Notiz, Verworfen };

struct Bandereignis {
    Bandereignisart art{};
    Zeit laufzeit{0};
};

struct Bandpaket {
    Zeit von{0};
    Zeit bis{0};
    std::vector<Bandbild> bilder;
    std::vector<Bandereignis> ereignisse;
};

/// A packet's content; nothing when it is none.
std::optional<Bandpaket> LiesBandpaket(std::span<const std::uint8_t> inhalt);
/// When the packet begins and ends whose content begins so; nothing when it is none.
std::optional<std::pair<Zeit, Zeit>> LiesBandspanne(std::span<const std::uint8_t> beginn);

/// CRC-32 as archives use it.
std::uint32_t Bandpruefsumme(std::span<const std::uint8_t> bytes);

} // namespace varnoth::simulator
