#include "aufzeichnungsablauf.h"

#include "aufzeichnungseinstellungen.h"
#include "aufzeichnungsmarke.h"
#include "csvform.h"
#include "dateiausgabe.h"
#include "dateidialog.h"
#include "dateien.h"
#include "dateiziel.h"
#include "einstellungen.h"
#include "ereignisse.h"
#include "frmAufzeichnung.h"
#include "identifikation.h"
#include "konfigurationsbefehle.h"
#include "messspeicher.h"
#include "nebenfaden.h"
#include "polling.h"
#include "programmversion.h"
#include "registerabbild.h"
#include "seriennummer.h"
#include "standtext.h"
#include "systemfehler.h"
#include "texte.h"
#include "textmitwerten.h"
#include "transaktionen.h"
#include "umgebung.h"
#include "vrecform.h"

#include <QDesktopServices>
#include <QStatusBar>
#include <QUrl>

#include <utility>

namespace varnoth {

namespace {

constexpr int TaktMs = 500;
constexpr int SicherungstaktMs = 50;
constexpr Zeit Sicherungsschritt = std::chrono::milliseconds(2); // at one go, or a request would wait for it
constexpr auto LaengstesEnde = Nebenfaden::LaengstesSchweigen;
// As long as a disk that answers needs; nobody notices that it was waited for.
constexpr std::chrono::milliseconds LaengsterBeginn(50);
constexpr std::chrono::milliseconds
    LaengsterHalt(500); // the rest has to be safe on the disk, which takes longer
constexpr std::int16_t TextKeinBeginn = 6230, TextUnterbrochen = 6231, TextGehtWeiter = 6232,
                       TextBeendet = 6233, TextMengen = 6272, TextSpeicherSichern = 6279,
                       TextVrecfilter = 6280, TextAntwortetNicht = 6752, TextNichtZuEnde = 6753,
                       TextZuFruehBeendet = 6758, TextWartet = 6791, TextAntwortetWieder = 6792;

/// The clock of the passes for another thread, which must not ask the environment.
Aufzeichnung::Uhr UhrFuerAndere() {
    const auto jetzt = [] {
        return std::chrono::floor<Zeit>(std::chrono::steady_clock::now().time_since_epoch());
    };
    return [jetzt, versatz = DieUmgebung().Uhr() - jetzt()] {
        return Augenblick{.uhr = jetzt() + versatz, .zeit = std::chrono::system_clock::now()};
    };
}

bool IstLive() {
    return modPolling::GetPollingAktiv() != False && !modPolling::VerbindungVerloren();
}

Messangaben Angaben() {
    Messangaben angaben{.programm = std::string(Programmversion())};
    if (modModbus::GetIdentGueltig() == False)
        return angaben;
    angaben.bezeichnung = IdenttextAlsUtf8(modModbus::GetIdentText1());
    angaben.seriennummer = GeraeteSeriennummer();
    return angaben;
}

} // namespace

Aufzeichnungsablauf::Aufzeichnungsablauf(Ziel dasZiel)
    : ziel(std::move(dasZiel)), flugschreiber(LiesFlugschreiber(DieEinstellungen())),
      marke(new Aufzeichnungsmarke(ziel.leiste)) {
    if (ziel.ablage == nullptr)
        ziel.ablage = std::make_shared<Dateiausgabe>();
    if (!ziel.schreibe)
        ziel.schreibe = ErsetzeDatei;
    QObject::connect(marke, &QPushButton::clicked, marke, [this] { ziel.zeige(); });
    takt.setInterval(TaktMs);
    QObject::connect(&takt, &QTimer::timeout, marke, [this] { BlickeNach(); });
    sicherungstakt.setInterval(SicherungstaktMs);
    QObject::connect(&sicherungstakt, &QTimer::timeout, marke, [this] {
        if (sicherung->IstFertig())
            BeendeSicherung(sicherung->Fehler());
    });
    modMesshoerer::MeldeAn(*this);
}

Aufzeichnungsablauf::~Aufzeichnungsablauf() {
    modMesshoerer::MeldeAb(*this);
}

void Aufzeichnungsablauf::Schalte() {
    if (Laeuft())
        Beende();
    else
        Beginne({});
}

Aufzeichnungsauftrag Aufzeichnungsablauf::Auftrag(const std::string& name) {
    const Aufzeichnungswahl wahl = Wahl();
    Aufzeichnungsauftrag auftrag{.wahl = wahl,
                                 .ordner = Ordner(),
                                 .name = name.empty() ? Namensvorschlag() : Dateinamensteil(name),
                                 .angaben = Angaben()};
    if (wahl.vrec)
        auftrag.formen.push_back({".vrec", [] { return std::make_unique<Vrecform>(); }});
    if (wahl.csv)
        auftrag.formen.push_back({".csv", [art = wahl.csvart, worte = LadeCsvworte()] {
                                      return std::make_unique<Csvform>(art, worte);
                                  }});
    return auftrag;
}

void Aufzeichnungsablauf::Beginne(const std::string& name) {
    if (Laeuft())
        return;
    auto neue =
        std::make_unique<Aufzeichnung>(ziel.ablage, Auftrag(name), ziel.uhr ? ziel.uhr : UhrFuerAndere());
    FolgeKonfiguration();
    if (const auto fehler = neue->Beginne(konfiguration, LaengsterBeginn); fehler.value_or(0) != 0)
        return MeldeKeinenBeginn(*fehler);
    aufzeichnung = std::move(neue);
    beginnGemerkt = wartenGemeldet = false;
    gemeldeterFehler = 0;
    rate = {};
    MerkeBeginn(aufzeichnung->Stand());
    ziel.laeuft(true);
    takt.start();
    BlickeNach();
}

void Aufzeichnungsablauf::MeldeKeinenBeginn(int fehler) {
    ZeigeWarnung(LadeTextMit(TextKeinBeginn, {Dateifehlertext(Systemfehler(fehler), Ordner())}));
}

void Aufzeichnungsablauf::MerkeBeginn(const Aufzeichnungsstand& stand) {
    if (stand.dateien > 0 && !std::exchange(beginnGemerkt, true))
        modEreignisse::Merke({.art = Ereignisart::AufzeichnungBegonnen, .text = stand.pfade.front()});
}

void Aufzeichnungsablauf::Beende() {
    if (!Nimmt())
        return;
    endetSeit = DieUmgebung().Uhr();
    BlickeNachDemEnde(LaengsterHalt);
}

/// A disk that does not answer at once gets its time while the program goes on.
void Aufzeichnungsablauf::BlickeNachDemEnde(std::chrono::milliseconds hoechstens) {
    if (aufzeichnung->LassEnden(hoechstens))
        return SchliesseAb(true);
    if (DieUmgebung().Uhr() - *endetSeit >= LaengstesEnde)
        return SchliesseAb(aufzeichnung->Beende(std::chrono::milliseconds(0)));
    marke->Zeige(Markentext(Lage(), IstLive()));
}

void Aufzeichnungsablauf::SchliesseAb(bool ganz) {
    endetSeit.reset();
    letzter = aufzeichnung->Stand();
    aufzeichnung.reset();
    takt.stop();
    marke->hide();
    ziel.laeuft(false);
    if (ganz && letzter.dateien == 0)
        return MeldeKeinenBeginn(letzter.fehler);
    MerkeBeginn(letzter);
    MerkeEnde(ganz);
}

/// Into the events, and in a sentence.
void Aufzeichnungsablauf::MerkeEnde(bool ganz) {
    const std::string wo = letzter.pfade.empty() ? Ordner() : letzter.pfade.front();
    if (letzter.verworfen > 0)
        modEreignisse::Merke(
            {.art = Ereignisart::Verworfen, .anzahl = static_cast<std::uint32_t>(letzter.verworfen)});
    if (!ganz)
        modEreignisse::Merke(
            {.art = Ereignisart::AufzeichnungOhnePlatz, .text = LadeText(TextAntwortetNicht)});
    modEreignisse::Merke({.art = Ereignisart::AufzeichnungBeendet,
                          .anzahl = static_cast<std::uint32_t>(letzter.durchgaenge),
                          .dauer = letzter.dauer,
                          .text = wo});
    DieUmgebung().ZeigeStatustext(FeldMeldungen, LadeTextMit(ganz ? TextBeendet : TextNichtZuEnde, {wo}));
}

void Aufzeichnungsablauf::Notiere(Zeit uhr, Systemzeit zeit, const std::string& text) {
    if (Nimmt())
        aufzeichnung->Nimm({.art = Messereignisart::Notiz, .laufzeit = uhr, .zeit = zeit, .text = text});
}

void Aufzeichnungsablauf::Hoere(const Messdurchgang& durchgang) {
    if (!Nimmt())
        return;
    if (FolgeKonfiguration())
        aufzeichnung->SetzeKonfiguration(konfiguration);
    aufzeichnung->Nimm(durchgang);
}

void Aufzeichnungsablauf::Hoere(const Liveereignis& ereignis) {
    if (Nimmt())
        aufzeichnung->Nimm({.art = ArtVon(ereignis.art), .laufzeit = ereignis.uhr, .zeit = ereignis.zeit});
}

bool Aufzeichnungsablauf::Braucht(int /*teil*/) const {
    return Nimmt() || flugschreiber.alleTeile;
}

/// Whether the configuration in use has become another.
bool Aufzeichnungsablauf::FolgeKonfiguration() {
    const Abbild jetzige = OhneMomentanes(modDaten::DasAbbild());
    if (konfiguration != nullptr && *konfiguration == jetzige)
        return false;
    konfiguration = std::make_shared<const Abbild>(jetzige);
    return true;
}

void Aufzeichnungsablauf::BlickeNach() {
    if (!Laeuft())
        return;
    if (endetSeit)
        return BlickeNachDemEnde(std::chrono::milliseconds(0));
    const Aufzeichnungslage lage = Lage();
    if (lage.stand.fehler != 0 && lage.stand.dateien == 0)
        return Beende();
    MerkeBeginn(lage.stand);
    marke->Zeige(Markentext(lage, IstLive()));
    MeldeWarten(lage);
    MeldeAenderung(lage);
    if (lage.stand.fertig)
        Beende();
}

/// A disk that does not answer is told of once, and once that it does again.
void Aufzeichnungsablauf::MeldeWarten(const Aufzeichnungslage& lage) {
    if (std::exchange(wartenGemeldet, lage.stand.wartet) == lage.stand.wartet)
        return;
    if (lage.stand.wartet)
        modEreignisse::Merke({.art = Ereignisart::AufzeichnungOhnePlatz, .text = lage.hindernis});
    DieUmgebung().ZeigeStatustext(FeldMeldungen,
                                  LadeText(lage.stand.wartet ? TextWartet : TextAntwortetWieder));
}

/// What stands in the way is told once, and once when it is gone.
void Aufzeichnungsablauf::MeldeAenderung(const Aufzeichnungslage& lage) {
    const int vorher = std::exchange(gemeldeterFehler, lage.stand.fehler);
    if (vorher == lage.stand.fehler)
        return;
    const std::string text =
        lage.hindernis.empty() ? LadeText(TextGehtWeiter) : LadeTextMit(TextUnterbrochen, {lage.hindernis});
    if (!lage.hindernis.empty())
        modEreignisse::Merke({.art = Ereignisart::AufzeichnungOhnePlatz, .text = lage.hindernis});
    else if (!lage.stand.pfade.empty())
        modEreignisse::Merke({.art = Ereignisart::AufzeichnungBegonnen, .text = lage.stand.pfade.back()});
    DieUmgebung().ZeigeStatustext(FeldMeldungen, text);
}

Aufzeichnungslage Aufzeichnungsablauf::Lage() {
    if (Laeuft())
        letzter = aufzeichnung->Stand();
    return {.laeuft = Laeuft(),
            .stand = letzter,
            .durchgaengeJeSekunde = rate.Betrachte(letzter),
            .hindernis = Laeuft() ? Hindernis() : std::string()};
}

std::string Aufzeichnungsablauf::Hindernis() const {
    if (letzter.wartet || endetSeit)
        return LadeText(TextAntwortetNicht);
    return letzter.fehler != 0 ? Systemfehler(letzter.fehler) : std::string();
}

std::string Aufzeichnungsablauf::Standtext() {
    const Aufzeichnungslage lage = Lage();
    return LadeTextMit(TextMengen, {Markentext(lage, IstLive()), std::to_string(lage.stand.durchgaenge),
                                    std::to_string(lage.stand.dateien)});
}

Aufzeichnungswahl Aufzeichnungsablauf::Wahl() {
    return LiesAufzeichnungswahl(DieEinstellungen());
}

void Aufzeichnungsablauf::Waehle(const Aufzeichnungswahl& wahl) {
    SchreibAufzeichnungswahl(DieEinstellungen(), wahl);
}

std::string Aufzeichnungsablauf::Ordner() {
    return LiesAufzeichnungsordner(DieEinstellungen());
}

void Aufzeichnungsablauf::WaehleOrdner(const std::string& ordner) {
    SchreibAufzeichnungsordner(DieEinstellungen(), ordner);
}

std::string Aufzeichnungsablauf::Namensvorschlag() {
    return Aufzeichnungsname(GeraeteSeriennummer(), std::chrono::system_clock::now());
}

std::optional<std::string> Aufzeichnungsablauf::FrageNachOrdner(const std::string& titel,
                                                                const std::string& anfang) {
    return FrageNachDatei({.art = Dateiwahl::Ordner, .titel = titel, .ordner = anfang});
}

void Aufzeichnungsablauf::ZeigeOrdner(const std::string& ordner) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(ordner)));
}

