#include "suchseite.h"

#include "anschlusseingabe.h"
#include "fundworte.h"
#include "portzeile.h"
#include "spaltenbreite.h"
#include "texte.h"
#include "textmitwerten.h"
#include "tipptext.h"
#include "ui_suchseite.h"
#include "verbindungsanbieter.h"
#include "zeilenhoehe.h"
#include "zeittext.h"

#include <QScrollBar>
#include <QSignalBlocker>

namespace varnoth {

namespace {

constexpr std::int16_t TextNurIdentifikation = 8351;
constexpr std::int16_t TextBeginnt = 8352;
constexpr std::int16_t TextVersuch = 8353;
constexpr std::int16_t TextBeendet = 8355;
constexpr std::int16_t TextVeraltet = 8356;
constexpr std::int16_t TextFundWeg = 8357;
constexpr std::int16_t TextPortZustand = 8330;

constexpr int Geraetrolle = Qt::UserRole;
constexpr int BreitesteSpalte = 46; // characters
enum Spalte { SpalteNummer, SpalteGeraet, SpalteFormat, SpalteErgebnis };

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

} // namespace

Suchseite::Suchseite(QWidget* eltern) : QWidget(eltern), ui(std::make_unique<Ui::Suchseite>()) {
    ui->setupUi(this);
    GibZeilenLuft(*ui->lstSuchports);
    GibZeilenLuft(*ui->lstVersuche);
    for (int com = 1; com <= AnzahlCom; ++com)
        ui->cboFundCom->addItem(Q(Comname(com)), com);
    QScrollBar* const balken = ui->lstVersuche->verticalScrollBar();
    connect(balken, &QScrollBar::rangeChanged, balken,
            [balken](int /*oben*/, int unten) { balken->setValue(unten); }); // the newest try is in view
    connect(ui->lstSuchports, &QTreeWidget::itemChanged, this,
            [this](const QTreeWidgetItem* eintrag) { MerkeHaken(*eintrag); });
    connect(ui->cmdSuchen, &QPushButton::clicked, this, [this] { Beginne(); });
    connect(ui->cmdCancel, &QPushButton::clicked, this, [this] { anbieter->BrichAb(); });
    connect(ui->cmdVerwenden, &QPushButton::clicked, this, [this] { Verwende(); });
}

Suchseite::~Suchseite() = default;

void Suchseite::Zeige(const std::vector<Portangabe>& neuePorts, const Anschlussstand& neuerStand) {
    Altere(neuePorts);
    ports = neuePorts;
    stand = neuerStand;
    FuellePorts();
    ZeigeLage();
}

/// What was found stays true only while its port stays plugged in: behind the same name another controller
/// may come back.
void Suchseite::Altere(const std::vector<Portangabe>& neuePorts) {
    if (lage != Lage::Beendet)
        return;
    const bool frisch = !veraltet;
    veraltet = veraltet || Geraetenamen(neuePorts) != Geraetenamen(ports);
    fundWeg = fundWeg || (fund.ident.gueltig == True && Fundport(fund, neuePorts) == nullptr);
    if (frisch && veraltet)
        ZeigeVersuche();
}

void Suchseite::FuellePorts() {
    const QTreeWidgetItem* const gewaehlter = ui->lstSuchports->currentItem();
    const QVariant gewaehlt = gewaehlter != nullptr ? gewaehlter->data(0, Geraetrolle) : QVariant();
    const QSignalBlocker stumm(ui->lstSuchports);
    ui->lstSuchports->clear();
    for (const Portangabe& port : ports) {
        QTreeWidgetItem* const eintrag = Eintrag(port);
        ui->lstSuchports->addTopLevelItem(eintrag);
        if (eintrag->data(0, Geraetrolle) == gewaehlt)
            ui->lstSuchports->setCurrentItem(eintrag);
    }
    PasseSpaltenAn(*ui->lstSuchports, BreitesteSpalte);
    ui->lblKeinSuchport->setVisible(ports.empty());
}

QTreeWidgetItem* Suchseite::Eintrag(const Portangabe& port) const {
    const Portzeile zeile = Zeile(port, stand);
    auto* const eintrag =
        new QTreeWidgetItem({Q(zeile.geraet), Q(LadeTextMit(TextPortZustand, {zeile.was, zeile.zustand}))});
    const auto gewollt = haken.find(port.geraet);
    const bool an = gewollt != haken.end() ? gewollt->second : zeile.benutzbar;
    eintrag->setData(0, Geraetrolle, Q(port.geraet));
    eintrag->setCheckState(0, an ? Qt::Checked : Qt::Unchecked);
    eintrag->setToolTip(0, AlsTipp(Q(zeile.tipp)));
    eintrag->setToolTip(1, AlsTipp(eintrag->text(1)));
    return eintrag;
}

void Suchseite::MerkeHaken(const QTreeWidgetItem& eintrag) {
    haken[eintrag.data(0, Geraetrolle).toString().toStdString()] = eintrag.checkState(0) == Qt::Checked;
    ZeigeLage();
}

std::vector<std::string> Suchseite::Gewaehlte() const {
    std::vector<std::string> geraete;
    for (int i = 0; i < ui->lstSuchports->topLevelItemCount(); ++i) {
        const QTreeWidgetItem& eintrag = *ui->lstSuchports->topLevelItem(i);
        if (eintrag.checkState(0) == Qt::Checked)
            geraete.push_back(eintrag.data(0, Geraetrolle).toString().toStdString());
    }
    return geraete;
}

void Suchseite::Beginne() {
    versuche.clear();
    fund = {};
    veraltet = false;
    fundWeg = false;
    sprache = GetSprachoffset();
    lage = Lage::Verlangt;
    ZeigeVersuche();
    ZeigeLage();
    ui->cmdCancel->setFocus();
    anbieter->Suche(Gewaehlte());
}

void Suchseite::ZeigeVersuch(const Suchstand& versuch) {
    lage = Lage::Laeuft;
    if (versuche.empty() || versuche.back().nummer != versuch.nummer)
        versuche.push_back(versuch);
    else
        versuche.back() = versuch;
    ZeigeZeile(versuch);
    ZeigeLage();
}

void Suchseite::Beende(const Suchfund& ergebnis) {
    fund = ergebnis;
    lage = Lage::Beendet;
    zeit = std::chrono::system_clock::now();
    const int com = Fundnummer(fund, ports, stand);
    ui->cboFundCom->setCurrentIndex(ui->cboFundCom->findData(com));
    ZeigeVersuche();
    ZeigeLage();
    QWidget* const naechster = ui->cmdVerwenden->isEnabled() ? ui->cmdVerwenden : ui->cmdSuchen;
    naechster->setFocus();
}

void Suchseite::Entfalle() {
    lage = Lage::Unbegonnen;
    ZeigeLage();
}

void Suchseite::Verwende() {
    const int com = ui->cboFundCom->currentData().toInt();
    anbieter->Uebernimm(MitFund(stand.wahl, com, Fundgeraet(fund, ports), fund.versuch.format), true);
}

void Suchseite::Lokalisiere() {
    ui->lstSuchports->setAccessibleName(ui->lblSuchports->text());
    ui->pbFortschritt->setAccessibleName(ui->lstVersuche->headerItem()->text(SpalteNummer));
    ui->lstVersuche->setAccessibleName(ui->lstVersuche->headerItem()->text(SpalteErgebnis));
    FuellePorts();
    ZeigeVersuche();
    ZeigeLage();
}

/// What can be done now, and what is under way.
void Suchseite::ZeigeLage() {
    const bool laeuft = Laeuft();
    ui->lstSuchports->setEnabled(!laeuft);
    ui->cmdSuchen->setEnabled(!laeuft && !Gewaehlte().empty());
    ui->cmdCancel->setEnabled(laeuft);
    ui->pbFortschritt->setMaximum(versuche.empty() ? 1 : versuche.back().anzahl);
    ui->pbFortschritt->setValue(versuche.empty() ? 0 : versuche.back().nummer);
    ui->pbFortschritt->setVisible(laeuft);
    ui->lblSuchstand->setText(Q(Lagetext()));
    ZeigeFund();
}

std::string Suchseite::Lagetext() const {
    switch (lage) {
    case Lage::Unbegonnen:
        return LadeText(TextNurIdentifikation);
    case Lage::Verlangt:
        return LadeText(TextBeginnt);
    case Lage::Laeuft: {
        const Suchstand& versuch = versuche.back();
        return LadeTextMit(TextVersuch, {std::to_string(versuch.nummer), std::to_string(versuch.anzahl),
                                         versuch.versuch.geraet, versuch.versuch.format});
    }
    case Lage::Beendet:
        break;
    }
    std::string text = LadeTextMit(TextBeendet, {Zeittext(zeit).toStdString(), Suchausgang(fund, sprache)});
    if (veraltet)
        text += "\n" + LadeText(fundWeg ? TextFundWeg : TextVeraltet);
    return text;
}

void Suchseite::ZeigeVersuche() {
    ui->lstVersuche->clear();
    for (const Suchstand& versuch : versuche)
        ZeigeZeile(versuch);
}

void Suchseite::ZeigeZeile(const Suchstand& versuch) {
    QTreeWidget& liste = *ui->lstVersuche;
    const QString nummer = QString::number(versuch.nummer);
    QTreeWidgetItem* zeile = liste.topLevelItem(liste.topLevelItemCount() - 1);
    if (zeile == nullptr || zeile->text(SpalteNummer) != nummer)
        zeile = new QTreeWidgetItem(&liste, {nummer, Q(versuch.versuch.geraet), Q(versuch.versuch.format)});
    const QString ergebnis = Q(Versuchsergebnis(versuch, sprache));
    zeile->setText(SpalteErgebnis, ergebnis);
    zeile->setToolTip(SpalteErgebnis, AlsTipp(ergebnis));
    zeile->setDisabled(veraltet);
    PasseSpaltenAn(liste, BreitesteSpalte);
}

void Suchseite::ZeigeFund() {
    const bool gefunden = lage == Lage::Beendet && fund.ident.gueltig == True;
    ui->fraFund->setVisible(gefunden);
    ui->lblFund->setText(gefunden ? Q(Fundzeilen(fund)) : QString());
    ui->lblFund->setEnabled(!fundWeg);
    ui->cmdVerwenden->setEnabled(gefunden && !fundWeg);
    ui->cboFundCom->setEnabled(gefunden && !fundWeg);
}

} // namespace varnoth
