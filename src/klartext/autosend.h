#pragma once

#include "option.h"

#include <cstdint>
#include <optional>
#include <span>

namespace varnoth {

/// How the controller sends measured data without being asked; the values are those of its register.
enum class Autosendart : std::int16_t {
    Keines = 0,
    OhneTrigger = 1,
    OhneTriggerModbus = 3,
    MitTriggerModbus = 4
};

/// When a trigger makes the controller send.
enum class Triggerstart : std::int16_t { Sofort = 0, NachVollstaendigemScan = 1 };

/// The modes that are offered, with their texts.
std::span<const Option> Autosendarten();
/// What a trigger may do, as bits of the register, with its texts.
std::span<const Option> Triggerarten();

/// What the autosend register says.
struct Autosendeinstellung {
    std::optional<Autosendart> art; ///< nothing: a mode that is not offered
    bool strahldatenMerken = false; ///< remember interrupted beams until they are sent
    std::int32_t rate = 0;          ///< without trigger: every so many cycles, 0 = none
    std::optional<Triggerstart> trigger = Triggerstart::Sofort; ///< with trigger; nothing: not offered

    bool operator==(const Autosendeinstellung&) const = default;
};

/// The bits of the register: the mode, remember interrupted beams, and what the mode needs beside itself.
namespace autosendbits {
inline constexpr std::int32_t Art = 0x7F;
inline constexpr std::int32_t Merken = 0x80;
inline constexpr std::int32_t Zusatz = ~0xFF;
inline constexpr int Zusatzversatz = 8;
} // namespace autosendbits

/// The settings in a register value, a rate above `maxRate` as that rate.
Autosendeinstellung AutosendAus(std::int32_t registerwert, int maxRate);

/// The register value of the settings.
std::int32_t Registerwert(const Autosendeinstellung& autosend);

/// The register value on a Profibus, where only the rate can be set: all else stays as it is in `bisher`, and
/// without a rate that too.
std::int32_t RegisterwertProfibus(std::int32_t bisher, std::int32_t rate);

/// `AutosendKlasse`: what kind of sending a mode is.
namespace autosendklasse {
inline constexpr std::int16_t Keines = -1;
inline constexpr std::int16_t OhneTrigger = 1;
inline constexpr std::int16_t MitTrigger = 2;
} // namespace autosendklasse

/// The class of a mode. One that is not offered counts as no autosend.
std::int16_t AutosendKlasse(std::optional<Autosendart> art);

/// Whether the controller can be told to start sending in this mode.
bool IstStartbar(std::optional<Autosendart> art);

/// The byte formats of the line on which the controller sends; the values are those of its register.
enum class Byteformat : std::int32_t {
    ZweiStopbitsOhneParitaet = 0x300,
    EinStopbitUngerade = 0x500,
    EinStopbitGerade = 0x900
};

/// The byte formats with their texts.
std::span<const Option> Byteformate();

/// The byte format in a register value; nothing for one that is not offered.
std::optional<Byteformat> ByteformatAus(std::int32_t registerwert);

/// The register value from baud code and byte format.
std::int32_t Autosendformatwert(std::int32_t baudcode, std::optional<Byteformat> format);

} // namespace varnoth
