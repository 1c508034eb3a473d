#pragma once

#include "abbild.h"
#include "json.h"

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace varnoth::ctl {

/// What an optical part measures just now.
struct Teilbild {
    int teil = 0; ///< 0..3
    bool vorhanden = false;
    int strahlen = 0;
    std::string zustand{}; ///< in words
    /// TU, HU, ZU, TNU, HNU, ZNU; then their minima, then their maxima.
    std::array<std::int32_t, 18> werte{};
    /// Beams that are interrupted and not blanked, as first and last of a range, from 1.
    std::vector<std::pair<int, int>> unterbrochene{};
};

/// All parts that are there, and the switching output.
struct Messbild {
    bool ausgangAktiv = false;
    std::vector<Teilbild> teile{};
};

/// What an image says of the parts that polling asks.
Messbild MessbildAus(const Abbild& abbild);

/// The heading of the table, and a line for each part.
std::string Tabellenkopf();
std::string Tabellenzeilen(const Messbild& bild, const std::string& uhrzeit);

/// {"output": ..., "parts": [...]}, as fields.
std::vector<Json::Feld> AlsFelder(const Messbild& bild);

} // namespace varnoth::ctl
