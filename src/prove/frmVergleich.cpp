#include "frmVergleich.h"

#include "fensterplatz.h"
#include "lokalisiereform.h"
#include "registerabbild.h"
#include "seitenjetzt.h"
#include "texte.h"
#include "textmitwerten.h"
#include "tipptext.h"
#include "ui_frmVergleich.h"
#include "umgebung.h"
#include "vergleichsanbieter.h"
#include "vergleichsdruck.h"
#include "zeilenhoehe.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QShortcut>
#include <QSignalBlocker>

#include <algorithm>
#include <functional>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextUebernehmen = 9583;
constexpr std::int16_t TextUebernommen = 9590;
constexpr std::int16_t TextNurEineSeite = 9593;

constexpr const char* Abschnitt = "frmVergleich";

enum Spalte { SpalteName, SpalteA, SpalteB, SpalteRegister };
constexpr int NummerRolle = Qt::UserRole;
constexpr QSize Anfangsgroesse(980, 640);

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

bool Unterscheidet(const Vergleichsworte& zeile) {
    return zeile.klasse != Vergleichsklasse::Gleich;
}

void SetzeText(QTreeWidgetItem& zeile, int spalte, const std::string& text) {
    zeile.setText(spalte, Q(text));
    zeile.setToolTip(spalte, AlsTipp(Q(text)));
}

bool IstAnkreuzbar(const QTreeWidgetItem& zeile) {
    return zeile.data(SpalteName, Qt::CheckStateRole).isValid();
}

std::string Zeilentext(const Vergleichsworte& zeile) {
    return zeile.gruppe + "\t" + zeile.name + "\t" + zeile.a + "\t" + zeile.b + "\t" + zeile.registertext +
           "\n";
}

} // namespace

frmVergleich::frmVergleich(Vergleichsanbieter& quellen)
    : ui(std::make_unique<Ui::frmVergleich>()), anbieter(quellen) {
    ui->setupUi(this);
    GibZeilenLuft(*ui->trvVergleich);
    StelleFensterHer(*this, Abschnitt, Anfangsgroesse);
    BemisSpalten();
    for (const Seitenwahl wahl : BeideSeiten)
        connect(&Quellenliste(wahl), &QComboBox::activated, this,
                [this, wahl](int platz) { WaehleQuelle(wahl, platz); });
    connect(ui->chkNurUnterschiede, &QCheckBox::toggled, this, [this] { WendeFilterAn(); });
    connect(ui->txtSuchen, &QLineEdit::textChanged, this, [this] { WendeFilterAn(); });
    connect(ui->trvVergleich, &QTreeWidget::itemChanged, this, [this] { ZeigeAuswahl(); });
    VerbindeKnoepfe();
    VerbindeTasten();
    const bool gelesen = IstBekannt(Vergleichsquelle::ZuletztGelesen);
    paar.Setze(Seitenwahl::A,
               SeiteJetzt(gelesen ? Vergleichsquelle::ZuletztGelesen : Vergleichsquelle::Werksvorgabe));
    paar.Setze(Seitenwahl::B, SeiteJetzt(Vergleichsquelle::InBearbeitung));
    Lokalisiere();
    ui->trvVergleich->setFocus();
}

frmVergleich::~frmVergleich() = default;

void frmVergleich::showEvent(QShowEvent* ereignis) {
    QWidget::showEvent(ereignis);
    VerfolgePlatz(*this);
}

void frmVergleich::closeEvent(QCloseEvent* ereignis) {
    BewahreFensterplatz(*this, Abschnitt);
    QWidget::closeEvent(ereignis);
}

/// The values share what names and registers leave.
void frmVergleich::BemisSpalten() {
    QHeaderView& kopf = *ui->trvVergleich->header();
    kopf.setStretchLastSection(false);
    for (const int spalte : {SpalteName, SpalteRegister})
        kopf.setSectionResizeMode(spalte, QHeaderView::ResizeToContents);
    for (const int spalte : {SpalteA, SpalteB})
        kopf.setSectionResizeMode(spalte, QHeaderView::Stretch);
}

QComboBox& frmVergleich::Quellenliste(Seitenwahl wahl) const {
    return wahl == Seitenwahl::A ? *ui->cboSeiteA : *ui->cboSeiteB;
}

QLabel& frmVergleich::Einzelheit(Seitenwahl wahl) const {
    return wahl == Seitenwahl::A ? *ui->lblEinzelheitA : *ui->lblEinzelheitB;
}

