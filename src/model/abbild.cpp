#include "abbild.h"

#include "registeradressen.h"

namespace varnoth {

namespace {

/// Number of values before those of a range.
constexpr std::size_t Anfang(Speicherbereich bereich) {
    std::size_t anfang = 0;
    for (const auto davor : AlleSpeicherbereiche)
        if (davor < bereich)
            anfang += AnzahlWerte(davor);
    return anfang;
}

bool GibtEs(Speicherbereich bereich, int optikteil) {
    return optikteil >= 0 && optikteil < Exemplare(bereich);
}

} // namespace

/// Some registers, one after the other; none where an operation is refused.
struct Abbild::Block {
    Speicherbereich bereich;
    std::int16_t adresse;
    std::int16_t anzahl;
    int optikteil;

    static Block Parameter(Speicherbereich bereich, std::int16_t adresse, int optikteil) {
        const std::int16_t laenge = Beschreibung(bereich, adresse).Laenge;
        return {bereich, adresse, GibtEs(bereich, optikteil) ? laenge : std::int16_t{0}, optikteil};
    }
    static Block Einzelregister(Speicherbereich bereich, std::int16_t adresse, int optikteil) {
        Block block = Parameter(bereich, adresse, optikteil);
        if (block.anzahl != 1)
            block.anzahl = 0;
        return block;
    }
    static Block Strahlblock(std::int16_t anzahl, int optikteil) {
        const bool gueltig = GibtEs(Spezifisch, optikteil) && anzahl >= 1 && anzahl <= MaxStrahlregister;
        return {Spezifisch, spezifisch::Strahlzustaende, gueltig ? anzahl : std::int16_t{0}, optikteil};
    }

    std::size_t Platz(std::int16_t i) const {
        return Stelle(bereich, static_cast<std::int16_t>(adresse + i), optikteil);
    }
};

Werte Abbild::Hole(const Block& block) const {
    Werte werte(static_cast<std::size_t>(block.anzahl));
    for (std::int16_t i = 0; i < block.anzahl; ++i)
        werte[static_cast<std::size_t>(i)] = Bereich(block.bereich)[block.Platz(i)];
    return werte;
}

bool Abbild::Setze(const Block& block, const Werte& werte) {
    if (block.anzahl == 0 || werte.size() < static_cast<std::size_t>(block.anzahl))
        return false;
    for (std::int16_t i = 0; i < block.anzahl; ++i)
        Bereich(block.bereich)[block.Platz(i)] = werte[static_cast<std::size_t>(i)];
    return true;
}

Werte Abbild::HoleParameter(Speicherbereich bereich, std::int16_t adresse, int optikteil) const {
    return Hole(Block::Parameter(bereich, adresse, optikteil));
}

bool Abbild::SetzeParameter(Speicherbereich bereich, std::int16_t adresse, const Werte& werte,
                            int optikteil) {
    return Setze(Block::Parameter(bereich, adresse, optikteil), werte);
}

std::int32_t Abbild::HoleRegister(Speicherbereich bereich, std::int16_t adresse, int optikteil) const {
    const Block block = Block::Einzelregister(bereich, adresse, optikteil);
    return block.anzahl == 0 ? 0 : Bereich(bereich)[block.Platz(0)];
}

bool Abbild::SetzeRegister(Speicherbereich bereich, std::int16_t adresse, std::int32_t wert, int optikteil) {
    return Setze(Block::Einzelregister(bereich, adresse, optikteil), {wert});
}

Werte Abbild::HoleStrahlzustaende(std::int16_t anzahl, int optikteil) const {
    return Hole(Block::Strahlblock(anzahl, optikteil));
}

bool Abbild::SetzeStrahlzustaende(std::int16_t anzahl, int optikteil, const Werte& werte) {
    return Setze(Block::Strahlblock(anzahl, optikteil), werte);
}

std::span<const std::int32_t> Abbild::Bereich(Speicherbereich bereich) const {
    return std::span(alleWerte).subspan(Anfang(bereich), AnzahlWerte(bereich));
}

std::span<std::int32_t> Abbild::Bereich(Speicherbereich bereich) {
    return std::span(alleWerte).subspan(Anfang(bereich), AnzahlWerte(bereich));
}

} // namespace varnoth
