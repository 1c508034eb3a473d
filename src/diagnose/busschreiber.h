#pragma once

#include "busschrift.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace varnoth {

/// Writes exchanges of a log as text, some at a time, so that a full log holds nobody up. What the log
/// forgets meanwhile is left out.
class Busschreiber {
public:
    /// The exchanges with these numbers, behind what the file begins with.
    Busschreiber(const Busprotokoll& ausProtokoll, Busformat alsFormat, std::vector<std::uint64_t> dieNummern,
                 std::string anfang = {});

    /// Writes so many further exchanges at most.
    void Weiter(std::size_t hoechstens);
    bool IstFertig() const { return naechste == nummern.size(); }
    std::size_t Geschrieben() const { return naechste; }
    std::size_t Anzahl() const { return nummern.size(); }
    const std::string& Text() const { return text; }

private:
    const Busprotokoll* protokoll;
    Busformat format;
    std::vector<std::uint64_t> nummern;
    std::size_t naechste = 0;
    std::string text;
};

} // namespace varnoth
