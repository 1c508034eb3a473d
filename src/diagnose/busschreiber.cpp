#include "busschreiber.h"

#include <algorithm>
#include <utility>

namespace varnoth {

Busschreiber::Busschreiber(const Busprotokoll& ausProtokoll, Busformat alsFormat,
                           std::vector<std::uint64_t> dieNummern, std::string anfang)
    : protokoll(&ausProtokoll), format(alsFormat), nummern(std::move(dieNummern)),
      text(std::move(anfang) + Schriftkopf(alsFormat)) {}

void Busschreiber::Weiter(std::size_t hoechstens) {
    const std::size_t ende = naechste + std::min(hoechstens, nummern.size() - naechste);
    for (; naechste < ende; ++naechste) {
        if (!protokoll->Hat(nummern[naechste]))
            continue;
        const Busaustausch austausch = protokoll->Hole(nummern[naechste]);
        text += Schriftzeile(format, austausch, protokoll->Uhrzeit(austausch.gesendet));
    }
}

} // namespace varnoth
