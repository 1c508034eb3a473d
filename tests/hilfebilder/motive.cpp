#include "motive.h"

#include "aufzeichnungstexte.h"
#include "einstellungen.h"
#include "ereignisanbieter.h"
#include "ereignisse.h"
#include "frmAufzeichnung.h"
#include "frmBericht.h"
#include "frmBlankingmuster.h"
#include "frmBusprotokoll.h"
#include "frmDocument.h"
#include "frmEinzelwerteLesenSchreiben.h"
#include "frmEreignisse.h"
#include "frmIdentifikationsAnforderung.h"
#include "frmInfo.h"
#include "frmInitHardware.h"
#include "frmKeinKonturAngeschlossen.h"
#include "frmKonfigurationEdit.h"
#include "frmKonfigurationLesenAusHardware.h"
#include "frmKonfigurationSchreibenInHardware.h"
#include "frmRegisterliste.h"
#include "frmReihenfolge.h"
#include "frmResetHardware.h"
#include "frmSicherungen.h"
#include "frmSimulation.h"
#include "frmStrahlenBestimmen.h"
#include "frmVerbindung.h"
#include "frmVergleich.h"
#include "frmVerlauf.h"
#include "frmWasserfall.h"
#include "leitungspruefung.h"
#include "motivwiedergabe.h"
#include "polling.h"
#include "protokollanbieter.h"
#include "pruefdurchgaenge.h"
#include "pruefmessanbieter.h"
#include "pruefsicherungen.h"
#include "pruefverbindung.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "seitenvorschau.h"
#include "servicetext.h"
#include "strahlproben.h"
#include "suchworte.h"
#include "textmitwerten.h"
#include "vergleichsanbieter.h"
#include "wasserfallbild.h"
#include "zeittext.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableView>
#include <QTreeWidget>

#include <cmath>
#include <tuple>

