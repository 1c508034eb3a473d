#include "frmAufzeichnung.h"

#include "fensterplatz.h"
#include "lokalisiereform.h"
#include "texte.h"
#include "textmitwerten.h"
#include "ui_frmAufzeichnung.h"
#include "umgebung.h"

#include <QPointer>
#include <QShortcut>
#include <QSignalBlocker>

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextSekunden = 6245, TextStandard = 6249, TextExcel = 6250, TextMegabyte = 6260,
                       TextMinuten = 6261, TextStunden = 6262, TextStarten = 6268, TextBeenden = 6269,
                       TextKeine = 6271, TextZuletzt = 6273, TextOhneGrenze = 6274, TextOrdnerfrage = 6276,
                       TextGesichert = 6278, TextNichtsImSpeicher = 6281, TextImSpeicher = 6282,
                       TextWirdGesichert = 6751;
constexpr const char* Abschnitt = "frmAufzeichnung";
constexpr int TaktMs = 500;
constexpr Wahlbereich Minutenbereich{1, 600};
constexpr int UeblicheMinuten = 10;

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

void SetzeText(QLabel& feld, const std::string& text) {
    if (const QString neu = Q(text); feld.text() != neu)
        feld.setText(neu);
}

void SetzeBereich(QSpinBox& feld, Wahlbereich bereich) {
    feld.setRange(bereich.kleinster, bereich.groesster);
}

void SetzeWert(QSpinBox& feld, int wert) {
    const QSignalBlocker stumm(feld);
    feld.setValue(wert);
}

void Hake(QAbstractButton& knopf, bool ob) {
    const QSignalBlocker stumm(knopf);
    knopf.setChecked(ob);
}

} // namespace

frmAufzeichnung::frmAufzeichnung(Aufzeichnungsanbieter& derAnbieter)
    : ui(std::make_unique<Ui::frmAufzeichnung>()), anbieter(derAnbieter) {
    ui->setupUi(this);
    RichteEin();
    Lokalisiere();
    StelleFensterHer(*this, Abschnitt, sizeHint());
    ZeigeWahl();
    Verbinde();
}

frmAufzeichnung::~frmAufzeichnung() = default;

void frmAufzeichnung::RichteEin() {
    SetzeBereich(*ui->spnSekunden, Sekundenbereich);
    SetzeBereich(*ui->spnMegabyte, Megabytebereich);
    SetzeBereich(*ui->spnEnde, Endebereich);
    SetzeBereich(*ui->spnBehalte, Behaltebereich);
    SetzeBereich(*ui->spnSpeicher, Flugschreiberbereich);
    SetzeBereich(*ui->spnMinuten, Minutenbereich);
    ui->spnMinuten->setValue(UeblicheMinuten);
    for (QLabel* const feld : {ui->lblStand, ui->lblZuletzt, ui->lblImSpeicher})
        feld->setTextFormat(Qt::PlainText);
    takt.setInterval(TaktMs);
    connect(&takt, &QTimer::timeout, this, &frmAufzeichnung::Plane);
}

void frmAufzeichnung::Verbinde() {
    for (QRadioButton* const knopf : {ui->optJeder, ui->optAenderung, ui->optSekunden})
        connect(knopf, &QRadioButton::toggled, this, &frmAufzeichnung::NimmWahl);
    for (QCheckBox* const feld : {ui->chkVrec, ui->chkCsv, ui->chkMitternacht})
        connect(feld, &QCheckBox::toggled, this, &frmAufzeichnung::NimmWahl);
    for (QSpinBox* const feld : {ui->spnSekunden, ui->spnMegabyte, ui->spnEnde, ui->spnBehalte})
        connect(feld, &QSpinBox::valueChanged, this, &frmAufzeichnung::NimmWahl);
    connect(ui->cboCsvart, &QComboBox::currentIndexChanged, this, &frmAufzeichnung::NimmWahl);
    connect(ui->chkAlleTeile, &QCheckBox::toggled, this, &frmAufzeichnung::NimmFlugschreiber);
    connect(ui->spnSpeicher, &QSpinBox::valueChanged, this, &frmAufzeichnung::NimmFlugschreiber);
    connect(ui->txtOrdner, &QLineEdit::editingFinished, this,
            [this] { anbieter.WaehleOrdner(ui->txtOrdner->text().toStdString()), ZeigeWahl(); });
    connect(ui->cmdOrdner, &QPushButton::clicked, this, &frmAufzeichnung::WaehleOrdner);
    connect(ui->cmdAufzeichnen, &QPushButton::clicked, this, &frmAufzeichnung::Schalte);
    connect(ui->cmdSichern, &QPushButton::clicked, this, &frmAufzeichnung::Sichere);
    connect(ui->cmdOrdnerZeigen, &QPushButton::clicked, this,
            [this] { anbieter.ZeigeOrdner(anbieter.Ordner()); });
    connect(ui->cmdSchliessen, &QPushButton::clicked, this, &frmAufzeichnung::close);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &frmAufzeichnung::close);
}

