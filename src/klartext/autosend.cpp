#include "autosend.h"

#include <algorithm>
#include <iterator>

namespace varnoth {

namespace {

constexpr std::int32_t Niederwertig = 0xFF;

template<class Art>
constexpr Option Zeile(Art art, std::int16_t text, int versatz = 0) {
    return {static_cast<std::int32_t>(art) << versatz, text};
}

constexpr Option DieArten[] = {
    Zeile(Autosendart::Keines, 5612),
    Zeile(Autosendart::OhneTrigger, 5613),
    Zeile(Autosendart::OhneTriggerModbus, 5615),
    Zeile(Autosendart::MitTriggerModbus, 5616),
};
constexpr std::int16_t Klassen[] = {autosendklasse::Keines, autosendklasse::OhneTrigger,
                                    autosendklasse::OhneTrigger, autosendklasse::MitTrigger};

constexpr Option DieTrigger[] = {
    Zeile(Triggerstart::Sofort, 5617, autosendbits::Zusatzversatz),
    Zeile(Triggerstart::NachVollstaendigemScan, 5618, autosendbits::Zusatzversatz),
};

constexpr std::int32_t Formatbits = 0xF00;
constexpr Option DieByteformate[] = {
    Zeile(Byteformat::ZweiStopbitsOhneParitaet, 5608),
    Zeile(Byteformat::EinStopbitUngerade, 5607),
    Zeile(Byteformat::EinStopbitGerade, 5606),
};

/// The enumerator of the row that has the value.
template<class Art>
std::optional<Art> Suche(std::span<const Option> zeilen, std::int32_t wert, int versatz = 0) {
    for (const Option& zeile : zeilen)
        if (zeile.wert == wert)
            return static_cast<Art>(wert >> versatz);
    return std::nullopt;
}

/// What the mode needs beside itself: a rate or a trigger.
std::int32_t Zusatz(const Autosendeinstellung& autosend) {
    switch (AutosendKlasse(autosend.art)) {
    case autosendklasse::OhneTrigger:
        return autosend.rate;
    case autosendklasse::MitTrigger:
        return autosend.trigger == Triggerstart::NachVollstaendigemScan ? 1 : 0;
    default:
        return 0;
    }
}

} // namespace

std::span<const Option> Autosendarten() {
    return DieArten;
}

std::span<const Option> Triggerarten() {
    return DieTrigger;
}

std::span<const Option> Byteformate() {
    return DieByteformate;
}

Autosendeinstellung AutosendAus(std::int32_t registerwert, int maxRate) {
    Autosendeinstellung autosend;
    autosend.art = Suche<Autosendart>(DieArten, registerwert & autosendbits::Art);
    autosend.strahldatenMerken = (registerwert & autosendbits::Merken) != 0;
    const std::int32_t zusatz = (registerwert >> autosendbits::Zusatzversatz) & Niederwertig;
    const std::int16_t klasse = AutosendKlasse(autosend.art);
    if (klasse == autosendklasse::OhneTrigger)
        autosend.rate = std::min<std::int32_t>(zusatz, maxRate);
    if (klasse == autosendklasse::MitTrigger)
        autosend.trigger = Suche<Triggerstart>(DieTrigger, zusatz << autosendbits::Zusatzversatz,
                                               autosendbits::Zusatzversatz);
    return autosend;
}

std::int32_t Registerwert(const Autosendeinstellung& autosend) {
    const auto art = static_cast<std::int32_t>(autosend.art.value_or(Autosendart::Keines));
    return art + (autosend.strahldatenMerken ? autosendbits::Merken : 0) +
           (Zusatz(autosend) << autosendbits::Zusatzversatz);
}

std::int32_t RegisterwertProfibus(std::int32_t bisher, std::int32_t rate) {
    return rate == 0 ? bisher : (bisher & Niederwertig) + (rate << autosendbits::Zusatzversatz);
}

std::int16_t AutosendKlasse(std::optional<Autosendart> art) {
    for (std::size_t i = 0; art && i < std::size(DieArten); ++i)
        if (DieArten[i].wert == static_cast<std::int32_t>(*art))
            return Klassen[i];
    return autosendklasse::Keines;
}

bool IstStartbar(std::optional<Autosendart> art) {
    return AutosendKlasse(art) == autosendklasse::OhneTrigger;
}

std::optional<Byteformat> ByteformatAus(std::int32_t registerwert) {
    return Suche<Byteformat>(DieByteformate, registerwert & Formatbits);
}

std::int32_t Autosendformatwert(std::int32_t baudcode, std::optional<Byteformat> format) {
    return baudcode + (format ? static_cast<std::int32_t>(*format) : 0);
}

} // namespace varnoth
