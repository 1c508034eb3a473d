#include "registername.h"

#include "wortleser.h"

#include <stdexcept>

namespace varnoth::simulator {

namespace {

std::string_view NaechstesWort(std::span<const std::string_view>& woerter) {
    if (woerter.empty())
        throw std::invalid_argument(
            "register: expected global ADDRESS, specific PART ADDRESS or communication ADDRESS");
    const std::string_view wort = woerter.front();
    woerter = woerter.subspan(1);
    return wort;
}

Bereich LiesBereich(std::string_view wort) {
    for (const Bereich bereich : {Bereich::Global, Bereich::Spezifisch, Bereich::Kommunikation})
        if (wort == Name(bereich))
            return bereich;
    throw std::invalid_argument("register: \"" + std::string(wort) +
                                "\" is none of global, specific, communication");
}

} // namespace

Registername LiesRegistername(std::span<const std::string_view>& woerter) {
    Registername name{{LiesBereich(NaechstesWort(woerter)), 0}};
    if (name.ort.bereich == Bereich::Spezifisch)
        name.teil = LiesZahl(NaechstesWort(woerter), "part", 0, 3);
    name.ort.adresse = LiesZahl(NaechstesWort(woerter), "address", 0, Groesse(name.ort.bereich) - 1);
    return name;
}

std::string Text(const Registername& name) {
    std::string text = Name(name.ort.bereich) + ' ';
    if (name.ort.bereich == Bereich::Spezifisch)
        text += std::to_string(name.teil) + ' ';
    return text + std::to_string(name.ort.adresse);
}

} // namespace varnoth::simulator
