#include "nebenfaden.h"

#include <condition_variable>
#include <mutex>
#include <utility>

namespace varnoth {

struct Nebenfaden::Ende {
    std::mutex sperre;
    std::condition_variable melder;
    bool erreicht = false;
};

Nebenfaden::Nebenfaden(std::function<void()> arbeit)
    : ende(std::make_shared<Ende>()), faden([arbeit = std::move(arbeit), ende = ende] {
          arbeit();
          const std::lock_guard gesperrt(ende->sperre);
          ende->erreicht = true;
          ende->melder.notify_all();
      }) {}

Nebenfaden::~Nebenfaden() {
    if (faden.joinable())
        faden.join();
}

bool Nebenfaden::WarteAufEnde(std::chrono::milliseconds hoechstens) {
    std::unique_lock gesperrt(ende->sperre);
    return ende->melder.wait_for(gesperrt, hoechstens, [this] { return ende->erreicht; });
}

void Nebenfaden::LasseZurueck() {
    if (faden.joinable())
        faden.detach();
}

} // namespace varnoth