namespace varnoth::hilfebilder {

namespace {

using std::chrono::milliseconds;

constexpr Zeit Sofort{0};
constexpr Zeit MittenImLesen = milliseconds(300);
constexpr Zeit MittenImSchreiben = milliseconds(300);
constexpr QSize Ansichtsgroesse(480, 380);
constexpr QSize Blankinggroesse(520, 560);
constexpr QSize Listengroesse(680, 260);
constexpr QSize Vergleichsgroesse(840, 400);
constexpr QSize Verbindungsgroesse(760, 480);
constexpr QSize Berichtsgroesse(840, 600);
constexpr QSize Protokollgroesse(840, 520);
constexpr QSize Strahlverlaufgroesse(880, 680);
constexpr QSize Verlaufsgroesse(840, 520);
constexpr int Seitenbreite = 840; // that a page of the help has in its window
constexpr int SeiteGlobal = 0;
constexpr int SeiteK1 = 1;
constexpr int SeiteKommunikation = 5;

QImage Hauptfenster(Buehne& buehne) {
    return Foto(buehne.Hauptfenster());
}

QImage Ansicht(Buehne& buehne) {
    constexpr int Optikteil = 1;
    auto* const rahmen =
        qobject_cast<QMdiSubWindow*>(buehne.Hauptfenster().Fenster(Optikteil).parentWidget());
    rahmen->resize(Ansichtsgroesse);
    rahmen->raise();
    QImage bild = Foto(*rahmen);
    buehne.HalteAn();
    return bild;
}

template<class Dialog>
QImage WieEsAufgeht(Buehne& buehne) {
    Dialog dialog;
    return buehne.BildNach(dialog, Sofort);
}

QImage Identifikation(Buehne& buehne) {
    frmIdentifikationsAnforderung dialog;
    return buehne.Bild(dialog, [&] { return dialog.GetVollstaendig() != False; });
}

QImage Lesen(Buehne& buehne) {
    frmKonfigurationLesenAusHardware dialog;
    return buehne.BildNach(dialog, MittenImLesen);
}

QImage Schreiben(Buehne& buehne) {
    frmKonfigurationSchreibenInHardware dialog;
    QMetaObject::invokeMethod(&Kind<QPushButton>(dialog, "cmdStart"), &QPushButton::click,
                              Qt::QueuedConnection);
    return buehne.BildNach(dialog, MittenImSchreiben);
}

template<int Seite>
QImage Editorseite(Buehne& buehne) {
    frmKonfigurationEdit editor;
    editor.InitKonfiguration({});
    Kind<QTabWidget>(editor, "tbsOptions").setCurrentIndex(Seite);
    return buehne.Bild(editor, [&] { return Kind<QPushButton>(editor, "cmdDownLoad").isEnabled(); });
}

/// The machine's frame covers beams 1 to 4 of the second part, a cable beam 30.
QImage Blankingmuster(Buehne& buehne) {
    constexpr std::int16_t Optikteil = 1;
    Werte muster(Blankingregister);
    muster.at(0) = 0x0F00;
    muster.at(1) = 0x0020;
    modDaten::SetzeSpezifischeDaten(spezifisch::Blankingmuster, Blankingregister, Optikteil, muster);
    frmBlankingmuster dialog;
    dialog.InitFormBlankingmuster(Optikteil);
    dialog.resize(Blankinggroesse);
    return buehne.BildNach(dialog, Sofort);
}

/// The number of beams of the second part.
QImage Einzelwert(Buehne& buehne) {
    frmEinzelwerteLesenSchreiben dialog;
    Kind<QRadioButton>(dialog, "OptAdressOffset_1").click();
    Kind<QRadioButton>(dialog, "optSubUnit_1").click();
    Kind<QLineEdit>(dialog, "txtAdresse").setText("12");
    auto& inhalt = Kind<QLineEdit>(dialog, "txtInhalt");
    QMetaObject::invokeMethod(&Kind<QPushButton>(dialog, "cmdLesen"), &QPushButton::click,
                              Qt::QueuedConnection);
    return buehne.Bild(dialog, [&] { return !inhalt.text().isEmpty(); });
}

QImage Werksdaten(Buehne& buehne) {
    modService::SetzeServiceText("Varnoth-Service1");
    frmInitHardware dialog(nullptr, QDate(2024, 3, 1));
    Kind<QLineEdit>(dialog, "txtSeriennummer").setText("VM-2024-00017");
    Kind<QLineEdit>(dialog, "txtHauptversion").setText("2");
    Kind<QLineEdit>(dialog, "txtUnterversion").setText("1");
    return buehne.BildNach(dialog, Sofort);
}

/// The values of the worked examples.
QImage Rechner(Buehne& buehne) {
    frmSimulation dialog(nullptr, QLocale());
    Kind<QLineEdit>(dialog, "txtFormel1L").setText("40");
    Kind<QLineEdit>(dialog, "txtFormel2v").setText("2");
    Kind<QLineEdit>(dialog, "txtFormel4").setText("15");
    Kind<QLineEdit>(dialog, "txtlblGeschwindigkeit").setText("2");
    return buehne.BildNach(dialog, Sofort).scaledToWidth(Seitenbreite, Qt::SmoothTransformation);
}

Sicherung EineSicherung(int tag, Sicherungsanlass anlass) {
    return {"/home/varnoth/" + std::to_string(tag) + ".con",
            {.zeit = std::chrono::sys_days{std::chrono::year{2026} / 3 / tag} + std::chrono::hours(13),
             .anlass = anlass,
             .seriennummer = "SIM-0001",
             .strahlen = "32, 64, 128, 288",
             .programm = "1.0.0"}};
}

/// Two that were made on other days, the newer one like what is being edited.
QImage AlleSicherungen(Buehne& buehne) {
    pruefung::PruefSicherungen sicherungen;
    const Abbild jetzt = modDaten::DasAbbild();
    Abbild andere = jetzt;
    static_cast<void>(
        andere.SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Reichweite, 5));
    sicherungen.gelegte = {{EineSicherung(17, Sicherungsanlass::VorDemSchreiben), jetzt},
                           {EineSicherung(5, Sicherungsanlass::VorDemOeffnen), andere}};
    frmSicherungen fenster(sicherungen, {.oeffne = [](const Sicherung&) {},
                                         .speichere = [](const Sicherung&) {},
                                         .vergleiche = [](const Sicherung&) {}});
    fenster.resize(Listengroesse);
    auto& liste = Kind<QTreeWidget>(fenster, "lstSicherungen");
    liste.setCurrentItem(liste.topLevelItem(0)->child(1));
    return buehne.BildNach(fenster, Sofort);
}

struct Dateianbieter : Vergleichsanbieter {
    std::vector<Vergleichsquelle> Fragbare() override { return {Vergleichsquelle::Datei}; }
    void Verlange(Vergleichsquelle /*quelle*/, Seitenwahl /*seite*/) override {}
    void SpeichereText(const std::string& /*text*/) override {}
};

/// A file beside what is being edited; three settings differ.
QImage Vergleich(Buehne& buehne) {
    Abbild datei = modDaten::DasAbbild();
    for (const auto& [bereich, adresse, wert] :
         {std::tuple{Speicherbereich::SpezifischeGeraetedaten, spezifisch::Reichweite, 5},
          {Speicherbereich::SpezifischeGeraetedaten, spezifisch::Lochgroesse, 4},
          {Speicherbereich::Kommunikationsdaten, kommunikation::Pausenzeit, 250}})
        static_cast<void>(datei.SetzeRegister(bereich, adresse, wert));
    Dateianbieter anbieter;
    frmVergleich fenster(anbieter);
    fenster.Setze(Seitenwahl::A, {Vergleichsquelle::Datei, "/home/varnoth/line3.con", datei, {}});
    fenster.resize(Vergleichsgroesse);
    return buehne.BildNach(fenster, Sofort);
}

/// A machine with an adapter that COM1 means, one in use by another program and a port of the board.
struct Beispielports : pruefung::PruefVerbindung {
    Beispielports() {
        ports = {pruefung::EinAdapter(),
                 {.geraet = "/dev/ttyUSB1",
                  .bezeichnung = "USB-Serial Controller",
                  .befund = {.hindernis = Hindernis::KeinRecht,
                             .eigentuemer = "root",
                             .gruppe = "dialout",
                             .nutzer = "eva"}},
                 {.geraet = "/dev/ttyS0", .bezeichnung = "UART 16550A"}};
        ports[0].verzoegerungMs = 1;
        stand.wahl.Geraet(1) = ports[0].stabileNamen.front();
        FolgeNamen();
        stand.ziele[0] = "/dev/ttyUSB0";
    }
};

/// The same moment in every picture.
void Datiere(QLabel& label) {
    const auto damals = std::chrono::sys_days{std::chrono::year{2026} / 3 / 17} + std::chrono::hours(13);
    label.setText(label.text().replace(Zeittext(std::chrono::system_clock::now()), Zeittext(damals)));
}

QImage Verbindungsports(Buehne& buehne) {
    Beispielports rechner;
    frmVerbindung fenster(rechner);
    fenster.resize(Verbindungsgroesse);
    auto& liste = Kind<QTreeWidget>(fenster, "lstPorts");
    liste.setCurrentItem(liste.topLevelItem(1));
    return buehne.BildNach(fenster, Sofort);
}

/// Found at the eighth try, as `SucheSteuergeraet` makes them.
QImage Verbindungssuche(Buehne& buehne) {
    constexpr int Fundversuch = 8;
    Beispielports rechner;
    frmVerbindung fenster(rechner);
    fenster.resize(Verbindungsgroesse);
    fenster.Schlage(Verbindungsseite::Suche);
    Kind<QPushButton>(fenster, "cmdSuchen").click();
    const auto folge = Suchfolge({"/dev/ttyUSB0"});
    Suchfund fund = pruefung::EinFund();
    for (int nummer = 1; nummer <= Fundversuch; ++nummer) {
        const auto ergebnis = nummer < Fundversuch ? Suchergebnis::Stille : Suchergebnis::Gefunden;
        fund.versuch = folge[static_cast<std::size_t>(nummer - 1)];
        fenster.ZeigeVersuch({.nummer = nummer,
                              .anzahl = static_cast<int>(folge.size()),
                              .versuch = fund.versuch,
                              .ergebnis = ergebnis,
                              .text = Versuchstext(ergebnis)});
    }
    fund.text = Versuchstext(Suchergebnis::Gefunden);
    fenster.BeendeSuche(fund);
    Datiere(Kind<QLabel>(fenster, "lblSuchstand"));
    return buehne.BildNach(fenster, Sofort);
}

QImage Verbindungspruefung(Buehne& buehne) {
    Beispielports rechner;
    frmVerbindung fenster(rechner);
    fenster.resize(Verbindungsgroesse);
    fenster.Schlage(Verbindungsseite::Leitung);
    Pruefbefund befund;
    befund.geraet = rechner.stand.Geraet();
    befund.format = rechner.stand.wahl.format;
    befund.gesendet = Pruefauftrag().anzahl;
    befund.anzahl[static_cast<std::size_t>(Pruefende::Beantwortet)] = befund.gesendet;
    for (int i = 0; i < befund.gesendet; ++i)
        befund.umlaufzeiten.push_back(milliseconds(21) + Zeit(10 * i));
    befund.antwortlaenge = 60;
    fenster.BeendePruefung(befund);
    Datiere(Kind<QLabel>(fenster, "lblPruefstand"));
    return buehne.BildNach(fenster, Sofort);
}

/// What a write of three changed settings will change.
QImage Registerliste(Buehne& buehne) {
    Geraetestand stand;
    stand.abbild = modDaten::DasAbbild();
    stand.zeit = std::chrono::sys_days{std::chrono::year{2026} / 3 / 17} + std::chrono::hours(13);
    Schreibauftrag auftrag{.abbild = stand.abbild};
    for (const auto& [bereich, adresse, wert] :
         {std::tuple{Speicherbereich::SpezifischeGeraetedaten, spezifisch::Reichweite, 5},
          {Speicherbereich::SpezifischeGeraetedaten, spezifisch::Lochgroesse, 4},
          {Speicherbereich::Kommunikationsdaten, kommunikation::Pausenzeit, 250}})
        static_cast<void>(auftrag.abbild.SetzeRegister(bereich, adresse, wert));
    frmRegisterliste fenster(BefundVorDemSchreiben(auftrag, stand, Zeittext(stand.zeit).toStdString()));
    fenster.resize(Listengroesse);
    return buehne.BildNach(fenster, Sofort);
}

/// The first page of the report.
QImage Berichtsfenster(Buehne& buehne) {
    for (const auto& [schluessel, text] :
         {std::pair{"Anlage", "Varnoth 3"}, {"Maschine", "B 12"}, {"Person", "E. Muster"}})
        DieEinstellungen().SchreibText("frmBericht", schluessel, text);
    frmBericht fenster({.angaben = [] { return Berichtsangaben{.programmversion = "1.0.0"}; }});
    fenster.resize(Berichtsgroesse);
    const auto& vorschau = *fenster.findChild<Seitenvorschau*>();
    return buehne.Bild(fenster, [&vorschau] { return vorschau.Seitenzahl() > 0; });
}

struct Protokollzeit : Protokollanbieter {
    std::optional<std::string> FrageNachDatei(const std::string& /*titel*/, const std::string& /*filter*/,
                                              const std::string& /*name*/) override {
        return {};
    }
    bool Schreibe(const std::string& /*pfad*/, const std::string& /*bytes*/) override { return false; }
    Supportangaben Angaben() override { return {}; }
    std::chrono::system_clock::time_point Jetzt() override {
        return std::chrono::sys_days{std::chrono::year{2026} / 3 / 17} + std::chrono::hours(13);
    }
};

/// Two passes of live data, the measured values of the third part chosen.
QImage Protokoll(Buehne& buehne) {
    constexpr int Durchgaenge = 2;
    constexpr int Messwerte = 15;
    buehne.Hauptfenster();
    Protokollzeit anbieter;
    frmBusprotokoll fenster(anbieter);
    fenster.resize(Protokollgroesse);
    fenster.show();
    modPolling::StartePolling(); // another picture may have ended it
    for (int i = 0; i < Durchgaenge; ++i)
        modPolling::PollingZyklus();
    buehne.HalteAn();
    Kind<QCheckBox>(fenster, "chkWorte").setChecked(true);
    auto& halt = Kind<QCheckBox>(fenster, "chkAnhalten");
    halt.setChecked(true);
    halt.setChecked(false); // it looks at what has come
    DieUmgebung().NutzeWartezeit();
    auto& tabelle = Kind<QTableView>(fenster, "tblProtokoll");
    tabelle.setCurrentIndex(tabelle.model()->index(Messwerte, 0));
    return buehne.BildNach(fenster, Sofort);
}

/// Ten minutes of a web that moves to and fro; one beam is dirty, one flickers, and the line failed once.
void FuelleStrahlverlauf(pruefung::PruefMessanbieter& anbieter) {
    constexpr int Strahlen = 128;
    constexpr int Schmutziger = 96;
    constexpr int Flackernder = 30;
    constexpr int Durchgaenge = 12000;
    Abbild& abbild = anbieter.quelle.konfiguration;
    if (!abbild.SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Strahlenzahl, Strahlen) ||
        !abbild.SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Aufloesung, 5))
        return;
    strahlproben::Blanke(abbild, 0, {120, 121, 122, 123, 124, 125, 126, 127});
    anbieter.quelle.angaben.beginn =
        std::chrono::sys_days{std::chrono::year{2026} / 3 / 17} + std::chrono::hours(13);
    const strahlproben::Vorhang vorhang = [](int durchgang, int strahl) {
        const int kante = 50 + static_cast<int>(std::lround(16 * std::sin(durchgang / 900.0)));
        const bool flackert = strahl == Flackernder && durchgang % 97 < 3;
        return strahl == Schmutziger || flackert || (strahl >= kante && strahl < kante + 30);
    };
    strahlproben::Fuelle(anbieter.quelle, Durchgaenge, Strahlen, vorhang);
    strahlproben::Fuelle(anbieter.quelle, Durchgaenge, Strahlen, vorhang, 0, std::chrono::seconds(620));
}

