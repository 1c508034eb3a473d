#pragma once

#include "bandpaket.h"
#include "registerspeicher.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <vector>

namespace varnoth::simulator {

/// A record as a file, whose blocks are walked through when it is opened; packets are read when they are
/// needed. A part that is damaged is passed over.
class Band {
public:
    /// @throws std::runtime_error with a sentence when it cannot be read, is no record, or holds no pass
    explicit Band(const std::filesystem::path& pfad);

    std::size_t AnzahlPakete() const { return pakete.size(); }
    /// The packet of a time: the last one that begins at it or before; 0 for any earlier time.
    std::size_t PaketUm(Zeit laufzeit) const;
    /// What a packet holds; nullptr when it is damaged. Holds until two others were read.
    const Bandpaket* Lies(std::size_t nummer);
    /// Which configuration is in use for a packet, 0 for none.
    std::size_t KonfigurationVon(std::size_t nummer) const { return pakete[nummer].konfiguration; }
    /// Puts the values of a configuration, 1.., into the registers, all but those that the controller keeps
    /// for itself.
    void Uebernimm(std::size_t konfiguration, Registerspeicher& speicher);
    /// From the first pass to the last.
    Zeit Anfang() const { return anfang; }
    Zeit Ende() const { return ende; }

private:
    struct Stelle {
        std::uint64_t ort;
        std::uint32_t laenge;
    };
    struct Paketstelle {
        Stelle stelle;
        Zeit von;
        std::size_t konfiguration;
    };
    struct Gelesenes {
        std::size_t nummer;
        std::optional<Bandpaket> paket;
    };
    struct Kopf {
        std::uint8_t art;
        std::uint32_t laenge;
    };

    void PruefeKennung();
    void GeheDurch();
    void Nimm(std::uint64_t ort, const Kopf& kopf);
    std::optional<Kopf> LiesKopf(std::uint64_t ort);
    std::uint64_t NaechsterKopf(std::uint64_t ab);
    std::vector<std::uint8_t> LiesRoh(std::uint64_t ort, std::size_t laenge);
    std::vector<std::uint8_t> LiesInhalt(const Stelle& stelle);
    void SucheGrenzen();

    std::ifstream datei;
    std::uint64_t groesse = 0;
    std::vector<Paketstelle> pakete;
    std::vector<Stelle> konfigurationen;
    std::array<std::optional<Gelesenes>, 2> gelesene;
    Zeit anfang{0};
    Zeit ende{0};
};

/// Where in a record a replay is.
class Bandlauf {
public:
    /// @param schleife begins anew behind the last pass; else it stays there
    Bandlauf(std::shared_ptr<Band> band, bool schleife);

    /// What was measured so long after the first pass, the last of the passes before; nullptr where that
    /// cannot be read. Holds until the next call.
    const Bandbild* BildUm(Zeit seitBeginn);
    /// Whether the controller did not answer then.
    bool Schweigt(Zeit seitBeginn);
    /// The configuration in use where `BildUm` last was.
    std::size_t Konfiguration() const { return konfiguration; }
    Band& DasBand() { return *band; }

private:
    void GeheZu(Zeit seitBeginn);
    bool SiehIn(const Bandpaket& paket, Zeit laufzeit, std::optional<bool>& stumm);

    std::shared_ptr<Band> band;
    bool schleife;
    std::optional<Bandbild> bild;
    bool schweigt = false;
    std::size_t konfiguration = 0;
    std::optional<Zeit> zuletzt;
};

} // namespace varnoth::simulator
