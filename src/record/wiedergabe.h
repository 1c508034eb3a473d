#pragma once

#include "messquelle.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

/// Playing the past: where a replay stands, and what is to be shown there.
namespace varnoth {

enum class Wiedergabelage : std::uint8_t {
    Leer,     ///< live data had begun or come back, but no pass had ended yet
    Messwert, ///< a pass is to be shown
    Verloren, ///< the controller did not answer
    Beendet,  ///< live data did not run
    Unlesbar, ///< the record is damaged there
};

/// What a source holds of a moment.
struct Wiedergabestelle {
    Wiedergabelage lage = Wiedergabelage::Leer;
    std::uint64_t nummer = 0; ///< of the packet
    std::shared_ptr<const Messpaket> paket{};
    std::size_t platz = 0; ///< of the pass in the packet

    /// The pass to be shown; nullptr in every other case than `Messwert`.
    const Messdurchgang* Durchgang() const {
        return lage == Wiedergabelage::Messwert ? &paket->durchgaenge[platz] : nullptr;
    }
    /// Whether the same is to be shown as there.
    bool Gleicht(const Wiedergabestelle& andere) const {
        return lage == andere.lage && nummer == andere.nummer && platz == andere.platz;
    }
};

/// What was to be seen at a time: the last pass before it, or that there was nothing. Reads few packets,
/// however long the source is.
Wiedergabestelle StelleUm(const Messquelle& quelle, Zeit laufzeit);

/// The time of the next pass behind a time, or of the last one before it; nothing when there is none near.
std::optional<Zeit> DurchgangNeben(const Messquelle& quelle, Zeit laufzeit, bool vorwaerts);

/// The place where a replay stands, and how it goes on. All times of the clock come from the same clock and
/// never run backwards; positions are times of the source.
class Wiedergabe {
public:
    static constexpr double KleinstesTempo = 0.1;
    static constexpr double GroesstesTempo = 100;

    /// Stands still at the beginning. The source must outlive this object.
    explicit Wiedergabe(const Messquelle& quelle);

    Zeit Anfang() const;
    Zeit Ende() const;
    /// Where it stood when it was last moved.
    Zeit Position() const { return position; }
    bool Laeuft() const { return laeuft; }
    double Tempo() const { return tempo; }

    /// Goes on by the time that has passed; at the end it stands still.
    void Ruecke(Zeit uhr);
    /// Begins to play; at the end from the beginning.
    void Spiele(Zeit uhr);
    void HalteAn(Zeit uhr);
    /// How many seconds of the source go by in one; brought into 0.1 .. 100.
    void SetzeTempo(double neues, Zeit uhr);
    /// Goes on from elsewhere, played or standing as before; brought into the source.
    void GeheZu(Zeit laufzeit, Zeit uhr);
    /// Stands still at the next pass, or at the one before. Where there is none, it stays.
    void Schritt(bool vorwaerts, Zeit uhr);

private:
    const Messquelle& quelle;
    Zeit position;
    Zeit gesehen{0}; ///< the clock when it was last moved
    double tempo = 1;
    bool laeuft = false;
};

} // namespace varnoth
