#pragma once

#include "nebenfaden.h"
#include "schreibwerk.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>

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
    /// As long as a disk may take.
    static constexpr auto Beliebig =
        std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::hours(24 * 365));

    Aufzeichnung(std::shared_ptr<Dateiablage> ablage, Aufzeichnungsauftrag auftrag, Uhr uhr);
    /// Ends it, if it runs, however long the disk takes.
    ~Aufzeichnung();
    Aufzeichnung(const Aufzeichnung&) = delete;
    Aufzeichnung& operator=(const Aufzeichnung&) = delete;

    /// Lets the thread make the files, and run. Waits for them so long at most: a POSIX error number, with
    /// which it has ended, 0 when they are there, nothing while the disk has not answered. What is handed
    /// over meanwhile is written then; an error that comes later is in `Stand`, with no file begun.
    std::optional<int> Beginne(std::shared_ptr<const Abbild> konfiguration,
                               std::chrono::milliseconds hoechstens = Beliebig);
    /// Lets the thread write what is waiting and end the files whole, and waits for that so long at most:
    /// whether it has ended. Nothing is to be handed over from then on; may be asked again.
    bool LassEnden(std::chrono::milliseconds hoechstens);
    /// The same for the last time. False when it takes longer than given: the thread is left to itself, and
    /// what it has not written by now counts as dropped.
    bool Beende(std::chrono::milliseconds hoechstens = Beliebig);

    // After Beginne, from the same thread:

    /// A pass, its `uhr` on the clock.
    void Nimm(const Messdurchgang& durchgang);
    /// What has happened; `laufzeit` is the clock.
    void Nimm(Messereignis ereignis);
    /// The configuration that is in use from now on.
    void SetzeKonfiguration(std::shared_ptr<const Abbild> konfiguration);

    /// How it stood when the thread last wrote, and whether it waits for the disk now.
    Aufzeichnungsstand Stand() const;

private:
    struct Innen;

    std::shared_ptr<Innen> innen; ///< the thread's too
    std::optional<Nebenfaden> faden;
};

} // namespace varnoth
