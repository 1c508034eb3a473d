#pragma once

#include "speicherbereich.h"
#include "werte.h"

#include <cstdint>
#include <optional>
#include <string_view>

/// What the frames on the line say, byte by byte.
namespace varnoth {

/// So many registers hold the service password.
inline constexpr int Passwortregister = 8;

/// Registers that a request is about.
struct Registerbezug {
    Speicherbereich bereich;
    int adresse; ///< of the first one, from the start of the range
    int anzahl;

    bool operator==(const Registerbezug&) const = default;
};

/// Whether they have a register in common.
bool Beruehren(const Registerbezug& eines, const Registerbezug& anderes);

/// The function code of a frame; nothing for less than two bytes.
std::optional<std::uint8_t> Funktionscode(std::string_view rahmen);
bool IstLeserahmen(std::string_view rahmen);
bool IstSchreibrahmen(std::string_view rahmen);

/// Address and count of a request that reads or writes, as they stand in it; nothing for other frames.
struct Adressangabe {
    std::uint16_t adresse;
    std::uint16_t anzahl;
};
std::optional<Adressangabe> AdressangabeVon(std::string_view anforderung);

/// The registers of a request that reads or writes in one of the ranges; nothing for other frames and
/// addresses.
std::optional<Registerbezug> RegisterbezugVon(std::string_view anforderung);

/// The values that a request writes; empty for other frames and for one that is cut off.
Werte GeschriebeneWerte(std::string_view anforderung);

/// The values that came for a request that reads: those of the last whole reply to it. Empty where there is
/// none.
Werte GeleseneWerte(std::string_view anforderung, std::string_view empfangen);

/// What the controller told with the identification: all that follows the byte count, without the checksum.
/// Empty where no whole reply came.
std::string_view Identifikationsdaten(std::string_view empfangen);

/// The code with which the controller refused the request; nothing where it did not.
std::optional<std::uint8_t> Ablehnungscode(std::string_view anforderung, std::string_view empfangen);

} // namespace varnoth
