#include "frmSicherungen.h"

#include "lokalisiereform.h"
#include "registerabbild.h"
#include "sicherungsliste.h"
#include "spaltenbreite.h"
#include "texte.h"
#include "textmitwerten.h"
#include "tipptext.h"
#include "ui_frmSicherungen.h"
#include "umgebung.h"
#include "zeilenhoehe.h"
#include "zeittext.h"

#include <algorithm>
#include <utility>

namespace varnoth {

namespace {

constexpr std::int16_t TextLoeschen = 9822;
constexpr std::int16_t TextNichtGeloescht = 9825;

constexpr int Pfadrolle = Qt::UserRole;

} // namespace

frmSicherungen::frmSicherungen(Sicherungen& sicherungen, Sicherungsbefehle angebot, QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::frmSicherungen>()), bestand(sicherungen),
      befehle(std::move(angebot)) {
    ui->setupUi(this);
    GibZeilenLuft(*ui->lstSicherungen);
    ui->cmdVergleichen->setVisible(static_cast<bool>(befehle.vergleiche));
    connect(ui->lstSicherungen, &QTreeWidget::itemSelectionChanged, this, [this] { ZeigeAuswahl(); });
    connect(ui->lstSicherungen, &QTreeWidget::itemDoubleClicked, this, [this] {
        if (befehle.vergleiche)
            Tue(befehle.vergleiche);
    });
    connect(ui->cmdVergleichen, &QPushButton::clicked, this, [this] { Tue(befehle.vergleiche); });
    connect(ui->cmdOeffnen, &QPushButton::clicked, this, [this] { Tue(befehle.oeffne); });
    connect(ui->cmdSpeichern, &QPushButton::clicked, this, [this] { Tue(befehle.speichere); });
    connect(ui->cmdLoeschen, &QPushButton::clicked, this, [this] { Loesche(); });
    connect(ui->cmdSchliessen, &QPushButton::clicked, this, &QDialog::reject);
    Erneuere();
}

frmSicherungen::~frmSicherungen() = default;

void frmSicherungen::Erneuere() {
    LokalisiereForm(*this);
    Fuelle();
}

void frmSicherungen::changeEvent(QEvent* ereignis) {
    QDialog::changeEvent(ereignis);
    if (ereignis->type() == QEvent::ActivationChange && isActiveWindow())
        Fuelle();
}

void frmSicherungen::showEvent(QShowEvent* ereignis) {
    QDialog::showEvent(ereignis);
    Fuelle();
}

/// What was selected stays selected.
void frmSicherungen::Fuelle() {
    const Sicherung* const gewaehlte = Gewaehlte();
    const std::string pfad = gewaehlte != nullptr ? gewaehlte->pfad : std::string();
    gezeigte = bestand.Alle();
    ui->lstSicherungen->clear();
    for (const auto& [nummer, gruppe] : NachGeraet(gezeigte))
        FuegeGruppe(Gruppenname(nummer), gruppe, pfad);
    PasseSpaltenAn(*ui->lstSicherungen);
    ui->lblAnzahl->setText(QString::fromStdString(Sicherungszahl(gezeigte.size())));
    ZeigeAuswahl();
}

void frmSicherungen::FuegeGruppe(const std::string& name, const std::vector<Sicherung>& gruppe,
                                 const std::string& gewaehlte) {
    auto* const oben = new QTreeWidgetItem(ui->lstSicherungen, {QString::fromStdString(name)});
    oben->setFlags(Qt::ItemIsEnabled);
    oben->setFirstColumnSpanned(true);
    oben->setToolTip(0, AlsTipp(QString::fromStdString(name)));
    for (const Sicherung& sicherung : gruppe) {
        QTreeWidgetItem* const eintrag = Eintrag(sicherung);
        oben->addChild(eintrag);
        if (sicherung.pfad == gewaehlte)
            ui->lstSicherungen->setCurrentItem(eintrag);
    }
    oben->setExpanded(true);
}

QTreeWidgetItem* frmSicherungen::Eintrag(const Sicherung& sicherung) const {
    const Sicherungsangaben& angaben = sicherung.angaben;
    auto* const eintrag = new QTreeWidgetItem(
        {Zeittext(angaben.zeit), QString::fromStdString(Anlasstext(angaben.anlass)),
         QString::fromStdString(Unterschiedstext(bestand.Lies(sicherung), modDaten::DasAbbild())),
         QString::fromStdString(angaben.strahlen), QString::fromStdString(angaben.programm)});
    eintrag->setData(0, Pfadrolle, QString::fromStdString(sicherung.pfad));
    eintrag->setToolTip(0, AlsTipp(QString::fromStdString(sicherung.pfad)));
    return eintrag;
}

const Sicherung* frmSicherungen::Gewaehlte() const {
    const auto auswahl = ui->lstSicherungen->selectedItems();
    if (auswahl.isEmpty())
        return nullptr;
    const std::string pfad = auswahl.constFirst()->data(0, Pfadrolle).toString().toStdString();
    const auto stelle = std::ranges::find(gezeigte, pfad, &Sicherung::pfad);
    return stelle == gezeigte.end() ? nullptr : &*stelle;
}

void frmSicherungen::ZeigeAuswahl() {
    const Sicherung* const gewaehlte = Gewaehlte();
    const bool lesbar = gewaehlte != nullptr && bestand.Lies(*gewaehlte).has_value();
    ui->cmdVergleichen->setEnabled(lesbar);
    ui->cmdOeffnen->setEnabled(lesbar);
    ui->cmdSpeichern->setEnabled(lesbar);
    ui->cmdLoeschen->setEnabled(gewaehlte != nullptr);
}

/// A copy, since the list may be filled anew while the command runs.
void frmSicherungen::Tue(const std::function<void(const Sicherung&)>& befehl) {
    if (const Sicherung* const gewaehlte = Gewaehlte())
        befehl(Sicherung(*gewaehlte));
}

void frmSicherungen::Loesche() {
    const Sicherung* const gewaehlte = Gewaehlte();
    if (gewaehlte == nullptr)
        return;
    const Sicherung sicherung = *gewaehlte;
    const std::string wann = Zeittext(sicherung.angaben.zeit).toStdString();
    if (DieUmgebung().ZeigeMeldung({.text = LadeTextMit(TextLoeschen, {wann}),
                                    .titel = LadeText(TextAchtung),
                                    .symbol = Symbol::Warnung,
                                    .knoepfe = Knoepfe::OkAbbrechen,
                                    .abbrechenVorgegeben = true}) != Antwort::Ok)
        return;
    if (const std::string fehler = bestand.Loesche(sicherung); !fehler.empty())
        ZeigeWarnung(LadeTextMit(TextNichtGeloescht, {fehler + "\n" + sicherung.pfad}),
                     LadeText(TextAchtung));
    Fuelle();
}

} // namespace varnoth
