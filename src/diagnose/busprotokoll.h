#pragma once

#include "mithoeren.h"
#include "passwortschutz.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace varnoth {

/// An exchange as the log keeps it. The bytes live until the log hears of the next one. Bytes that may hold
/// the service password are not kept: behind `zeigbar` there are zeros in their place.
struct Busaustausch {
    std::uint64_t nummer = 0; ///< from 1, in the order of the line
    Austauschart art{};
    Austauschergebnis ergebnis{};
    int optikteil = -1; ///< 0..3: what was selected when it was sent; -1: not known
    std::string_view anforderung{};
    std::string_view empfangen{};
    std::size_t kamAn = 0; ///< bytes; of very many only the first are kept
    Passwortschutz::Zeigbares zeigbar{};
    Zeit gesendet{};
    Zeit umlauf{}; ///< from sending to the last byte; 0 when nothing came, or nobody can tell
};

/// Whether an exchange went wrong; bytes that nobody was waiting for always did.
bool IstFehler(Austauschergebnis ergebnis);

/// The newest exchanges on the line, in memory of a bounded size. What they mean is found out by whoever
/// shows them.
class Busprotokoll : public Mithoerer {
public:
    static constexpr std::size_t Hoechstzahl = 100'000;
    /// Room for the bytes of all of them; 160 an exchange are twice what a polling pass needs.
    static constexpr std::size_t Bytevorrat = std::size_t{16} << 20U;
    /// Of one direction of an exchange no more bytes are kept.
    static constexpr std::size_t HoechstensBytes = 512;
    /// What all that takes at most.
    static constexpr std::size_t Speicherbedarf();

    Busprotokoll() = default;
    ~Busprotokoll() override;

    /// Listens from now on; `jetzt` is the time of day. The memory is taken at the first time, and no page of
    /// it before it is written.
    void Beginne(std::chrono::system_clock::time_point jetzt = std::chrono::system_clock::now());
    /// Listens no more; what was heard stays.
    void Beende();
    bool Laeuft() const { return laeuft; }
    /// Forgets all exchanges; numbers go on.
    void Leere(std::chrono::system_clock::time_point jetzt = std::chrono::system_clock::now());

    /// The numbers of the oldest exchange that is kept, and of the newest; newest < oldest when there is
    /// none.
    std::uint64_t Erster() const { return naechster - anzahl; }
    std::uint64_t Letzter() const { return naechster - 1; }
    std::size_t Anzahl() const { return anzahl; }
    /// Whether the exchange with this number is kept.
    bool Hat(std::uint64_t nummer) const { return nummer >= Erster() && nummer < naechster; }
    /// The exchange with a number that is kept.
    /// @throws std::out_of_range for others
    Busaustausch Hole(std::uint64_t nummer) const;

    /// The time of day at a time of the clock. It runs on from the beginning of the listening: what anybody
    /// sets the computer's clock to meanwhile makes no difference.
    std::chrono::system_clock::time_point Uhrzeit(Zeit zeit) const;

    void Hoere(const Mitschnitt& mitschnitt) override;

private:
    struct Eintrag {
        Zeit gesendet;
        std::uint64_t anfang; ///< of its bytes, counted since the log began
        std::uint32_t umlauf;
        std::uint32_t kamAn;
        std::uint16_t anforderung; ///< bytes that are kept
        std::uint16_t empfangen;
        std::uint16_t zeigbareAnforderung;
        std::uint16_t zeigbaresEmpfangenes;
        Austauschart art;
        Austauschergebnis ergebnis;
        std::int8_t optikteil;
    };

    const Eintrag& Der(std::uint64_t nummer) const { return eintraege[nummer % Hoechstzahl]; }
    std::uint64_t Belege(std::size_t bytes);
    void Lege(std::uint64_t stelle, std::string_view bytes, std::size_t zeigbar);
    void MerkeOptikteil(const Mitschnitt& mitschnitt);
    void StelleUhr(std::chrono::system_clock::time_point jetzt);

    std::unique_ptr<Eintrag[]> eintraege; ///< of a fixed size
    std::unique_ptr<char[]> bytespeicher; ///< of a fixed size
    std::uint64_t naechster = 1;
    std::size_t anzahl = 0;
    std::uint64_t geschrieben = 0; ///< bytes, with those left out at the end of the room
    Passwortschutz schutz;
    int optikteil = -1;
    bool laeuft = false;
    std::chrono::system_clock::time_point anfangszeit{};
    Zeit anfangsuhr{0};
};

constexpr std::size_t Busprotokoll::Speicherbedarf() {
    return Hoechstzahl * sizeof(Eintrag) + Bytevorrat;
}

} // namespace varnoth
