#include "ereignisse.h"

#include "startzustand.h"
#include "textschutz.h"

namespace varnoth::modEreignisse {

namespace {

std::deque<Ereignis> ereignisse;
const Startwert startwert(ereignisse);

} // namespace

void Merke(const std::string& text) {
    if (ereignisse.size() == Hoechstzahl)
        ereignisse.pop_front();
    ereignisse.push_back({std::chrono::system_clock::now(), Einzeilig(text)});
}

const std::deque<Ereignis>& Alle() {
    return ereignisse;
}

} // namespace varnoth::modEreignisse
