#pragma once

#include "seriellerport.h"

#include <memory>
#include <optional>

namespace varnoth {

namespace simulator {
class Simulator;
}

/// A port behind which the built-in controller answers, with the timing of a real line. Every port number
/// leads to it.
class SimulatorPort : public SeriellerPort {
public:
    SimulatorPort();
    ~SimulatorPort() override;

    bool Oeffne(int nummer, const std::string& einstellungen) override;
    void Schliesse() override;
    bool IstOffen() override { return offen; }
    std::string Fehlertext() const override;
    Anschluss AnschlussVon(int /*nummer*/) const override { return {.simuliert = true}; }
    Portbefund BefundVon(int nummer) const override;

    void Verwirf() override;
    std::size_t BytesWartend() override;
    std::string LiesAlles() override;
    void Schreibe(std::string_view bytes) override;
    void WarteAufEingang(Zeit hoechstens) override;
    void Schlafe(Zeit /*hoechstens*/) override {}
    bool LeereSender(Zeit /*hoechstens*/) override { return true; }
    void SetzeEreignisbehandlung(std::function<void(int ereignis)> behandlung) override;

private:
    void NimmAngekommenes();

    std::unique_ptr<simulator::Simulator> geraet;
    std::string eingang;
    std::optional<std::string> falscheEinstellung; // the settings string that is no line format
    bool offen = false;
};

} // namespace varnoth
