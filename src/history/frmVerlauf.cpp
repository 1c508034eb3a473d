#include "frmVerlauf.h"

#include "einstellungen.h"
#include "fensterplatz.h"
#include "lokalisiereform.h"
#include "messanbieter.h"
#include "messtakt.h"
#include "seiteneinrichtung.h"
#include "texte.h"
#include "textmitwerten.h"
#include "textschutz.h"
#include "ui_frmVerlauf.h"
#include "umgebung.h"
#include "verlaufsdruck.h"
#include "zeitachse.h"
#include "zeitworte.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QShortcut>
#include <QSignalBlocker>

#include <array>
#include <iterator>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextTitel = 6300, TextWiedergabe = 6302, TextEigener = 6343, TextKopiert = 6348,
                       TextFilter = 6349, TextSpeichernUnter = 6353, TextSchreibt = 6354,
                       TextGespeichert = 6355, TextGekuerzt = 6356, TextNichtGedruckt = 6357,
                       TextNotizGesetzt = 6359, TextNotiztext = 6360, TextKeinDrucker = 9739,
                       TextErstesOptikteil = 5200, TextErsterWert = 4006;

constexpr const char* Abschnitt = "frmVerlauf";
constexpr const char* Dateiname = "verlauf.csv";
constexpr QSize Anfangsgroesse(1080, 680);

struct Breite {
    Zeit zeit;
    std::int16_t text;
};
constexpr Breite DieBreiten[] = {{std::chrono::minutes(1), 6334},  {std::chrono::minutes(5), 6335},
                                 {std::chrono::minutes(15), 6336}, {std::chrono::hours(1), 6337},
                                 {std::chrono::hours(8), 6338},    {std::chrono::hours(24), 6339}};

// What is done at one go, so that the next request never waits for it.
constexpr int PaketeJeBlick = 4;
constexpr Zeit LaengsterSchritt = std::chrono::milliseconds(2);

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

QString Text(std::int16_t id) {
    return Q(LadeText(id));
}

bool FrageNachDrucker(QPrinter& drucker, QWidget& fenster) {
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        ZeigeWarnung(LadeText(TextKeinDrucker));
        return false;
    }
    return QPrintDialog(&drucker, &fenster).exec() == QDialog::Accepted;
}

} // namespace

frmVerlauf::frmVerlauf(Messanbieter& derAnbieter)
    : ui(std::make_unique<Ui::frmVerlauf>()), anbieter(derAnbieter) {
    ui->setupUi(this);
    BaueTafel();
    LiesEinstellungen();
    StelleFensterHer(*this, Abschnitt, Anfangsgroesse);
    takt = new Messtakt(anbieter, *this);
    VerbindeWahl();
    VerbindeBild();
    VerbindeKnoepfe();
    BrichAb();
    ui->Bild->SetzeAnbieter(anbieter);
    Lokalisiere();
    Erneuere();
    ui->Bild->setFocus();
}

frmVerlauf::~frmVerlauf() = default;

/// A row for each value, a column for each part.
void frmVerlauf::BaueTafel() {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
        auto* const kopf = new QLabel(ui->grpKurven);
        kopf->setObjectName(QStringLiteral("lblTeil_%1").arg(teil));
        ui->Kurventafel->addWidget(kopf, 0, teil + 1, Qt::AlignHCenter);
    }
    for (int wert = 0; wert < AnzahlKurvenwerte; ++wert) {
        auto* const name = new QLabel(ui->grpKurven);
        name->setObjectName(QStringLiteral("lblWert_%1").arg(wert));
        ui->Kurventafel->addWidget(name, wert + 1, 0);
    }
    for (int i = 0; i < AnzahlMessreihen; ++i) {
        auto* const kreuz = new QCheckBox(ui->grpKurven);
        kreuz->setObjectName(QStringLiteral("chkKurve_%1").arg(i));
        ui->Kurventafel->addWidget(kreuz, ReiheAn(i).wert + 1, ReiheAn(i).teil + 1, Qt::AlignHCenter);
    }
}