QImage Strahlverlauf(Buehne& buehne) {
    pruefung::PruefMessanbieter anbieter;
    FuelleStrahlverlauf(anbieter);
    frmWasserfall fenster(anbieter);
    fenster.resize(Strahlverlaufgroesse);
    fenster.show();
    auto& bild = Kind<Wasserfallbild>(fenster, "bild");
    bild.ZeigeAlles();
    bild.SetzeStelle(Strahlstelle{std::chrono::seconds(700), 96});
    const auto& tabelle = Kind<QTableView>(fenster, "tblStrahlen");
    while (tabelle.model()->rowCount() == 0 || Kind<QPushButton>(fenster, "cmdCancel").isVisible()) {
        DieUmgebung().LasseEreignisseLaufen();
        DieUmgebung().NutzeWartezeit();
    }
    return buehne.BildNach(fenster, Sofort);
}

/// A recording of a quarter of an hour.
struct Aufzeichnungszeit : Aufzeichnungsanbieter {
    Aufzeichnungslage Lage() override {
        const std::string datei = Ordner() + "/" + Namensvorschlag();
        return {.laeuft = true,
                .stand = {.dauer = std::chrono::seconds(903),
                          .bytes = 2'240'000,
                          .durchgaenge = 7405,
                          .dateien = 1,
                          .pfade = {datei + ".vrec", datei + ".csv"}},
                .durchgaengeJeSekunde = 8.2};
    }
    std::string Standtext() override { return LadeTextMit(6272, {Markentext(Lage(), true), "7405", "1"}); }
    Aufzeichnungswahl Wahl() override { return {.megabyte = 100, .mitternacht = true}; }
    void Waehle(const Aufzeichnungswahl& /*wahl*/) override {}
    std::string Ordner() override {
        return GetSprachoffset() == Englisch ? "/home/anna/Documents/Varnoth"
                                             : "/home/anna/Dokumente/Varnoth";
    }
    void WaehleOrdner(const std::string& /*ordner*/) override {}
    std::string Namensvorschlag() override { return "10-4711_2026-03-17_13-00-00"; }
    void Beginne(const std::string& /*name*/) override {}
    void Beende() override {}
    std::optional<std::string> FrageNachOrdner(const std::string& /*titel*/,
                                               const std::string& /*anfang*/) override {
        return {};
    }
    void ZeigeOrdner(const std::string& /*ordner*/) override {}
    Flugschreiber DerFlugschreiber() override { return {.alleTeile = true}; }
    void Waehle(const Flugschreiber& /*wahl*/) override {}
    std::string ImSpeicher() override { return "02:14:40"; }
    void SichereSpeicher(int /*minuten*/) override {}
    Speicherlage Sicherung() override { return {}; }
};

