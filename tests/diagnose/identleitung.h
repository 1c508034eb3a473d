#pragma once

#include "pruefgeraet.h"

#include <string>
#include <vector>

namespace varnoth::pruefung {

inline const std::string Identanfrage = MitPruefsumme(Bytes({0, 0x11}));

/// A whole reply to an identification request.
inline std::string Identantwort(int adresse = 1, const std::string& text = "Varnoth;4711;(C)") {
    return MitPruefsumme(Bytes({adresse, 0x11, static_cast<int>(text.size()) + 2, 7, 50}) + text);
}

/// A reply in one piece after so many milliseconds.
inline std::vector<Stueck> Nach(int millisekunden, std::string bytes) {
    return {{std::chrono::milliseconds(millisekunden), std::move(bytes)}};
}

} // namespace varnoth::pruefung
