#include "programmtest.h"

#include "polling.h"

#include <QDir>
#include <QFile>
#include <QStatusBar>

#include <algorithm>

namespace varnoth::pruefung {

namespace {
constexpr const char* Einstellungsdatei = "varnoth.ini";
}

Zeitgrenze::Zeitgrenze(frmMain& hauptfenster, int hoechstensMs) {
    QObject::connect(&wecker, &QTimer::timeout, &hauptfenster, [&hauptfenster] {
        ADD_FAILURE() << "the program does not come back";
        hauptfenster.close();
    });
    wecker.setSingleShot(true);
    wecker.start(hoechstensMs);
}

ProgrammTest::ProgrammTest() {
    // What the offscreen platform says of the splash window.
    ErwarteWarnung("does not support raise()");
}

ProgrammTest::~ProgrammTest() {
    Beende();
}

void ProgrammTest::SchliesseGeraetAn(const QStringList& optionen) {
    geraet.emplace(ordner.path(), QStringList{"--unpaced"} + optionen);
    SchreibeEinstellungen("[Settings]\nComGeraet1=" + geraet->Geraet().toUtf8() + "\n");
}

void ProgrammTest::SchreibeEinstellungen(const QByteArray& inhalt) const {
    QFile datei(Pfad(Einstellungsdatei));
    ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
    datei.write(inhalt);
}

QByteArray ProgrammTest::LiesEinstellungen() const {
    QFile datei(Pfad(Einstellungsdatei));
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
}

void ProgrammTest::Starte(const QStringList& worte) {
    programm = std::make_unique<Anwendung>(Startbedingungen{.worte = worte,
                                                            .programmordner = ordner.path(),
                                                            .programmname = "varnoth",
                                                            .sperrordner = ordner.path(),
                                                            .datenordner = Pfad("daten"),
                                                            .splashSekunden = 0});
    ASSERT_TRUE(programm->Starte());
}

void ProgrammTest::Verbinde() {
    const Zeitgrenze grenze(Hauptfenster(), LaengsterAblaufMs);
    programm->Verbinde();
}

void ProgrammTest::GeheLive(const QStringList& optionen) {
    SchliesseGeraetAn(optionen);
    Starte();
    Verbinde();
    ASSERT_TRUE(LaufeBis(IstLive));
}

bool ProgrammTest::LaufeDurchgaenge(unsigned anzahl) {
    const unsigned ziel = modPolling::GetDurchgaenge() + anzahl;
    return LaufeBis([ziel] { return modPolling::GetDurchgaenge() >= ziel; });
}

QAction& ProgrammTest::Aktion(const QString& name) {
    auto* aktion = Hauptfenster().findChild<QAction*>(name);
    if (aktion == nullptr)
        throw std::runtime_error("no menu item " + name.toStdString());
    return *aktion;
}

std::vector<std::string> ProgrammTest::AlleTitel() {
    std::vector<std::string> titel;
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        titel.push_back(Titel(teil));
    return titel;
}

std::vector<int> ProgrammTest::GezeigteWerte(int teil) {
    std::vector<int> werte;
    for (const char* name : {"TU", "HU", "ZU", "TNU", "HNU", "ZNU"})
        werte.push_back(Kind<QLabel>(Ansicht(teil), QStringLiteral("lblInhalt%1").arg(name)).text().toInt());
    return werte;
}

std::string ProgrammTest::Statusfeld(int nummer) {
    return Kind<QLabel>(*Hauptfenster().statusBar(), QStringLiteral("sbStatusBar_%1").arg(nummer))
        .text()
        .toStdString();
}

bool ProgrammTest::HatLeitungOffen() const {
    const QString leitung = QFileInfo(geraet->Geraet()).canonicalFilePath();
    const auto offene = QDir("/proc/self/fd").entryInfoList(QDir::Files | QDir::System);
    return std::ranges::any_of(offene,
                               [&](const QFileInfo& datei) { return datei.symLinkTarget() == leitung; });
}

bool ProgrammTest::IstLive() {
    return modPolling::GetPollingAktiv() != False && modPolling::GetDurchgaenge() > 0 &&
           !modPolling::VerbindungVerloren();
}

std::vector<std::string> ViermalTitel(const std::string& text) {
    std::vector<std::string> titel;
    for (int teil = 1; teil <= AnzahlOptikteile; ++teil)
        titel.push_back(std::to_string(teil) + text);
    return titel;
}

} // namespace varnoth::pruefung
