#include "messplatz.h"

#include "bericht.h"
#include "polling.h"
#include "schnittstelle.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>

namespace varnoth::bench {

namespace {

constexpr QSize Fenstergroesse(1280, 800);

const QString Programmname = QStringLiteral("bench");

void SchreibeEinstellungen(const QString& ordner, int baud) {
    QFile datei(QDir(ordner).filePath(Programmname + QStringLiteral(".ini")));
    const QString zeilen = QStringLiteral("[Settings]\nComSettings=%1,n,8,2\n").arg(baud);
    if (!datei.open(QIODevice::WriteOnly) || datei.write(zeilen.toLatin1()) < 0 || !datei.flush())
        Scheitere(QStringLiteral("the settings file cannot be written"));
}

/// Where the program starts; its settings are there then.
Startbedingungen Bedingungen(const QString& ordner, const QString& geraet, int baud) {
    SchreibeEinstellungen(ordner, baud);
    qputenv("HOME", ordner.toUtf8()); // where recordings go
    return {.worte = {QStringLiteral("/Geraet=") + geraet},
            .programmordner = ordner,
            .programmname = Programmname,
            .sperrordner = ordner,
            .datenordner = ordner + QStringLiteral("/daten"),
            .splashSekunden = 0};
}

} // namespace

Messplatz::Messplatz(const QStringList& simulatorworte, int baud)
    : simulator(simulatorworte + QStringList{QStringLiteral("--baud"), QString::number(baud)}),
      programm(Bedingungen(ordner.path(), simulator.Geraet(), baud)) {
    modSchnittstelle::SetzePort(&port);
    programm.DieFensterumgebung().SetzeMeldungsweg(
        [](const Meldung& meldung) -> Antwort { Scheitere(QString::fromStdString(meldung.text)); });
    if (!programm.Starte())
        Scheitere(QStringLiteral("the program does not start"));
    programm.Hauptfenster().resize(Fenstergroesse);
}

Messplatz::~Messplatz() {
    modSchnittstelle::CloseCommPort();
    modSchnittstelle::SetzePort(nullptr);
}

void Messplatz::Verbinde() {
    programm.Verbinde();
    if (modPolling::GetPollingAktiv() == False)
        Scheitere(QStringLiteral("no live data"));
}

void Messplatz::Durchlaufe() {
    const unsigned durchgaenge = modPolling::GetDurchgaenge();
    while (modPolling::GetDurchgaenge() == durchgaenge)
        programm.Runde();
}

void Messplatz::Zeige(const QString& aktion, const QString& name, bool offen) {
    const auto fenster = [&name]() -> QWidget* {
        for (QWidget* const eines : QApplication::topLevelWidgets())
            if (eines->objectName() == name)
                return eines;
        return nullptr;
    };
    if (!offen) {
        if (fenster() != nullptr)
            fenster()->close();
        return;
    }
    programm.Hauptfenster().findChild<QAction*>(aktion)->trigger();
    while (fenster() == nullptr || !fenster()->isVisible())
        programm.Runde();
}

void Messplatz::ZeigeProtokoll(bool offen) {
    Zeige(QStringLiteral("mnuBusprotokoll"), QStringLiteral("frmBusprotokoll"), offen);
}

void Messplatz::ZeichneAuf(bool ob) {
    Zeige(QStringLiteral("tlbVerlauf"), QStringLiteral("frmVerlauf"), ob);
    Zeige(QStringLiteral("tlbStrahlverlauf"), QStringLiteral("frmWasserfall"), ob);
    auto* const aufzeichnung = programm.Hauptfenster().findChild<QAction*>(QStringLiteral("tlbAufzeichnung"));
    if (aufzeichnung->isChecked() == ob)
        return;
    aufzeichnung->trigger();
    while (programm.Hauptfenster().BefehlWartet())
        programm.Runde();
}

void Messplatz::Stoppe() {
    programm.Hauptfenster().mnuMessdatenVisualisierenStop_Click();
    while (modPolling::GetPollingAktiv() != False)
        programm.Runde();
}

void Messplatz::UebergeheMeldungen() {
    programm.DieFensterumgebung().SetzeMeldungsweg([](const Meldung&) { return Antwort::Ok; });
}

} // namespace varnoth::bench
