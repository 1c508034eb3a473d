#include "frmWasserfall.h"

#include "fensterplatz.h"
#include "lokalisiereform.h"
#include "messanbieter.h"
#include "messtakt.h"
#include "strahlabschnitt.h"
#include "tabellenform.h"
#include "texte.h"
#include "textmitwerten.h"
#include "ui_frmWasserfall.h"
#include "umgebung.h"
#include "zeitworte.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPointer>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>

#include <algorithm>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextTitel = 6400, TextTitelWiedergabe = 6419, TextErstesOptikteil = 5200,
                       TextStatistik = 6448, TextKeineMessdaten = 6449, TextRechnet = 6450,
                       TextNichtsVerdaechtiges = 6451, TextZuWenig = 6452, TextBildKopiert = 6453,
                       TextGespeichert = 6454, TextSpeichernUnter = 6455, TextFilter = 6456,
                       TextKeinStrahl = 6457, TextNichtInWiedergabe = 6458, TextVorschlagTipp = 6444,
                       TextBerichttipp = 6445, TextAbgebrochen = 6473, TextKeinBericht = 6474;

constexpr const char* Abschnitt = "frmWasserfall";
constexpr const char* Tabellenname = "strahlstatistik";
constexpr QSize Anfangsgroesse(1100, 760);
constexpr int Spaltenbreiten[] = {64, 84, 104, 84, 160, 196}; // at 96 dpi

constexpr int VerzugMs = 200;
constexpr int LiveTaktMs = 1000;
constexpr int BildtaktMs = 250; // painting more often would cost polling time, and nobody sees more
// What is done at one go, so that neither the next request nor the window waits for it.
constexpr Zeit LaengsterSchritt = std::chrono::milliseconds(2);
constexpr Zeit LaengsterSchrittOhneLeitung = std::chrono::milliseconds(10);
constexpr Zeit GenugGemessen = std::chrono::seconds(10);

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

/// The rows that are let through: all, or those of suspicious beams.
class Strahlauswahl : public QSortFilterProxyModel {
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;
    void NurVerdaechtige(bool nur) {
        nurVerdaechtige = nur;
        invalidateFilter();
    }

protected:
    bool filterAcceptsRow(int zeile, const QModelIndex& eltern) const override {
        return !nurVerdaechtige ||
               sourceModel()->index(zeile, 0, eltern).data(Strahlmodell::Verdachtsrolle).toBool();
    }

private:
    bool nurVerdaechtige = false;
};

} // namespace

frmWasserfall::frmWasserfall(Messanbieter& derAnbieter)
    : ui(std::make_unique<Ui::frmWasserfall>()), anbieter(derAnbieter), modell(new Strahlmodell(this)),
      auswahl(new Strahlauswahl(this)) {
    ui->setupUi(this);
    takt = new Messtakt(anbieter, *this);
    verzug.setSingleShot(true);
    bildtakt.setSingleShot(true);
    RichteTabelleEin();
    StelleFensterHer(*this, Abschnitt, Anfangsgroesse);
    FuelleTeile();
    ui->bild->SetzeAnbieter(anbieter);
    Verbinde();
    VerbindeKnoepfe();
    VerbindeTasten();
    Lokalisiere();
    BeginneAuswertung();
    ui->bild->setFocus();
}

frmWasserfall::~frmWasserfall() = default;

void frmWasserfall::RichteTabelleEin() {
    auswahl->setSourceModel(modell);
    auswahl->setSortRole(Strahlmodell::Sortierrolle);
    ui->tblStrahlen->setModel(auswahl);
    ui->tblStrahlen->sortByColumn(0, Qt::AscendingOrder);
    GibTabelleForm(*ui->tblStrahlen, Spaltenbreiten);
    ui->tblStrahlen->horizontalHeader()->setStretchLastSection(true);
    ui->trennung->setStretchFactor(0, 3);
    ui->trennung->setStretchFactor(1, 2);
}

void frmWasserfall::FuelleTeile() {
    const QSignalBlocker stumm(ui->cboTeil);
    const int gewaehlter = std::max(ui->cboTeil->currentIndex(), 0);
    ui->cboTeil->clear();
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        ui->cboTeil->addItem(Q(LadeText(static_cast<std::int16_t>(TextErstesOptikteil + teil))));
    ui->cboTeil->setCurrentIndex(gewaehlter);
}

