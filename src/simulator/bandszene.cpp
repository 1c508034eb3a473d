// The optical parts while a record is replayed in place of the scene.

#include "optik.h"

#include <algorithm>

namespace varnoth::simulator {

/// The parts of the first pass.
void Optik::NimmBeginn() {
    const Bandbild* const bild = band->BildUm(Zeit{0});
    for (int teil = 0; bild != nullptr && teil < Optikteile; ++teil) {
        Teil(teil).anzahl = bild->teile[static_cast<std::size_t>(teil)].strahlen;
        Teil(teil).vorhanden = bild->teile[static_cast<std::size_t>(teil)].vorhanden;
    }
}

void Optik::Beginne(Zeit jetzt) {
    if (!bandbeginn)
        bandbeginn = angehalten.value_or(jetzt) - rueckstand;
}

/// How long the record has run.
Zeit Optik::Bandzeit(Zeit jetzt) const {
    return bandbeginn ? std::max(angehalten.value_or(jetzt) - rueckstand - *bandbeginn, Zeit{0}) : Zeit{0};
}

bool Optik::Schweigt(Zeit jetzt) {
    return band && band->Schweigt(Bandzeit(jetzt));
}

/// Where the record cannot be read, the registers stay as they are.
void Optik::SpieleAb(Registerspeicher& speicher, Zeit jetzt) {
    const Bandbild* const bild = band->BildUm(Bandzeit(jetzt));
    if (bild == nullptr)
        return;
    if (band->Konfiguration() != konfiguration) {
        konfiguration = band->Konfiguration();
        band->DasBand().Uebernimm(konfiguration, speicher);
    }
    for (int teil = 0; teil < Optikteile; ++teil)
        Schreibe(speicher, teil, bild->teile[static_cast<std::size_t>(teil)]);
    speicher.Global(reg::Geraetestatus) = bild->geraetestatus;
}

/// Of a part that was not measured in a pass, beams and values stay those of the last one that was.
void Optik::Schreibe(Registerspeicher& speicher, int teil, const Bandteil& gelesen) {
    Teil(teil).anzahl = gelesen.strahlen;
    Teil(teil).vorhanden = gelesen.vorhanden;
    speicher.Spezifisch(teil, reg::Teilstatus) = gelesen.status;
    speicher.Spezifisch(teil, reg::Strahlenzahl) = static_cast<std::uint16_t>(gelesen.strahlen);
    if (!gelesen.gemessen)
        return;
    std::ranges::copy(
        gelesen.werte,
        speicher.Block({Bereich::Spezifisch, reg::Messwerte}, teil, reg::Messwertregister).begin());
    std::ranges::copy(
        gelesen.strahlregister,
        speicher.Block({Bereich::Spezifisch, reg::Strahlen}, teil, reg::Strahlenregister).begin());
}

} // namespace varnoth::simulator