void frmVergleich::VerbindeKnoepfe() {
    const std::pair<QPushButton*, std::function<void()>> knoepfe[] = {
        {ui->cmdVoriger, [this] { Springe(-1); }},
        {ui->cmdNaechster, [this] { Springe(1); }},
        {ui->cmdAlle, [this] { KreuzeGezeigteAn(); }},
        {ui->cmdUebernehmen, [this] { Uebernimm(); }},
        {ui->cmdKopieren, [this] { Kopiere(); }},
        {ui->cmdDrucken, [this] { Drucke(); }},
        {ui->cmdSpeichern, [this] { anbieter.SpeichereText(paar.Text(Gezeigte())); }},
        {ui->cmdSchliessen, [this] { close(); }},
    };
    for (const auto& [knopf, tat] : knoepfe)
        connect(knopf, &QPushButton::clicked, this, tat);
}

void frmVergleich::VerbindeTasten() {
    const std::pair<QKeySequence, std::function<void()>> tasten[] = {
        {Qt::Key_F7, [this] { Springe(1); }},
        {Qt::SHIFT | Qt::Key_F7, [this] { Springe(-1); }},
        {QKeySequence::Find, [this] { ui->txtSuchen->setFocus(), ui->txtSuchen->selectAll(); }},
        {QKeySequence::Print, [this] { Drucke(); }},
        {QKeySequence::Save, [this] { ui->cmdSpeichern->click(); }},
        {Qt::Key_Escape, [this] { close(); }},
    };
    for (const auto& [taste, tat] : tasten)
        connect(new QShortcut(taste, this), &QShortcut::activated, this, tat);
    auto* const kopieren =
        new QShortcut(QKeySequence::Copy, ui->trvVergleich, nullptr, nullptr, Qt::WidgetShortcut);
    connect(kopieren, &QShortcut::activated, this, [this] { Kopiere(); });
}

void frmVergleich::WaehleQuelle(Seitenwahl wahl, int platz) {
    const auto quelle = static_cast<Vergleichsquelle>(Quellenliste(wahl).itemData(platz).toInt());
    if (!FragtNach(quelle)) {
        Setze(wahl, SeiteJetzt(quelle));
        return;
    }
    FuelleQuellen(wahl);
    anbieter.Verlange(quelle, wahl);
}

void frmVergleich::Setze(Seitenwahl wahl, const Vergleichsseite& seite) {
    paar.Setze(wahl, seite);
    ui->lblErgebnis->clear();
    Zeige();
}

void frmVergleich::Erneuere() {
    bool neu = false;
    for (const Seitenwahl wahl : BeideSeiten) {
        const Vergleichsquelle quelle = paar.Seite(wahl).quelle;
        if (FragtNach(quelle) || quelle == Vergleichsquelle::Werksvorgabe)
            continue;
        Vergleichsseite jetzt = SeiteJetzt(quelle);
        if (jetzt == paar.Seite(wahl))
            continue;
        paar.Setze(wahl, std::move(jetzt));
        neu = true;
    }
    if (neu)
        Zeige();
}

void frmVergleich::Lokalisiere() {
    LokalisiereForm(*this);
    ui->lblErgebnis->clear();
    Zeige();
}

void frmVergleich::ZeigeVor() {
    Erneuere();
    HoleNachVorn(*this);
}

/// Another program's window may have been in front for hours.
void frmVergleich::changeEvent(QEvent* ereignis) {
    QWidget::changeEvent(ereignis);
    if (ereignis->type() == QEvent::ActivationChange && isActiveWindow())
        Erneuere();
}

void frmVergleich::Zeige() {
    ZeigeKopf();
    FuelleBaum();
    WendeFilterAn();
}

void frmVergleich::FuelleQuellen(Seitenwahl wahl) {
    QComboBox& liste = Quellenliste(wahl);
    const Vergleichsquelle gezeigte = paar.Seite(wahl).quelle;
    const auto fragbare = anbieter.Fragbare();
    liste.clear();
    for (const Vergleichsquelle quelle : AlleVergleichsquellen)
        if (quelle == gezeigte || IstBekannt(quelle) || std::ranges::find(fragbare, quelle) != fragbare.end())
            liste.addItem(Q(Quellenname(quelle)), static_cast<int>(quelle));
    liste.setCurrentIndex(liste.findData(static_cast<int>(gezeigte)));
}

