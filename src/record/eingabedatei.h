#pragma once

#include <cstdint>
#include <span>

namespace varnoth {

/// A file that is read here and there. It does not grow while it is open.
class Eingabedatei {
public:
    Eingabedatei() = default;
    Eingabedatei(const Eingabedatei&) = delete;
    Eingabedatei& operator=(const Eingabedatei&) = delete;
    virtual ~Eingabedatei() = default;

    /// In bytes, when it was opened.
    virtual std::uint64_t Groesse() const = 0;
    /// Fills `ziel` with the bytes from a place on. False when they cannot all be read.
    virtual bool Lies(std::uint64_t stelle, std::span<char> ziel) const = 0;
};

} // namespace varnoth
