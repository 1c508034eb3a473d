#include "frmSimulation.h"

#include "ui_frmSimulation.h"

#include "autosendbudget.h"
#include "eingabe.h"
#include "formeln.h"
#include "gebietszahl.h"
#include "lokalisiereform.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "strahlfarben.h"
#include "texte.h"
#include "zykluszeiten.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace varnoth {

namespace {

constexpr double MikrosekundenJeMs = 1000;
constexpr std::int16_t TextDiagramm = 8001;
constexpr std::int16_t ErsterLochtext = 8040;
constexpr std::int16_t LetzterLochtext = 8047;

// As wide as a number becomes here: 15 digits after "0,0".
constexpr QLatin1String LaengsteZahl("0,0000000000000000");

// By so much a text field would be wider than a number that can be typed.
constexpr QLatin1String Ueberlaenge("xxxxx");

QString Text(std::int16_t id) {
    return QString::fromStdString(LadeText(id));
}

void BietePlatz(QWidget& element, const QString& text) {
    const int breite = element.fontMetrics().horizontalAdvance(text);
    element.setMinimumWidth(std::max(element.minimumWidth(), breite));
}

/// Makes labels in one column equally wide, also where they stand in different frames.
void GleicheAn(std::initializer_list<QLabel*> spalte) {
    int breite = 0;
    for (const QLabel* const feld : spalte)
        breite = std::max(breite, feld->sizeHint().width());
    for (QLabel* const feld : spalte)
        feld->setMinimumWidth(breite);
}

std::int32_t Strahlabstand(int optikteil) {
    return modDaten::HoleRegister(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Aufloesung,
                                  optikteil);
}

/// What is no number gets the colour that elsewhere means interrupted.
void ZeigeLesbar(QLineEdit& feld, bool lesbar) {
    QPalette farben = feld.parentWidget()->palette();
    if (!lesbar)
        farben.setColor(QPalette::Text, FarbenAus(farben).unterbrochen);
    if (feld.palette().color(QPalette::Text) != farben.color(QPalette::Text))
        feld.setPalette(lesbar ? QPalette() : farben);
}

std::int32_t Baudrate() {
    return AutosendBaudrate(
        modDaten::HoleRegister(Speicherbereich::Kommunikationsdaten, kommunikation::Autosendformat));
}

} // namespace

frmSimulation::frmSimulation(QWidget* parent, const QLocale& zahlengebiet)
    : QDialog(parent), ui(std::make_unique<Ui::frmSimulation>()), gebiet(zahlengebiet) {
    ui->setupUi(this);
    LokalisiereForm(*this);
    ui->Bild->SetzeGebiet(gebiet);
    ui->Bild->setAccessibleName(Text(TextDiagramm));
    ReservierePlatz();
    Verbinde();
    ZeigeAutosend();
    WaehleErstenTeil();
    ui->txtFormel1L->setFocus();
}

frmSimulation::~frmSimulation() = default;

// What is computed must not move what is typed.
void frmSimulation::ReservierePlatz() {
    for (QLabel* const ergebnis :
         {ui->lblFormel1vmax, ui->lblFormel2Lmin, ui->lblMinimalerLochdurchmesser, ui->lblFormel4vmax})
        BietePlatz(*ergebnis, LaengsteZahl);
    for (std::int16_t id = ErsterLochtext; id <= LetzterLochtext; ++id)
        BietePlatz(*ui->lblFormel4, Text(id));
    for (QLineEdit* const feld :
         {ui->txtFormel1L, ui->txtFormel2v, ui->txtFormel4, ui->txtlblGeschwindigkeit})
        feld->setFixedWidth(feld->sizeHint().width() - feld->fontMetrics().horizontalAdvance(Ueberlaenge));
    GleicheAn({ui->lblFormel1Eingabe, ui->lblFormel2Eingabe, ui->lblFormel3Eingabe, ui->lblFormel4Eingabe});
    GleicheAn({ui->lblFormel1Einheit, ui->lblFormel2Einheit, ui->lblFormel3Einheit, ui->lblFormel4Einheit});
}

std::array<QRadioButton*, AnzahlOptikteile> frmSimulation::Optionen() const {
    return {ui->optKx_0, ui->optKx_1, ui->optKx_2, ui->optKx_3};
}

