#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

namespace varnoth {

/// Work in a thread of its own, which can be left behind when it does not come to its end: a disk that no
/// longer answers must not hold up the program. What the work uses has to live as long as the work itself.
class Nebenfaden {
public:
    /// A disk that takes longer counts as one that does not answer.
    static constexpr std::chrono::milliseconds LaengstesSchweigen{3000};

    explicit Nebenfaden(std::function<void()> arbeit);
    /// Waits for the end of the work as long as that takes, unless it was left behind.
    ~Nebenfaden();
    Nebenfaden(const Nebenfaden&) = delete;
    Nebenfaden& operator=(const Nebenfaden&) = delete;

    /// Waits for the end of the work, so long at most. Whether it has ended.
    bool WarteAufEnde(std::chrono::milliseconds hoechstens);
    /// Nobody waits for the work any more.
    void LasseZurueck();

private:
    struct Ende;

    std::shared_ptr<Ende> ende;
    std::thread faden;
};

} // namespace varnoth