void frmWasserfall::Verbinde() {
    connect(takt, &Messtakt::Ersetzt, this, &frmWasserfall::NimmNeueQuelle);
    connect(takt, &Messtakt::Gewachsen, this, &frmWasserfall::NimmZuwachs);
    connect(&verzug, &QTimer::timeout, this, [this] {
        rechnet = !abgebrochen;
        Plane();
    });
    connect(&bildtakt, &QTimer::timeout, ui->bild, &Wasserfallbild::NimmZuwachs);
    connect(ui->cboTeil, &QComboBox::currentIndexChanged, this, &frmWasserfall::WaehleTeil);
    connect(ui->bild, &Wasserfallbild::StelleGeaendert, this, &frmWasserfall::ZeigeStelle);
    connect(ui->bild, &Wasserfallbild::ZeitraumGeaendert, this, &frmWasserfall::BeginneAuswertung);
    connect(ui->bild, &Wasserfallbild::BlickGeaendert, this, [this] {
        const QSignalBlocker stumm(ui->chkFolgen);
        ui->chkFolgen->setChecked(ui->bild->DerBlick() == Wasserfallbild::Blick::Folgt);
    });
    connect(ui->bild, &Wasserfallbild::ZeitAngeklickt, this, [this](qint64 zeit) {
        if (anbieter.IstWiedergabe())
            anbieter.SpringeZu(Zeit(zeit));
    });
    connect(ui->chkFolgen, &QCheckBox::toggled, this, [this](bool an) {
        ui->bild->SetzeBlick(an ? Wasserfallbild::Blick::Folgt : Wasserfallbild::Blick::Fest);
    });
    connect(ui->chkNurVerdaechtige, &QCheckBox::toggled, this,
            [this](bool nur) { static_cast<Strahlauswahl*>(auswahl)->NurVerdaechtige(nur); });
    connect(ui->lstVerdacht, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* zeile) {
        if (zeile != nullptr && ui->lstVerdacht->hasFocus())
            ZeigeStrahl(zeile->data(Qt::UserRole).toInt());
    });
}

void frmWasserfall::VerbindeKnoepfe() {
    const std::pair<QPushButton*, void (frmWasserfall::*)()> knoepfe[] = {
        {ui->cmdBild, &frmWasserfall::KopiereBild},
        {ui->cmdTabelle, &frmWasserfall::SpeichereTabelle},
        {ui->cmdBlanking, &frmWasserfall::SchlageBlankingVor},
        {ui->cmdBericht, &frmWasserfall::Berichte},
        {ui->cmdCancel, &frmWasserfall::BrichAb},
    };
    for (const auto& [knopf, tat] : knoepfe)
        connect(knopf, &QPushButton::clicked, this, tat);
    connect(ui->cmdAlles, &QPushButton::clicked, ui->bild, &Wasserfallbild::ZeigeAlles);
    connect(ui->cmdZeitraum, &QPushButton::clicked, this, [this] { ui->bild->Waehle({}); });
    connect(ui->cmdSchliessen, &QPushButton::clicked, this, &QWidget::close);
}

void frmWasserfall::VerbindeTasten() {
    connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, ui->cmdTabelle,
            &QPushButton::click);
    connect(new QShortcut(QKeySequence::Copy, ui->bild, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, this, &frmWasserfall::KopiereBild);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, [this] {
        if (ui->bild->Gewaehlt())
            ui->bild->Waehle({});
        else
            close();
    });
}

void frmWasserfall::showEvent(QShowEvent* ereignis) {
    QWidget::showEvent(ereignis);
    VerfolgePlatz(*this);
}

void frmWasserfall::closeEvent(QCloseEvent* ereignis) {
    BewahreFensterplatz(*this, Abschnitt);
    QWidget::closeEvent(ereignis);
}

void frmWasserfall::ZeigeVor() {
    HoleNachVorn(*this);
}

void frmWasserfall::Lokalisiere() {
    LokalisiereForm(*this);
    FuelleTeile();
    modell->Lokalisiere();
    ui->legende->Lokalisiere();
    ui->bild->update();
    ui->lblMeldung->clear();
    ZeigeTitel();
    ZeigeVerdacht();
    ZeigeStand();
    ZeigeStelle();
}

