#pragma once

#include "option.h"

#include <cstdint>

namespace varnoth {

/// The values of the bus type's register.
namespace bustyp {
inline constexpr std::int32_t Modbus = 0;
inline constexpr std::int32_t Profibus = 1;
} // namespace bustyp

/// The bus types with their texts.
inline constexpr Option Bustypen[] = {{bustyp::Modbus, 5113}, {bustyp::Profibus, 5114}};

/// The highest station address on a bus.
constexpr int MaxStationsadresse(std::int32_t typ) {
    return typ == bustyp::Profibus ? 126 : 240;
}

/// The slowest rate, in cycles, of sending unasked on a bus.
constexpr int MaxAutosendrate(std::int32_t typ) {
    return typ == bustyp::Profibus ? 127 : 255;
}

} // namespace varnoth
