#include "frmBlankingmuster.h"

#include "ui_frmBlankingmuster.h"

#include "fensterplatz.h"
#include "klartext.h"
#include "lokalisiereform.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "textmitwerten.h"
#include "verlauf.h"

#include <QButtonGroup>

#include <algorithm>

namespace varnoth {

namespace {

constexpr auto Abschnitt = "frmBlankingmuster";
constexpr std::int16_t TextVonNach = 9863;
constexpr std::int16_t TextErstesOptikteil = 5200;
constexpr std::int16_t TextAnzahlGeblankter = 4019;
constexpr std::int16_t TextVorschlag = 6471;

std::int32_t Register(std::int16_t optikteil, std::int16_t adresse) {
    return modDaten::HoleRegister(Spezifisch, adresse, optikteil);
}

} // namespace

frmBlankingmuster::frmBlankingmuster(QWidget* parent)
    : Eingabedialog(parent), ui(std::make_unique<Ui::frmBlankingmuster>()) {
    ui->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    for (int art = 0; art < ui->Option1->buttons().size(); ++art)
        ui->Option1->setId(ui->Option1->buttons().at(art), art);
    QSizePolicy platz = ui->lblHinweis->sizePolicy();
    platz.setRetainSizeWhenHidden(true);
    ui->lblHinweis->setSizePolicy(platz);
    NimmVorgabenWeg();
    LokalisiereForm(*this);
    verlauf = new Verlauf(*this, *ui->knoepfe,
                          {.stand = [this] { return Stand(); },
                           .zeige = [this](const QVariantMap& stand) { StelleHer(stand); },
                           .worte = [this] { return Aenderung(); }});
    ui->BeamBar1->installEventFilter(this);
    Verbinde();
    SetzeBedienart(ui->Option1->checkedId());
    StelleFensterHer(*this, Abschnitt);
}

frmBlankingmuster::~frmBlankingmuster() = default;

void frmBlankingmuster::Verbinde() {
    connect(ui->cmdOK, &QPushButton::clicked, this, [this] { SchreibeZurueck(); });
    connect(ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui->cmdAllesBlanking, &QPushButton::clicked, this, [this] {
        Zeige(Geblankte(Gezeigte().size(), true));
        verlauf->Merke();
    });
    connect(ui->cmdKeinBlanking, &QPushButton::clicked, this, [this] {
        Zeige(Geblankte(Gezeigte().size(), false));
        verlauf->Merke();
    });
    connect(ui->cmdReset, &QPushButton::clicked, this, [this] {
        Fuelle();
        verlauf->Merke();
    });
    connect(ui->Option1, &QButtonGroup::idToggled, this, [this](int art, bool gewaehlt) {
        if (gewaehlt)
            SetzeBedienart(art);
    });
    connect(ui->BeamBar1, &BeamBarControl::BlankingGeaendert, this, [this] { ZeigeAnzahl(); });
    connect(ui->BeamBar1, &BeamBarControl::StrahlUnterMaus, this, [this](int strahl) {
        const std::int32_t aufloesung = Register(Optikteil, spezifisch::Aufloesung);
        ui->sbStatusBar_1->setText(QString::fromStdString(TextUnterMaus(strahl, aufloesung)));
    });
}

void frmBlankingmuster::InitFormBlankingmuster(std::int32_t Index) {
    Optikteil = static_cast<std::int16_t>(Index);
    const auto textId = static_cast<std::int16_t>(TextErstesOptikteil + Optikteil);
    ui->lblOptikteil->setText(QString::fromStdString(LadeText(textId)));
    ui->BeamBar1->setAccessibleName(windowTitle() + ' ' + ui->lblOptikteil->text());
    ui->BeamBar1->SetzeStrahlanzahl(std::clamp(modDaten::Strahlenzahl(Optikteil), 0, MaxStrahlen));
    ui->BeamBar1->SetzeStrahlabstand(Register(Optikteil, spezifisch::Aufloesung));
    Fuelle();
    anfangs = Gezeigte();
    gemerkte = anfangs;
    verlauf->Beginne();
}

void frmBlankingmuster::SchlageVor(const Werte& muster) {
    Zeige(GeblankteAusMuster(muster, ui->BeamBar1->Strahlanzahl()));
    verlauf->Merke();
    setWindowTitle(windowTitle() + QStringLiteral(" – ") + QString::fromStdString(LadeText(TextVorschlag)));
}

/// What one movement of the mouse or one key has blanked is one step.
bool frmBlankingmuster::eventFilter(QObject* element, QEvent* ereignis) {
    if (ereignis->type() == QEvent::MouseButtonRelease || ereignis->type() == QEvent::KeyRelease)
        verlauf->MerkeDanach();
    return Eingabedialog::eventFilter(element, ereignis);
}

QVariantMap frmBlankingmuster::Stand() const {
    QVariantList strahlen;
    for (const bool geblankt : Gezeigte())
        strahlen.append(geblankt);
    return {{"muster", strahlen}};
}

void frmBlankingmuster::StelleHer(const QVariantMap& stand) {
    Geblankte geblankte;
    for (const QVariant& geblankt : stand.value("muster").toList())
        geblankte.push_back(geblankt.toBool());
    Zeige(geblankte);
    gemerkte = geblankte;
}

QString frmBlankingmuster::Aenderung() {
    const auto worte = [](const Geblankte& geblankte) {
        return Klartext(Spezifisch, spezifisch::Blankingmuster, MusterAus(geblankte));
    };
    const std::string aenderung =
        LadeTextMit(TextVonNach, {Parametername(Spezifisch, spezifisch::Blankingmuster), worte(gemerkte),
                                  worte(Gezeigte())});
    gemerkte = Gezeigte();
    return QString::fromStdString(aenderung);
}

bool frmBlankingmuster::IstGeaendert() const {
    return Gezeigte() != anfangs;
}

void frmBlankingmuster::Fuelle() {
    const Werte muster = modDaten::HoleParameter(Spezifisch, spezifisch::Blankingmuster, Optikteil);
    Zeige(GeblankteAusMuster(muster, ui->BeamBar1->Strahlanzahl()));
}

void frmBlankingmuster::Zeige(const Geblankte& geblankte) {
    BeamBarControl& strahlen = *ui->BeamBar1;
    strahlen.SetzeAutomatischesZeichnen(false);
    for (int strahl = 0; strahl < strahlen.Strahlanzahl(); ++strahl) {
        const bool geblankt = geblankte.at(static_cast<std::size_t>(strahl));
        strahlen.WaehleStrahl(strahl);
        strahlen.SetzeZustand(geblankt ? Strahlzustand::Geblankt : Strahlzustand::Frei);
    }
    strahlen.SetzeAutomatischesZeichnen(true);
    ZeigeAnzahl();
}

Geblankte frmBlankingmuster::Gezeigte() const {
    Geblankte geblankte;
    for (int strahl = 0; strahl < ui->BeamBar1->Strahlanzahl(); ++strahl)
        geblankte.push_back(ui->BeamBar1->Zustand(strahl) == Strahlzustand::Geblankt);
    return geblankte;
}

void frmBlankingmuster::ZeigeAnzahl() {
    ui->sbStatusBar_2->setText(QStringLiteral("%1: %2")
                                   .arg(QString::fromStdString(LadeText(TextAnzahlGeblankter)))
                                   .arg(AnzahlGeblankter(Gezeigte())));
}

void frmBlankingmuster::SetzeBedienart(int art) {
    ui->BeamBar1->SetzeBedienart(static_cast<Bedienart>(art));
    ui->lblHinweis->setVisible(ui->BeamBar1->Bedienung() == Bedienart::Blanking);
}

void frmBlankingmuster::SchreibeZurueck() {
    if (modDaten::SetzeParameter(Spezifisch, spezifisch::Blankingmuster, MusterAus(Gezeigte()), Optikteil))
        accept();
}

void frmBlankingmuster::showEvent(QShowEvent* ereignis) {
    QDialog::showEvent(ereignis);
    warSichtbar = true;
    VerfolgePlatz(*this);
    ui->BeamBar1->setFocus();
}

void frmBlankingmuster::done(int ergebnis) {
    SpeicherePlatz();
    QDialog::done(ergebnis);
}

void frmBlankingmuster::SpeicherePlatz() const {
    if (warSichtbar)
        BewahreFensterplatz(*this, Abschnitt);
}

} // namespace varnoth
