#include "leitungsseite.h"

#include "anschluss.h"
#include "portzeile.h"
#include "spaltenbreite.h"
#include "texte.h"
#include "textmitwerten.h"
#include "tipptext.h"
#include "ui_leitungsseite.h"
#include "verbindungsanbieter.h"
#include "zeilenhoehe.h"
#include "zeittext.h"

#include <QClipboard>
#include <QGuiApplication>

namespace varnoth {

namespace {

constexpr std::int16_t TextAnschluss = 9130;
constexpr std::int16_t TextAnschlussSimuliert = 9131;
constexpr std::int16_t TextUnbegonnen = 8378;
constexpr std::int16_t TextBeginnt = 8379;
constexpr std::int16_t TextLaeuft = 8380;
constexpr std::int16_t TextBeendet = 8381;
constexpr std::int16_t TextAlt = 8382;
constexpr std::int16_t TextVerzoegerung = 8383;

constexpr int AnzeigetaktMs = 100;
constexpr int KuerzesteMs = 1;      // of a latency timer
constexpr int BreitesteSpalte = 60; // characters

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

std::string Linientext(const Anschlussstand& stand) {
    if (stand.simuliert)
        return LadeTextMit(TextAnschlussSimuliert, {stand.wahl.format});
    return LadeTextMit(TextAnschluss,
                       {Portname(Comname(stand.wahl.nummer), stand.Geraet()), stand.wahl.format});
}

} // namespace

Leitungsseite::Leitungsseite(QWidget* eltern) : QWidget(eltern), ui(std::make_unique<Ui::Leitungsseite>()) {
    ui->setupUi(this);
    GibZeilenLuft(*ui->lstZahlen);
    connect(ui->cmdPruefen, &QPushButton::clicked, this, [this] { Beginne(); });
    connect(ui->cmdAnhalten, &QPushButton::clicked, this, [this] { anbieter->BrichAb(); });
    connect(ui->cmdKopieren, &QPushButton::clicked, this, [this] { Kopiere(); });
    connect(ui->cmdVerzoegerung, &QPushButton::clicked, this, [this] { StelleVerzoegerung(); });
}

Leitungsseite::~Leitungsseite() = default;

void Leitungsseite::Zeige(const std::vector<Portangabe>& neuePorts, const Anschlussstand& neuerStand) {
    if (BenutzterPort(ports, stand) != nullptr && BenutzterPort(neuePorts, neuerStand) == nullptr)
        portWarWeg = true;
    ports = neuePorts;
    stand = neuerStand;
    ZeigeLage();
}

void Leitungsseite::Beginne() {
    befund = {};
    verzoegerungsfehler.clear();
    lage = Lage::Verlangt;
    ZeigeLage();
    ui->cmdAnhalten->setFocus();
    anbieter->PruefeLeitung();
}

void Leitungsseite::ZeigeZwischenstand(const Pruefbefund& bisher) {
    if (lage == Lage::Laeuft && seitAnzeige.elapsed() < AnzeigetaktMs)
        return;
    befund = bisher;
    lage = Lage::Laeuft;
    seitAnzeige.start();
    ZeigeLage();
}

void Leitungsseite::Beende(const Pruefbefund& ergebnis) {
    befund = ergebnis;
    portWarWeg = false;
    lage = Lage::Beendet;
    zeit = std::chrono::system_clock::now();
    ZeigeLage();
    ui->cmdPruefen->setFocus();
}

void Leitungsseite::Entfalle() {
    lage = Lage::Unbegonnen;
    ZeigeLage();
}

void Leitungsseite::Kopiere() {
    QGuiApplication::clipboard()->setText(Q(Pruefbericht(befund)));
}

void Leitungsseite::StelleVerzoegerung() {
    if (const Portangabe* const port = BenutzterPort(ports, stand)) {
        fehlergeraet = port->geraet;
        verzoegerungsfehler = anbieter->StelleVerzoegerung(*port);
    }
    ZeigeVerzoegerung();
}

void Leitungsseite::Lokalisiere() {
    verzoegerungsfehler.clear();
    ui->lstZahlen->setAccessibleName(ui->lstZahlen->headerItem()->text(0));
    ui->pbPruefung->setAccessibleName(ui->cmdPruefen->text().remove(u'&'));
    ZeigeLage();
}

bool Leitungsseite::IstAlt() const {
    if (lage != Lage::Beendet)
        return false;
    return portWarWeg || befund.geraet != stand.Geraet() || befund.format != stand.wahl.format;
}

/// What can be done now, and what is under way.
void Leitungsseite::ZeigeLage() {
    const bool laeuft = Laeuft();
    ui->lblLeitung->setText(Q(Linientext(stand)));
    ui->cmdPruefen->setEnabled(!laeuft);
    ui->cmdAnhalten->setEnabled(laeuft);
    ui->pbPruefung->setVisible(laeuft);
    ui->pbPruefung->setMaximum(Pruefauftrag().anzahl);
    ui->pbPruefung->setValue(befund.gesendet);
    ui->cmdKopieren->setEnabled(lage == Lage::Beendet);
    ui->lblPruefstand->setText(Q(Lagetext()));
    ui->lblDeutung->setText(Q(Deutungstext()));
    ui->lblDeutung->setVisible(!ui->lblDeutung->text().isEmpty());
    ui->lblDeutung->setEnabled(!IstAlt());
    ZeigeZahlen();
    ZeigeVerzoegerung();
}

std::string Leitungsseite::Lagetext() const {
    switch (lage) {
    case Lage::Unbegonnen:
        return LadeText(TextUnbegonnen);
    case Lage::Verlangt:
        return LadeText(TextBeginnt);
    case Lage::Laeuft:
        return LadeTextMit(TextLaeuft,
                           {std::to_string(befund.gesendet), std::to_string(Pruefauftrag().anzahl)});
    case Lage::Beendet:
        break;
    }
    const std::string wann = Zeittext(zeit).toStdString();
    return LadeTextMit(IstAlt() ? TextAlt : TextBeendet, {wann, befund.geraet, befund.format});
}

std::string Leitungsseite::Deutungstext() const {
    if (lage != Lage::Beendet)
        return {};
    std::string text;
    for (const Deutung& deutung : Deute(befund))
        text += (text.empty() ? "" : "\n") + deutung.text;
    return text;
}

/// The rows stay the same ones while the numbers change.
void Leitungsseite::ZeigeZahlen() {
    QTreeWidget& liste = *ui->lstZahlen;
    const bool etwas = lage == Lage::Laeuft || lage == Lage::Beendet;
    const auto zeilen = etwas ? Pruefzeilen(befund) : std::vector<Pruefzeile>();
    while (liste.topLevelItemCount() > static_cast<int>(zeilen.size()))
        delete liste.takeTopLevelItem(liste.topLevelItemCount() - 1);
    while (liste.topLevelItemCount() < static_cast<int>(zeilen.size()))
        new QTreeWidgetItem(&liste);
    for (int i = 0; i < liste.topLevelItemCount(); ++i) {
        QTreeWidgetItem& eintrag = *liste.topLevelItem(i);
        const Pruefzeile& zeile = zeilen[static_cast<std::size_t>(i)];
        eintrag.setText(0, Q(zeile.name));
        eintrag.setText(1, Q(zeile.wert));
        eintrag.setDisabled(IstAlt());
    }
    PasseSpaltenAn(liste, BreitesteSpalte);
}

/// The timer as it is now, and that it could not be set.
void Leitungsseite::ZeigeVerzoegerung() {
    const Portangabe* const port = BenutzterPort(ports, stand);
    const bool bekannt = port != nullptr && port->verzoegerungMs.has_value();
    ui->lblVerzoegerung->setVisible(bekannt);
    ui->cmdVerzoegerung->setVisible(bekannt && *port->verzoegerungMs > KuerzesteMs);
    if (!bekannt)
        return;
    std::string text = LadeTextMit(TextVerzoegerung, {std::to_string(*port->verzoegerungMs)});
    if (!verzoegerungsfehler.empty() && fehlergeraet == port->geraet)
        text += "\n" + verzoegerungsfehler;
    ui->lblVerzoegerung->setText(Q(text));
    ui->lblVerzoegerung->setToolTip(AlsTipp(Q(port->verzoegerungsdatei)));
    ui->cmdVerzoegerung->setEnabled(!Laeuft());
}

} // namespace varnoth