void Aufzeichnungsablauf::Waehle(const Flugschreiber& wahl) {
    flugschreiber = wahl;
    SchreibFlugschreiber(DieEinstellungen(), wahl);
}

std::string Aufzeichnungsablauf::ImSpeicher() {
    if (ziel.speicher == nullptr || ziel.speicher->Erstes() == ziel.speicher->Ende())
        return {};
    const Zeitspanne spanne = ziel.speicher->Spanne();
    return Aufnahmedauer(spanne.bis - spanne.von);
}

void Aufzeichnungsablauf::SichereSpeicher(int minuten) {
    if (sicherung != nullptr || ImSpeicher().empty())
        return;
    const auto pfad = FrageNachZiel({.titel = LadeText(TextSpeicherSichern),
                                     .filter = LadeText(TextVrecfilter),
                                     .ordner = Ordner(),
                                     .name = Namensvorschlag() + ".vrec"});
    if (!pfad)
        return;
    const Zeit bis = ziel.speicher->Spanne().bis;
    const Zeitspanne spanne{bis - std::chrono::minutes(minuten), bis};
    sicherung = std::make_shared<Speichersicherung>(*ziel.speicher, spanne, *pfad, ziel.schreibe);
    PlaneSicherung();
}

/// In the pauses of the line; what waits for one may find that the saving is over.
void Aufzeichnungsablauf::PlaneSicherung() {
    DieUmgebung().FuerWartezeit([this, diese = std::weak_ptr(sicherung)] {
        if (!diese.expired())
            SichereWeiter();
    });
}

