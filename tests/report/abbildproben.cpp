#include "abbildproben.h"

#include "registeradressen.h"
#include "standardkonfiguration.h"

#include <random>
#include <string_view>
#include <tuple>

namespace varnoth::abbildproben {

namespace {

Werte Textregister(std::string_view text, std::size_t anzahl) {
    Werte werte;
    for (std::size_t i = 0; i < anzahl; ++i) {
        const auto zeichen = [&](std::size_t stelle) {
            return stelle < text.size() ? static_cast<std::uint8_t>(text[stelle]) : std::uint8_t{' '};
        };
        werte.push_back(zeichen(2 * i) << 8 | zeichen(2 * i + 1));
    }
    return werte;
}

void SetzeTeil(Abbild& abbild, int teil) {
    const auto setze = [&](std::int16_t adresse, std::int32_t wert) {
        std::ignore = abbild.SetzeRegister(Spezifisch, adresse, wert, teil);
    };
    setze(spezifisch::Strahlenzahl, 128 - 16 * teil);
    setze(spezifisch::Aufloesung, teil % 2 == 0 ? 10 : 20);
    setze(spezifisch::Reichweite, teil);
    setze(spezifisch::Filterdurchlaeufe, 2 + teil);
    setze(spezifisch::Gruppenzaehler, 0x8003 + teil);
    setze(spezifisch::MinMaxHaltezeit, 100 + teil);
    setze(spezifisch::Lochgroesse, 7 + teil);
    setze(spezifisch::Mittentoleranz, 9 + teil);
    Werte muster(32);
    muster[0] = 0x007C;
    muster[2] = 0x0800 << teil;
    std::ignore = abbild.SetzeParameter(Spezifisch, spezifisch::Blankingmuster, muster, teil);
}

std::int32_t Zufallswert(unsigned art, std::mt19937& zufall) {
    constexpr unsigned grenzen[] = {4, 0x200, 0x10000};
    return static_cast<std::int32_t>(art < 3 ? zufall() % grenzen[art] : zufall());
}

} // namespace

Abbild Vierteilig() {
    Abbild abbild = Standardkonfiguration();
    const auto setze = [&](Speicherbereich bereich, std::int16_t adresse, const Werte& werte) {
        std::ignore = abbild.SetzeParameter(bereich, adresse, werte);
    };
    setze(Global, global::Geraetetyp, {50});
    setze(Global, global::Seriennummer, Textregister("VN-<2026> & \"K4\" / 7", 10));
    setze(Global, global::Herstelldatum, Textregister("20260513", 4));
    setze(Global, global::Hardwareversion, {0x0203});
    setze(Global, global::Softwareversion, {0x010A});
    setze(Global, global::PnpAusgang, {0x8120});
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        SetzeTeil(abbild, teil);
    setze(Kommunikation, kommunikation::Format, {0x30F});
    setze(Kommunikation, kommunikation::Stationsadresse, {17});
    setze(Kommunikation, kommunikation::Pausenzeit, {125});
    setze(Kommunikation, kommunikation::Autosend, {0x0283});
    Werte datenblock(30);
    for (std::size_t i = 0; i < 29; ++i)
        datenblock[i] = static_cast<std::int32_t>(0x100 * (1 + i % 4) + 2 + i % 6);
    setze(Kommunikation, kommunikation::Datenblock, datenblock);
    setze(Kommunikation, kommunikation::Autosendformat, {0x50C});
    return abbild;
}

Abbild Beliebig(unsigned nummer) {
    std::mt19937 zufall(nummer);
    Abbild abbild = Standardkonfiguration();
    const unsigned art = nummer % 4;
    for (const auto bereich : AlleSpeicherbereiche)
        for (std::int32_t& wert : abbild.Bereich(bereich))
            if (art == 3 || zufall() % 3 == 0)
                wert = Zufallswert(art, zufall);
    return abbild;
}

} // namespace varnoth::abbildproben