void frmAufzeichnung::showEvent(QShowEvent* ereignis) {
    QWidget::showEvent(ereignis);
    VerfolgePlatz(*this);
    ZeigeWahl();
    ZeigeStand();
    takt.start();
}

void frmAufzeichnung::closeEvent(QCloseEvent* ereignis) {
    takt.stop();
    BewahreFensterplatz(*this, Abschnitt);
    QWidget::closeEvent(ereignis);
}

void frmAufzeichnung::ZeigeVor() {
    HoleNachVorn(*this);
}

void frmAufzeichnung::Lokalisiere() {
    LokalisiereForm(*this);
    const QSignalBlocker stumm(ui->cboCsvart);
    const int art = std::max(ui->cboCsvart->currentIndex(), 0);
    ui->cboCsvart->clear();
    for (const std::int16_t id : {TextStandard, TextExcel})
        ui->cboCsvart->addItem(Q(LadeText(id)));
    ui->cboCsvart->setCurrentIndex(art);
    const std::pair<QSpinBox*, std::int16_t> einheiten[] = {
        {ui->spnSekunden, TextSekunden}, {ui->spnMegabyte, TextMegabyte}, {ui->spnEnde, TextMinuten},
        {ui->spnBehalte, TextStunden},   {ui->spnSpeicher, TextMegabyte}, {ui->spnMinuten, TextMinuten}};
    for (const auto& [feld, einheit] : einheiten)
        feld->setSuffix(Q(LadeText(einheit)));
    for (QSpinBox* const feld : {ui->spnMegabyte, ui->spnEnde, ui->spnBehalte})
        feld->setSpecialValueText(Q(LadeText(TextOhneGrenze)));
    ZeigeStand();
}

void frmAufzeichnung::ZeigeWahl() {
    const Aufzeichnungswahl wahl = anbieter.Wahl();
    Hake(*ui->optJeder, wahl.rhythmus == Rhythmus::JederDurchgang);
    Hake(*ui->optAenderung, wahl.rhythmus == Rhythmus::BeiAenderung);
    Hake(*ui->optSekunden, wahl.rhythmus == Rhythmus::AlleSekunden);
    Hake(*ui->chkVrec, wahl.vrec);
    Hake(*ui->chkCsv, wahl.csv);
    Hake(*ui->chkMitternacht, wahl.mitternacht);
    SetzeWert(*ui->spnSekunden, wahl.sekunden);
    SetzeWert(*ui->spnMegabyte, wahl.megabyte);
    SetzeWert(*ui->spnEnde, wahl.endeMinuten);
    SetzeWert(*ui->spnBehalte, wahl.behalteStunden);
    const QSignalBlocker stumm(ui->cboCsvart);
    ui->cboCsvart->setCurrentIndex(static_cast<int>(wahl.csvart));
    ui->cboCsvart->setEnabled(wahl.csv);
    ui->spnSekunden->setEnabled(wahl.rhythmus == Rhythmus::AlleSekunden);
    ui->lblBehalteHinweis->setVisible(wahl.behalteStunden > 0);
    ui->txtOrdner->setText(Q(anbieter.Ordner()));
    const Flugschreiber flugschreiber = anbieter.DerFlugschreiber();
    Hake(*ui->chkAlleTeile, flugschreiber.alleTeile);
    SetzeWert(*ui->spnSpeicher, flugschreiber.megabyte);
}

