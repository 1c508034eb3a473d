#include "frmMain.h"

#include "aufzeichnungsablauf.h"
#include "busablauf.h"
#include "einstellungen.h"
#include "ereignisablauf.h"
#include "erscheinungsbild.h"
#include "fensterplatz.h"
#include "frmDocument.h"
#include "letztedateien.h"
#include "lokalisiereform.h"
#include "messablauf.h"
#include "programmsymbol.h"
#include "registerabbild.h"
#include "schnittstelle.h"
#include "seitenjetzt.h"
#include "sicherungsablauf.h"
#include "standardkonfiguration.h"
#include "trace.h"
#include "ui_frmMain.h"
#include "verbindungsablauf.h"
#include "verbindungsanzeige.h"
#include "vergleichsablauf.h"
#include "werkzeugleiste.h"
#include "wiedergabeablauf.h"
#include "willkommensseite.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QScreen>
#include <QShortcut>

#include <algorithm>

namespace varnoth {

namespace {

constexpr int KleinsteBreite = 3700; // twips
constexpr int KleinsteHoehe = 5040;

std::unique_ptr<Ui::frmMain> MacheForm(QMainWindow& fenster) {
    auto form = std::make_unique<Ui::frmMain>();
    form->setupUi(&fenster);
    return form;
}

void SchliesseDialoge() {
    for (QWidget* fenster : QApplication::topLevelWidgets())
        if (auto* dialog = qobject_cast<QDialog*>(fenster); dialog != nullptr && dialog->isVisible())
            dialog->reject();
}

} // namespace

frmMain::frmMain(const QString& programmordner)
    : erscheinungsbild(std::make_unique<Erscheinungsbild>(LiesDarstellung(DieEinstellungen()))),
      ui(MacheForm(*this)), status(*ui->sbStatusBar),
      menue(*this, [this](Befehl befehl, int index) { befehle.Klick(befehl, index); }) {
    QApplication::setWindowIcon(Programmsymbol());
    setMinimumSize(PixelAusTwips(KleinsteBreite), PixelAusTwips(KleinsteHoehe));
    setAcceptDrops(true);
    LokalisiereForm(*this);
    menue.ZeigeFundorte();
    leiste = new Werkzeugleiste(*this);
    LiesEinstellungen();
    modDaten::InitRegisterbeschreibung();
    modDaten::LadeStandardkonfiguration();
    ansichten = std::make_unique<Ansichten>(*ui->mdiBereich);
    connect(ansichten.get(), &Ansichten::Gewechselt, this,
            [this](int teil, bool gezeigt) { menue.HakeAnsicht(teil, gezeigt); });
    willkommen = new Willkommensseite(*ui->mdiBereich,
                                      [this](Befehl befehl, int index) { befehle.Klick(befehl, index); });
    connect(ansichten.get(), &Ansichten::ZahlGewechselt, this, &frmMain::ZeigeWillkommen);
    connect(new QShortcut(Qt::Key_F11, this), &QShortcut::activated, ansichten.get(),
            &Ansichten::SchalteGrossanzeige);
    ZeigeWillkommen();
    const Hauptteile teile{.fenster = *this,
                           .ansichten = *ansichten,
                           .menue = menue,
                           .status = status,
                           .verbindung = *new Verbindungsanzeige(
                               *ui->sbStatusBar, [this] { befehle.Klick(Befehl::VisualisierenStart); },
                               [this] { befehle.Klick(Befehl::Verbindung, 1); }),
                           .baueAnsichtenAuf = [this] { BaueAnsichtenAuf(); },
                           .beendet = [this] { return Beendet(); }};
    ablauf = std::make_unique<Konfigurationsablauf>(teile);
    betrieb = std::make_unique<Geraetebetrieb>(teile, befehle, *ablauf, programmordner);
    sicherungen = std::make_unique<Sicherungsablauf>(Sicherungsablauf::Ziel{
        .oeffne = [this] { befehle.Klick(Befehl::SicherungOeffnen); },
        .vergleiche =
            [this](const Sicherung& sicherung, const Abbild& abbild) {
                vergleich->Zeige({Vergleichsquelle::Sicherung, sicherung.pfad, abbild, {}},
                                 SeiteJetzt(Vergleichsquelle::InBearbeitung));
            }});
    bus = std::make_unique<Busablauf>([this] { return einstellungsdatei; });
    messung = std::make_unique<Messablauf>();
    aufzeichnung = MacheAufzeichnungsablauf();
    ereignisse = std::make_unique<Ereignisablauf>(*messung);
    vergleich = std::make_unique<Vergleichsablauf>([this] { befehle.Klick(Befehl::GeraetVergleichen); });
    verbindung = MacheVerbindungsablauf();
    wiedergabe = MacheWiedergabeablauf(teile);
}

frmMain::~frmMain() = default;

void frmMain::LiesEinstellungen() {
    Einstellungen& einstellungen = DieEinstellungen();
    WendeAn(LiesFensterplatz(einstellungen, Fensterabschnitt, {}), *this);
    if (IstErsterStart())
        StelleInArbeitsflaeche(size());
    modSchnittstelle::SetzeComPort(
        modSchnittstelle::GueltigerComPort(einstellungen.LiesZahl("Settings", "ComPort", 1)));
    modSchnittstelle::SetzeComSettings(
        LiesBegrenzt("Settings", "ComSettings", modSchnittstelle::StandardComSettings));
    ZeigePort();
}

/// Whether no earlier run has stored a place of the window.
bool frmMain::IstErsterStart() const {
    return DieEinstellungen().LiesZahl(Fensterabschnitt, "Width", 0) == 0;
}

void frmMain::ZeigePort() {
    menue.HakePort(modSchnittstelle::GetComPort());
    status.ZeigePort();
}

void frmMain::BaueAnsichtenAuf() {
    if (!ansichten->BaueAuf())
        return;
    SchaffePlatzFuerAnsichten();
    ansichten->OrdneWieZuvor();
}

/// The empty area shows what can be done.
void frmMain::ZeigeWillkommen() {
    const bool leer = ansichten->AnzahlGezeigter() == 0;
    willkommen->Zeige(leer, leer ? LetzteDateien() : std::vector<std::string>());
}

/// The first time that views appear in a window nobody has sized yet, it grows to hold them side by side.
void frmMain::SchaffePlatzFuerAnsichten() {
    constexpr QSize angenehm(310, 640);
    if (!IstErsterStart() || isMaximized() || isFullScreen())
        return;
    const QSize gewuenscht(ansichten->AnzahlGezeigter() * angenehm.width(), angenehm.height());
    StelleInArbeitsflaeche(size().expandedTo(gewuenscht));
}

/// Gives the window a size, as far as its frame and all lie inside the work area of the screen. A frame that
/// the system has not drawn yet counts as one of the usual size.
void frmMain::StelleInArbeitsflaeche(QSize groesse) {
    constexpr QMargins ueblich(8, 32, 8, 8);
    const QRect innen = geometry();
    const QRect aussen = frameGeometry();
    const QMargins rahmen = isVisible()
                                ? QMargins(innen.left() - aussen.left(), innen.top() - aussen.top(),
                                           aussen.right() - innen.right(), aussen.bottom() - innen.bottom())
                                : ueblich;
    const QRect flaeche = screen()->availableGeometry().marginsRemoved(rahmen);
    setMinimumSize(minimumSize().boundedTo(flaeche.size()));
    const QRect platz = Hineingerueckt({innen.topLeft(), groesse}, flaeche);
    resize(platz.size());
    move(platz.topLeft() - (isVisible() ? innen.topLeft() - aussen.topLeft() : QPoint()));
}

/// Changes that are not saved keep the window open: the exit command, run from the main loop, asks for them.
void frmMain::closeEvent(QCloseEvent* ereignis) {
    if (entladen || modDaten::IstGeaendert() == False) {
        Entlade();
        return;
    }
    ereignis->ignore();
    mnuBeenden_Click();
    SchliesseDialoge();
}

/// The window goes; what a waiting pass or dialog still uses stays until the main loop has ended.
void frmMain::Entlade() {
    if (entladen)
        return;
    entladen = true;
    modPolling::StoppePolling();
    BeendeWiedergabe();
    BewahreFensterplatz(*this, Fensterabschnitt);
    ansichten->SpeicherePlaetze();
    leiste->SpeicherePlatz();
    modTrace::Schliesse();
    SchliesseDialoge();
    sicherungen->Schliesse();
    vergleich->Schliesse();
    bus->Schliesse();
    aufzeichnung->Schliesse();
    messung->Schliesse();
    ereignisse->Schliesse();
    verbindung->Schliesse();
    hide();
}

} // namespace varnoth
