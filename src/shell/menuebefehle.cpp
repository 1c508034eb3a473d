#include "menuebefehle.h"

#include <algorithm>
#include <array>

namespace varnoth {

namespace {

constexpr std::array stoppende{
    Befehl::Beenden,
    Befehl::Einzelwerte,
    Befehl::FirmwareUpdate,
    Befehl::InitHardware,
    Befehl::KonfigurationAnzeigen,
    Befehl::KonfigurationOeffnen,
    Befehl::KonfigurationSpeichernUnter,
    Befehl::ResetHardware,
    Befehl::ComPort,
    Befehl::Simulation,
    Befehl::Hilfethemen,
    Befehl::Info,
    Befehl::AutosendStarten,
    Befehl::Deutsch,
    Befehl::Englisch,
};

constexpr std::array wiederStartende{Befehl::Einzelwerte, Befehl::InitHardware,
                                     Befehl::KonfigurationAnzeigen};

constexpr std::array ohneFenster{
    Befehl::VisualisierenStop,
    Befehl::LichtleisteAnzeigen,
    Befehl::FensterNebeneinander,
    Befehl::FensterUeberlappend,
    Befehl::FensterUntereinander,
    Befehl::UebertragenerWert,
    Befehl::ComPort,
    Befehl::Deutsch,
    Befehl::Englisch,
};

} // namespace

bool StopptLiveDaten(Befehl befehl) {
    return std::ranges::find(stoppende, befehl) != stoppende.end();
}

bool StartetLiveDatenWieder(Befehl befehl) {
    return std::ranges::find(wiederStartende, befehl) != wiederStartende.end();
}

bool ZeigtFenster(Befehl befehl) {
    return std::ranges::find(ohneFenster, befehl) == ohneFenster.end();
}

void Befehlsspeicher::Klick(Befehl befehl, int index) {
    befehlscode = befehl;
    menueindex = index;
    ++klicks;
}

void Befehlsspeicher::FuehreAus(Befehlsziel& ziel) {
    if (!Wartet())
        return;
    const Befehl befehl = befehlscode;
    const int index = menueindex;
    const unsigned klicksVorher = klicks;
    const bool liefLive = ziel.LiveDatenLaufen();
    if (liefLive && StopptLiveDaten(befehl))
        ziel.StoppeLiveDaten();
    ziel.FuehreAus(befehl, index);
    if (klicks != klicksVorher)
        return;
    befehlscode = liefLive && StartetLiveDatenWieder(befehl) ? Befehl::VisualisierenStart : Befehl::Keiner;
}

} // namespace varnoth
