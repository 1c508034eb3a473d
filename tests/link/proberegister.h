#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace varnoth::pruefung {

/// The registers of a controller for tests. A register's value tells which register it is: the lower twelve
/// bits are its place, different for every address and optical part; the upper four count what was written.
class Proberegister {
public:
    static constexpr int Optikteile = 4;
    static constexpr int Auswahlregister = 212;

    Proberegister() {
        for (std::size_t platz = 0; platz < werte.size(); ++platz)
            werte[platz] = static_cast<std::uint16_t>(platz);
        werte[Auswahlregister] = 0;
    }

    /// Whether a block of registers lies wholly within one memory range.
    static bool GibtEs(int adresse, int anzahl) {
        const int groesse = Istspezifisch(adresse) ? Spezifische : Andere;
        return (adresse & RangMaske) <= Kommunikation && (adresse & ~RangMaske) + anzahl <= groesse;
    }
    static bool Istspezifisch(int adresse) { return (adresse & RangMaske) == Spezifisch; }

    /// The value of the register at a device address, of the given optical part where there are several.
    std::uint16_t& Wert(int adresse, int teil) { return werte.at(Platz(adresse, teil)); }
    /// The optical part selected, 0..3.
    int Auswahl() { return Wert(Auswahlregister, 0) % Optikteile; }
    /// A value for this register with another count in its upper bits.
    static std::uint16_t NeuerWert(int adresse, int teil, int zaehler) {
        constexpr int Zaehlerbits = 4, Zaehlerstelle = 12;
        const int oben = (zaehler % (1 << Zaehlerbits)) << Zaehlerstelle;
        return static_cast<std::uint16_t>(oben | static_cast<int>(Platz(adresse, teil)));
    }

private:
    static constexpr int RangMaske = 0xE000, Spezifisch = 0x2000, Kommunikation = 0x4000;
    static constexpr int Andere = 256, Spezifische = 512;

    static std::size_t Platz(int adresse, int teil) {
        const int darin = adresse & ~RangMaske;
        const int anderer = (adresse & RangMaske) == Kommunikation ? Andere + darin : darin;
        const int platz = Istspezifisch(adresse) ? 2 * Andere + teil * Spezifische + darin : anderer;
        return static_cast<std::size_t>(platz);
    }

    std::array<std::uint16_t, 2 * Andere + Optikteile * Spezifische> werte{};
};

} // namespace varnoth::pruefung
