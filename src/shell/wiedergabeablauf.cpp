#include "wiedergabeablauf.h"

#include "ansichtstitel.h"
#include "berichtsbefehl.h"
#include "dateidialog.h"
#include "dateien.h"
#include "dateiziel.h"
#include "durchgangsbild.h"
#include "frmWiedergabe.h"
#include "gezeigtesabbild.h"
#include "hauptmenue.h"
#include "konfigurationsbefehle.h"
#include "konfigurationsdatei.h"
#include "registeradressen.h"
#include "seitenjetzt.h"
#include "statusbits.h"
#include "statusleiste.h"
#include "texte.h"
#include "textmitwerten.h"
#include "umgebung.h"
#include "verbindungsanzeige.h"
#include "zeitworte.h"

#include <QDockWidget>
#include <QFileInfo>
#include <QMainWindow>
#include <QProgressDialog>

#include <cmath>

namespace varnoth {

namespace {

constexpr std::int16_t TextAusgangAktiv = 3001, TextAusgangNichtAktiv = 3002, TextWiedergabe = 6500,
                       TextOeffnen = 6543, TextFilter = 6544, TextWirdGeoeffnet = 6545,
                       TextOhneDurchgaenge = 6546, TextSpeichernUnter = 6547, TextKonfigurationsfilter = 2000,
                       TextOhneKonfiguration = 6550, TextHerkunft = 6553;
constexpr int Fortschrittsschritte = 1000;
constexpr std::size_t HhMmSs = 8; // letters of a time of day without its milliseconds
constexpr std::chrono::milliseconds FortschrittNach(400);

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

/// What a view is set up for.
std::vector<std::pair<std::int32_t, std::int32_t>> Aufbau(const Abbild& abbild) {
    std::vector<std::pair<std::int32_t, std::int32_t>> aufbau;
    aufbau.reserve(AnzahlOptikteile);
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        aufbau.emplace_back(abbild.HoleRegister(Spezifisch, spezifisch::Strahlenzahl, teil),
                            abbild.HoleRegister(Spezifisch, spezifisch::Aufloesung, teil));
    return aufbau;
}

} // namespace

Wiedergabeablauf::Wiedergabeablauf(Ziel neues) : ziel(std::move(neues)) {}

Wiedergabeablauf::~Wiedergabeablauf() {
    modDaten::ZeigeAnderesAbbild(nullptr);
}

bool Wiedergabeablauf::IstAufzeichnung(const std::string& datei) {
    return Q(datei).endsWith(QLatin1String(".vrec"), Qt::CaseInsensitive);
}

void Wiedergabeablauf::Oeffne() {
    const auto datei = FrageNachDatei({.art = Dateiwahl::Oeffnen,
                                       .titel = LadeText(TextOeffnen),
                                       .filter = LadeText(TextFilter),
                                       .ordner = Dokumentordner()});
    if (!datei)
        return;
    MerkeDokumentordner(*datei);
    Oeffne(*datei);
}

void Wiedergabeablauf::Oeffne(const std::string& datei) {
    GeoeffneteAufzeichnung ergebnis = OeffneMitFortschritt(datei);
    if (ziel.teile.beendet())
        return;
    if (ergebnis.quelle != nullptr && ergebnis.quelle->Erstes() == ergebnis.quelle->Ende())
        ergebnis = {.fehlertext = LadeText(TextOhneDurchgaenge)};
    if (ergebnis.quelle != nullptr) {
        ziel.teile.status.Zeige(FeldMeldungen, ergebnis.hinweis);
        Beginne(std::move(ergebnis.quelle), datei);
    } else if (!ergebnis.fehlertext.empty()) {
        ZeigeWarnung(Dateifehlertext(ergebnis.fehlertext, datei));
    }
}

GeoeffneteAufzeichnung Wiedergabeablauf::OeffneMitFortschritt(const std::string& datei) {
    QProgressDialog fortschritt(Q(LadeText(TextWirdGeoeffnet)), {}, 0, Fortschrittsschritte, &ziel.fenster);
    fortschritt.setObjectName(QStringLiteral("frmAufzeichnungOeffnen"));
    fortschritt.setWindowTitle(Q(LadeText(TextOeffnen)));
    fortschritt.setCancelButtonText(Q(LadeText(7902)));
    fortschritt.setWindowModality(Qt::ApplicationModal);
    fortschritt.setMinimumDuration(static_cast<int>(FortschrittNach.count()));
    fortschritt.setAutoReset(false);
    fortschritt.setValue(0);
    auto ergebnis = ziel.oeffne(datei, [&](double anteil) {
        fortschritt.setValue(static_cast<int>(std::lround(anteil * (Fortschrittsschritte - 1))));
        return !fortschritt.wasCanceled() && !ziel.teile.beendet();
    });
    if (fortschritt.wasCanceled())
        return {};
    return ergebnis;
}

void Wiedergabeablauf::Beginne(std::shared_ptr<const Messquelle> quelle, const std::string& datei) {
    if (!vorher)
        vorher = {ziel.teile.ansichten.HoleStand(), ziel.teile.menue.GezeigteTeile()};
    stand.reset();
    ziel.setzeWiedergabe(nullptr);
    aufzeichnung = std::move(quelle);
    pfad = datei;
    stand.emplace(*aufzeichnung);
    ziel.setzeWiedergabe(this);
    gezeigt.reset();
    aufgebaut.clear();
    StelleAuf();
}

/// The window shows that nothing in it is live.
void Wiedergabeablauf::StelleAuf() {
    const Messangaben angaben = aufzeichnung->Angaben();
    Verbindungsgegenstand woraus;
    woraus.aufzeichnung = pfad;
    woraus.bezeichnung = angaben.bezeichnung;
    woraus.seriennummer = angaben.seriennummer;
    ziel.teile.verbindung.SetzeWiedergabe(std::move(woraus));
    abbild = {};
    modDaten::ZeigeAnderesAbbild(&abbild);
    ziel.teile.ansichten.SetzeWiedergabe(true);
    if (rahmen == nullptr) {
        titel = ziel.fenster.windowTitle();
        MacheLeiste();
    }
    ZeigeTitel();
    leiste->Beginne();
}

void Wiedergabeablauf::MacheLeiste() {
    rahmen = new QDockWidget(&ziel.fenster);
    rahmen->setObjectName(QStringLiteral("dckWiedergabe"));
    rahmen->setFeatures(QDockWidget::NoDockWidgetFeatures);
    rahmen->setTitleBarWidget(new QWidget(rahmen));
    leiste = new frmWiedergabe(*this, rahmen);
    rahmen->setWindowTitle(leiste->windowTitle());
    rahmen->setWidget(leiste);
    rahmen->setContextMenuPolicy(Qt::PreventContextMenu);
    ziel.fenster.addDockWidget(Qt::BottomDockWidgetArea, rahmen);
}

void Wiedergabeablauf::ZeigeTitel() {
    ziel.fenster.setWindowTitle(titel + QStringLiteral(" – ") + Q(LadeText(TextWiedergabe)) +
                                QStringLiteral(": ") + QFileInfo(Q(pfad)).fileName());
}

void Wiedergabeablauf::Beende() {
    if (!Laeuft())
        return;
    leiste->Beende();
    modDaten::ZeigeAnderesAbbild(nullptr);
    ziel.setzeWiedergabe(nullptr);
    ziel.teile.verbindung.SetzeWiedergabe({});
    ziel.teile.status.ZeigeAusgangVon({}, {});
    ziel.teile.status.Zeige(FeldMeldungen, {});
    ziel.fenster.setWindowTitle(titel);
    if (rahmen != nullptr) {
        ziel.fenster.removeDockWidget(rahmen);
        rahmen->deleteLater();
        rahmen = nullptr;
        leiste->setParent(nullptr);
        leiste->deleteLater();
        leiste = nullptr;
    }
    ziel.teile.ansichten.SetzeWiedergabe(false);
    ziel.teile.ansichten.StelleHer(vorher->ansichten);
    ziel.teile.menue.ZeigeTeile(vorher->menue);
    vorher.reset();
    stand.reset();
    aufzeichnung.reset();
}

void Wiedergabeablauf::SpringeZu(Zeit laufzeit) {
    if (!Laeuft())
        return;
    stand->GeheZu(laufzeit, DieUmgebung().Uhr());
    leiste->Folge();
}

Wiedergabelage Wiedergabeablauf::Zeige() {
    const Wiedergabestelle stelle = StelleUm(*aufzeichnung, stand->Position());
    if (!gezeigt || !stelle.Gleicht(*gezeigt))
        ZeigeStelle(stelle);
    gezeigt = stelle;
    return stelle.lage;
}

/// Where there is no pass the views keep their beams, but neither states nor values.
void Wiedergabeablauf::ZeigeStelle(const Wiedergabestelle& stelle) {
    const Messdurchgang* const durchgang = stelle.Durchgang();
    const auto konfiguration = aufzeichnung->Konfiguration(stelle.nummer);
    const Abbild& grund = konfiguration != nullptr ? *konfiguration : abbild;
    if (durchgang != nullptr)
        abbild = AlsAbbild(grund, *durchgang);
    else if (aufgebaut.empty())
        abbild = grund;
    if (!PasstZuDenAnsichten()) {
        ziel.teile.baueAnsichtenAuf();
        ziel.teile.menue.FolgeStrahlenzahlen();
        aufgebaut = Aufbau(abbild);
    }
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        ZeigeTeil(teil, durchgang);
    ZeigeAusgang(durchgang);
}

bool Wiedergabeablauf::PasstZuDenAnsichten() const {
    return aufgebaut == Aufbau(abbild);
}

void Wiedergabeablauf::ZeigeTeil(int optikteil, const Messdurchgang* durchgang) {
    Ansichten& ansichten = ziel.teile.ansichten;
    const std::int32_t status = abbild.HoleRegister(Spezifisch, spezifisch::Optikteilstatus, optikteil);
    ansichten.SetzeTitel(optikteil, Titeltext(modPolling::ZustandAus(status), durchgang != nullptr));
    if (durchgang == nullptr)
        return;
    if (durchgang->teile.at(static_cast<std::size_t>(optikteil)).gemessen)
        ansichten.ZeigeDurchgang(optikteil);
    else
        ansichten.VerwirfWerte(optikteil);
}

void Wiedergabeablauf::ZeigeAusgang(const Messdurchgang* durchgang) {
    if (durchgang == nullptr)
        return ziel.teile.status.ZeigeAusgangVon({}, {});
    const bool aktiv = (durchgang->geraetestatus & geraetestatus::PnpAktiv) != 0;
    ziel.teile.status.ZeigeAusgangVon(
        LadeText(aktiv ? TextAusgangAktiv : TextAusgangNichtAktiv),
        Uhrzeitworte(aufzeichnung->Angaben(), durchgang->uhr).substr(0, HhMmSs));
}

void Wiedergabeablauf::ZeigeAnsicht(int optikteil) {
    ziel.teile.ansichten.Zeige(optikteil, false);
    gezeigt.reset();
    static_cast<void>(Zeige());
}

void Wiedergabeablauf::Lokalisiere() {
    if (!Laeuft())
        return;
    titel = ziel.fenster.windowTitle();
    ZeigeTitel();
    gezeigt.reset();
    leiste->Lokalisiere();
    rahmen->setWindowTitle(leiste->windowTitle());
    leiste->Folge();
}

/// The configuration that was in use where the replay stands; nothing after a message where it is damaged.
std::shared_ptr<const Abbild> Wiedergabeablauf::HoleKonfiguration() {
    auto konfiguration = aufzeichnung->Konfiguration(aufzeichnung->PaketUm(stand->Position()));
    if (konfiguration == nullptr)
        ZeigeWarnung(LadeText(TextOhneKonfiguration));
    return konfiguration;
}

std::string Wiedergabeablauf::Dateiname() const {
    return QFileInfo(Q(pfad)).completeBaseName().toStdString();
}

std::string Wiedergabeablauf::Herkunft() const {
    return LadeTextMit(TextHerkunft, {QFileInfo(Q(pfad)).fileName().toStdString(),
                                      Zeitworte(aufzeichnung->Angaben(), stand->Position())});
}

void Wiedergabeablauf::BerichteKonfiguration() {
    if (const auto konfiguration = HoleKonfiguration())
        ZeigeBerichtUeber(&ziel.fenster, *konfiguration, Herkunft(), Dateiname());
}

void Wiedergabeablauf::VergleicheKonfiguration() {
    if (const auto konfiguration = HoleKonfiguration())
        ziel.vergleiche({Vergleichsquelle::Datei, pfad, *konfiguration, {}},
                        SeiteJetzt(Vergleichsquelle::InBearbeitung));
}

/// A file of its own: neither the configuration in use nor its file name has to do with it.
void Wiedergabeablauf::SpeichereKonfiguration() {
    const auto konfiguration = HoleKonfiguration();
    if (konfiguration == nullptr)
        return;
    const auto wohin = FrageNachZiel({.titel = LadeText(TextSpeichernUnter),
                                      .filter = LadeText(TextKonfigurationsfilter),
                                      .ordner = LetzterOrdner(),
                                      .name = Dateiname() + ".con"});
    if (!wohin)
        return;
    const std::string fehler = ErsetzeDatei(*wohin, AlsKonfigurationsdatei(*konfiguration));
    if (!fehler.empty())
        ZeigeWarnung(Dateifehlertext(fehler, *wohin));
}

} // namespace varnoth
