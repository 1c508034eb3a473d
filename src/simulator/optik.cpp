#include "optik.h"

#include <algorithm>
#include <stdexcept>

namespace varnoth::simulator {

namespace {

constexpr std::uint16_t AusgangAktiv = 1 << 1, KeinOptikteil = 1 << 2;
constexpr std::uint16_t Meldebits = 0xF0F0; // set and cleared elsewhere
constexpr std::uint16_t Statusbits = 0x3F, WechselNachScan = 1 << 14;

void SchreibeMesswerte(std::span<std::uint16_t> ziel, const Messwerte& werte, const Extremwerte& extreme) {
    auto ort = std::ranges::copy(werte, ziel.begin()).out;
    ort = std::ranges::copy(extreme.Kleinste(), ort).out;
    std::ranges::copy(extreme.Groesste(), ort);
}

} // namespace

void PruefeStrahlen(const std::array<int, Optikteile>& strahlen) {
    int summe = 0;
    for (const int anzahl : strahlen)
        summe += anzahl;
    if (summe > MaxStrahlen)
        throw std::invalid_argument("beams: at most 512 in all parts together, these are " +
                                    std::to_string(summe));
    if (summe == 0)
        throw std::invalid_argument("beams: at least one part must have some");
}

Optik::Optik(const Aufbau& aufbau) : szene(aufbau.startwert) {
    if (aufbau.band) {
        band.emplace(aufbau.band, aufbau.schleife);
        NimmBeginn();
        return;
    }
    PruefeStrahlen(aufbau.strahlen);
    for (int teil = 0; teil < Optikteile; ++teil) {
        Teil(teil).anzahl = aufbau.strahlen[static_cast<std::size_t>(teil)];
        Teil(teil).vorhanden = Teil(teil).anzahl > 0;
    }
}

void Optik::SetzeVorhanden(int teil, bool vorhanden) {
    if (vorhanden && Teil(teil).anzahl == 0)
        throw std::invalid_argument("part " + std::to_string(teil) +
                                    " has no beams yet: give it some with beams");
    Teil(teil).vorhanden = vorhanden;
    Teil(teil).extreme.Vergiss();
    Erneuere();
}

void Optik::SetzeStrahlenzahl(int teil, int anzahl) {
    std::array<int, Optikteile> strahlen{};
    std::ranges::transform(teile, strahlen.begin(), &Optikteil::anzahl);
    strahlen[static_cast<std::size_t>(teil)] = anzahl;
    PruefeStrahlen(strahlen);
    Teil(teil).anzahl = anzahl;
    Teil(teil).extreme.Vergiss();
    Erneuere();
}

void Optik::Stelle(int teil, const std::optional<Strahlenbild>& bild) {
    Teil(teil).gestellt = bild;
    Erneuere();
}

void Optik::HalteAn(Zeit jetzt) {
    if (!angehalten)
        angehalten = jetzt;
}

void Optik::LasseLaufen(Zeit jetzt) {
    if (angehalten)
        rueckstand += jetzt - *angehalten;
    angehalten.reset();
}

void Optik::Neustart() {
    for (Optikteil& teil : teile)
        teil.extreme.Vergiss();
    Erneuere();
}

void Optik::Aktualisiere(Registerspeicher& speicher, Zeit jetzt) {
    if (band)
        return SpieleAb(speicher, jetzt);
    const Zeit zeit = std::max(angehalten.value_or(jetzt) - rueckstand, Zeit{0});
    const auto scan = zeit / Abtastzeit;
    if (letzterScan == scan)
        return;
    letzterScan = scan;
    for (int teil = 0; teil < Optikteile; ++teil)
        TasteAb(speicher, teil, scan * Abtastzeit);
    std::uint16_t& status = speicher.Global(reg::Geraetestatus);
    status = static_cast<std::uint16_t>((status & Meldebits) | Geraetestatus(speicher, scan % 2 == 0));
}

void Optik::TasteAb(Registerspeicher& speicher, int teil, Zeit zeit) {
    Optikteil& optik = Teil(teil);
    const auto messwerte = speicher.Block({Bereich::Spezifisch, reg::Messwerte}, teil, reg::Messwertregister);
    const auto strahlen = speicher.Block({Bereich::Spezifisch, reg::Strahlen}, teil, reg::Strahlenregister);
    std::uint16_t& status = speicher.Spezifisch(teil, reg::Teilstatus);
    if (!optik.vorhanden) {
        std::ranges::fill(messwerte, std::uint16_t{0});
        std::ranges::fill(strahlen, std::uint16_t{0});
        status = 0;
        return;
    }
    const auto muster = speicher.Block({Bereich::Spezifisch, reg::Blanking}, teil, reg::Blankingregister);
    const Strahlenbild alle = Beteiligte(optik.anzahl, {});
    const Strahlenbild frei = alle & optik.gestellt.value_or(szene.Stand(teil, optik.anzahl, zeit));
    const Strahlenbild beteiligte = alle & ~LiesMuster(muster);
    const Messwerte werte = Miss(frei, beteiligte);
    optik.extreme.Nimm(werte);
    SchreibeMesswerte(messwerte, werte, optik.extreme);
    SchreibeMuster(strahlen, frei);
    const Massstab massstab{optik.anzahl, speicher.Spezifisch(teil, reg::Mittentoleranz),
                            speicher.Spezifisch(teil, reg::Lochgroesse)};
    status = static_cast<std::uint16_t>(teilstatus::Vorhanden | Beurteile(frei, beteiligte, massstab));
}

/// The output follows the part named in bits 8 and 9 of its register, by the state whose bit is set there.
std::uint16_t Optik::Geraetestatus(const Registerspeicher& speicher, bool gerade) const {
    if (std::ranges::none_of(teile, &Optikteil::vorhanden))
        return KeinOptikteil;
    const std::uint16_t ausgang = speicher.Global(reg::Schaltausgang);
    const std::uint16_t status = speicher.Spezifisch(ausgang >> 8 & 3, reg::Teilstatus);
    const bool wechselt = (ausgang & WechselNachScan) != 0 && gerade;
    return wechselt || (ausgang & status & Statusbits) != 0 ? AusgangAktiv : std::uint16_t{0};
}

} // namespace varnoth::simulator
