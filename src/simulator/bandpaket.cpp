#include "bandpaket.h"

#include <utility>

namespace varnoth::simulator {

namespace {

constexpr std::uint64_t SpaetesteZeit = 9'000'000'000'000'000;
constexpr std::uint64_t MeisteStuecke = 4096, LaengsterText = 4096;
constexpr int MeisteStrahlen = 1009;

/// Takes bytes one after the other. Once something was missing or impossible all that follows is 0.
class Bandleser {
public:
    explicit Bandleser(std::span<const std::uint8_t> alle) : rest(alle) {}

    bool Gut() const { return gut; }
    bool AmEnde() const { return rest.empty(); }
    void Verwirf() { gut = false; }

    std::uint8_t Byte() {
        if (!gut || rest.empty()) {
            gut = false;
            return 0;
        }
        const std::uint8_t byte = rest.front();
        rest = rest.subspan(1);
        return byte;
    }
    std::uint16_t Wort() {
        const unsigned unten = Byte();
        return static_cast<std::uint16_t>(unten | unsigned{Byte()} << 8U);
    }
    std::uint64_t Zahl() {
        std::uint64_t zahl = 0;
        for (unsigned stelle = 0; stelle < 70; stelle += 7) {
            const std::uint64_t gruppe = Byte();
            if (stelle == 63 && gruppe > 1)
                break;
            zahl |= (gruppe & 0x7FU) << stelle;
            if (gruppe < 0x80)
                return gut ? zahl : 0;
        }
        gut = false;
        return 0;
    }
    std::uint64_t ZahlBis(std::uint64_t groesste) {
        const std::uint64_t zahl = Zahl();
        gut = gut && zahl <= groesste;
        return gut ? zahl : 0;
    }
    std::int64_t Differenz() {
        const std::uint64_t zahl = Zahl();
        const auto haelfte = static_cast<std::int64_t>(zahl / 2);
        return zahl % 2 == 0 ? haelfte : -haelfte - 1;
    }
    void Text() {
        const std::uint64_t laenge = ZahlBis(LaengsterText);
        if (rest.size() < laenge)
            gut = false;
        else
            rest = rest.subspan(static_cast<std::size_t>(laenge));
    }

private:
    std::span<const std::uint8_t> rest;
    bool gut = true;
};

bool Bit(unsigned bits, unsigned welches) {
    return (bits >> welches & 1U) != 0;
}

void LiesWerte(Bandleser& leser, Bandteil& teil) {
    const std::uint64_t welche = leser.ZahlBis((1U << teil.werte.size()) - 1);
    for (std::size_t i = 0; i < teil.werte.size(); ++i)
        if ((welche >> i & 1U) != 0)
            teil.werte[i] = static_cast<std::uint16_t>(teil.werte[i] + leser.Differenz());
}

void LiesStrahlen(Bandleser& leser, Bandteil& teil) {
    const std::uint64_t welche = leser.Zahl();
    for (std::size_t i = 0; i < teil.strahlregister.size(); ++i)
        if ((welche >> i & 1U) != 0)
            teil.strahlregister[i] ^= leser.Wort();
}

void LiesTeil(Bandleser& leser, Bandteil& teil) {
    const unsigned bits = leser.Byte();
    if (bits > 0x3F)
        leser.Verwirf();
    teil.vorhanden = Bit(bits, 0);
    teil.gemessen = Bit(bits, 1);
    if (Bit(bits, 2))
        teil.status = leser.Wort();
    if (Bit(bits, 3))
        teil.strahlen = static_cast<int>(leser.ZahlBis(MeisteStrahlen));
    if (Bit(bits, 4))
        LiesWerte(leser, teil);
    if (Bit(bits, 5))
        LiesStrahlen(leser, teil);
}

/// A pass as what has changed since the one before.
void LiesBild(Bandleser& leser, Bandbild& bild) {
    bild.laufzeit += Zeit(static_cast<Zeit::rep>(leser.ZahlBis(SpaetesteZeit)));
    leser.Differenz(); // the time of day does not matter here
    const unsigned bits = leser.Byte();
    if ((bits & 7U) > Optikteile || bild.laufzeit.count() > static_cast<Zeit::rep>(SpaetesteZeit))
        leser.Verwirf();
    if (Bit(bits, 3))
        bild.geraetestatus = leser.Wort();
    for (unsigned teil = 0; teil < Optikteile; ++teil)
        if (Bit(bits, 4 + teil))
            LiesTeil(leser, bild.teile[teil]);
}

} // namespace

std::optional<std::pair<Zeit, Zeit>> LiesBandspanne(std::span<const std::uint8_t> beginn) {
    Bandleser leser(beginn);
    const Zeit von(static_cast<Zeit::rep>(leser.ZahlBis(SpaetesteZeit)));
    const Zeit dauer(static_cast<Zeit::rep>(leser.ZahlBis(SpaetesteZeit)));
    return leser.Gut() ? std::optional(std::pair(von, von + dauer)) : std::nullopt;
}

std::optional<Bandpaket> LiesBandpaket(std::span<const std::uint8_t> inhalt) {
    Bandleser leser(inhalt);
    Bandpaket paket;
    paket.von = Zeit(static_cast<Zeit::rep>(leser.ZahlBis(SpaetesteZeit)));
    paket.bis = paket.von + Zeit(static_cast<Zeit::rep>(leser.ZahlBis(SpaetesteZeit)));
    Bandbild bild{.laufzeit = paket.von};
    for (std::uint64_t zahl = leser.ZahlBis(MeisteStuecke); zahl > 0 && leser.Gut(); --zahl) {
        LiesBild(leser, bild);
        paket.bilder.push_back(bild);
    }
    for (std::uint64_t zahl = leser.ZahlBis(MeisteStuecke); zahl > 0 && leser.Gut(); --zahl) {
        const std::uint8_t art = leser.Byte();
        const Zeit laufzeit = paket.von + Zeit(leser.Differenz());
        leser.Differenz();
        leser.Text();
        if (art > static_cast<std::uint8_t>(Bandereignisart::Verworfen))
            leser.Verwirf();
        paket.ereignisse.push_back({static_cast<Bandereignisart>(art), laufzeit});
    }
    return leser.Gut() && leser.AmEnde() ? std::optional(std::move(paket)) : std::nullopt;
}

std::uint32_t Bandpruefsumme(std::span<const std::uint8_t> bytes) {
    constexpr std::uint32_t Polynom = 0xEDB88320; // 0x04C11DB7, reflected
    static const std::array<std::uint32_t, 256> tafel = [] {
        std::array<std::uint32_t, 256> neue{};
        for (std::uint32_t i = 0; i < neue.size(); ++i) {
            neue[i] = i;
            for (int bit = 0; bit < 8; ++bit)
                neue[i] = neue[i] >> 1U ^ ((neue[i] & 1U) != 0 ? Polynom : 0);
        }
        return neue;
    }();
    std::uint32_t summe = 0xFFFFFFFF;
    for (const std::uint8_t byte : bytes)
        summe = summe >> 8U ^ tafel[(summe ^ byte) & 0xFFU];
    return ~summe;
}

} // namespace varnoth::simulator