void frmVergleich::ZeigeKopf() {
    for (const Seitenwahl wahl : BeideSeiten) {
        FuelleQuellen(wahl);
        const QString einzelheit = Q(paar.Seite(wahl).einzelheit);
        Einzelheit(wahl).setText(einzelheit);
        Einzelheit(wahl).setToolTip(AlsTipp(einzelheit));
    }
    setWindowTitle(Q(paar.Titel()));
    QTreeWidgetItem& kopf = *ui->trvVergleich->headerItem();
    SetzeText(kopf, SpalteA, Seitenname(paar.Seite(Seitenwahl::A)));
    SetzeText(kopf, SpalteB, Seitenname(paar.Seite(Seitenwahl::B)));
    ui->lblBefund->setText(Q(Vergleichsbefund(paar.Ergebnis())));
    ui->lblAnzahlen->setText(Q(Klassenanzahlen(paar.Ergebnis())));
}

/// The rows, and in them what was ticked before and still can be.
void frmVergleich::FuelleBaum() {
    const Parametermenge angekreuzte = Angekreuzte();
    const QSignalBlocker stumm(ui->trvVergleich);
    ui->trvVergleich->clear();
    zeilen = paar.Zeilen();
    QList<QTreeWidgetItem*> gruppen;
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        if (i == 0 || zeilen[i].gruppe != zeilen[i - 1].gruppe)
            gruppen.append(new QTreeWidgetItem({Q(zeilen[i].gruppe)}));
        gruppen.back()->addChild(NeueZeile(i, angekreuzte.contains(zeilen[i].stelle)));
    }
    ui->trvVergleich->addTopLevelItems(gruppen);
    for (QTreeWidgetItem* const gruppe : gruppen)
        gruppe->setFirstColumnSpanned(true);
    ui->trvVergleich->expandAll();
}

QTreeWidgetItem* frmVergleich::NeueZeile(std::size_t nummer, bool angekreuzt) {
    const Vergleichsworte& worte = zeilen[nummer];
    auto* const zeile = new QTreeWidgetItem;
    zeile->setData(SpalteName, NummerRolle, static_cast<int>(nummer));
    SetzeText(*zeile, SpalteName, worte.name);
    SetzeText(*zeile, SpalteA, worte.a);
    SetzeText(*zeile, SpalteB, worte.b);
    SetzeText(*zeile, SpalteRegister, worte.registertext);
    if (Unterscheidet(worte)) {
        QFont fett = font();
        fett.setBold(true);
        for (const int spalte : {SpalteName, SpalteA, SpalteB})
            zeile->setFont(spalte, fett);
    }
    if (paar.IstUebernehmbar(worte.stelle))
        zeile->setCheckState(SpalteName, angekreuzt ? Qt::Checked : Qt::Unchecked);
    return zeile;
}

bool frmVergleich::IstGezeigt(const Vergleichsworte& zeile) const {
    if (ui->chkNurUnterschiede->isChecked() && !Unterscheidet(zeile))
        return false;
    const QString gesucht = ui->txtSuchen->text().trimmed();
    if (gesucht.isEmpty())
        return true;
    return std::ranges::any_of(
        std::initializer_list<const std::string*>{&zeile.gruppe, &zeile.name, &zeile.a, &zeile.b,
                                                  &zeile.registertext},
        [&](const std::string* text) { return Q(*text).contains(gesucht, Qt::CaseInsensitive); });
}

void frmVergleich::WendeFilterAn() {
    for (int g = 0; g < ui->trvVergleich->topLevelItemCount(); ++g) {
        QTreeWidgetItem& gruppe = *ui->trvVergleich->topLevelItem(g);
        bool leer = true;
        for (int i = 0; i < gruppe.childCount(); ++i) {
            const bool gezeigt = IstGezeigt(Worte(*gruppe.child(i)));
            gruppe.child(i)->setHidden(!gezeigt);
            leer = leer && !gezeigt;
        }
        gruppe.setHidden(leer);
    }
    ZeigeAuswahl();
}

/// What is ticked but not shown is not taken over.
void frmVergleich::ZeigeAuswahl() {
    const auto alle = AlleZeilen();
    const bool ankreuzbar = std::ranges::any_of(
        alle, [](const QTreeWidgetItem* zeile) { return !zeile->isHidden() && IstAnkreuzbar(*zeile); });
    const std::size_t anzahl = Angekreuzte().size();
    ui->cmdUebernehmen->setText(Q(LadeTextMit(TextUebernehmen, {std::to_string(anzahl)})));
    ui->cmdUebernehmen->setEnabled(anzahl > 0);
    ui->cmdUebernehmen->setToolTip(paar.Geberseite() ? QString() : Q(LadeText(TextNurEineSeite)));
    ui->cmdAlle->setEnabled(ankreuzbar);
    const bool springbar = std::ranges::any_of(alle, [this](const QTreeWidgetItem* zeile) {
        return !zeile->isHidden() && Unterscheidet(Worte(*zeile));
    });
    ui->cmdVoriger->setEnabled(springbar);
    ui->cmdNaechster->setEnabled(springbar);
}

