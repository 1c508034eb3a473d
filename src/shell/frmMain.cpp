#include "frmMain.h"

#include "ansichtstitel.h"
#include "ausgangsanzeige.h"
#include "einstellungen.h"
#include "fensterplatz.h"
#include "frmDocument.h"
#include "geraetepfade.h"
#include "lokalisiereform.h"
#include "registerabbild.h"
#include "schnittstelle.h"
#include "standardkonfiguration.h"
#include "symbole.h"
#include "texte.h"
#include "trace.h"
#include "ui_frmMain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QLabel>
#include <QShortcut>

#include <utility>

namespace varnoth {

namespace {

constexpr int KleinsteBreite = 3700; // twips
constexpr int KleinsteHoehe = 5040;

void SchliesseDialoge() {
    for (QWidget* fenster : QApplication::topLevelWidgets())
        if (auto* dialog = qobject_cast<QDialog*>(fenster); dialog != nullptr && dialog->isVisible())
            dialog->reject();
}

} // namespace

struct frmMain::Menuezeile {
    const char* name;
    Befehl befehl;
    int index = 0;
};

frmMain::frmMain(QString ordner) : ui(std::make_unique<Ui::frmMain>()), programmordner(std::move(ordner)) {
    ui->setupUi(this);
    QApplication::setWindowIcon(Programmsymbol());
    setMinimumSize(PixelAusTwips(KleinsteBreite), PixelAusTwips(KleinsteHoehe));
    RichteStatusleisteEin();
    LokalisiereForm(*this);
    LiesEinstellungen();
    modDaten::InitRegisterbeschreibung();
    modDaten::LadeStandardkonfiguration();
    VerbindeMenue();
    SetzeMessdatenMenue(0);
    for (int teil = AnzahlOptikteile - 1; teil >= 0; --teil)
        LadeAnsicht(teil);
    connect(new QShortcut(Qt::Key_F11, this), &QShortcut::activated, this, &frmMain::SchalteGrossanzeige);
    modPolling::SetzeZiel(this);
}

frmMain::~frmMain() {
    modPolling::SetzeZiel(nullptr);
}

void frmMain::RichteStatusleisteEin() {
    for (std::size_t i = 0; i < statusfelder.size(); ++i) {
        auto* feld = new QLabel(ui->sbStatusBar);
        feld->setObjectName(QStringLiteral("sbStatusBar_%1").arg(i + 1));
        feld->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        ui->sbStatusBar->addPermanentWidget(feld, 1);
        statusfelder[i] = feld;
    }
    ausgang = std::make_unique<Ausgangsanzeige>(*statusfelder[FeldSchaltausgang - 1]);
}

void frmMain::LiesEinstellungen() {
    Einstellungen& einstellungen = DieEinstellungen();
    WendeAn(LiesFensterplatz(einstellungen, Fensterabschnitt, {}), *this);
    modSchnittstelle::SetzeComPort(
        static_cast<std::int16_t>(einstellungen.LiesZahl("Settings", "ComPort", 1)));
    modSchnittstelle::SetzeComSettings(
        einstellungen.LiesText("Settings", "ComSettings", modSchnittstelle::StandardComSettings));
    ZeigePort();
}

void frmMain::VerbindeMenue() {
    static constexpr Menuezeile zeilen[] = {
        {"mnuNeu", Befehl::NeueKonfiguration},
        {"mnuOeffnen", Befehl::KonfigurationOeffnen},
        {"mnuSpeichernUnter", Befehl::KonfigurationSpeichernUnter},
        {"mnuBeenden", Befehl::Beenden},
        {"mnuAnzeigeKonfiguration", Befehl::KonfigurationAnzeigen},
        {"mnuAnzeigeLichtleiste_0", Befehl::LichtleisteAnzeigen, 0},
        {"mnuAnzeigeLichtleiste_1", Befehl::LichtleisteAnzeigen, 1},
        {"mnuAnzeigeLichtleiste_2", Befehl::LichtleisteAnzeigen, 2},
        {"mnuAnzeigeLichtleiste_3", Befehl::LichtleisteAnzeigen, 3},
        {"mnuMessdatenVisualisierenStart", Befehl::VisualisierenStart},
        {"mnuMessdatenVisualisierenStop", Befehl::VisualisierenStop},
        {"mnuEinzelwerteLesenSchreiben", Befehl::Einzelwerte},
        {"mnuSimulation", Befehl::Simulation},
        {"mnuInitHardware", Befehl::InitHardware},
        {"mnuResetHardware", Befehl::ResetHardware},
        {"mnuFlasher", Befehl::FirmwareUpdate},
        {"mnuAutosendStarten", Befehl::AutosendStarten},
        {"mnuDeutsch", Befehl::Deutsch},
        {"mnuEnglisch", Befehl::Englisch},
        {"mnuCom_1", Befehl::ComPort, 1},
        {"mnuCom_2", Befehl::ComPort, 2},
        {"mnuCom_3", Befehl::ComPort, 3},
        {"mnuCom_4", Befehl::ComPort, 4},
        {"mnuUebertragenerWert", Befehl::UebertragenerWert},
        {"mnuFensterUntereinander", Befehl::FensterUntereinander},
        {"mnuFensterNebeneinander", Befehl::FensterNebeneinander},
        {"mnuFensterÜberlappend", Befehl::FensterUeberlappend},
        {"mnuHilfethemen", Befehl::Hilfethemen},
        {"mnuInfo", Befehl::Info},
    };
    for (const auto& [name, befehl, index] : zeilen)
        VerbindeAktion(QString::fromUtf8(name), befehl, index);
}

/// A click stores the command and nothing else: the check mark that Qt has already turned is turned back.
void frmMain::VerbindeAktion(const QString& name, Befehl befehl, int index) {
    auto* aktion = findChild<QAction*>(name);
    connect(aktion, &QAction::triggered, this, [this, aktion, befehl, index](bool angehakt) {
        if (aktion->isCheckable())
            aktion->setChecked(!angehakt);
        befehle.Klick(befehl, index);
    });
}

void frmMain::ZeigeStatustext(int feld, const std::string& text) {
    const QString neu = QString::fromStdString(text);
    QLabel& anzeige = *statusfelder.at(static_cast<std::size_t>(feld - 1));
    if (feld == FeldSchaltausgang)
        ausgang->Zeige(neu);
    else if (anzeige.text() != neu)
        anzeige.setText(neu);
}

void frmMain::ZeigePort() {
    const int nummer = modSchnittstelle::GetComPort();
    for (int n = 1; n <= 4; ++n)
        findChild<QAction*>(QStringLiteral("mnuCom_%1").arg(n))->setChecked(n == nummer);
    ZeigeStatustext(FeldPort, "COM" + std::to_string(nummer) + ": " + modSchnittstelle::GetComSettings());
    statusfelder[FeldPort - 1]->setToolTip(QString::fromStdString(Geraetepfad(nummer)));
}

void frmMain::ZeigeSprache() {
    ui->mnuEnglisch->setChecked(GetSprachoffset() == Englisch);
    ui->mnuDeutsch->setChecked(GetSprachoffset() != Englisch);
}

void frmMain::ZeigeServicemenue() {
    zustand.service = true;
    AktualisiereMenue();
}

void frmMain::AktualisiereMenue() {
    varnoth::WendeAn(Menuezustand(zustand), *this);
}

void frmMain::SetzeMessdatenMenue(int modus) {
    constexpr int grundzustand = 0;
    constexpr int laeuft = 1;
    constexpr int gestoppt = 2;
    if (modus < grundzustand || modus > gestoppt)
        return;
    zustand.liveDaten = modus == laeuft;
    AktualisiereMenue();
}

bool frmMain::LiveDatenLaufen() const {
    return modPolling::GetPollingAktiv() != False;
}

void frmMain::LiveDatenLaufenAn() {
    SetzeMessdatenMenue(1);
    AktualisiereGeraetestatus();
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
    if (const auto platz = PlatzVon(*this))
        SchreibFensterplatz(DieEinstellungen(), Fensterabschnitt, *platz);
    for (const frmDocument* ansicht : Fensterliste)
        ansicht->SpeicherePlatz();
    modTrace::Schliesse();
    SchliesseDialoge();
    hide();
}

} // namespace varnoth
