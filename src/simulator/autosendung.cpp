#include "autosendung.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>

namespace varnoth::simulator {

namespace {

constexpr int Moduswerte = 0x7F, SchnellerModus = 1, Modbusmodus = 3;
constexpr std::uint8_t LiesFunktion = 0x03;
constexpr int CodeStrahlen = 1, CodeErsterMesswert = 2, CodeStatus = 20;
constexpr int StrahlenJeRegister = 16;

/// The longest scan of any part: its beams and three more, 50 us each, for every part that is there; the
/// shortest scan takes a millisecond.
Zeit Zyklus(const Registerspeicher& speicher) {
    constexpr double Strahldauer = 50, KuerzesterScan = 1000;
    constexpr int Zusatz = 3;
    int anzahl = 0, kleinste = MaxStrahlen, groesste = 0;
    for (int teil = 0; teil < Optikteile; ++teil) {
        const int strahlen = speicher.Spezifisch(teil, reg::Strahlenzahl);
        anzahl += strahlen > 0 ? 1 : 0;
        kleinste = strahlen > 0 ? std::min(kleinste, strahlen) : kleinste;
        groesste = std::max(groesste, strahlen);
    }
    if (anzahl == 0)
        return Zeit{0};
    const double dauer = std::max(Strahldauer, KuerzesterScan / ((kleinste + Zusatz) * anzahl));
    return Zeit{std::lround((groesste + Zusatz) * dauer * anzahl)};
}

void HaengeRegisterAn(Bytes& daten, std::span<const std::uint16_t> werte) {
    for (const std::uint16_t wert : werte) {
        daten.push_back(static_cast<std::uint8_t>(wert >> 8));
        daten.push_back(static_cast<std::uint8_t>(wert & 0xFF));
    }
}

/// The values of one entry: code in the low byte, source above it (0 = the whole controller).
void HaengeEintragAn(Bytes& daten, const Registerspeicher& speicher, std::uint16_t eintrag) {
    const int code = eintrag & 0xFF, teil = (eintrag >> 8 & 0x0F) - 1;
    if (code == CodeStatus && teil < 0)
        return HaengeRegisterAn(daten, speicher.Block({Bereich::Global, reg::Geraetestatus}, 0, 1));
    if (code < 1 || code > CodeStatus || teil < 0 || teil >= Optikteile)
        return;
    const int strahlregister =
        (speicher.Spezifisch(teil, reg::Strahlenzahl) + StrahlenJeRegister - 1) / StrahlenJeRegister;
    const int adresse = code == CodeStrahlen ? reg::Strahlen
                        : code == CodeStatus ? reg::Teilstatus
                                             : reg::Messwerte + code - CodeErsterMesswert;
    HaengeRegisterAn(daten, speicher.Block({Bereich::Spezifisch, adresse}, teil,
                                           code == CodeStrahlen ? strahlregister : 1));
}

Bytes Daten(const Registerspeicher& speicher) {
    constexpr std::size_t Hoechstens = 250;
    Bytes daten;
    const auto eintraege =
        speicher.Block({Bereich::Kommunikation, reg::Datenblock}, 0, reg::Datenblockregister);
    for (const std::uint16_t eintrag : eintraege) {
        if (eintrag == 0)
            break;
        HaengeEintragAn(daten, speicher, eintrag);
    }
    daten.resize(std::min(daten.size(), Hoechstens));
    return daten;
}

Bytes Block(const Bytes& daten, bool modbus, int adresse) {
    if (!modbus) {
        Bytes block = daten;
        block.push_back(std::accumulate(daten.begin(), daten.end(), std::uint8_t{0},
                                        [](auto a, auto b) { return static_cast<std::uint8_t>(a + b); }));
        return block;
    }
    Bytes block;
    for (const int zeichen : {adresse, int{LiesFunktion}, static_cast<int>(daten.size())})
        block.push_back(static_cast<std::uint8_t>(zeichen));
    block.insert(block.end(), daten.begin(), daten.end());
    HaengeCrcAn(block);
    return block;
}

/// The line's own format stands in the register that tells it, speed in the low byte.
bool IstFormatDerLeitung(const Registerspeicher& speicher) {
    return speicher.Kommunikation(reg::Autosendformat) == speicher.Kommunikation(reg::Leitungsformat);
}

} // namespace

std::optional<Autosendung> HoleAutosendung(const Registerspeicher& speicher, int adresse) {
    const int modus = speicher.Kommunikation(reg::Autosend) & Moduswerte;
    const int rate = speicher.Kommunikation(reg::Autosend) >> 8;
    const Zeit periode = Zyklus(speicher) * rate;
    const Bytes daten = Daten(speicher);
    if ((modus != SchnellerModus && modus != Modbusmodus) || periode == Zeit{0} || daten.empty())
        return std::nullopt;
    return Autosendung{periode, Block(daten, modus == Modbusmodus, adresse), IstFormatDerLeitung(speicher)};
}

} // namespace varnoth::simulator