void Aufzeichnungsablauf::SichereWeiter() {
    if (sicherung->Arbeite(Sicherungsschritt))
        PlaneSicherung();
    else
        sicherungstakt.start();
}

void Aufzeichnungsablauf::BeendeSicherung(const std::string& fehler) {
    sicherungstakt.stop();
    const auto diese = std::exchange(sicherung, {});
    if (fehler.empty())
        gesichert = diese->Pfad();
    else
        ZeigeWarnung(Dateifehlertext(fehler, diese->Pfad()));
}

Speicherlage Aufzeichnungsablauf::Sicherung() {
    return {.laeuft = sicherung != nullptr,
            .anteil = sicherung != nullptr ? sicherung->Anteil() : 0,
            .gesichert = gesichert};
}

void Aufzeichnungsablauf::Zeige() {
    if (fenster == nullptr)
        fenster = std::make_unique<frmAufzeichnung>(static_cast<Aufzeichnungsanbieter&>(*this));
    fenster->ZeigeVor();
}

void Aufzeichnungsablauf::Lokalisiere() {
    if (fenster != nullptr)
        fenster->Lokalisiere();
    BlickeNach();
}

void Aufzeichnungsablauf::Schliesse() {
    const auto anfang = std::chrono::steady_clock::now();
    if (sicherung != nullptr)
        static_cast<void>(sicherung->Arbeite(LaengstesEnde)); // its disk has the time of the other's too
    if (Laeuft())
        SchliesseAb(aufzeichnung->Beende(LaengstesEnde));
    const auto vergangen =
        std::chrono::floor<std::chrono::milliseconds>(std::chrono::steady_clock::now() - anfang);
    if (sicherung != nullptr)
        BeendeSicherung(AmEnde(sicherung->Beende(LaengstesEnde - vergangen)));
    if (fenster != nullptr)
        fenster->close();
}

/// What came of saving the memory when the program ends; empty when all went well.
std::string Aufzeichnungsablauf::AmEnde(bool fertig) const {
    if (fertig)
        return sicherung->Fehler();
    return LadeText(sicherung->Anteil() < 1.0 ? TextZuFruehBeendet : TextAntwortetNicht);
}

} // namespace varnoth
