#pragma once

#include "geraetecrc.h"

#include <optional>

namespace varnoth::simulator {

/// Gathers the bytes of a request. The function code, for a write the byte count too, tells how long it is; a
/// request of an unknown function ends where its checksum comes out right.
class Anfragenleser {
public:
    enum class Ergebnis { Weiter, Ganz, Gebrochen };

    /// Takes one byte. Ganz: the whole request is in Rahmen(); Gebrochen: it was dropped for its checksum.
    Ergebnis Nimm(std::uint8_t neues);
    /// The request that became whole with the last byte, with its checksum.
    std::span<const std::uint8_t> Rahmen() const { return zeichen; }
    /// Drops a request that was begun: the wire has been quiet for too long. True when there was one.
    bool Verwirf();

private:
    std::optional<std::size_t> Laenge() const;
    bool IstZuEnde() const;

    Bytes zeichen;
    std::uint16_t crc = CrcStart;
    bool fertig = true;
};

} // namespace varnoth::simulator
