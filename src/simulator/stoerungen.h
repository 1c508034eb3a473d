#pragma once

#include "geraetecrc.h"

#include <chrono>
#include <optional>
#include <string_view>
#include <vector>

namespace varnoth::simulator {

/// Bytes that leave in one go, after a pause.
struct Stueck {
    std::chrono::milliseconds pause{0};
    Bytes zeichen{};
};

/// A reply on its way: usually one piece without a pause; none at all is silence.
using Sendung = std::vector<Stueck>;

/// A way for a reply to go wrong.
struct Stoerungsart {
    std::string_view name;
    int vorgabe;  ///< argument when none is given
    int groesste; ///< greatest argument
    bool lehntAb; ///< the request is refused and not carried out
    void (*verfaelsche)(Sendung& sendung, int wert);
};

/// One fault on demand.
struct Stoerung {
    const Stoerungsart* art;
    int wert;
    std::optional<int> anzahl{};   ///< for so many replies, without a number until it is taken back
    std::optional<int> funktion{}; ///< only for replies to this function
};

/// Reads "NAME[=ARGUMENT][:COUNT][@FUNCTION]", for example "late=1500:3@0x03". Names: silence, crc, address,
/// exception=CODE, stray=BYTES, pieces=MS, surplus=BYTES, late=MS, flip=BIT.
/// @throws std::invalid_argument with a sentence for the user
Stoerung LiesStoerung(std::string_view text);

/// The faults in force. The oldest that fits a reply is the one it suffers.
class Stoerungen {
public:
    void Fuege(const Stoerung& stoerung) { liste_.push_back(stoerung); }
    void Loesche() { liste_.clear(); }
    /// The fault for the next reply to a function, counted down.
    std::optional<Stoerung> Nimm(int funktion);

private:
    std::vector<Stoerung> liste_;
};

} // namespace varnoth::simulator
