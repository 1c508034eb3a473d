#include "portliste.h"

#include "geraetebefund.h"
#include "portbenutzer.h"
#include "portquelle.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace varnoth {

namespace {

std::vector<std::string> Pfade(const std::vector<Portangabe>& ports) {
    std::vector<std::string> pfade;
    std::ranges::transform(ports, std::back_inserter(pfade), &Portangabe::geraet);
    return pfade;
}

void Nimm(Portangabe& port, const std::vector<std::string>& prozesse) {
    auto& namen = port.befund.prozesse;
    for (const std::string& name : prozesse)
        if (std::ranges::find(namen, name) == namen.end())
            namen.push_back(name);
    if (!namen.empty() && port.befund.hindernis == Hindernis::Keines)
        port.befund.hindernis = Hindernis::Belegt;
}

void NimmJedem(std::vector<Portangabe>& ports, const std::vector<std::vector<std::string>>& prozesse) {
    for (std::size_t i = 0; i < ports.size(); ++i)
        Nimm(ports[i], prozesse[i]);
}

} // namespace

Portwurzeln WurzelnDesRechners() {
    const char* const ordner = std::getenv("VARNOTH_PORTS");
    return {.ordner = ordner != nullptr ? ordner : ""};
}

std::vector<Portangabe> LiesPortliste(const Portwurzeln& wurzeln) {
    auto ports = PortsOhneBefund(wurzeln);
    for (Portangabe& port : ports)
        port.befund = BefundDesGeraets(port.geraet);
    NimmJedem(ports, SperrendeAnGeraeten(Pfade(ports), wurzeln.proc));
    return ports;
}

void ErgaenzeProzesse(std::vector<Portangabe>& ports, const Portwurzeln& wurzeln) {
    if (!ports.empty())
        NimmJedem(ports, ProzesseAnGeraeten(Pfade(ports), wurzeln.proc));
}

Portbeobachter::Portbeobachter(Portwurzeln neue) : wurzeln(std::move(neue)) {}

bool Portbeobachter::Schaue() {
    constexpr int BlickeJeSuche = 4;
    auto neue = LiesPortliste(wurzeln);
    const bool erster = seitProzessen < 0;
    if (!erster && neue == ohneProzesse && ++seitProzessen < BlickeJeSuche)
        return false;
    seitProzessen = 0;
    ohneProzesse = neue;
    ErgaenzeProzesse(neue, wurzeln);
    return std::exchange(ports, std::move(neue)) != ports || erster;
}

} // namespace varnoth
