// Commands without a reply that anybody looks at.

#include "stellenhelfer.h"

#include "transaktionen.h"

namespace varnoth::pruefung {

namespace {

constexpr std::int16_t TextAutosendFrage = 6003;

bool AutosendIst(Zelle& z, const char* wie) {
    return z.betrieb.HatRuhe() &&
           z.betrieb.geraet.Befehl("state").find(std::string("autosend=") + wie) != std::string::npos;
}

bool AutosendLaeuft(Zelle& z) {
    return AutosendIst(z, "on");
}

bool AutosendSteht(Zelle& z) {
    return AutosendIst(z, "off");
}

void WaehleAutosend(Zelle& z) {
    z.betrieb.Waehle("mnuAutosendStarten");
}

void BeendeAutosend(Zelle& z) {
    z.betrieb.Gib(modModbus::SchreibeSteuerwert4);
}

Handlung BereiteLaufendesAutosend(Zelle& z) {
    co_await BereiteStehendeVerbindung(z);
    z.betrieb.Gib(modModbus::SchreibeSteuerwert2);
    co_await z.regie.Bis("autosend", [&z] { return AutosendLaeuft(z); });
}

void SendeKommando09(Zelle& z) {
    z.betrieb.geraet.Befehl("stats clear");
    z.betrieb.Gib([] { modModbus::SendeFunktion09Kommando(); });
}

bool Kommando09IstAngekommen(Zelle& z) {
    return z.betrieb.HatRuhe() && z.Geraetezahl("stats", "09") == 1;
}

constexpr Stelle Stellen[] = {
    {.name = "autosend on",
     .bereite = BereiteStehendeVerbindung,
     .beginne = WaehleAutosend,
     .zeigtStoerung = IstZurueck,
     .fertig = AutosendLaeuft,
     .nochmal = TuNochmal<WaehleAutosend>,
     .belastung = {.schreiben = 8, .amStueck = 1, .austausche = 1},
     .frage = TextAutosendFrage},
    {.name = "autosend off",
     .bereite = BereiteLaufendesAutosend,
     .beginne = BeendeAutosend,
     .zeigtStoerung = IstZurueck,
     .fertig = AutosendSteht,
     .nochmal = TuNochmal<BeendeAutosend>,
     .belastung = {.schreiben = 8, .amStueck = 1, .austausche = 1}},
    {.name = "function 09",
     .bereite = BereiteStehendeVerbindung,
     .beginne = SendeKommando09,
     .zeigtStoerung = IstZurueck,
     .fertig = Kommando09IstAngekommen,
     .nochmal = TuNochmal<SendeKommando09>,
     .belastung = {.kennung = 1, .amStueck = 1, .austausche = 1}},
};

} // namespace

std::span<const Stelle> KommandoStellen() {
    return Stellen;
}

} // namespace varnoth::pruefung