QImage Aufzeichnungen(Buehne& buehne) {
    Aufzeichnungszeit anbieter;
    frmAufzeichnung fenster(anbieter);
    return buehne.BildNach(fenster, Sofort);
}

/// Five minutes of a web that wanders, with a spike and a short loss of the connection.
void FuelleVerlauf(pruefung::PruefMessquelle& quelle) {
    constexpr int Sekunden = 300;
    constexpr int Spitze = 190;
    quelle.angaben.beginn = std::chrono::sys_days{std::chrono::year{2026} / 3 / 17} + std::chrono::hours(13);
    for (int i = 0; i < Sekunden; ++i) {
        const auto tu = static_cast<std::uint16_t>(i == Spitze ? 90 : 40 + i * 7 % 60 / 4);
        Messpaket paket = pruefung::PaketMit(std::chrono::seconds(i), 10, milliseconds(100), tu);
        if (i == Spitze)
            paket.ereignisse = {
                {.art = Messereignisart::Notiz, .laufzeit = std::chrono::seconds(i), .text = "B 12"}};
        if (i < 80 || i > 90)
            quelle.Nimm(std::move(paket));
    }
}

QImage Verlauf(Buehne& buehne) {
    pruefung::PruefMessanbieter anbieter;
    FuelleVerlauf(anbieter.quelle);
    frmVerlauf fenster(anbieter);
    fenster.resize(Verlaufsgroesse);
    return buehne.BildNach(fenster, milliseconds(300));
}

