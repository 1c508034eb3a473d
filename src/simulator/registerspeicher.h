#pragma once

#include "aufbau.h"
#include "registerplan.h"

#include <array>
#include <cstdint>
#include <span>

namespace varnoth::simulator {

/// The values of all registers, the specific ones once for each optical part.
class Registerspeicher {
public:
    /// Registers adresse.. of a range; the part, 0..3, counts in the specific range only. The block must lie
    /// within the range.
    std::span<std::uint16_t> Block(Ort ort, int teil, int anzahl);
    std::span<const std::uint16_t> Block(Ort ort, int teil, int anzahl) const;

    std::uint16_t& Global(int adresse) { return global[static_cast<std::size_t>(adresse)]; }
    std::uint16_t Global(int adresse) const { return global[static_cast<std::size_t>(adresse)]; }
    std::uint16_t& Spezifisch(int teil, int adresse);
    std::uint16_t Spezifisch(int teil, int adresse) const;
    std::uint16_t& Kommunikation(int adresse) { return kommunikation[static_cast<std::size_t>(adresse)]; }
    std::uint16_t Kommunikation(int adresse) const {
        return kommunikation[static_cast<std::size_t>(adresse)];
    }

private:
    std::array<std::uint16_t, 256> global{};
    std::array<std::array<std::uint16_t, 512>, Optikteile> spezifisch{};
    std::array<std::uint16_t, 256> kommunikation{};
};

/// Copies the registers of one kind (all that an entry of that kind covers) from one store to the other.
void Uebernimm(Registerspeicher& nach, const Registerspeicher& von, Art art);

} // namespace varnoth::simulator
