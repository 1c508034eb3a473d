#pragma once

#include "band.h"
#include "messung.h"
#include "registerspeicher.h"

#include <optional>

namespace varnoth::simulator {

/// The optical parts: who is there, what their beams see, and what of it stands in the registers.
class Optik {
public:
    explicit Optik(const Aufbau& aufbau);

    bool IstVorhanden(int teil) const { return Teil(teil).vorhanden; }
    int Strahlenzahl(int teil) const { return Teil(teil).anzahl; }

    /// Adds or removes a part.
    /// @throws std::invalid_argument when a part without beams is to be added
    void SetzeVorhanden(int teil, bool vorhanden);
    /// Gives a part another number of beams, 1..512.
    /// @throws std::invalid_argument when all parts together would have more than 512
    void SetzeStrahlenzahl(int teil, int anzahl);
    /// Fixes what a part's beams see (set = free), or leaves them to the scene again.
    void Stelle(int teil, const std::optional<Strahlenbild>& bild);
    /// Stops the scene, or lets it run on from where it stopped.
    void HalteAn(Zeit jetzt);
    void LasseLaufen(Zeit jetzt);
    /// Forgets minima and maxima.
    void Neustart();
    /// Something that the measurement goes by has changed: scan anew at the next chance.
    void Erneuere() { letzterScan.reset(); }

    /// Beam states or measured values are asked for: a record that is replayed begins to run.
    void Beginne(Zeit jetzt);
    /// Whether the record that is replayed says that the controller does not answer now.
    bool Schweigt(Zeit jetzt);

    /// Brings the registers that show the scene up to the given time.
    void Aktualisiere(Registerspeicher& speicher, Zeit jetzt);

private:
    struct Optikteil {
        int anzahl = 0;
        bool vorhanden = false;
        std::optional<Strahlenbild> gestellt{};
        Extremwerte extreme{};
    };
    const Optikteil& Teil(int teil) const { return teile[static_cast<std::size_t>(teil)]; }
    Optikteil& Teil(int teil) { return teile[static_cast<std::size_t>(teil)]; }
    void TasteAb(Registerspeicher& speicher, int teil, Zeit zeit);
    std::uint16_t Geraetestatus(const Registerspeicher& speicher, bool gerade) const;
    Zeit Bandzeit(Zeit jetzt) const;
    void NimmBeginn();
    void SpieleAb(Registerspeicher& speicher, Zeit jetzt);
    void Schreibe(Registerspeicher& speicher, int teil, const Bandteil& gelesen);

    Szene szene;
    std::array<Optikteil, Optikteile> teile{};
    std::optional<Zeit> angehalten{};
    Zeit rueckstand{0};
    std::optional<Zeit::rep> letzterScan{};
    std::optional<Bandlauf> band{};
    std::optional<Zeit> bandbeginn{};
    std::size_t konfiguration = 1; ///< of the record, in force
};

} // namespace varnoth::simulator