QCheckBox& frmVerlauf::Kreuz(int stelle) const {
    const Messreihe reihe = ReiheAn(stelle);
    QLayoutItem* const platz = ui->Kurventafel->itemAtPosition(reihe.wert + 1, reihe.teil + 1);
    return static_cast<QCheckBox&>(*platz->widget());
}

void frmVerlauf::VerbindeWahl() {
    for (int i = 0; i < AnzahlMessreihen; ++i)
        connect(&Kreuz(i), &QCheckBox::toggled, this, &frmVerlauf::UebernimmWahl);
    for (QCheckBox* const kreuz : {ui->chkBand, ui->chkZustaende, ui->chkMillimeter})
        connect(kreuz, &QCheckBox::toggled, this, &frmVerlauf::UebernimmWahl);
    connect(ui->cboBreite, &QComboBox::activated, this,
            [this](int stelle) { ui->Bild->SetzeBreite(DieBreiten[stelle].zeit); });
    connect(ui->chkFolgen, &QCheckBox::clicked, ui->Bild, &Verlaufsbild::Folge);
    connect(ui->cmdAlles, &QPushButton::clicked, ui->Bild, &Verlaufsbild::ZeigeAlles);
}

void frmVerlauf::VerbindeBild() {
    connect(takt, &Messtakt::Ersetzt, this, &frmVerlauf::BeginneNeu);
    connect(takt, &Messtakt::Gewachsen, this, &frmVerlauf::Erneuere);
    connect(ui->Bild, &Verlaufsbild::Angesehen, this, &frmVerlauf::ZeigeWorte);
    connect(ui->Bild, &Verlaufsbild::Geblickt, this, &frmVerlauf::ZeigeBlick);
    connect(ui->Bild, &Verlaufsbild::Angeklickt, this,
            [this](qint64 laufzeit) { anbieter.SpringeZu(Zeit(laufzeit)); });
}

void frmVerlauf::VerbindeKnoepfe() {
    const std::pair<QPushButton*, std::function<void()>> knoepfe[] = {
        {ui->cmdMarkeA, [this] { ui->Bild->SetzeMarke(false); }},
        {ui->cmdMarkeB, [this] { ui->Bild->SetzeMarke(true); }},
        {ui->cmdMarkenWeg, [this] { ui->Bild->LoescheMarken(); }},
        {ui->cmdNotizJetzt, [this] { Notiere(false); }},
        {ui->cmdNotizZeiger, [this] { Notiere(true); }},
        {ui->cmdKopieren, [this] { KopiereBild(); }},
        {ui->cmdSpeichern, [this] { Speichere(); }},
        {ui->cmdDrucken, [this] { Drucke(); }},
        {ui->cmdCancel, [this] { BrichAb(); }},
        {ui->cmdSchliessen, [this] { close(); }},
    };
    for (const auto& [knopf, tat] : knoepfe)
        connect(knopf, &QPushButton::clicked, this, tat);
    connect(ui->txtNotiz, &QLineEdit::textChanged, this, &frmVerlauf::ZeigeWorte);
    connect(ui->txtNotiz, &QLineEdit::returnPressed, this, [this] { Notiere(false); });
    const std::pair<QKeySequence, std::function<void()>> tasten[] = {
        {QKeySequence::Copy, [this] { KopiereBild(); }},
        {QKeySequence::Save, [this] { Speichere(); }},
        {QKeySequence::Print, [this] { Drucke(); }},
        {Qt::Key_Escape, [this] { schreiber ? BrichAb() : static_cast<void>(close()); }},
    };
    for (const auto& [taste, tat] : tasten)
        connect(new QShortcut(taste, this), &QShortcut::activated, this, tat);
}

