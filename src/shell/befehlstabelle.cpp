#include "befehlstabelle.h"

#include "texte.h"

#include <algorithm>
#include <string_view>

namespace varnoth {

namespace {

using enum Live;
using enum Auftritt;
using Ziel = Befehlswirkung;

constexpr int LetzterMenuebefehl = 23; // the codes above are those of commands that no menu has

constexpr Befehlszeile DieBefehle[] = {
    {Befehl::VisualisierenStart, "mnuMessdatenVisualisierenStart", LaeuftWeiter, Zeigt,
     [](Ziel& z, int) { z.Verbinde(); }, 0, 1, "F5", 9201, "verbinden", 9202, Leistengruppe::Verbindung},
    {Befehl::VisualisierenStop, "mnuMessdatenVisualisierenStop", LaeuftWeiter, Still,
     [](Ziel& z, int) { z.StoppeLiveDaten(); }, 0, 1, "Shift+F5", 9510, "stopp", 9511,
     Leistengruppe::Verbindung},
    {Befehl::Verbindung, "tlbVerbindung", LaeuftWeiter, Zeigt,
     [](Ziel& z, int suche) { z.ZeigeVerbindung(suche != 0); }, 0, 1, "Ctrl+Shift+K", 8301, "anschluss", 8302,
     Leistengruppe::Verbindung},
    {Befehl::AnschlussUebernehmen, "", Stoppt, Still, [](Ziel& z, int) { z.UebernimmAnschluss(); }, 0, 0},
    {Befehl::GeraetSuchen, "", Ruht, Zeigt, [](Ziel& z, int) { z.SucheGeraet(); }, 0, 0},
    {Befehl::LeitungPruefen, "", Ruht, Zeigt, [](Ziel& z, int) { z.PruefeLeitung(); }, 0, 0},
    {Befehl::LichtleisteAnzeigen, "mnuAnzeigeLichtleiste", LaeuftWeiter, Still,
     [](Ziel& z, int teil) { z.ZeigeAnsicht(teil); }, 0, 4, "Ctrl+%1"},
    {Befehl::Beenden, "mnuBeenden", Stoppt, Zeigt, [](Ziel& z, int) { z.Beende(); }, 0, 1, "Ctrl+Q", 0,
     "beenden"},
    {Befehl::Einzelwerte, "mnuEinzelwerteLesenSchreiben", StopptUndStartetWieder, Zeigt,
     [](Ziel& z, int) { z.BearbeiteEinzelwerte(); }, 0, 1, "", 0, "einzelwerte"},
    {Befehl::FensterNebeneinander, "mnuFensterNebeneinander", LaeuftWeiter, Still,
     [](Ziel& z, int) { z.StelleNebeneinander(); }, 0, 1, "", 0, "nebeneinander"},
    {Befehl::FensterUeberlappend, "mnuFensterÜberlappend", LaeuftWeiter, Still,
     [](Ziel& z, int) { z.StelleUeberlappend(); }, 0, 1, "", 0, "ueberlappend"},
    {Befehl::FensterUntereinander, "mnuFensterUntereinander", LaeuftWeiter, Still,
     [](Ziel& z, int) { z.StelleUntereinander(); }, 0, 1, "", 0, "untereinander"},
    {Befehl::FirmwareUpdate, "mnuFlasher", Stoppt, Zeigt, [](Ziel& z, int) { z.ErneuereFirmware(); }, 0, 1,
     "", 0, "firmware"},
    {Befehl::InitHardware, "mnuInitHardware", StopptUndStartetWieder, Zeigt,
     [](Ziel& z, int) { z.InitialisiereHardware(); }, 0, 1, "", 0, "werksdaten"},
    {Befehl::NeueKonfiguration, "mnuNeu", LaeuftWeiter, Zeigt,
     [](Ziel& z, int) { z.MacheNeueKonfiguration(); }, 0, 1, "Ctrl+N", 9512, "neu", 9513,
     Leistengruppe::Konfiguration},
    {Befehl::KonfigurationOeffnen, "mnuOeffnen", Stoppt, Zeigt, [](Ziel& z, int) { z.OeffneKonfiguration(); },
     0, 1, "Ctrl+O", 9514, "oeffnen", 9515, Leistengruppe::Konfiguration},
    {Befehl::KonfigurationSpeichernUnter, "mnuSpeichernUnter", Stoppt, Zeigt,
     [](Ziel& z, int) { z.SpeichereKonfiguration(); }, 0, 1, "Ctrl+S", 9516, "speichern", 9517,
     Leistengruppe::Konfiguration},
    {Befehl::KonfigurationAnzeigen, "mnuAnzeigeKonfiguration", StopptUndStartetWieder, Zeigt,
     [](Ziel& z, int) { z.BearbeiteKonfiguration(); }, 0, 1, "Ctrl+K", 9518, "konfiguration", 9519,
     Leistengruppe::Konfiguration},
    {Befehl::UebertragenerWert, "mnuUebertragenerWert", LaeuftWeiter, Still,
     [](Ziel& z, int) { z.WechsleUebertragenerWert(); }},
    {Befehl::ResetHardware, "mnuResetHardware", Stoppt, Zeigt, [](Ziel& z, int) { z.SetzeHardwareZurueck(); },
     0, 1, "", 0, "neustart"},
    {Befehl::ComPort, "mnuCom", Stoppt, Still, [](Ziel& z, int nummer) { z.WaehleComPort(nummer); }, 1, 4},
    {Befehl::Simulation, "mnuSimulation", Stoppt, Zeigt, [](Ziel& z, int) { z.ZeigeSimulation(); }, 0, 1, "",
     0, "rechner"},
    {Befehl::Hilfethemen, "mnuHilfethemen", Stoppt, Zeigt, [](Ziel& z, int) { z.ZeigeHilfethemen(); }, 0, 1,
     "", 9209, "hilfe", 9210, Leistengruppe::Hilfe},
    {Befehl::Info, "mnuInfo", Stoppt, Zeigt, [](Ziel& z, int) { z.ZeigeInfo(); }, 0, 1, "", 0, "info"},
    {Befehl::AutosendStarten, "mnuAutosendStarten", Stoppt, Zeigt, [](Ziel& z, int) { z.StarteAutosend(); },
     0, 1, "", 0, "autosend"},
    {Befehl::SpracheDeutsch, "mnuDeutsch", Stoppt, Still,
     [](Ziel& z, int) { z.SchalteSprache(varnoth::Deutsch); }},
    {Befehl::SpracheEnglisch, "mnuEnglisch", Stoppt, Still,
     [](Ziel& z, int) { z.SchalteSprache(varnoth::Englisch); }},
    {Befehl::LetzteDatei, "", Stoppt, Zeigt, [](Ziel& z, int platz) { z.OeffneLetzteDatei(platz); }, 0, 0},
    {Befehl::Vergleich, "mnuVergleich", LaeuftWeiter, Zeigt, [](Ziel& z, int) { z.ZeigeVergleich(); }, 0, 1,
     "Ctrl+D", 9581, "vergleich", 9569, Leistengruppe::Pruefen},
    {Befehl::GeraetVergleichen, "", Ruht, Zeigt, [](Ziel& z, int) { z.LiesGeraetZumVergleich(); }, 0, 0},
    {Befehl::Sicherungen, "mnuSicherungen", LaeuftWeiter, Zeigt, [](Ziel& z, int) { z.ZeigeSicherungen(); },
     0, 1, "Ctrl+B", 9802, "sicherungen", 9803, Leistengruppe::Pruefen},
    {Befehl::SicherungOeffnen, "", Stoppt, Zeigt, [](Ziel& z, int) { z.OeffneSicherung(); }, 0, 0},
    {Befehl::SimuliertesGeraet, "", Stoppt, Zeigt, [](Ziel& z, int) { z.VerbindeSimuliert(); }, 0, 0},
    {Befehl::UebergebeneDateien, "", Stoppt, Zeigt, [](Ziel& z, int) { z.OeffneUebergebeneDateien(); }, 0, 0},
    {Befehl::Bericht, "mnuBericht", Ruht, Zeigt, [](Ziel& z, int) { z.ZeigeBericht(); }, 0, 1, "Ctrl+P", 9730,
     "bericht", 9745, Leistengruppe::Pruefen},
    {Befehl::Darstellung, "tlbDarstellung", LaeuftWeiter, Still, [](Ziel& z, int) { z.BieteDarstellung(); },
     0, 1, "", 9520, "darstellung", 9521, Leistengruppe::Darstellung},
    {Befehl::Busprotokoll, "mnuBusprotokoll", LaeuftWeiter, Zeigt,
     [](Ziel& z, int) { z.ZeigeBusprotokoll(); }, 0, 1, "Ctrl+L", 8401, "busprotokoll", 8402,
     Leistengruppe::Pruefen},
    {Befehl::Strahlverlauf, "tlbStrahlverlauf", LaeuftWeiter, Zeigt,
     [](Ziel& z, int) { z.ZeigeStrahlverlauf(); }, 0, 1, "Ctrl+H", 6401, "strahlverlauf", 6402,
     Leistengruppe::Verlauf},
    {Befehl::BlankingVorschlagen, "", StopptUndStartetWieder, Zeigt,
     [](Ziel& z, int) { z.BearbeiteBlankingvorschlag(); }, 0, 0},
    {Befehl::Strahlbericht, "", Ruht, Zeigt, [](Ziel& z, int) { z.ZeigeStrahlbericht(); }, 0, 0},
    {Befehl::Wiedergabe, "tlbWiedergabe", Ruht, Zeigt, [](Ziel& z, int) { z.OeffneAufzeichnung(); }, 0, 1,
     "Ctrl+Shift+O", 6500, "wiedergabe", 6501, Leistengruppe::Verlauf},
    {Befehl::WiedergabeVerlassen, "", LaeuftWeiter, Still, [](Ziel& z, int) { z.VerlasseWiedergabe(); }, 0,
     0},
    {Befehl::UebergebeneAufzeichnung, "", Ruht, Zeigt,
     [](Ziel& z, int) { z.OeffneUebergebeneAufzeichnung(); }, 0, 0},
    {Befehl::Aufzeichnung, "tlbAufzeichnung", LaeuftWeiter, Zeigt,
     [](Ziel& z, int) { z.SchalteAufzeichnung(); }, 0, 1, "Ctrl+R", 6220, "aufnahme", 6221,
     Leistengruppe::Verlauf},
    {Befehl::Aufzeichnungen, "tlbAufzeichnungen", LaeuftWeiter, Zeigt,
     [](Ziel& z, int) { z.ZeigeAufzeichnungen(); }, 0, 1, "Ctrl+Shift+R", 6222, "aufzeichnungen", 6223,
     Leistengruppe::Verlauf},
    {Befehl::Ereignisse, "tlbEreignisse", LaeuftWeiter, Zeigt, [](Ziel& z, int) { z.ZeigeEreignisse(); }, 0,
     1, "Ctrl+E", 6601, "ereignisse", 6602, Leistengruppe::Verlauf},
    {Befehl::Verlauf, "tlbVerlauf", LaeuftWeiter, Zeigt, [](Ziel& z, int) { z.ZeigeVerlauf(); }, 0, 1,
     "Ctrl+T", 6300, "verlauf", 6301, Leistengruppe::Verlauf},
};

} // namespace

std::span<const Befehlszeile> Befehlstabelle() {
    return DieBefehle;
}

bool StehtImMenue(const Befehlszeile& zeile) {
    return static_cast<int>(zeile.befehl) <= LetzterMenuebefehl;
}

const Befehlszeile* ZeileZu(Befehl befehl) {
    const auto* const zeile = std::ranges::find(DieBefehle, befehl, &Befehlszeile::befehl);
    return zeile == std::ranges::end(DieBefehle) ? nullptr : zeile;
}

std::string Aktionsname(const Befehlszeile& zeile, int platz) {
    if (zeile.anzahl == 1)
        return zeile.aktion;
    return std::string(zeile.aktion) + "_" + std::to_string(zeile.ersterIndex + platz);
}

std::string Kuerzel(const Befehlszeile& zeile, int platz) {
    constexpr std::string_view stelle = "%1";
    std::string tasten = zeile.kuerzel;
    if (const auto wo = tasten.find(stelle); wo != std::string::npos)
        tasten.replace(wo, stelle.size(), std::to_string(platz + 1));
    return tasten;
}

} // namespace varnoth
