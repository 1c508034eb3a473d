#pragma once

#include "anfragenleser.h"
#include "autosendung.h"
#include "leitung.h"
#include "steuergeraet.h"

namespace varnoth::simulator {

/// A controller on its line. It has no clock: all happens at the times it is told, which never run backwards.
/// Whoever owns it hands over what the master sends, asks when bytes become readable, and fetches them then.
class Simulator {
public:
    /// @throws std::invalid_argument for beam counts that do not fit, std::runtime_error for a store file
    /// that
    ///         cannot be understood; both with a sentence for the user
    explicit Simulator(const Aufbau& aufbau);

    /// Bytes from the master, sent off at the given time: they take their time on the wire, and a reply is
    /// timed from the end of its request.
    void Empfange(std::span<const std::uint8_t> zeichen, Zeit jetzt);
    /// When there is something to do next: bytes become readable, or a data block is due in autosend. Nothing
    /// while there is neither.
    std::optional<Zeit> NaechsteFaelligkeit() const;
    /// Takes the bytes that have become readable by the given time.
    std::vector<std::uint8_t> Entnimm(Zeit jetzt);
    /// Carries a command out. Gives one line, "ok ..." or "error ...".
    std::string Befehl(std::string_view zeile, Zeit jetzt);
    /// The line is cut: what is on its way in either direction is lost.
    void TrenneLeitung();

private:
    void NimmZeichen(std::uint8_t zeichen, Zeit jetzt);
    Bytes Bearbeite(std::span<const std::uint8_t> anfrage, Zeit jetzt);
    void Beantworte(std::span<const std::uint8_t> anfrage, Zeit jetzt);
    void ZaehleGebrochene();
    void SendeDatenbloecke(Zeit jetzt);
    void StelleAutosend(Zeit jetzt);

    Protokoll protokoll;
    Zaehlwerk zaehlwerk{};
    Optik optik;
    Steuergeraet geraet;
    Stoerungen stoerungen{};
    Antwortverlauf verlauf{};
    Leitung leitung;
    Anfragenleser leser{};
    Zeit bedenkzeit;
    std::optional<Zeit> naechsterBlock{}; ///< while the controller is in autosend
    std::chrono::nanoseconds empfangsende{std::chrono::nanoseconds::min()};
};

} // namespace varnoth::simulator
