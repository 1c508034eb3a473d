#pragma once

#include "abbild.h"
#include "strahlbericht.h"
#include "texte.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// The report about a configuration: one HTML document with nothing outside of it, which a browser and a
/// printer's layout show alike. It says nothing by colour alone.
namespace varnoth {

/// What a report says besides the configuration. Texts are UTF-8; an empty one leaves its place free, to be
/// filled in by hand, or, from `ausgestellt` on, is left out.
struct Berichtsangaben {
    std::string anlage{};
    std::string maschine{};
    std::string person{};
    std::string ausgestellt{};    ///< when; on paper only
    std::string quelle{};         ///< where the configuration comes from: a file, a controller and when
    std::string geraetename{};    ///< the controller's own texts ...
    std::string copyright{};      ///< ... of its identification
    std::string geraetezustand{}; ///< what the controller last said of its state
    std::array<std::string, AnzahlOptikteile>
        teilzustaende{}; ///< what each optical part last said of its own
    std::string programmversion{};
    std::optional<Strahlbericht> strahlen{}; ///< a section about the beams over a time
};

/// The document. The same image, apart from what is measured at the moment, and the same other arguments
/// give the same bytes, whenever that is.
std::string Bericht(const Abbild& abbild, const Berichtsangaben& angaben,
                    std::int16_t sprache = GetSprachoffset());

/// What stands at the foot of each page beside its number: plant, machine, checksum and when it was issued.
std::string Berichtsfuss(const Abbild& abbild, const Berichtsangaben& angaben,
                         std::int16_t sprache = GetSprachoffset());

} // namespace varnoth
