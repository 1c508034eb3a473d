#include "ereignisse.h"

#include "startzustand.h"

#include <utility>

namespace varnoth::modEreignisse {

namespace {

Ereignisspeicher ereignisse;
const Startwert startwert(ereignisse);

} // namespace

std::uint64_t Merke(Ereignis ereignis) {
    if (ereignis.zeit == Systemzeit{})
        ereignis.zeit = std::chrono::system_clock::now();
    return ereignisse.Merke(std::move(ereignis));
}

std::uint64_t Merke(const std::string& text) {
    return Merke({.art = Ereignisart::Notiz, .text = text});
}

Ereignisspeicher& Alle() {
    return ereignisse;
}

} // namespace varnoth::modEreignisse
