#include "vrecworte.h"

#include "texte.h"
#include "textmitwerten.h"

#include <algorithm>
#include <limits>

namespace varnoth {

namespace {

constexpr std::int16_t TextLeer = 6700;
constexpr std::int16_t TextKeineAufzeichnung = 6701;
constexpr std::int16_t TextNeuereVersion = 6702;
constexpr std::int16_t TextNichtLesbar = 6703;
constexpr std::int16_t TextOhneDurchgaenge = 6704;
constexpr std::int16_t TextNichtBeendet = 6705;
constexpr std::int16_t TextEineStelle = 6706;
constexpr std::int16_t TextStellen = 6707;
constexpr std::int16_t TextZuLang = 6708;

/// Why nothing of it can be shown; empty when something can.
std::string Hindernis(const Vreczustand& zustand) {
    switch (zustand.befund) {
    case Vrecbefund::Gut:
        break;
    case Vrecbefund::Leer:
        return LadeText(TextLeer);
    case Vrecbefund::KeineAufzeichnung:
        return LadeText(TextKeineAufzeichnung);
    case Vrecbefund::NeuereVersion:
        return LadeTextMit(TextNeuereVersion,
                           {std::to_string(zustand.version), std::to_string(vrec::Version)});
    case Vrecbefund::NichtLesbar:
        return LadeText(TextNichtLesbar);
    case Vrecbefund::OhneDurchgaenge:
        return LadeText(TextOhneDurchgaenge);
    }
    return {};
}

} // namespace

std::string Befundtext(const Vreczustand& zustand) {
    std::string text = Hindernis(zustand);
    const auto dazu = [&text](const std::string& satz) { text += (text.empty() ? "" : "\n") + satz; };
    if (zustand.befund != Vrecbefund::Gut && zustand.befund != Vrecbefund::OhneDurchgaenge)
        return text;
    if (zustand.beschaedigte > 0)
        dazu(LadeAnzahltext(TextEineStelle, TextStellen,
                            static_cast<int>(std::min<std::uint64_t>(zustand.beschaedigte,
                                                                     std::numeric_limits<int>::max()))));
    if (zustand.befund != Vrecbefund::Gut)
        return text;
    if (zustand.zuLang)
        dazu(LadeText(TextZuLang));
    else if (!zustand.beendet)
        dazu(LadeText(TextNichtBeendet));
    return text;
}

} // namespace varnoth
