#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace varnoth::pruefung {

/// A counting semaphore. The standard library's own now and then misses its release on Windows, where threads
/// wait for ever then.
class Schranke {
public:
    explicit Schranke(int wieviele) : frei(wieviele) {}

    void release(int wieviele = 1) {
        const std::lock_guard gesperrt(sperre);
        frei += wieviele;
        melder.notify_all();
    }
    void acquire() {
        std::unique_lock gesperrt(sperre);
        melder.wait(gesperrt, [this] { return frei > 0; });
        --frei;
    }
    /// False when the time was up first.
    bool try_acquire_for(std::chrono::milliseconds hoechstens) {
        std::unique_lock gesperrt(sperre);
        if (!melder.wait_for(gesperrt, hoechstens, [this] { return frei > 0; }))
            return false;
        --frei;
        return true;
    }

private:
    std::mutex sperre;
    std::condition_variable melder;
    int frei;
};

} // namespace varnoth::pruefung
