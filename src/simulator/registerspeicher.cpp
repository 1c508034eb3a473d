#include "registerspeicher.h"

#include <algorithm>

namespace varnoth::simulator {

std::span<const std::uint16_t> Registerspeicher::Block(Ort ort, int teil, int anzahl) const {
    const std::span<const std::uint16_t> bereiche[] = {global, spezifisch[static_cast<std::size_t>(teil)],
                                                       kommunikation};
    return bereiche[static_cast<std::size_t>(ort.bereich)].subspan(static_cast<std::size_t>(ort.adresse),
                                                                   static_cast<std::size_t>(anzahl));
}

std::span<std::uint16_t> Registerspeicher::Block(Ort ort, int teil, int anzahl) {
    const std::span<std::uint16_t> bereiche[] = {global, spezifisch[static_cast<std::size_t>(teil)],
                                                 kommunikation};
    return bereiche[static_cast<std::size_t>(ort.bereich)].subspan(static_cast<std::size_t>(ort.adresse),
                                                                   static_cast<std::size_t>(anzahl));
}

std::uint16_t& Registerspeicher::Spezifisch(int teil, int adresse) {
    return spezifisch[static_cast<std::size_t>(teil)][static_cast<std::size_t>(adresse)];
}

std::uint16_t Registerspeicher::Spezifisch(int teil, int adresse) const {
    return spezifisch[static_cast<std::size_t>(teil)][static_cast<std::size_t>(adresse)];
}

void Uebernimm(Registerspeicher& nach, const Registerspeicher& von, Art art) {
    for (const Eintrag& eintrag : Schreibbare()) {
        if (eintrag.art != art)
            continue;
        const Ort ort{eintrag.bereich, eintrag.adresse};
        for (int teil = 0; teil < (eintrag.bereich == Bereich::Spezifisch ? Optikteile : 1); ++teil)
            std::ranges::copy(von.Block(ort, teil, eintrag.anzahl),
                              nach.Block(ort, teil, eintrag.anzahl).begin());
    }
}

} // namespace varnoth::simulator
