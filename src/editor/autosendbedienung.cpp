#include "autosendbedienung.h"

#include "autosend.h"
#include "bustyp.h"

#include <algorithm>
#include <iterator>

namespace varnoth {

namespace {

struct Bedienzeile {
    std::int16_t klasse;
    bool trigger;
    bool rate;
    bool strahldatenMerken;
};

constexpr Bedienzeile Bedienzeilen[] = {
    {autosendklasse::Keines, false, false, false},
    {autosendklasse::OhneTrigger, false, true, true},
    {autosendklasse::MitTrigger, true, false, true},
};

} // namespace

Autosendbedienung BedienungFuer(std::int16_t klasse, std::int32_t typ) {
    const bool profibus = typ == bustyp::Profibus;
    const auto* const zeile = std::ranges::find(Bedienzeilen, klasse, &Bedienzeile::klasse);
    if (zeile == std::end(Bedienzeilen))
        return {false, false, false, !profibus};
    return {zeile->trigger, zeile->rate, zeile->strahldatenMerken && !profibus, !profibus};
}

} // namespace varnoth