QImage Info(Buehne& buehne) {
    frmInfo dialog(nullptr);
    return buehne.BildNach(dialog, Sofort);
}

struct KeineMitschrift : Ereignisanbieter {
    Mitschriftstand Mitschrift() override {
        return {.laeuft = true, .ordner = "/home/service", .datei = "/home/service/varnoth-2026-03-17.txt"};
    }
    void SetzeMitschrift(bool /*laeuft*/, const std::string& /*ordner*/) override {}
    std::optional<std::string> FrageNachOrdner(const std::string& /*titel*/,
                                               const std::string& /*anfang*/) override {
        return {};
    }
};

/// A night with a disturbed line.
QImage Ereignisfenster(Buehne& buehne) {
    using namespace std::chrono_literals;
    using enum Ereignisart;
    const Ereignis nacht[] = {
        {.art = LiveBegonnen, .zeit = Systemzeit(21h + 58min)},
        {.art = AusgangGeschaltet,
         .zeit = Systemzeit(26h + 10min + 58s),
         .anzahl = 62,
         .neu = 1,
         .dauer = 31s},
        {.art = Fehlgeschlagen, .zeit = Systemzeit(26h + 11min + 30s), .anzahl = 41, .neu = 3, .dauer = 156s},
        {.art = Fehlgeschlagen,
         .zeit = Systemzeit(26h + 14min + 6s),
         .anzahl = 19,
         .neu = 2,
         .dauer = 48'200ms},
        {.art = Verloren, .zeit = Systemzeit(26h + 14min + 7s)},
        {.art = Zurueck, .zeit = Systemzeit(26h + 14min + 55s), .dauer = 47'800ms},
        {.art = TeilStatus, .zeit = Systemzeit(26h + 15min), .teil = 0, .neu = 4},
        {.art = TeilGewechselt, .zeit = Systemzeit(27h + 2min), .teil = 2, .neu = 0},
        {.art = TeilGewechselt, .zeit = Systemzeit(27h + 3min + 5s), .teil = 2, .neu = 1, .dauer = 65s},
        {.art = Notiz, .zeit = Systemzeit(30h), .text = "Stecker am Optikteil gereinigt"},
        {.art = Gesichert, .zeit = Systemzeit(30h + 4min)},
        {.art = KonfigurationGeschrieben, .zeit = Systemzeit(30h + 4min + 20s), .anzahl = 212}};
    modEreignisse::Alle() = Ereignisspeicher();
    for (Ereignis ereignis : nacht) {
        ereignis.zeit += std::chrono::sys_days{std::chrono::year{2026} / 3 / 16}.time_since_epoch();
        modEreignisse::Merke(ereignis);
    }
    pruefung::PruefMessanbieter messungen;
    KeineMitschrift anbieter;
    frmEreignisse fenster(messungen, anbieter);
    fenster.resize(Protokollgroesse.width(), Protokollgroesse.height() * 3 / 4);
    fenster.show();
    DieUmgebung().NutzeWartezeit();
    return buehne.BildNach(fenster, Sofort);
}

} // namespace

std::span<const Motiv> AlleMotive() {
    static constexpr Motiv motive[] = {
        {"frmMain", Hauptfenster},
        {"frmDocument", Ansicht},
        {"frmIdentifikationsAnforderung", Identifikation},
        {"frmKonfigurationLesenAusHardware", Lesen},
        {"frmKonfigurationEdit_global", Editorseite<SeiteGlobal>},
        {"frmKonfigurationEdit_optik", Editorseite<SeiteK1>},
        {"frmKonfigurationEdit_kommunikation", Editorseite<SeiteKommunikation>},
        {"frmReihenfolge", WieEsAufgeht<frmReihenfolge>},
        {"frmBlankingmuster", Blankingmuster},
        {"frmKonfigurationSchreibenInHardware", Schreiben},
        {"frmEinzelwerteLesenSchreiben", Einzelwert},
        {"frmResetHardware", WieEsAufgeht<frmResetHardware>},
        {"frmInitHardware", Werksdaten},
        {"frmSimulation", Rechner},
        {"frmKeinKonturAngeschlossen", WieEsAufgeht<frmKeinKonturAngeschlossen>},
        {"frmStrahlenBestimmen", WieEsAufgeht<frmStrahlenBestimmen>},
        {"frmInfo", Info},
        {"frmSicherungen", AlleSicherungen},
        {"frmVergleich", Vergleich},
        {"frmRegisterliste", Registerliste},
        {"frmBericht", Berichtsfenster},
        {"frmBusprotokoll", Protokoll},
        {"frmWasserfall", Strahlverlauf},
        {"frmAufzeichnung", Aufzeichnungen},
        {"frmWiedergabe", Wiedergabebild},
        {"frmEreignisse", Ereignisfenster},
        {"frmVerlauf", Verlauf},
        {"frmVerbindung_ports", Verbindungsports},
        {"frmVerbindung_suche", Verbindungssuche},
        {"frmVerbindung_leitung", Verbindungspruefung},
    };
    return motive;
}

} // namespace varnoth::hilfebilder
