#pragma once

#include "schreibwerk.h"

#include <condition_variable>
#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace varnoth {

/// A recording that runs: a thread writes what it is handed, once a second at least. Handing over takes as
/// long as a copy and never waits for a disk; when the thread cannot keep up for long, passes are dropped and
/// counted.
class Aufzeichnung {
public:
    /// The moment it is now; called from both threads.
    using Uhr = std::function<Augenblick()>;

    /// Passes that wait to be written at most.
    static constexpr std::size_t MeisteWartende = 10'000;

    /// `ablage` must outlive this object.
    Aufzeichnung(Dateiablage& ablage, Aufzeichnungsauftrag auftrag, Uhr uhr);
    /// Ends it, if it runs.
    ~Aufzeichnung();
    Aufzeichnung(const Aufzeichnung&) = delete;
    Aufzeichnung& operator=(const Aufzeichnung&) = delete;

    /// Makes the files and lets the thread run. A POSIX error number, 0 when all went well.
    int Beginne(std::shared_ptr<const Abbild> konfiguration);
    /// Writes what is waiting, and ends the files whole. Nothing is taken from then on.
    void Beende();

    // After Beginne, from the same thread:

    /// A pass, its `uhr` on the clock.
    void Nimm(const Messdurchgang& durchgang);
    /// What has happened; `laufzeit` is the clock.
    void Nimm(Messereignis ereignis);
    /// The configuration that is in use from now on.
    void SetzeKonfiguration(std::shared_ptr<const Abbild> konfiguration);

    /// How it stood when the thread last wrote.
    Aufzeichnungsstand Stand() const;

private:
    /// What waits to be written.
    struct Wartendes {
        std::vector<Aufnahmestueck> stuecke;
        std::size_t durchgaenge = 0;
        std::uint64_t verworfene = 0;
    };

    Messpaket& LetztesStueck();
    void Laufe();

    Uhr uhr;
    Schreibwerk werk; ///< the thread's own while it runs
    mutable std::mutex sperre;
    std::condition_variable wecker;
    Wartendes wartendes;
    Aufzeichnungsstand stand;
    bool zuEnde = false;
    std::optional<std::thread> faden;
};

} // namespace varnoth
