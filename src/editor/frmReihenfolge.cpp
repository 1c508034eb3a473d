#include "frmReihenfolge.h"

#include "ui_frmReihenfolge.h"

#include "lokalisiereform.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "textmitwerten.h"
#include "umgebung.h"
#include "verlauf.h"

#include <QButtonGroup>
#include <QShortcut>
#include <QSignalBlocker>

#include <algorithm>

namespace varnoth {

namespace {

// This box speaks to the programmer, not to the user: no sign, no translation.
constexpr std::int16_t TextEingefuegt = 9865;
constexpr std::int16_t TextGeloescht = 9866;

constexpr auto Fehlertext = "Error in Ausgabedaten für Autosend, Registeradressen";

void WaehleId(QButtonGroup& gruppe, int id) {
    const QSignalBlocker still(gruppe);
    gruppe.button(id)->setChecked(true);
}

} // namespace

frmReihenfolge::frmReihenfolge(QWidget* parent)
    : Eingabedialog(parent), ui(std::make_unique<Ui::frmReihenfolge>()) {
    ui->setupUi(this);
    NimmVorgabenWeg();
    LokalisiereForm(*this);
    ui->List1->setAccessibleName(windowTitle());
    verlauf = new Verlauf(*this, *ui->knoepfe,
                          {.stand = [this] { return Stand(); },
                           .zeige = [this](const QVariantMap& stand) { StelleHer(stand); },
                           .worte = [this] { return aenderung; }});
    Nummeriere();
    Verbinde();
    VerbindeListe();
    Waehle(Wahl());
    Lade();
    verlauf->Beginne();
}

frmReihenfolge::~frmReihenfolge() = default;

std::array<QButtonGroup*, 3> frmReihenfolge::Gruppen() const {
    return {ui->Option1, ui->Option2, ui->Option3};
}

void frmReihenfolge::Nummeriere() {
    for (QButtonGroup* const gruppe : Gruppen())
        for (int id = 0; id < gruppe->buttons().size(); ++id)
            gruppe->setId(gruppe->buttons().at(id), id);
}

void frmReihenfolge::Verbinde() {
    connect(ui->cmdOK, &QPushButton::clicked, this, [this] { SchreibeZurueck(); });
    connect(ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui->Command1, &QPushButton::clicked, this, [this] { FuegeEinBei(ui->List1->currentRow()); });
    connect(ui->Command2, &QPushButton::clicked, this, [this] { FuegeEinBei(ui->List1->currentRow() + 1); });
    connect(ui->Command3, &QPushButton::clicked, this, [this] { LoescheGewaehlten(); });
    for (QButtonGroup* const gruppe : Gruppen())
        connect(gruppe, &QButtonGroup::idToggled, this, [this](int /*id*/, bool gewaehlt) {
            if (gewaehlt)
                Waehle(Wahl());
        });
}

void frmReihenfolge::VerbindeListe() {
    auto* const entfernen = new QShortcut(QKeySequence::Delete, ui->List1);
    entfernen->setContext(Qt::WidgetShortcut);
    connect(entfernen, &QShortcut::activated, this, [this] { LoescheGewaehlten(); });
    connect(ui->List1, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem* zeile) {
        UebernimmWahl(liste.at(static_cast<std::size_t>(ui->List1->row(zeile))));
    });
}

void frmReihenfolge::Lade() {
    liste = ListeAus(modDaten::HoleParameter(Kommunikation, kommunikation::Datenblock));
    geladene = liste;
    ZeigeListe(0);
    if (HatUngueltigenEintrag(liste))
        DieUmgebung().ZeigeMeldung({.text = Fehlertext, .symbol = Symbol::Ohne});
}

void frmReihenfolge::ZeigeListe(int gewaehlt) {
    const int anzahl = AnzahlEintraege(liste);
    ui->List1->clear();
    for (int i = 0; i < anzahl; ++i)
        ui->List1->addItem(QString::fromStdString(Eintragstext(liste.at(static_cast<std::size_t>(i)))));
    ui->List1->setCurrentRow(std::min(gewaehlt, anzahl - 1));
    ui->lblAnzahl->setText(QStringLiteral("%1 / %2").arg(anzahl).arg(MaxEintraege));
    ui->Command3->setEnabled(anzahl > 0);
}

bool frmReihenfolge::IstGeaendert() const {
    return liste != geladene;
}

Eintragswahl frmReihenfolge::Wahl() const {
    return {static_cast<Quelle>(ui->Option1->checkedId()), static_cast<Wertart>(ui->Option2->checkedId()),
            static_cast<Sendewert>(ui->Option3->checkedId())};
}

void frmReihenfolge::Waehle(Eintragswahl wahl) {
    wahl = Passend(wahl);
    WaehleId(*ui->Option1, static_cast<int>(wahl.quelle));
    WaehleId(*ui->Option2, static_cast<int>(wahl.art));
    WaehleId(*ui->Option3, static_cast<int>(wahl.wert));
    SperreUnpassende(wahl);
    ui->lblVorschau->setText(QString::fromStdString(Eintragstext(Eintragswort(wahl))));
}

// A source can always be chosen; kind and value then follow it.
void frmReihenfolge::SperreUnpassende(const Eintragswahl& wahl) {
    for (int art = 0; art < AnzahlWertarten; ++art)
        ui->Option2->button(art)->setEnabled(IstErlaubt({wahl.quelle, static_cast<Wertart>(art), wahl.wert}));
    for (int wert = 0; wert < AnzahlSendewerte; ++wert)
        ui->Option3->button(wert)->setEnabled(
            IstErlaubt({wahl.quelle, wahl.art, static_cast<Sendewert>(wert)}));
}

void frmReihenfolge::FuegeEinBei(int stelle) {
    const int platz = std::max(0, stelle);
    const std::int16_t eintrag = Eintragswort(Wahl());
    if (!FuegeEin(liste, platz, eintrag))
        return ZeigeWarnung(GrenzeText());
    ZeigeListe(platz);
    Merke(TextEingefuegt, eintrag, ui->List1->currentRow());
}

void frmReihenfolge::LoescheGewaehlten() {
    const int gewaehlt = ui->List1->currentRow();
    if (gewaehlt < 0)
        return;
    const std::int16_t eintrag = liste.at(static_cast<std::size_t>(gewaehlt));
    Loesche(liste, gewaehlt);
    ZeigeListe(gewaehlt);
    Merke(TextGeloescht, eintrag, gewaehlt);
}

void frmReihenfolge::Merke(std::int16_t text, std::int16_t eintrag, int platz) {
    aenderung = QString::fromStdString(LadeTextMit(text, {Eintragstext(eintrag), std::to_string(platz + 1)}));
    verlauf->Merke();
}

QVariantMap frmReihenfolge::Stand() const {
    return {{"liste", QVariantList(liste.begin(), liste.end())}};
}

void frmReihenfolge::StelleHer(const QVariantMap& stand) {
    const QVariantList eintraege = stand.value("liste").toList();
    std::ranges::transform(eintraege, liste.begin(), [](const QVariant& eintrag) {
        return static_cast<std::int16_t>(eintrag.toInt());
    });
    ZeigeListe(std::max(0, ui->List1->currentRow()));
}

void frmReihenfolge::UebernimmWahl(std::int16_t eintrag) {
    const auto wahl = WahlAus(eintrag);
    if (wahl && IstErlaubt(*wahl))
        Waehle(*wahl);
}

void frmReihenfolge::SchreibeZurueck() {
    if (modDaten::SetzeParameter(Kommunikation, kommunikation::Datenblock, DatenblockAus(liste)))
        accept();
}

} // namespace varnoth
