#include "verbindung.h"

#include "geraetestand.h"
#include "geraetestatus.h"
#include "nachlese.h"
#include "optikteilinformation.h"
#include "plausibilitaet.h"
#include "polling.h"
#include "registerabbild.h"
#include "sicherungen.h"
#include "standardkonfiguration.h"
#include "transaktionen.h"
#include "zykluszeiten.h"

namespace varnoth {

namespace {

using namespace modPolling;

void VergissOptikteile() {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        SetzeOptikteilStatus(teil, Unbekannt);
    SetzeAnzahlOptikteile(0);
}

bool LiesGeraet(Verbindungsziel& ziel) {
    return ziel.Identifiziere() && ziel.LiesKonfiguration() && ziel.HoleOptikteilInformation();
}

bool PruefeGelesenes() {
    UebernimmOptikteile();
    modDaten::ZeigeGeraetestatus();
    return modDaten::PruefeKonfiguration() != False;
}

} // namespace

bool Autostart(Verbindungsziel& ziel) {
    if (!DarfErsetzen(Sicherungsanlass::VorDemVerbinden))
        return ziel.LiveDatenLaufen();
    if (ziel.LiveDatenLaufen())
        ziel.StoppeLiveDaten();
    else if (modModbus::AutosendGestartet())
        modModbus::SchreibeSteuerwert4();
    VergissOptikteile();
    modGeraetestand::BeginneVerbindung();
    ziel.ZeigeAlleOffline();
    modDaten::LeereAbbild();
    const bool gelesen = LiesGeraet(ziel);
    if (ziel.Beendet())
        return false;
    const bool gelungen = gelesen && PruefeGelesenes();
    MerkeAusgangslage();
    if (!gelesen) {
        modNachlese::Verwirf();
        ziel.FrageNachKonfiguration();
    }
    modHilfsFunktionen::BerechneZykluszeiten();
    ziel.BaueAnsichtenAuf();
    if (gelungen) {
        StartePolling();
        ziel.LiveDatenLaufenAn();
    }
    ziel.ZeigeLichtleistenmenue();
    return gelungen && GetPollingAktiv() != False;
}

} // namespace varnoth
