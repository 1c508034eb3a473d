#include "simulatorport.h"

#include "porteinstellungen.h"
#include "simulator.h"
#include "verbindungsauskunft.h"

#include <algorithm>
#include <utility>

namespace varnoth {

SimulatorPort::SimulatorPort() : geraet(std::make_unique<simulator::Simulator>(simulator::Aufbau{})) {}

SimulatorPort::~SimulatorPort() = default;

bool SimulatorPort::Oeffne(int /*nummer*/, const std::string& einstellungen) {
    offen = LiesPorteinstellungen(einstellungen).has_value();
    falscheEinstellung = offen ? std::nullopt : std::optional(einstellungen);
    return offen;
}

std::string SimulatorPort::Fehlertext() const {
    return falscheEinstellung ? KeinLeitungsformat(*falscheEinstellung) : std::string();
}

Portbefund SimulatorPort::BefundVon(int /*nummer*/) const {
    return {.hindernis = falscheEinstellung ? Hindernis::Einstellung : Hindernis::Keines};
}

void SimulatorPort::Schliesse() {
    offen = false;
    eingang.clear();
    geraet->TrenneLeitung();
}

void SimulatorPort::NimmAngekommenes() {
    for (const std::uint8_t byte : geraet->Entnimm(DieUmgebung().Uhr()))
        eingang += static_cast<char>(byte);
}

void SimulatorPort::Verwirf() {
    NimmAngekommenes();
    eingang.clear();
}

std::size_t SimulatorPort::BytesWartend() {
    NimmAngekommenes();
    return offen ? eingang.size() : 0;
}

std::string SimulatorPort::LiesAlles() {
    NimmAngekommenes();
    return std::exchange(eingang, {});
}

void SimulatorPort::Schreibe(std::string_view bytes) {
    if (offen)
        geraet->Empfange({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()},
                         DieUmgebung().Uhr());
}

void SimulatorPort::WarteAufEingang(Zeit hoechstens) {
    const auto faellig = geraet->NaechsteFaelligkeit();
    const Zeit bisEingang = faellig ? *faellig - DieUmgebung().Uhr() : hoechstens;
    DieUmgebung().WarteAufEreignis(std::clamp(bisEingang, Zeit{0}, hoechstens));
}

void SimulatorPort::SetzeEreignisbehandlung(std::function<void(int)> /*behandlung*/) {}

} // namespace varnoth
