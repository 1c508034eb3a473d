#include "frmMain.h"

#include "einstellungen.h"
#include "fensterplatz.h"
#include "frmDocument.h"
#include "lokalisiereform.h"
#include "registerabbild.h"
#include "schnittstelle.h"
#include "standardkonfiguration.h"
#include "symbole.h"
#include "trace.h"
#include "ui_frmMain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QScreen>

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
    : ui(MacheForm(*this)), status(*ui->sbStatusBar),
      menue(*this, [this](Befehl befehl, int index) { befehle.Klick(befehl, index); }) {
    QApplication::setWindowIcon(Programmsymbol());
    setMinimumSize(PixelAusTwips(KleinsteBreite), PixelAusTwips(KleinsteHoehe));
    LokalisiereForm(*this);
    LiesEinstellungen();
    modDaten::InitRegisterbeschreibung();
    modDaten::LadeStandardkonfiguration();
    ansichten = std::make_unique<Ansichten>(*ui->mdiBereich);
    connect(ansichten.get(), &Ansichten::Gewechselt, this,
            [this](int teil, bool gezeigt) { menue.HakeAnsicht(teil, gezeigt); });
    const Hauptteile teile{.fenster = *this,
                           .ansichten = *ansichten,
                           .menue = menue,
                           .status = status,
                           .baueAnsichtenAuf = [this] { BaueAnsichtenAuf(); },
                           .beendet = [this] { return Beendet(); }};
    ablauf = std::make_unique<Konfigurationsablauf>(teile);
    betrieb = std::make_unique<Geraetebetrieb>(teile, befehle, *ablauf, programmordner);
}

frmMain::~frmMain() = default;

void frmMain::LiesEinstellungen() {
    Einstellungen& einstellungen = DieEinstellungen();
    WendeAn(LiesFensterplatz(einstellungen, Fensterabschnitt, {}), *this);
    modSchnittstelle::SetzeComPort(
        static_cast<std::int16_t>(einstellungen.LiesZahl("Settings", "ComPort", 1)));
    modSchnittstelle::SetzeComSettings(
        einstellungen.LiesText("Settings", "ComSettings", modSchnittstelle::StandardComSettings));
    ZeigePort();
}

void frmMain::ZeigePort() {
    menue.HakePort(modSchnittstelle::GetComPort());
    status.ZeigePort();
}

void frmMain::BaueAnsichtenAuf() {
    if (!ansichten->BaueAuf())
        return;
    SchaffePlatzFuerAnsichten();
    Ordne(Anordnung::Nebeneinander);
}

/// The first time that views appear in a window nobody has sized yet, it grows to hold them side by side.
void frmMain::SchaffePlatzFuerAnsichten() {
    constexpr QSize angenehm(310, 640);
    if (DieEinstellungen().LiesZahl(Fensterabschnitt, "Width", 0) != 0 || isMaximized() || isFullScreen())
        return;
    const QRect schirm = screen()->availableGeometry();
    const QSize gewuenscht(ansichten->AnzahlGezeigter() * angenehm.width(), angenehm.height());
    resize(size().expandedTo(gewuenscht).boundedTo(schirm.size()));
    move(std::clamp(x(), schirm.left(), std::max(schirm.left(), schirm.right() + 1 - width())),
         std::clamp(y(), schirm.top(), std::max(schirm.top(), schirm.bottom() + 1 - height())));
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
    ansichten->SpeicherePlaetze();
    modTrace::Schliesse();
    SchliesseDialoge();
    hide();
}

} // namespace varnoth