/// A replay is told from what happens now, and nothing of it is for the controller that may be at the line or
/// for the report about the configuration in use.
void frmWasserfall::ZeigeTitel() {
    const bool wiedergabe = anbieter.IstWiedergabe();
    setWindowTitle(Q(LadeText(wiedergabe ? TextTitelWiedergabe : TextTitel)));
    ui->cmdBlanking->setToolTip(Q(LadeText(wiedergabe ? TextNichtInWiedergabe : TextVorschlagTipp)));
    ui->cmdBericht->setToolTip(Q(LadeText(wiedergabe ? TextKeinBericht : TextBerichttipp)));
    const bool gemessen = auswertung && auswertung->Zaehler().Durchgaenge() > 0;
    ui->cmdTabelle->setEnabled(gemessen);
    for (QPushButton* const knopf : {ui->cmdBlanking, ui->cmdBericht})
        knopf->setEnabled(gemessen && !wiedergabe);
}

void frmWasserfall::WaehleTeil() {
    ui->bild->SetzeTeil(ui->cboTeil->currentIndex());
    BeginneAuswertung();
}

void frmWasserfall::NimmNeueQuelle() {
    ui->bild->NimmNeueQuelle();
    ui->lblMeldung->clear();
    BeginneAuswertung();
}

void frmWasserfall::NimmZuwachs() {
    if (anbieter.IstWiedergabe())
        ui->bild->NimmZuwachs();
    else if (!bildtakt.isActive())
        bildtakt.start(BildtaktMs);
    ZeigeTitel();
    if (!rechnet && !abgebrochen && !verzug.isActive())
        verzug.start(LiveTaktMs);
}

/// Without a chosen time the statistics begin with the source and go on with it.
void frmWasserfall::BeginneAuswertung() {
    abgebrochen = false;
    rechnet = false;
    auswertung.emplace(ui->bild->Teil(), ui->bild->Gewaehlt().value_or(
                                             Zeitspanne{anbieter.Quelle().Spanne().von, Zeit::max()}));
    ui->cmdZeitraum->setEnabled(ui->bild->Gewaehlt().has_value());
    verzug.start(VerzugMs);
    ZeigeStatistik();
}

void frmWasserfall::Plane() {
    if (!std::exchange(geplant, true))
        DieUmgebung().FuerWartezeit([fenster = QPointer(this)] {
            if (fenster != nullptr)
                fenster->Arbeite();
        });
}

void frmWasserfall::Arbeite() {
    geplant = false;
    if (!rechnet)
        return;
    const Zeit ende =
        DieUmgebung().Uhr() + (anbieter.IstWiedergabe() ? LaengsterSchrittOhneLeitung : LaengsterSchritt);
    do
        rechnet = auswertung->Weiter(anbieter.Quelle(), 1);
    while (rechnet && DieUmgebung().Uhr() < ende);
    if (!rechnet)
        return ZeigeStatistik();
    ZeigeStand();
    Plane();
}

void frmWasserfall::BrichAb() {
    rechnet = false;
    abgebrochen = true;
    ZeigeStatistik();
    ZeigeMeldung(LadeText(TextAbgebrochen));
}

Strahlbezug frmWasserfall::Bezug() const {
    return {.teil = auswertung->Teil(),
            .abstandMm = ui->bild->Strahlabstand(),
            .angaben = anbieter.Quelle().Angaben(),
            .zeitraum = auswertung->Betrachtet(),
            .gemessen = auswertung->Zaehler().Gemessen()};
}

void frmWasserfall::ZeigeStatistik() {
    auto werte = auswertung->Werte();
    auto verdaechte = Strahlverdaechte(werte);
    modell->Setze(std::move(werte), std::move(verdaechte), ui->bild->Strahlabstand(),
                  anbieter.Quelle().Angaben());
    ZeigeVerdacht();
    ZeigeStand();
    ZeigeTitel();
}