void frmSimulation::Verbinde() {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        connect(Optionen().at(static_cast<std::size_t>(teil)), &QRadioButton::toggled, this,
                [this, teil](bool gewaehlt) {
                    if (gewaehlt)
                        WaehleTeil(teil);
                });
    const std::pair<QLineEdit*, void (frmSimulation::*)()> felder[] = {
        {ui->txtFormel1L, &frmSimulation::RechneLaenge},
        {ui->txtFormel2v, &frmSimulation::RechneGeschwindigkeit},
        {ui->txtFormel4, &frmSimulation::RechneLochdurchmesser},
        {ui->txtlblGeschwindigkeit, &frmSimulation::RechneLochgeschwindigkeit},
    };
    for (const auto& [feld, rechne] : felder)
        connect(feld, &QLineEdit::textChanged, this, rechne);
    connect(ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmSimulation::ZeigeAutosend() {
    const std::int32_t baudrate = Baudrate();
    const double tzl = modHilfsFunktionen::GetGesamtzykluszeit() / MikrosekundenJeMs;
    ZeigeZahl(*ui->lblAutosendBaudrateWert, baudrate);
    ZeigeZahl(*ui->lblZykluszeitLaengsteWert, tzl);
    ZeigeZahl(*ui->lblBmax, UebertragbareBytes(tzl, baudrate));
}

void frmSimulation::WaehleErstenTeil() {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        if (modHilfsFunktionen::GetZykluszeit(teil) > 0) {
            Optionen().at(static_cast<std::size_t>(teil))->setChecked(true);
            return;
        }
    RechneAlles();
}

void frmSimulation::WaehleTeil(int optikteil) {
    tz = modHilfsFunktionen::GetZykluszeit(optikteil) / MikrosekundenJeMs;
    strahlabstand = Strahlabstand(optikteil);
    ZeigeZahl(*ui->lblZykluszeitWert, tz);
    ZeigeZahl(*ui->lblStrahlabstandWert, strahlabstand);
    RechneAlles();
}

void frmSimulation::RechneAlles() {
    RechneLaenge();
    RechneGeschwindigkeit();
    RechneLochdurchmesser();
    RechneLochgeschwindigkeit();
}

void frmSimulation::RechneLaenge() {
    const auto laenge = Eingabe(*ui->txtFormel1L);
    const auto vmax = laenge ? MaximaleGeschwindigkeit(*laenge, tz) : std::nullopt;
    ZeigeZahl(*ui->lblFormel1vmax, vmax);
    Markiere(Laenge, Kurvenart::Objekt, laenge, vmax);
}

void frmSimulation::RechneGeschwindigkeit() {
    const auto v = Eingabe(*ui->txtFormel2v);
    const auto laenge = v ? MinimaleLaenge(*v, tz) : std::nullopt;
    ZeigeZahl(*ui->lblFormel2Lmin, laenge);
    Markiere(Geschwindigkeit, Kurvenart::Objekt, laenge, v);
}

void frmSimulation::RechneLochdurchmesser() {
    const auto durchmesser = Eingabe(*ui->txtFormel4);
    const auto ergebnis =
        durchmesser ? MaximaleLochgeschwindigkeit(*durchmesser, tz, strahlabstand) : Lochergebnis{};
    ZeigeZahl(*ui->lblFormel4vmax, ergebnis.vmax);
    ui->lblFormel4->setText(Text(ergebnis.text));
    Markiere(Lochdurchmesser, Kurvenart::Loch, durchmesser, ergebnis.vmax);
}

void frmSimulation::RechneLochgeschwindigkeit() {
    const auto v = Eingabe(*ui->txtlblGeschwindigkeit);
    const auto durchmesser = v ? MinimalerLochdurchmesser(*v, tz, strahlabstand) : std::nullopt;
    ZeigeZahl(*ui->lblMinimalerLochdurchmesser, durchmesser);
    Markiere(Lochgeschwindigkeit, Kurvenart::Loch, durchmesser, v);
}

std::optional<double> frmSimulation::Eingabe(QLineEdit& feld) const {
    const auto zahl = LiesEingabe(feld.text(), gebiet);
    ZeigeLesbar(feld, zahl || feld.text().isEmpty());
    return zahl;
}

void frmSimulation::ZeigeZahl(QLabel& feld, std::optional<double> zahl) const {
    const QString text = zahl ? QString::fromStdString(Gebietszahl(*zahl, gebiet)) : QString();
    if (feld.text() != text)
        feld.setText(text);
}

void frmSimulation::Markiere(Feldindex feld, Kurvenart art, std::optional<double> groesse,
                             std::optional<double> geschwindigkeit) {
    marken[feld].reset();
    if (groesse && geschwindigkeit)
        marken[feld] = Marke{art, {*groesse, *geschwindigkeit}};
    ZeigeDiagramm();
}

void frmSimulation::ZeigeDiagramm() {
    std::vector<Marke> sichtbare;
    for (const auto& marke : marken)
        if (marke)
            sichtbare.push_back(*marke);
    ui->Bild->Zeige(DiagrammFuer(tz, strahlabstand, sichtbare));
}

} // namespace varnoth