void frmVerlauf::LiesEinstellungen() {
    Einstellungen& einstellungen = DieEinstellungen();
    Verlaufswahl wahl;
    const int kurven = einstellungen.LiesZahl(Abschnitt, "Kurven", -1);
    selbstGewaehlt = kurven >= 0;
    wahl.kurven = selbstGewaehlt ? static_cast<std::uint32_t>(kurven) & ((1U << AnzahlMessreihen) - 1) : 0;
    wahl.band = einstellungen.LiesZahl(Abschnitt, "Band", 1) != 0;
    wahl.zustaende = einstellungen.LiesZahl(Abschnitt, "Zustaende", 1) != 0;
    wahl.millimeter = einstellungen.LiesZahl(Abschnitt, "Millimeter", 0) != 0;
    ui->Bild->SetzeWahl(wahl);
    const int sekunden = einstellungen.LiesZahl(Abschnitt, "Sekunden", 0);
    for (const Breite& breite : DieBreiten)
        if (breite.zeit == std::chrono::seconds(sekunden))
            ui->Bild->SetzeBreite(breite.zeit);
}

void frmVerlauf::SchreibEinstellungen() const {
    const Verlaufswahl& wahl = ui->Bild->Wahl();
    const auto sekunden = std::chrono::round<std::chrono::seconds>(ui->Bild->Blick().Breite()).count();
    const std::pair<const char*, int> werte[] = {
        {"Kurven", selbstGewaehlt ? static_cast<int>(wahl.kurven) : -1},
        {"Band", wahl.band ? 1 : 0},
        {"Zustaende", wahl.zustaende ? 1 : 0},
        {"Millimeter", wahl.millimeter ? 1 : 0},
        {"Sekunden", static_cast<int>(sekunden)}};
    for (const auto& [schluessel, wert] : werte)
        DieEinstellungen().SchreibText(Abschnitt, schluessel, std::to_string(wert));
}

void frmVerlauf::BeginneNeu() {
    BrichAb();
    anfangGewaehlt = false;
    ui->Bild->Beginne();
    ZeigeTitel();
    Erneuere();
}

void frmVerlauf::Erneuere() {
    WaehleAnfang();
    ui->Bild->Erneuere();
}

/// Until the user chooses himself: TU, HU and ZU of the first part that is there.
void frmVerlauf::WaehleAnfang() {
    const bool gibtEs = anbieter.Quelle().Erstes() != anbieter.Quelle().Ende();
    if (selbstGewaehlt || anfangGewaehlt)
        return;
    anfangGewaehlt = gibtEs;
    Verlaufswahl wahl = ui->Bild->Wahl();
    wahl.kurven = AnfangswahlFuer(ErsterTeil(anbieter.Quelle())).kurven;
    if (wahl != ui->Bild->Wahl())
        ui->Bild->SetzeWahl(wahl);
    ZeigeWahl();
}

void frmVerlauf::UebernimmWahl() {
    Verlaufswahl wahl;
    for (int i = 0; i < AnzahlMessreihen; ++i)
        wahl.Setze(ReiheAn(i), Kreuz(i).isChecked());
    wahl.band = ui->chkBand->isChecked();
    wahl.zustaende = ui->chkZustaende->isChecked();
    wahl.millimeter = ui->chkMillimeter->isChecked();
    selbstGewaehlt |= wahl.kurven != ui->Bild->Wahl().kurven;
    ui->Bild->SetzeWahl(wahl);
}

void frmVerlauf::ZeigeWahl() {
    const Verlaufswahl wahl = ui->Bild->Wahl();
    const auto zeige = [](QCheckBox& kreuz, bool an) {
        const QSignalBlocker stumm(kreuz);
        kreuz.setChecked(an);
    };
    for (int i = 0; i < AnzahlMessreihen; ++i)
        zeige(Kreuz(i), wahl.Hat(ReiheAn(i)));
    zeige(*ui->chkBand, wahl.band);
    zeige(*ui->chkZustaende, wahl.zustaende);
    zeige(*ui->chkMillimeter, wahl.millimeter);
}

