#include "messplatz.h"

#include "bericht.h"
#include "polling.h"
#include "schnittstelle.h"

namespace varnoth::bench {

namespace {

constexpr QSize Fenstergroesse(1280, 800);

Startbedingungen Bedingungen(const QString& ordner, const QString& geraet) {
    return {.worte = {QStringLiteral("/Geraet=") + geraet},
            .programmordner = ordner,
            .programmname = QStringLiteral("bench"),
            .sperrordner = ordner,
            .splashSekunden = 0};
}

} // namespace

Messplatz::Messplatz(const QStringList& simulatorworte)
    : simulator(simulatorworte), programm(Bedingungen(ordner.path(), simulator.Geraet())) {
    modSchnittstelle::SetzePort(&port);
    programm.DieQtUmgebung().SetzeMeldungsweg(
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

void Messplatz::Stoppe() {
    programm.Hauptfenster().mnuMessdatenVisualisierenStop_Click();
    while (modPolling::GetPollingAktiv() != False)
        programm.Runde();
}

void Messplatz::UebergeheMeldungen() {
    programm.DieQtUmgebung().SetzeMeldungsweg([](const Meldung&) { return Antwort::Ok; });
}

} // namespace varnoth::bench
