#include "verbindungsablauf.h"

#include "adapterverzoegerung.h"
#include "anschlusseingabe.h"
#include "einstellungen.h"
#include "frmVerbindung.h"
#include "geraetebefund.h"
#include "geraetename.h"
#include "geraetepfade.h"
#include "portzeile.h"
#include "schnittstelle.h"

#include <utility>

namespace varnoth {

namespace {

constexpr const char* Abschnitt = "Settings";
constexpr const char* SchluesselNummer = "ComPort";
constexpr const char* SchluesselFormat = "ComSettings";

void Schreib(const char* schluessel, const std::string& text) {
    DieEinstellungen().SchreibText(Abschnitt, schluessel, text);
}

} // namespace

Verbindungsablauf::Verbindungsablauf(Ziel programm) : ziel(std::move(programm)) {}

Verbindungsablauf::~Verbindungsablauf() = default;

frmVerbindung& Verbindungsablauf::Fenster() {
    if (fenster == nullptr)
        fenster = std::make_unique<frmVerbindung>(static_cast<Verbindungsanbieter&>(*this));
    return *fenster;
}

void Verbindungsablauf::Zeige(bool suche) {
    if (suche)
        Fenster().Schlage(Verbindungsseite::Suche);
    Fenster().ZeigeVor();
}

void Verbindungsablauf::Erneuere() {
    if (fenster == nullptr)
        return;
    if (verlangt != Befehl::Keiner && !ziel.wartetAuf(verlangt)) {
        verlangt = Befehl::Keiner;
        fenster->Entfalle();
    }
    if (fenster->isVisible())
        fenster->Erneuere();
}

void Verbindungsablauf::Lokalisiere() {
    if (fenster != nullptr)
        fenster->Lokalisiere();
}

void Verbindungsablauf::Schliesse() {
    if (fenster != nullptr)
        fenster->close();
}

std::vector<Portangabe> Verbindungsablauf::Ports() {
    beobachter.Schaue();
    return beobachter.Ports();
}

Anschlussstand Verbindungsablauf::Stand() {
    Anschlussstand stand;
    for (int com = 1; com <= AnzahlCom; ++com) {
        const auto stelle = static_cast<std::size_t>(com - 1);
        const std::string eingetragenes = EingetragenesGeraet(com);
        const std::string geraet = eingetragenes.empty() ? UeblichesGeraet(com) : eingetragenes;
        stand.wahl.Geraet(com) = geraet;
        stand.eingetragen.at(stelle) = !eingetragenes.empty();
        stand.ziele.at(stelle) = Geraeteziel(geraet);
        stand.befunde.at(stelle) = Befund(geraet);
    }
    stand.wahl.nummer = modSchnittstelle::GetComPort();
    stand.wahl.format = modSchnittstelle::GetComSettings();
    stand.geraetDiesesLaufs = GeraetDiesesLaufs();
    const Anschluss anschluss = modSchnittstelle::GetAnschluss();
    stand.simuliert = anschluss.simuliert;
    stand.immerSimuliert = ziel.immerSimuliert();
    if (modSchnittstelle::GetPortIstOffen() != False)
        stand.offen = anschluss.geraet;
    return stand;
}

Portbefund Verbindungsablauf::Befund(const std::string& geraet) {
    Portbefund befund = BefundDesGeraets(geraet);
    if (befund.hindernis == Hindernis::Keines && !KannPortSein(geraet))
        return {.hindernis = Hindernis::Systemfehler};
    return befund;
}

/// What the program is connected to does not change under live data: that stops first.
void Verbindungsablauf::Uebernimm(const Anschlusswahl& wahl, bool verbinde) {
    gewaehltes = wahl;
    dannVerbinden = verbinde;
    if (verbinde || BetrifftVerbindung(Stand(), wahl))
        ziel.klick(Befehl::AnschlussUebernehmen);
    else
        FuehreUebernahmeAus();
}

void Verbindungsablauf::FuehreUebernahmeAus() {
    SetzeInKraft(gewaehltes);
    Fenster().Uebernommen();
    if (dannVerbinden)
        ziel.klick(Befehl::VisualisierenStart);
}

void Verbindungsablauf::SetzeInKraft(const Anschlusswahl& wahl) {
    const Anschlussstand alt = Stand();
    for (int com = 1; com <= AnzahlCom; ++com)
        if (wahl.Geraet(com) != alt.wahl.Geraet(com))
            TrageGeraetEin(com, wahl.Geraet(com));
    if (wahl.format != alt.wahl.format)
        Schreib(SchluesselFormat, wahl.format);
    if (DieEinstellungen().LiesZahl(Abschnitt, SchluesselNummer, 1) != wahl.nummer)
        Schreib(SchluesselNummer, std::to_string(wahl.nummer));
    if (!BetrifftVerbindung(alt, wahl))
        return;
    SetzeGeraetepfad({});
    modSchnittstelle::SetzeComSettings(wahl.format);
    ziel.nimmPort(wahl.nummer);
}

void Verbindungsablauf::Suche(const std::vector<std::string>& geraete) {
    gesuchte = geraete;
    abbruch = false;
    verlangt = Befehl::GeraetSuchen;
    ziel.klick(verlangt);
}

void Verbindungsablauf::FuehreSucheAus() {
    verlangt = Befehl::Keiner;
    Suchfund fund;
    ziel.amPort([&] { fund = SucheSteuergeraet(gesuchte, *this); });
    Fenster().BeendeSuche(fund);
}

void Verbindungsablauf::PruefeLeitung() {
    abbruch = false;
    verlangt = Befehl::LeitungPruefen;
    ziel.klick(verlangt);
}

void Verbindungsablauf::FuehrePruefungAus() {
    verlangt = Befehl::Keiner;
    Pruefauftrag auftrag;
    if (const Portangabe* const port = BenutzterPort(beobachter.Ports(), Stand()))
        auftrag.port = *port;
    Fenster().BeendePruefung(varnoth::PruefeLeitung(auftrag, *this));
}

std::string Verbindungsablauf::StelleVerzoegerung(const Portangabe& port) {
    return VerkuerzeVerzoegerung(port);
}

void Verbindungsablauf::Zeige(const Suchstand& stand) {
    Fenster().ZeigeVersuch(stand);
}

void Verbindungsablauf::Zeige(const Pruefbefund& bisher) {
    Fenster().ZeigeZwischenstand(bisher);
}

bool Verbindungsablauf::Abgebrochen() {
    return abbruch || ziel.unterbrochen();
}

} // namespace varnoth
