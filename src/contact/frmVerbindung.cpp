#include "frmVerbindung.h"

#include "fensterplatz.h"
#include "leitungspruefung.h"
#include "lokalisiereform.h"
#include "portzeile.h"
#include "suchlauf.h"
#include "ui_frmVerbindung.h"
#include "umgebung.h"
#include "verbindungsanbieter.h"

#include <QPointer>
#include <QShortcut>

#include <utility>

namespace varnoth {

namespace {

constexpr const char* Abschnitt = "frmVerbindung";
constexpr QSize Anfangsgroesse(820, 560);
constexpr int TaktMs = 500;

} // namespace

frmVerbindung::frmVerbindung(Verbindungsanbieter& quelle)
    : ui(std::make_unique<Ui::frmVerbindung>()), anbieter(quelle) {
    ui->setupUi(this);
    StelleFensterHer(*this, Abschnitt, Anfangsgroesse);
    ui->Anschlussseite->SetzeAnbieter(anbieter);
    ui->Suchseite->SetzeAnbieter(anbieter);
    ui->Leitungsseite->SetzeAnbieter(anbieter);
    connect(ui->cmdSchliessen, &QPushButton::clicked, this, &QWidget::close);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    connect(&takt, &QTimer::timeout, this, &frmVerbindung::ErneuereBeiGelegenheit);
    Lokalisiere();
}

frmVerbindung::~frmVerbindung() = default;

void frmVerbindung::showEvent(QShowEvent* ereignis) {
    QWidget::showEvent(ereignis);
    VerfolgePlatz(*this);
    takt.start(TaktMs);
}

void frmVerbindung::hideEvent(QHideEvent* ereignis) {
    QWidget::hideEvent(ereignis);
    takt.stop();
}

/// A search or check that nobody sees is of no use, and keeps the line from others.
void frmVerbindung::closeEvent(QCloseEvent* ereignis) {
    anbieter.BrichAb();
    BewahreFensterplatz(*this, Abschnitt);
    QWidget::closeEvent(ereignis);
}

void frmVerbindung::ZeigeVor() {
    Erneuere();
    HoleNachVorn(*this);
}

void frmVerbindung::Schlage(Verbindungsseite seite) {
    ui->tbsVerbindung->setCurrentIndex(static_cast<int>(seite));
}

/// Looking takes milliseconds, which live data shall not wait for.
void frmVerbindung::ErneuereBeiGelegenheit() {
    DieUmgebung().FuerWartezeit([dieses = QPointer<frmVerbindung>(this)] {
        if (dieses != nullptr && dieses->isVisible())
            dieses->Erneuere();
    });
}

void frmVerbindung::Erneuere() {
    Anschlussstand neuerStand = anbieter.Stand();
    std::vector<Portangabe> neuePorts = MitEingetragenen(anbieter.Ports(), neuerStand);
    if (neuePorts == ports && neuerStand == stand)
        return ui->Anschlussseite->ZeigeEingabe(); // what is typed leads elsewhere
    ports = std::move(neuePorts);
    stand = std::move(neuerStand);
    Zeige();
}

void frmVerbindung::Zeige() {
    ui->Anschlussseite->Zeige(ports, stand);
    ui->Suchseite->Zeige(ports, stand);
    ui->Leitungsseite->Zeige(ports, stand);
}

void frmVerbindung::Lokalisiere() {
    LokalisiereForm(*this);
    stand = anbieter.Stand();
    ports = MitEingetragenen(anbieter.Ports(), stand);
    Zeige();
    ui->Anschlussseite->Lokalisiere();
    ui->Suchseite->Lokalisiere();
    ui->Leitungsseite->Lokalisiere();
}

void frmVerbindung::Uebernommen() {
    Erneuere();
    ui->Anschlussseite->MeldeUebernommen();
}

void frmVerbindung::ZeigeVersuch(const Suchstand& versuch) {
    ui->Suchseite->ZeigeVersuch(versuch);
}

void frmVerbindung::BeendeSuche(const Suchfund& fund) {
    ui->Suchseite->Beende(fund);
    Erneuere();
}

void frmVerbindung::ZeigeZwischenstand(const Pruefbefund& bisher) {
    ui->Leitungsseite->ZeigeZwischenstand(bisher);
}

void frmVerbindung::BeendePruefung(const Pruefbefund& befund) {
    ui->Leitungsseite->Beende(befund);
    Erneuere();
}

void frmVerbindung::Entfalle() {
    if (ui->Suchseite->Laeuft())
        ui->Suchseite->Entfalle();
    if (ui->Leitungsseite->Laeuft())
        ui->Leitungsseite->Entfalle();
}

} // namespace varnoth