/// A list that says the same again is left alone: somebody may read it.
void frmWasserfall::ZeigeVerdacht() {
    QList<std::pair<QString, int>> zeilen;
    for (const Strahlverdacht& verdacht : modell->Verdaechte())
        zeilen.append({Q(Verdachtsfrage(verdacht) + " " + Verdachtsgrund(verdacht)), verdacht.von});
    const Zeit gemessen = auswertung ? auswertung->Zaehler().Gemessen() : Zeit{};
    if (zeilen.isEmpty())
        zeilen.append(
            {Q(gemessen < GenugGemessen ? LadeText(TextZuWenig)
                                        : LadeTextMit(TextNichtsVerdaechtiges, {Dauerworte(gemessen)})),
             -1});
    while (ui->lstVerdacht->count() > zeilen.size())
        delete ui->lstVerdacht->takeItem(ui->lstVerdacht->count() - 1);
    while (ui->lstVerdacht->count() < zeilen.size())
        ui->lstVerdacht->addItem(new QListWidgetItem);
    for (int i = 0; i < ui->lstVerdacht->count(); ++i) {
        QListWidgetItem& zeile = *ui->lstVerdacht->item(i);
        if (zeile.text() != zeilen[i].first)
            zeile.setText(zeilen[i].first);
        zeile.setData(Qt::UserRole, zeilen[i].second);
    }
}

void frmWasserfall::ZeigeStand() {
    const bool arbeitet = rechnet && auswertung;
    ui->cmdCancel->setVisible(arbeitet);
    std::string text = LadeText(TextKeineMessdaten);
    if (arbeitet)
        text = LadeTextMit(TextRechnet, {Anteilworte(auswertung->Fortschritt(anbieter.Quelle()))});
    else if (auswertung && auswertung->Zaehler().Durchgaenge() > 0) {
        const Strahlbezug bezug = Bezug();
        text = LadeTextMit(TextStatistik,
                           {Zeitworte(bezug.angaben, bezug.zeitraum.von),
                            Zeitworte(bezug.angaben, bezug.zeitraum.bis), Dauerworte(bezug.gemessen)});
    }
    if (const QString neu = Q(text); ui->lblStand->text() != neu)
        ui->lblStand->setText(neu);
}

void frmWasserfall::ZeigeStelle() {
    ui->lblStelle->setText(ui->bild->Stellentext());
    ui->bild->setAccessibleDescription(ui->bild->Ansage());
}

void frmWasserfall::ZeigeMeldung(const std::string& text) {
    ui->lblMeldung->setText(Q(text));
}

/// Brings a beam into view in the picture and the table.
void frmWasserfall::ZeigeStrahl(int strahl) {
    if (strahl < 0)
        return;
    const QModelIndex stelle = auswahl->mapFromSource(modell->index(strahl, 0));
    ui->tblStrahlen->setCurrentIndex(stelle);
    ui->tblStrahlen->scrollTo(stelle);
    const Zeitfenster& fenster = ui->bild->Fenster();
    const Zeit mitte = fenster.Von() + fenster.spalten / 2 * fenster.breite;
    ui->bild->SetzeStelle(Strahlstelle{ui->bild->Stelle() ? ui->bild->Stelle()->zeit : mitte, strahl});
}

void frmWasserfall::KopiereBild() {
    QGuiApplication::clipboard()->setImage(ui->bild->AlsBild());
    ZeigeMeldung(LadeText(TextBildKopiert));
}

void frmWasserfall::SpeichereTabelle() {
    const auto pfad =
        anbieter.FrageNachDatei(LadeText(TextSpeichernUnter), LadeText(TextFilter), Tabellenname);
    if (pfad && anbieter.Schreibe(*pfad, Strahltabelle(modell->Werte(), modell->Verdaechte(), Bezug())))
        ZeigeMeldung(LadeTextMit(TextGespeichert, {*pfad}));
}

void frmWasserfall::SchlageBlankingVor() {
    if (AnzahlImmerUnterbrochene(modell->Werte()) == 0)
        return ZeigeMeldung(LadeText(TextKeinStrahl));
    ui->lblMeldung->clear();
    anbieter.SchlageBlankingVor(auswertung->Teil(), ZuBlankendes(modell->Werte()));
}

void frmWasserfall::Berichte() {
    anbieter.BerichteStrahlen(Berichtsabschnitt(modell->Werte(), modell->Verdaechte(), Bezug()));
}

} // namespace varnoth
