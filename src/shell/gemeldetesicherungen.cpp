#include "gemeldetesicherungen.h"

#include "ereignisse.h"

namespace varnoth {

std::string GemeldeteSicherungen::Lege(const Abbild& abbild, const Sicherungsangaben& angaben) {
    std::string fehler = sicherungen.Lege(abbild, angaben);
    modEreignisse::Merke({.art = Ereignisart::Gesichert,
                          .gelungen = fehler.empty(),
                          .neu = angaben.anlass ? static_cast<int>(*angaben.anlass) : -1,
                          .text = fehler});
    return fehler;
}

} // namespace varnoth
