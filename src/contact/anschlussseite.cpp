#include "anschlussseite.h"

#include "anschlusseingabe.h"
#include "portzeile.h"
#include "spaltenbreite.h"
#include "suchlauf.h"
#include "texte.h"
#include "textmitwerten.h"
#include "tipptext.h"
#include "ui_anschlussseite.h"
#include "verbindungsanbieter.h"
#include "zeilenhoehe.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>

namespace varnoth {

namespace {

constexpr std::int16_t TextComBenutzen = 8326;
constexpr std::int16_t TextGeraetVonCom = 8327;
constexpr std::int16_t TextGeben = 8328;
constexpr std::int16_t TextFuerAlle = 8304;
constexpr std::int16_t TextUebernommen = 8334;
constexpr std::int16_t TextLaufgeraet = 8338;
constexpr std::int16_t TextSimuliert = 8339;
constexpr std::int16_t TextImmerSimuliert = 8340;

constexpr int Geraetrolle = Qt::UserRole;
constexpr int BreitesteSpalte = 46; // characters

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

QStringList Qliste(const std::vector<std::string>& texte) {
    QStringList liste;
    for (const std::string& text : texte)
        liste.append(Q(text));
    return liste;
}

/// A list that is open or has the same names already is left alone.
void Biete(QComboBox& box, const QStringList& namen) {
    QStringList gezeigte;
    for (int i = 0; i < box.count(); ++i)
        gezeigte.append(box.itemText(i));
    if (gezeigte == namen || box.view()->isVisible())
        return;
    const QSignalBlocker stumm(box);
    const QString text = box.currentText();
    const int stelle = box.lineEdit()->cursorPosition();
    box.clear();
    box.addItems(namen);
    box.setEditText(text);
    box.lineEdit()->setCursorPosition(stelle);
}

/// A text that is there already keeps the cursor where it is.
void SetzeText(QComboBox& box, const std::string& text) {
    if (box.currentText() == Q(text))
        return;
    box.setEditText(Q(text));
    box.lineEdit()->setCursorPosition(0);
}

void SetzeText(QLabel& label, const std::string& text) {
    label.setText(Q(text));
    label.setToolTip(AlsTipp(Q(text)));
}

void ZeigeWennVorhanden(QLabel& label, const std::string& text) {
    label.setText(Q(text));
    label.setVisible(!text.empty());
}

} // namespace

Anschlussseite::Anschlussseite(QWidget* eltern)
    : QWidget(eltern), ui(std::make_unique<Ui::Anschlussseite>()), comzeilen() {
    ui->setupUi(this);
    comzeilen = {{{ui->optCom_1, ui->cboGeraet_1, ui->lblGeraet_1},
                  {ui->optCom_2, ui->cboGeraet_2, ui->lblGeraet_2},
                  {ui->optCom_3, ui->cboGeraet_3, ui->lblGeraet_3},
                  {ui->optCom_4, ui->cboGeraet_4, ui->lblGeraet_4}}};
    GibZeilenLuft(*ui->lstPorts);
    for (const std::string& format : Suchformate())
        ui->cboFormat->addItem(Q(format));
    VerbindeElemente();
}

Anschlussseite::~Anschlussseite() = default;

void Anschlussseite::VerbindeElemente() {
    for (const Comzeile& zeile : comzeilen) {
        connect(zeile.wahl, &QRadioButton::toggled, this, [this](bool an) {
            if (an)
                Bearbeitet();
        });
        connect(zeile.geraet, &QComboBox::editTextChanged, this, [this] { Bearbeitet(); });
    }
    connect(ui->cboFormat, &QComboBox::editTextChanged, this, [this] { Bearbeitet(); });
    connect(ui->lstPorts, &QTreeWidget::itemSelectionChanged, this, [this] { ZeigeAuswahl(); });
    connect(ui->lstPorts, &QTreeWidget::itemActivated, this, [this] { GibGeraet(); });
    connect(ui->cmdGeben, &QPushButton::clicked, this, [this] { GibGeraet(); });
    connect(ui->cmdVerwerfen, &QPushButton::clicked, this, [this] { SetzeEingabe(stand.wahl); });
    connect(ui->cmdUebernehmen, &QPushButton::clicked, this, [this] { Uebernimm(false); });
    connect(ui->cmdVerbinden, &QPushButton::clicked, this, [this] { Uebernimm(true); });
}

void Anschlussseite::SetzeAnbieter(Verbindungsanbieter& neuer) {
    anbieter = &neuer;
    stand = neuer.Stand();
    SetzeEingabe(stand.wahl);
}

void Anschlussseite::Zeige(const std::vector<Portangabe>& neuePorts, const Anschlussstand& neuerStand) {
    const Anschlusswahl eingabe = Nachgefuehrt(Eingabe(), stand.wahl, neuerStand.wahl);
    if (stand.offen.empty() && !neuerStand.offen.empty())
        ui->lblErgebnis->clear(); // the next connection is there
    ports = neuePorts;
    stand = neuerStand;
    FuelleListe();
    FuelleNamen();
    SetzeEingabe(eingabe);
    ZeigeHinweis();
}

void Anschlussseite::Lokalisiere() {
    for (int com = 1; com <= AnzahlCom; ++com) {
        const Comzeile& zeile = comzeilen.at(static_cast<std::size_t>(com - 1));
        zeile.wahl->setText(Q(Comname(com)));
        zeile.wahl->setAccessibleName(Q(LadeTextMit(TextComBenutzen, {Comname(com)})));
        zeile.wahl->setToolTip(zeile.wahl->accessibleName());
        zeile.geraet->setAccessibleName(Q(LadeTextMit(TextGeraetVonCom, {Comname(com)})));
    }
    ui->lstPorts->setAccessibleName(ui->lstPorts->headerItem()->text(0));
    ui->lblErgebnis->clear();
    FuelleListe();
    ZeigeEingabe();
    ZeigeHinweis();
}

/// What was selected stays selected.
void Anschlussseite::FuelleListe() {
    const Portangabe* const gewaehlter = Gewaehlter();
    const QString gewaehlt = gewaehlter != nullptr ? Q(gewaehlter->geraet) : QString();
    const QSignalBlocker stumm(ui->lstPorts);
    ui->lstPorts->clear();
    for (const Portangabe& port : ports) {
        const Portzeile zeile = Zeile(port, stand);
        auto* const eintrag = new QTreeWidgetItem(
            ui->lstPorts, {Q(zeile.geraet), Q(zeile.was), Q(zeile.zustand), Q(zeile.com)});
        eintrag->setData(0, Geraetrolle, Q(port.geraet));
        eintrag->setToolTip(0, AlsTipp(Q(zeile.tipp)));
        eintrag->setToolTip(1, AlsTipp(Q(zeile.was)));
        eintrag->setToolTip(2, AlsTipp(Q(zeile.zustand)));
        if (!gewaehlt.isEmpty() && gewaehlt == Q(port.geraet))
            ui->lstPorts->setCurrentItem(eintrag);
    }
    PasseSpaltenAn(*ui->lstPorts, BreitesteSpalte);
    ui->lblKeinPort->setVisible(ports.empty());
    ZeigeAuswahl();
}

void Anschlussseite::FuelleNamen() {
    const QStringList namen = Qliste(AlleNamen(ports));
    for (const Comzeile& zeile : comzeilen)
        Biete(*zeile.geraet, namen);
}

Anschlusswahl Anschlussseite::Eingabe() const {
    Anschlusswahl eingabe;
    for (int com = 1; com <= AnzahlCom; ++com) {
        const Comzeile& zeile = comzeilen.at(static_cast<std::size_t>(com - 1));
        eingabe.Geraet(com) = zeile.geraet->currentText().toStdString();
        if (zeile.wahl->isChecked())
            eingabe.nummer = com;
    }
    eingabe.format = ui->cboFormat->currentText().toStdString();
    return eingabe;
}

void Anschlussseite::SetzeEingabe(const Anschlusswahl& eingabe) {
    for (int com = 1; com <= AnzahlCom; ++com) {
        const Comzeile& zeile = comzeilen.at(static_cast<std::size_t>(com - 1));
        const QSignalBlocker stumm(zeile.geraet);
        const QSignalBlocker stummeWahl(zeile.wahl);
        SetzeText(*zeile.geraet, eingabe.Geraet(com));
        zeile.wahl->setChecked(com == eingabe.nummer);
    }
    const QSignalBlocker stumm(ui->cboFormat);
    SetzeText(*ui->cboFormat, eingabe.format);
    ZeigeEingabe();
}

void Anschlussseite::Bearbeitet() {
    ui->lblErgebnis->clear();
    ZeigeEingabe();
}

void Anschlussseite::ZeigeEingabe() {
    const Anschlusswahl eingabe = OhneBlanks(Eingabe());
    for (int com = 1; com <= AnzahlCom; ++com)
        ZeigeComzeile(com, eingabe.Geraet(com));
    const std::string befund = FormatBefund(eingabe.format);
    SetzeText(*ui->lblFormatbefund, befund.empty() ? LadeText(TextFuerAlle) : befund);
    const bool gueltig = IstGueltig(eingabe);
    ui->cmdVerwerfen->setEnabled(eingabe != stand.wahl);
    ui->cmdUebernehmen->setEnabled(gueltig && HatWirkung(stand, eingabe));
    ui->cmdVerbinden->setEnabled(gueltig);
    ZeigeAuswahl();
}

void Anschlussseite::ZeigeComzeile(int com, const std::string& name) {
    QLabel& label = *comzeilen.at(static_cast<std::size_t>(com - 1)).befund;
    const std::string falsch = GeraetenameBefund(name);
    if (!falsch.empty() || anbieter == nullptr)
        SetzeText(label, falsch);
    else
        SetzeText(label, Comtext(name, anbieter->Befund(name), ports, stand));
}

void Anschlussseite::ZeigeAuswahl() {
    const Portangabe* const gewaehlter = Gewaehlter();
    ui->cmdGeben->setText(Q(LadeTextMit(TextGeben, {Comname(Eingabe().nummer)})));
    ui->cmdGeben->setEnabled(gewaehlter != nullptr);
    ZeigeWennVorhanden(*ui->lblAbhilfe,
                       gewaehlter != nullptr ? Zeile(*gewaehlter, stand).abhilfe : std::string());
}

void Anschlussseite::ZeigeHinweis() {
    std::string hinweis;
    if (stand.immerSimuliert)
        hinweis = LadeText(TextImmerSimuliert);
    else if (!stand.geraetDiesesLaufs.empty())
        hinweis = LadeTextMit(TextLaufgeraet, {stand.geraetDiesesLaufs});
    else if (stand.simuliert)
        hinweis = LadeText(TextSimuliert);
    ZeigeWennVorhanden(*ui->lblHinweis, hinweis);
}

const Portangabe* Anschlussseite::Gewaehlter() const {
    const auto auswahl = ui->lstPorts->selectedItems();
    if (auswahl.isEmpty())
        return nullptr;
    const std::string geraet = auswahl.constFirst()->data(0, Geraetrolle).toString().toStdString();
    const auto stelle = std::ranges::find(ports, geraet, &Portangabe::geraet);
    return stelle == ports.end() ? nullptr : &*stelle;
}

/// The number in use means the chosen port from now on, by a name that stays.
void Anschlussseite::GibGeraet() {
    if (const Portangabe* const port = Gewaehlter())
        SetzeText(*comzeilen.at(static_cast<std::size_t>(Eingabe().nummer - 1)).geraet, BesterName(*port));
}

void Anschlussseite::Uebernimm(bool verbinde) {
    anbieter->Uebernimm(OhneBlanks(Eingabe()), verbinde);
}

void Anschlussseite::MeldeUebernommen() {
    SetzeText(*ui->lblErgebnis, LadeText(TextUebernommen));
}

} // namespace varnoth
