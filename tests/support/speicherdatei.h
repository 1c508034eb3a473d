#pragma once

#include "eingabedatei.h"

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

namespace varnoth::pruefung {

/// A file in memory; bytes from `unlesbarAb` to `unlesbarBis` cannot be read.
struct Speicherdatei : Eingabedatei {
    explicit Speicherdatei(std::string neue) : bytes(std::move(neue)) {}

    std::uint64_t Groesse() const override { return bytes.size(); }
    bool Lies(std::uint64_t stelle, std::span<char> ziel) const override {
        if (stelle > bytes.size() || ziel.size() > bytes.size() - stelle ||
            (stelle < unlesbarBis && stelle + ziel.size() > unlesbarAb))
            return false;
        std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(stelle), ziel.size(), ziel.begin());
        return true;
    }

    std::string bytes;
    std::uint64_t unlesbarAb = 0;
    std::uint64_t unlesbarBis = 0;
};

} // namespace varnoth::pruefung
