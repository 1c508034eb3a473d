#include "anwendung.h"

#include "ereignisse.h"
#include "frmSplash.h"
#include "geraetepfade.h"
#include "geraeteport.h"
#include "konfigurationsbefehle.h"
#include "plausibilitaet.h"
#include "polling.h"
#include "qttexte.h"
#include "registerabbild.h"
#include "schnittstelle.h"
#include "selbsttest.h"
#include "servicetext.h"
#include "simulatorport.h"
#include "texte.h"
#include "textmitwerten.h"
#include "trace.h"
#include "transaktionen.h"
#include "versionstext.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextSchonGestartet = 6001;
constexpr std::int16_t TextNichtGespeichert = 9263;
constexpr std::int16_t TextNichtAngenommen = 8812;
constexpr Zeit LaengsteRuhe = std::chrono::seconds(1);

std::unique_ptr<SeriellerPort> MachePort(bool simuliert) {
    if (simuliert)
        return std::make_unique<SimulatorPort>();
    return MacheGeraeteport();
}

/// As absolute paths from the current folder.
std::vector<std::string> Absolut(const QStringList& dateien) {
    std::vector<std::string> pfade;
    for (const QString& datei : dateien)
        pfade.push_back(QDir::current().absoluteFilePath(datei).toStdString());
    return pfade;
}

double Sekundenuhr() {
    return std::chrono::duration<double>(DieUmgebung().Uhr()).count();
}

} // namespace

Anwendung::Anwendung(Startbedingungen start)
    : bedingungen(std::move(start)), kommandozeile(LiesKommandozeile(bedingungen.worte)),
      dateien(kommandozeile.selbsttest.isEmpty() ? Absolut(kommandozeile.dateien)
                                                 : std::vector<std::string>()),
      einstellungen(Einstellungspfad(bedingungen.programmordner, bedingungen.programmname)),
      sicherungen(bedingungen.datenordner.isEmpty() ? UeblicherDatenordner() : bedingungen.datenordner,
                  Versionstext().toStdString()),
      sperre(bedingungen.programmname, bedingungen.sperrordner), simuliert(kommandozeile.simulator),
      port(MachePort(simuliert)), hilfe([this] { return Hilfedatei(); }),
      hilfetaste([this](QWidget* stelle) { hilfe.ZeigeSeiteZu(stelle); }) {
    SetzeSicherungen(&gemeldete);
    SetzeGeraetepfad(kommandozeile.geraet.toStdString());
    modSchnittstelle::SetzePort(port.get());
    modDaten::SetzeReaktionAufUnplausiblesAbbild(modModbus::BeendeAutosendAmOffenenPort);
}

Anwendung::~Anwendung() {
    modDaten::SetzeReaktionAufUnplausiblesAbbild({});
    modTrace::Schliesse();
    modSchnittstelle::CloseCommPort();
    einstellungen.SetzeFehlermeldung({});
    annahme.reset();
    hauptfenster.reset();
    SetzeSicherungen(nullptr);
    modSchnittstelle::SetzePort(nullptr);
}

bool Anwendung::Starte() {
    LiesSprache();
    if (!IstErsteInstanz())
        return false;
    LadeHauptfenster();
    NimmDateienAn();
    ZeigeSplash();
    return WerteKommandozeileAus();
}

void Anwendung::LiesSprache() {
    const int sprache = einstellungen.LiesZahl("Settings", "Sprache", Deutsch);
    SetzeSprachoffset(sprache == Englisch ? Englisch : Deutsch);
    LadeQtTexte(GetSprachoffset());
}

bool Anwendung::IstErsteInstanz() {
    if (sperre.Belege())
        return true;
    MeldeZweitstart();
    return false;
}

/// A second start leaves its file to the program that runs.
void Anwendung::MeldeZweitstart() {
    if (dateien.empty())
        ZeigeWarnung(LadeText(TextSchonGestartet), LadeText(TextAchtung));
    else if (dateien.size() > 1)
        ZeigeMehrereDateien();
    else if (!UebergibDatei(sperre.Briefkasten(), dateien.front(), bedingungen.laengsteUebergabe))
        ZeigeWarnung(LadeTextMit(TextNichtAngenommen, {dateien.front()}), LadeText(TextAchtung));
}

/// The files of the command line come first, then those of later starts.
void Anwendung::NimmDateienAn() {
    hauptfenster->Uebergib(dateien);
    annahme.emplace(sperre.Briefkasten(),
                    Dateiannahme::Ziel{.bereit = [this] { return !hauptfenster->Beendet(); },
                                       .oeffne =
                                           [this](const std::string& pfad) {
                                               hauptfenster->Uebergib({pfad});
                                               hauptfenster->KommNachVorn();
                                           }});
}

