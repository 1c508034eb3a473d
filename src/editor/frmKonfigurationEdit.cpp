#include "frmKonfigurationEdit.h"

#include "eingabestand.h"
#include "frmBlankingmuster.h"
#include "frmReihenfolge.h"
#include "geraetesuche.h"
#include "lokalisiereform.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "schnittstelle.h"
#include "ui_frmKonfigurationEdit.h"
#include "zykluszeiten.h"

#include <QKeyEvent>

namespace varnoth {

namespace {

constexpr int ErsteOptikseite = 1;

bool WechseltSeite(const QKeyEvent& taste) {
    return (taste.key() == Qt::Key_Tab || taste.key() == Qt::Key_Backtab) &&
           taste.modifiers().testFlag(Qt::ControlModifier);
}

void OeffneBlankingmuster(QWidget* eltern, int optikteil) {
    frmBlankingmuster dialog(eltern);
    dialog.InitFormBlankingmuster(optikteil);
    dialog.exec();
}

void OeffneReihenfolge(QWidget* eltern) {
    frmReihenfolge(eltern).exec();
}

} // namespace

frmKonfigurationEdit::frmKonfigurationEdit(QWidget* parent)
    : Eingabedialog(parent), ui(std::make_unique<Ui::frmKonfigurationEdit>()) {
    ui->setupUi(this);
    optikseiten = {ui->picOptions_1, ui->picOptions_2, ui->picOptions_3, ui->picOptions_4};
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        optikseiten.at(static_cast<std::size_t>(teil))->SetzeOptikteil(teil);
    NimmVorgabenWeg();
    VerbindeKnoepfe();
    LokalisiereForm(*this);
}

frmKonfigurationEdit::~frmKonfigurationEdit() {
    GibPortFrei();
}

void frmKonfigurationEdit::VerbindeKnoepfe() {
    connect(ui->cmdUebernehmen, &QPushButton::clicked, this, [this] { Uebernimm(False); });
    connect(ui->cmdDownLoad, &QPushButton::clicked, this, [this] { Uebernimm(True); });
    connect(ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    for (Optikseite* const seite : optikseiten)
        connect(seite, &Optikseite::BlankingmusterVerlangt, this, [this, seite](int teil) {
            OeffneBlankingmuster(this, teil);
            seite->AktualisiereMarken();
        });
    connect(ui->picOptions_5, &Kommunikationsseite::ReihenfolgeVerlangt, this, [this] {
        OeffneReihenfolge(this);
        ui->picOptions_5->AktualisiereMarken();
    });
    connect(ui->picOptions_5, &Kommunikationsseite::AutosendStartbar, this, [this](bool startbar) {
        if (umfeld.autosendStartbar)
            umfeld.autosendStartbar(startbar);
    });
}

void frmKonfigurationEdit::InitKonfiguration(Editorumfeld neues) {
    umfeld = std::move(neues);
    EntferneFehlendeTeile();
    if (umfeld.zeigeUebertrageneWerte) {
        for (Optikseite* const seite : optikseiten)
            seite->ZeigeUebertrageneWerte();
        ui->picOptions_5->ZeigeUebertrageneWerte();
    }
    SeitenFuellen();
    anfangsstand = EingabestandVon(*this);
}

bool frmKonfigurationEdit::IstGeaendert() const {
    return !schliesseMit && EingabestandVon(*this) != anfangsstand;
}

void frmKonfigurationEdit::EntferneFehlendeTeile() {
    for (int teil = AnzahlOptikteile - 1; teil >= 0; --teil)
        if (modHilfsFunktionen::GetZykluszeit(teil) == 0)
            ui->tbsOptions->removeTab(ErsteOptikseite + teil);
}

void frmKonfigurationEdit::SeitenFuellen() {
    const std::int32_t bustyp =
        modDaten::HoleRegister(Speicherbereich::Kommunikationsdaten, kommunikation::Bustyp);
    ui->picOptions_0->Fuelle();
    for (Optikseite* const seite : optikseiten)
        seite->Fuelle();
    ui->picOptions_5->Fuelle(bustyp);
}

void frmKonfigurationEdit::SeitenZurueckschreiben() {
    ui->picOptions_0->SchreibeZurueck();
    for (const Optikseite* const seite : optikseiten)
        seite->SchreibeZurueck();
    ui->picOptions_5->SchreibeZurueck();
}

void frmKonfigurationEdit::Uebernimm(Boolean mitDownload) {
    SeitenZurueckschreiben();
    DownloadAngefordert = mitDownload;
    accept();
}

void frmKonfigurationEdit::showEvent(QShowEvent* ereignis) {
    QDialog::showEvent(ereignis);
    if (angestossen)
        return;
    angestossen = true;
    QMetaObject::invokeMethod(
        this, [this] { SucheGeraet(); }, Qt::QueuedConnection);
}

void frmKonfigurationEdit::SucheGeraet() {
    if (!isVisible())
        return;
    ui->cmdUebernehmen->setEnabled(true);
    sucht = portBelegt = true;
    modSchnittstelle::OpenCommPort();
    const bool gefunden = FindeGeraet([this] { return schliesseMit.has_value(); });
    sucht = false;
    if (schliesseMit)
        done(*schliesseMit);
    else if (gefunden)
        ErlaubeDownload();
}

void frmKonfigurationEdit::ErlaubeDownload() {
    ui->cmdDownLoad->setEnabled(true);
    if (ui->cmdUebernehmen->hasFocus())
        ui->cmdDownLoad->setFocus();
    ui->cmdUebernehmen->setEnabled(false);
}

void frmKonfigurationEdit::GibPortFrei() {
    if (portBelegt)
        modSchnittstelle::CloseCommPort();
    portBelegt = false;
}

void frmKonfigurationEdit::done(int ergebnis) {
    if (!sucht) {
        GibPortFrei();
        QDialog::done(ergebnis);
        return;
    }
    if (!schliesseMit)
        schliesseMit = ergebnis;
    setEnabled(false);
}

void frmKonfigurationEdit::keyPressEvent(QKeyEvent* ereignis) {
    if (WechseltSeite(*ereignis))
        QCoreApplication::sendEvent(ui->tbsOptions, ereignis);
    else
        Eingabedialog::keyPressEvent(ereignis);
}

} // namespace varnoth