void frmVerlauf::showEvent(QShowEvent* ereignis) {
    QWidget::showEvent(ereignis);
    VerfolgePlatz(*this);
}

void frmVerlauf::closeEvent(QCloseEvent* ereignis) {
    BrichAb();
    BewahreFensterplatz(*this, Abschnitt);
    SchreibEinstellungen();
    QWidget::closeEvent(ereignis);
}

void frmVerlauf::ZeigeVor() {
    HoleNachVorn(*this);
}

bool frmVerlauf::Braucht(int teil) const {
    return isVisible() && ui->Bild->Wahl().HatTeil(teil);
}

void frmVerlauf::Lokalisiere() {
    LokalisiereForm(*this);
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        findChild<QLabel*>(QStringLiteral("lblTeil_%1").arg(teil))
            ->setText(Text(static_cast<std::int16_t>(TextErstesOptikteil + teil)));
    for (int wert = 0; wert < AnzahlKurvenwerte; ++wert)
        findChild<QLabel*>(QStringLiteral("lblWert_%1").arg(wert))
            ->setText(Text(static_cast<std::int16_t>(TextErsterWert + wert)));
    for (int i = 0; i < AnzahlMessreihen; ++i) {
        Kreuz(i).setAccessibleName(Q(Reihenname(ReiheAn(i))));
        Kreuz(i).setToolTip(Q(Reihenname(ReiheAn(i))));
    }
    ui->txtNotiz->setPlaceholderText(Text(TextNotiztext));
    ui->txtNotiz->setAccessibleName(Text(TextNotiztext));
    FuelleBreiten();
    ui->Bild->Lokalisiere();
    ui->lblMeldung->clear();
    ZeigeWahl();
    ZeigeTitel();
    ZeigeBlick();
    ZeigeWorte();
}

void frmVerlauf::ZeigeTitel() {
    setWindowTitle(Text(anbieter.IstWiedergabe() ? TextWiedergabe : TextTitel));
}

void frmVerlauf::FuelleBreiten() {
    const QSignalBlocker stumm(ui->cboBreite);
    ui->cboBreite->clear();
    for (const Breite& breite : DieBreiten)
        ui->cboBreite->addItem(Text(breite.text));
    ui->cboBreite->setPlaceholderText(Text(TextEigener));
    ui->cboBreite->setAccessibleName(ui->grpZeit->title());
}

void frmVerlauf::ZeigeBlick() {
    const Verlaufsblick& blick = ui->Bild->Blick();
    int stelle = -1;
    for (std::size_t i = 0; i < std::size(DieBreiten); ++i)
        if (DieBreiten[i].zeit == blick.Breite() && !blick.ZeigtAlles())
            stelle = static_cast<int>(i);
    ui->cboBreite->setCurrentIndex(stelle);
    ui->chkFolgen->setChecked(blick.Folgt());
}

void frmVerlauf::ZeigeWorte() {
    ui->lblZeiger->setText(ui->Bild->Zeigerworte());
    ui->lblMarken->setText(ui->Bild->Markenworte());
    const bool zeiger = ui->Bild->Zeiger().has_value();
    ui->cmdMarkeA->setEnabled(zeiger);
    ui->cmdMarkeB->setEnabled(zeiger);
    ui->cmdMarkenWeg->setEnabled(!ui->Bild->Markenworte().isEmpty());
    const bool text = !ui->txtNotiz->text().trimmed().isEmpty();
    const bool notierbar = text && !anbieter.IstWiedergabe();
    ui->cmdNotizJetzt->setEnabled(notierbar);
    ui->cmdNotizZeiger->setEnabled(notierbar && zeiger);
}

void frmVerlauf::ZeigeMeldung(const std::string& text) {
    ui->lblMeldung->setText(Q(text));
}

