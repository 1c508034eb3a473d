#pragma once

#include <cstdint>

/// What the bits of the status words mean.
namespace varnoth {

/// The controller's status word.
namespace geraetestatus {
inline constexpr std::int32_t PnpAktiv = 1 << 1;
inline constexpr std::int32_t KeinOptikteil = 1 << 2;
inline constexpr int StrahlenzahlGeaendertBit = 4; ///< of the first part; those of the others follow
inline constexpr int NichtLesbarBit = 12;          ///< of the first part; those of the others follow
} // namespace geraetestatus

/// The status word of an optical part.
namespace optikteilstatus {
inline constexpr std::int32_t Vorhanden = 1 << 7;
} // namespace optikteilstatus

} // namespace varnoth
