#pragma once

#include "busprotokoll.h"
#include "busrahmen.h"

#include <optional>

namespace varnoth {

/// The kinds of exchange that a person tells apart.
enum class Busart { Alle, Lesen, Schreiben, Identifikation, OhneAntwort, Klaerung, Ungefragt };
inline constexpr Busart AlleBusarten[] = {Busart::Alle,           Busart::Lesen,       Busart::Schreiben,
                                          Busart::Identifikation, Busart::OhneAntwort, Busart::Klaerung,
                                          Busart::Ungefragt};

/// Which exchanges are wanted.
struct Busfilter {
    Busart art = Busart::Alle;
    std::optional<Registerbezug> bezug{}; ///< about one of these registers
    bool nurFehler = false;

    bool operator==(const Busfilter&) const = default;
};

/// The kind of an exchange; never `Alle`.
Busart ArtVon(const Busaustausch& austausch);

/// Whether the exchange is wanted. It looks at the bytes alone and is quick.
bool Passt(const Busaustausch& austausch, const Busfilter& filter);

} // namespace varnoth
