#include "autosend.h"

#include <algorithm>
#include <iterator>

namespace varnoth {

namespace {

constexpr std::int32_t Artbits = 0x7F;
constexpr std::int32_t MerkenBit = 0x80;
constexpr std::int32_t Niederwertig = 0xFF;
constexpr int HighByte = 8;

struct Artzeile {
    Autosendart art;
    std::int16_t klasse;
};

constexpr Artzeile Arten[] = {
    {Autosendart::Keines, autosendklasse::Keines},
    {Autosendart::OhneTrigger, autosendklasse::OhneTrigger},
    {Autosendart::OhneTriggerModbus, autosendklasse::OhneTrigger},
    {Autosendart::MitTriggerModbus, autosendklasse::MitTrigger},
};

constexpr std::int32_t Formatbits = 0xF00;
constexpr Byteformat Byteformate[] = {Byteformat::ZweiStopbitsOhneParitaet, Byteformat::EinStopbitUngerade,
                                      Byteformat::EinStopbitGerade};

/// The entry of a table of enumerators that has the value.
template<class Art, std::size_t anzahl>
std::optional<Art> Suche(const Art (&arten)[anzahl], std::int32_t wert) {
    for (const Art art : arten)
        if (static_cast<std::int32_t>(art) == wert)
            return art;
    return std::nullopt;
}

std::optional<Autosendart> ArtAus(std::int32_t registerwert) {
    for (const Artzeile& zeile : Arten)
        if (static_cast<std::int32_t>(zeile.art) == (registerwert & Artbits))
            return zeile.art;
    return std::nullopt;
}

std::optional<Triggerstart> TriggerAus(std::int32_t zahl) {
    constexpr Triggerstart alle[] = {Triggerstart::Sofort, Triggerstart::NachVollstaendigemScan};
    return Suche(alle, zahl);
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

Autosendeinstellung AutosendAus(std::int32_t registerwert, int maxRate) {
    Autosendeinstellung autosend;
    autosend.art = ArtAus(registerwert);
    autosend.strahldatenMerken = (registerwert & MerkenBit) != 0;
    const std::int32_t zusatz = (registerwert >> HighByte) & Niederwertig;
    const std::int16_t klasse = AutosendKlasse(autosend.art);
    if (klasse == autosendklasse::OhneTrigger)
        autosend.rate = std::min<std::int32_t>(zusatz, maxRate);
    if (klasse == autosendklasse::MitTrigger)
        autosend.trigger = TriggerAus(zusatz);
    return autosend;
}

std::int32_t Registerwert(const Autosendeinstellung& autosend) {
    const auto art = static_cast<std::int32_t>(autosend.art.value_or(Autosendart::Keines));
    return art + (autosend.strahldatenMerken ? MerkenBit : 0) + (Zusatz(autosend) << HighByte);
}

std::int32_t RegisterwertProfibus(std::int32_t bisher, std::int32_t rate) {
    return rate == 0 ? bisher : (bisher & Niederwertig) + (rate << HighByte);
}

std::int16_t AutosendKlasse(std::optional<Autosendart> art) {
    const auto* const zeile = std::ranges::find(Arten, art, &Artzeile::art);
    return zeile == std::end(Arten) ? autosendklasse::Keines : zeile->klasse;
}

bool IstStartbar(std::optional<Autosendart> art) {
    return AutosendKlasse(art) == autosendklasse::OhneTrigger;
}

std::optional<Byteformat> ByteformatAus(std::int32_t registerwert) {
    return Suche(Byteformate, registerwert & Formatbits);
}

std::int32_t Autosendformatwert(std::int32_t baudcode, std::optional<Byteformat> format) {
    return baudcode + (format ? static_cast<std::int32_t>(*format) : 0);
}

} // namespace varnoth