std::vector<QTreeWidgetItem*> frmVergleich::AlleZeilen() const {
    std::vector<QTreeWidgetItem*> alle;
    for (int g = 0; g < ui->trvVergleich->topLevelItemCount(); ++g)
        for (int i = 0; i < ui->trvVergleich->topLevelItem(g)->childCount(); ++i)
            alle.push_back(ui->trvVergleich->topLevelItem(g)->child(i));
    return alle;
}

const Vergleichsworte& frmVergleich::Worte(const QTreeWidgetItem& zeile) const {
    return zeilen.at(static_cast<std::size_t>(zeile.data(SpalteName, NummerRolle).toInt()));
}

Parametermenge frmVergleich::Angekreuzte() const {
    Parametermenge stellen;
    for (const QTreeWidgetItem* const zeile : AlleZeilen())
        if (!zeile->isHidden() && zeile->checkState(SpalteName) == Qt::Checked)
            stellen.insert(Worte(*zeile).stelle);
    return stellen;
}

/// The next or previous row that differs, from the current one on; after the last comes the first.
void frmVergleich::Springe(int richtung) {
    const auto alle = AlleZeilen();
    const auto anzahl = static_cast<int>(alle.size());
    const auto wo = std::ranges::find(alle, ui->trvVergleich->currentItem());
    int platz = wo == alle.end() ? (richtung > 0 ? -1 : anzahl) : static_cast<int>(wo - alle.begin());
    for (int schritt = 0; schritt < anzahl; ++schritt) {
        platz = (platz + richtung + anzahl) % anzahl;
        QTreeWidgetItem* const zeile = alle[static_cast<std::size_t>(platz)];
        if (zeile->isHidden() || !Unterscheidet(Worte(*zeile)))
            continue;
        ui->trvVergleich->setCurrentItem(zeile);
        ui->trvVergleich->scrollToItem(zeile);
        return;
    }
}

void frmVergleich::KreuzeGezeigteAn() {
    const QSignalBlocker stumm(ui->trvVergleich);
    for (QTreeWidgetItem* const zeile : AlleZeilen())
        if (!zeile->isHidden() && IstAnkreuzbar(*zeile))
            zeile->setCheckState(SpalteName, Qt::Checked);
    ZeigeAuswahl();
    ui->trvVergleich->viewport()->update();
}

void frmVergleich::Uebernimm() {
    const Parametermenge stellen = Angekreuzte();
    const Uebernahme uebernahme = paar.Uebernimm(modDaten::DasAbbild(), stellen);
    if (!uebernahme.unplausible.empty()) {
        ZeigeWarnung(Ablehnung(uebernahme), LadeText(TextAchtung));
        return;
    }
    modDaten::ErsetzeAbbild(uebernahme.abbild);
    modDaten::SetzeGeaendert();
    Erneuere();
    ui->lblErgebnis->setText(Q(LadeTextMit(TextUebernommen, {std::to_string(stellen.size())})));
}

std::vector<Vergleichsworte> frmVergleich::Gezeigte() const {
    std::vector<Vergleichsworte> gezeigte;
    std::ranges::copy_if(zeilen, std::back_inserter(gezeigte),
                         [this](const Vergleichsworte& zeile) { return IstGezeigt(zeile); });
    return gezeigte;
}

/// The rows that are selected, all that are shown where none is.
std::vector<Vergleichsworte> frmVergleich::Markierte() const {
    std::vector<Vergleichsworte> markierte;
    for (const QTreeWidgetItem* const zeile : AlleZeilen())
        if (zeile->isSelected() && !zeile->isHidden())
            markierte.push_back(Worte(*zeile));
    return markierte.empty() ? Gezeigte() : markierte;
}

void frmVergleich::Kopiere() {
    std::string text;
    for (const Vergleichsworte& zeile : Markierte())
        text += Zeilentext(zeile);
    QGuiApplication::clipboard()->setText(Q(text));
}

void frmVergleich::Drucke() {
    DruckeSeite(AlsDruckseite(paar, Gezeigte()), Q(paar.Titel()), WahlUeber(*this));
}

} // namespace varnoth
