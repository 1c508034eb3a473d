#pragma once

#include "dateien.h"
#include "nebenfaden.h"
#include "umgebung.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace varnoth {

/// Brings lines to a file in a thread of its own, one order after the other: a disk that does not answer
/// holds up nobody.
class Tagebuchschreiber {
public:
    /// Appends as HaengeAnDatei does. Runs in the other thread.
    using Weg = std::function<Anhaengeergebnis(const std::string& pfad, std::string_view bytes,
                                               std::size_t hoechstens)>;
    struct Auftrag {
        std::string ordner{}; ///< that has to be there already
        std::string datei{};
        std::string zeilen{};
        std::size_t hoechstens = 0; ///< bytes of the file
    };
    struct Ergebnis {
        std::string datei{};
        bool ohneOrdner = false;
        Anhaengeergebnis angehaengt{};
    };

    /// @param weg nothing: HaengeAnDatei
    explicit Tagebuchschreiber(Weg weg);
    /// Leaves to itself what has not come back within three seconds.
    ~Tagebuchschreiber();
    Tagebuchschreiber(const Tagebuchschreiber&) = delete;
    Tagebuchschreiber& operator=(const Tagebuchschreiber&) = delete;

    /// Not before the one before has come back.
    void Beginne(Auftrag auftrag);
    /// Whether an order has not come back yet, or nobody has taken what came of it.
    bool Laeuft() const { return faden.has_value(); }
    /// Whether it has been under way for more than three seconds.
    bool SchweigtLange() const;
    /// What came of it, taken once; waits for that no longer than given.
    std::optional<Ergebnis> Hole(std::chrono::milliseconds hoechstens = {});
    /// Nobody waits for it any more.
    void LasseZurueck();

private:
    Weg weg;
    std::shared_ptr<Ergebnis> ergebnis; ///< the thread's until it has ended
    std::optional<Nebenfaden> faden;
    Zeit begonnen{};
};

} // namespace varnoth