void Anwendung::LadeHauptfenster() {
    hauptfenster = std::make_unique<frmMain>(bedingungen.programmordner);
    hauptfenster->ZeigeSprache();
    hauptfenster->SetzePortwechsel([this](bool soll) { return WechslePort(soll); });
    hauptfenster->SetzeLeihport([this](const std::function<void()>& tat) { LeiheSeriellenPort(tat); });
    hauptfenster->SetzeImmerSimuliert(kommandozeile.simulator);
    hauptfenster->ZeigeSimuliert(simuliert);
    hauptfenster->SetzeEinstellungsdatei(einstellungen.Pfad());
    hauptfenster->SetzeHilfe([this] { hilfe.ZeigeThemen(hauptfenster.get()); });
    umgebung.SetzeFormularzaehler([this] { return hauptfenster->OffeneFormulare(); });
    umgebung.SetzeStatusanzeige(
        [this](int feld, const std::string& text) { hauptfenster->ZeigeStatustext(feld, text); });
    umgebung.SetzeMeldungszeuge([](const Meldung& meldung) {
        modEreignisse::Merke({.art = Ereignisart::Meldung, .text = meldung.text});
    });
    einstellungen.SetzeFehlermeldung([this](const std::string& text) {
        hauptfenster->ZeigeStatustext(FeldMeldungen, LadeText(TextNichtGespeichert) + text);
    });
    hauptfenster->show();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); // painted before the splash is made
}

void Anwendung::ZeigeSplash() {
    frmSplash splash;
    splash.show();
    splash.raise();
    const double ende = std::floor(Sekundenuhr()) + bedingungen.splashSekunden;
    while (Sekundenuhr() < ende && umgebung.LasseEreignisseLaufen() > 0)
        umgebung.WarteAufEreignis(std::chrono::milliseconds(50));
}

bool Anwendung::WerteKommandozeileAus() {
    if (kommandozeile.com != 0)
        hauptfenster->NimmComPort(kommandozeile.com);
    if (kommandozeile.serviceText) {
        modService::SetzeServiceText(*kommandozeile.serviceText);
        hauptfenster->ZeigeServicemenue();
    }
    return !kommandozeile.trace || StarteTrace();
}

bool Anwendung::StarteTrace() {
    const std::string fehler = modTrace::Starte(modTrace::Dateiname);
    if (!fehler.empty())
        ZeigeWarnung(fehler);
    return fehler.empty();
}

/// Leads the line to the built-in controller or back to the serial ports; with the switch for the built-in
/// controller it always leads there. True when that has changed anything.
bool Anwendung::WechslePort(bool soll) {
    soll = soll || kommandozeile.simulator;
    if (soll == simuliert)
        return false;
    modSchnittstelle::CloseCommPort();
    auto neuer = MachePort(soll);
    modSchnittstelle::SetzePort(neuer.get());
    port = std::move(neuer);
    simuliert = soll;
    hauptfenster->ZeigeSimuliert(simuliert);
    return true;
}

/// Does something on the serial ports; the built-in controller rests meanwhile with all that it holds.
void Anwendung::LeiheSeriellenPort(const std::function<void()>& tat) {
    if (!simuliert) {
        tat();
        return;
    }
    const auto serieller = MacheGeraeteport();
    modSchnittstelle::CloseCommPort();
    modSchnittstelle::SetzePort(serieller.get());
    tat();
    modSchnittstelle::CloseCommPort();
    modSchnittstelle::SetzePort(port.get());
}

void Anwendung::Verbinde() {
    if (umgebung.LasseEreignisseLaufen() > 0 && !hauptfenster->HatUebergebene())
        hauptfenster->Autostart();
}

bool Anwendung::Runde() {
    if (umgebung.LasseEreignisseLaufen() == 0)
        return false;
    hauptfenster->MenuAusführen();
    if (modPolling::GetPollingAktiv() == True)
        modPolling::PollingZyklus();
    else if (!hauptfenster->BefehlWartet() && hauptfenster->OffeneFormulare() > 0)
        umgebung.WarteAufEreignis(LaengsteRuhe);
    return true;
}

int Anwendung::Laufe() {
    std::optional<Selbsttest> selbsttest;
    if (!kommandozeile.selbsttest.isEmpty())
        selbsttest.emplace(umgebung, kommandozeile.selbsttest);
    if (!Starte())
        return selbsttest ? selbsttest->Ergebnis() : 0;
    if (selbsttest)
        selbsttest->Beobachte(*hauptfenster);
    Verbinde();
    while (Runde()) {
    }
    return selbsttest ? selbsttest->Ergebnis() : 0;
}

QString Anwendung::Hilfedatei() const {
    const QString name =
        bedingungen.programmname + QLatin1String(GetSprachoffset() == Englisch ? "E.hlp" : ".hlp");
    const QString daneben = QDir(bedingungen.programmordner).filePath(name);
    const QString orte[] = {
        daneben, QDir(Programmdaten(bedingungen.programmordner)).filePath(name),
        QStandardPaths::locate(QStandardPaths::GenericDataLocation, QStringLiteral("varnoth/") + name)};
    const auto ort = std::ranges::find_if(orte, [](const QString& pfad) { return QFile::exists(pfad); });
    return ort == std::end(orte) ? daneben : QDir::cleanPath(*ort);
}

} // namespace varnoth