/// What was chosen is in force at once; what cannot be is shown as it is then.
void frmAufzeichnung::NimmWahl() {
    anbieter.Waehle(Begrenzt({.vrec = ui->chkVrec->isChecked(),
                              .csv = ui->chkCsv->isChecked(),
                              .csvart = static_cast<Csvart>(std::max(ui->cboCsvart->currentIndex(), 0)),
                              .rhythmus = ui->optAenderung->isChecked()  ? Rhythmus::BeiAenderung
                                          : ui->optSekunden->isChecked() ? Rhythmus::AlleSekunden
                                                                         : Rhythmus::JederDurchgang,
                              .sekunden = ui->spnSekunden->value(),
                              .megabyte = ui->spnMegabyte->value(),
                              .mitternacht = ui->chkMitternacht->isChecked(),
                              .endeMinuten = ui->spnEnde->value(),
                              .behalteStunden = ui->spnBehalte->value()}));
    ZeigeWahl();
}

void frmAufzeichnung::NimmFlugschreiber() {
    anbieter.Waehle(
        Flugschreiber{.alleTeile = ui->chkAlleTeile->isChecked(), .megabyte = ui->spnSpeicher->value()});
}

void frmAufzeichnung::WaehleOrdner() {
    if (const auto ordner = anbieter.FrageNachOrdner(LadeText(TextOrdnerfrage), anbieter.Ordner()))
        anbieter.WaehleOrdner(*ordner);
    ZeigeWahl();
}

void frmAufzeichnung::Schalte() {
    if (anbieter.Lage().laeuft)
        anbieter.Beende();
    else
        anbieter.Beginne(ui->txtName->text().trimmed().toStdString());
    ZeigeStand();
}

void frmAufzeichnung::Sichere() {
    anbieter.SichereSpeicher(ui->spnMinuten->value());
    ZeigeStand();
}

/// Between a reply and the next request nothing is written into labels.
void frmAufzeichnung::Plane() {
    if (!std::exchange(geplant, true))
        DieUmgebung().FuerWartezeit([fenster = QPointer(this)] {
            if (fenster != nullptr)
                fenster->ZeigeStand();
        });
}

void frmAufzeichnung::ZeigeStand() {
    geplant = false;
    const Aufzeichnungslage lage = anbieter.Lage();
    for (QGroupBox* const gruppe : {ui->grpWas, ui->grpForm, ui->grpWohin, ui->grpMenge})
        gruppe->setEnabled(!lage.laeuft);
    ui->cmdAufzeichnen->setText(Q(LadeText(lage.laeuft ? TextBeenden : TextStarten)));
    ui->txtName->setPlaceholderText(Q(anbieter.Namensvorschlag()));
    SetzeText(*ui->lblStand, lage.laeuft ? anbieter.Standtext() : LadeText(TextKeine));
    ZeigeLetzte(lage);
    ZeigeSpeicher();
}

void frmAufzeichnung::ZeigeSpeicher() {
    const std::string imSpeicher = anbieter.ImSpeicher();
    const Speicherlage lage = anbieter.Sicherung();
    std::string text =
        imSpeicher.empty() ? LadeText(TextNichtsImSpeicher) : LadeTextMit(TextImSpeicher, {imSpeicher});
    if (lage.laeuft)
        text = LadeTextMit(TextWirdGesichert, {std::to_string(static_cast<int>(lage.anteil * 100))});
    SetzeText(*ui->lblImSpeicher, text);
    ui->cmdSichern->setEnabled(!imSpeicher.empty() && !lage.laeuft);
    if (std::exchange(gesichert, lage.gesichert) != lage.gesichert)
        SetzeText(*ui->lblZuletzt, LadeTextMit(TextGesichert, {gesichert}));
}

/// What was told last stays until there is something new to tell.
void frmAufzeichnung::ZeigeLetzte(const Aufzeichnungslage& lage) {
    std::string pfade;
    for (const std::string& pfad : lage.stand.pfade)
        pfade += (pfade.empty() ? "" : "\n") + pfad;
    if (pfade.empty())
        return;
    const std::string text = lage.laeuft ? pfade : LadeTextMit(TextZuletzt, {pfade});
    if (std::exchange(letzte, text) != text)
        SetzeText(*ui->lblZuletzt, text);
}

} // namespace varnoth