void frmVerlauf::Notiere(bool amZeiger) {
    const std::string text = Einzeilig(ui->txtNotiz->text().trimmed().toStdString());
    if (text.empty() || anbieter.IstWiedergabe())
        return;
    const Zeit laufzeit = amZeiger ? ui->Bild->Zeiger().value_or(anbieter.Jetzt()) : anbieter.Jetzt();
    anbieter.Notiere(laufzeit, text);
    ui->txtNotiz->clear();
    ui->Bild->SiehNotizNach(laufzeit);
    ZeigeMeldung(LadeText(TextNotizGesetzt));
}

void frmVerlauf::KopiereBild() {
    const double dichte = devicePixelRatioF();
    QImage bild((QSizeF(ui->Bild->size()) * dichte).toSize(), QImage::Format_RGB32);
    bild.setDevicePixelRatio(dichte);
    QPainter maler(&bild);
    ui->Bild->Male(maler, palette());
    maler.end();
    QGuiApplication::clipboard()->setImage(bild);
    ZeigeMeldung(LadeText(TextKopiert));
}

/// What stands above the picture on paper.
QString frmVerlauf::Ueberschrift() const {
    const Messangaben angaben = anbieter.Quelle().Angaben();
    const Zeitspanne spanne = ui->Bild->Spanne();
    QStringList teile{windowTitle()};
    for (const std::string& teil : {angaben.bezeichnung, angaben.seriennummer})
        if (!teil.empty())
            teile.append(Q(Einzeilig(teil)));
    for (const Zeit zeit : {spanne.von, spanne.bis})
        teile.append(Q(Zeitworte(angaben, zeit)));
    return teile.join(QStringLiteral("   "));
}

void frmVerlauf::Drucke() {
    QPrinter drucker(QPrinter::HighResolution);
    RichteSeiteEin(drucker, QPageLayout::Landscape);
    drucker.setDocName(windowTitle());
    const bool gewaehlt = druckerwahl ? druckerwahl(drucker) : FrageNachDrucker(drucker, *this);
    if (gewaehlt && !DruckeVerlauf(*ui->Bild, Ueberschrift(), drucker))
        ZeigeWarnung(LadeText(TextNichtGedruckt));
}

void frmVerlauf::Speichere() {
    const auto ziel = anbieter.FrageNachDatei(LadeText(TextSpeichernUnter), LadeText(TextFilter), Dateiname);
    if (!ziel)
        return;
    BrichAb();
    pfad = *ziel;
    schreiber.emplace(ui->Bild->Wahl(), ui->Bild->Abstaende(), ui->Bild->Spanne());
    ui->cmdCancel->show();
    Plane();
}

void frmVerlauf::Plane() {
    if (!std::exchange(geplant, true))
        DieUmgebung().FuerWartezeit([fenster = QPointer(this)] {
            if (fenster == nullptr)
                return;
            fenster->geplant = false;
            fenster->SchreibeWeiter();
        });
}

void frmVerlauf::SchreibeWeiter() {
    if (!schreiber)
        return;
    const Messquelle& quelle = anbieter.Quelle();
    const Zeit ende = DieUmgebung().Uhr() + LaengsterSchritt;
    do
        schreiber->Weiter(quelle, PaketeJeBlick);
    while (!schreiber->IstFertig() && DieUmgebung().Uhr() < ende);
    ZeigeMeldung(LadeTextMit(TextSchreibt, {std::to_string(schreiber->Prozent(quelle))}));
    if (!schreiber->IstFertig())
        return Plane();
    const Verlaufsschreiber fertiger = std::move(*schreiber);
    BrichAb();
    if (anbieter.Schreibe(pfad, fertiger.Text()))
        ZeigeMeldung(LadeTextMit(fertiger.IstGekuerzt() ? TextGekuerzt : TextGespeichert,
                                 {std::to_string(fertiger.Zeilen()), pfad}));
}

void frmVerlauf::BrichAb() {
    if (schreiber)
        ui->lblMeldung->clear();
    schreiber.reset();
    ui->cmdCancel->hide();
}

} // namespace varnoth
