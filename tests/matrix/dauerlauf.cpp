// The soak: the program polls for a long time while faults and a user come at random.
//   dauerlauf [--minutes N] [--seed S] [--limit MS] [--log FILE]

#include "abbildpruefung.h"
#include "betrieb.h"
#include "laufanwendung.h"
#include "regie.h"
#include "speicherstand.h"
#include "zufallsbenutzer.h"

#include "dateidialog.h"
#include "frmDocument.h"
#include "polling.h"

#include <QAction>
#include <QApplication>
#include <QCommandLineParser>
#include <QDialog>
#include <QMdiSubWindow>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <optional>
#include <stdexcept>

namespace varnoth::pruefung {

namespace {

constexpr qint64 AbschnittMs = 12000;       ///< between two looks at values, memory and descriptors
constexpr int LaengsteDenkpauseMs = 500;    ///< of the user
constexpr qint64 LaengsterIrrtumMs = 15000; ///< of a pass in which every exchange is tried ten times
constexpr QSize Fenstergroesse(1200, 800);
constexpr double MsJeMinute = 60000;
constexpr qint64 KuerzestesUrteilMs = 60000; ///< less is not enough to be warm and to grow after that
constexpr std::size_t WachstumKb = 3072;     ///< that is still called none

/// Windows that are kept when they are closed, each with the command that shows it.
constexpr struct {
    const char* befehl;
    const char* fenster;
} BleibendeFenster[] = {
    {"mnuVergleich", "frmVergleich"},
    {"mnuSicherungen", "frmSicherungen"},
    {"mnuBericht", "frmBericht"},
    {"mnuBusprotokoll", "frmBusprotokoll"},
    {"tlbVerbindung", "frmVerbindung"},
    {"tlbStrahlverlauf", "frmWasserfall"},
    {"tlbVerlauf", "frmVerlauf"},
    {"tlbEreignisse", "frmEreignisse"},
    {"tlbAufzeichnungen", "frmAufzeichnung"},
};

bool IstOffen(const char* fenster) {
    return std::ranges::any_of(QApplication::topLevelWidgets(), [fenster](const QWidget* offenes) {
        return offenes->isVisible() && offenes->objectName() == fenster;
    });
}

/// Faults, each with what ends it.
struct Zufallsstoerung {
    const char* beginn;
    const char* ende;
};

constexpr Zufallsstoerung Stoerungen[] = {
    {"fault silence:3", nullptr},
    {"fault silence", "fault none"},
    {"fault crc:20", nullptr},
    {"fault address:5", nullptr},
    {"fault exception=6:3", nullptr},
    {"fault stray=3:20", nullptr},
    {"fault stray=60:5", nullptr},
    {"fault pieces=300:3", nullptr},
    {"fault pieces=1200:1", nullptr},
    {"fault surplus=7:50", nullptr},
    {"fault late=1500:1", nullptr},
    {"fault flip=27:20", nullptr},
    {"fault flip=9:3", nullptr},
    {"fault repeat=0:10", nullptr},
    {"fault repeat=60:1", nullptr},
    {"fault repeat=120:5", nullptr},
    {"fault repeat=500:1", nullptr},
    {"fault repeat-twice=30:2", nullptr},
    {"fault repeat-flip=27,40:5", nullptr},
    {"fault repeat-earlier=4,20:3", nullptr},
    {"unplug", "plug"},
    {"restart", nullptr},
    {"part 2 remove", "part 2 add"},
};

QStringList Simulatoroptionen(const QCommandLineParser& worte) {
    return worte.isSet("log") ? QStringList{"--log", worte.value("log")} : QStringList{};
}

/// What was held at most while everything was used for the first time.
class Dauerlauf {
public:
    Dauerlauf(const QCommandLineParser& worte);
    /// True when nothing went wrong.
    bool Laufe();

private:
    Handlung Spiele();
    Handlung OeffneAlles();
    Handlung Abschnitt();
    Handlung Ruhepunkt();
    Handlung SchliesseDialoge();
    void Stoere();
    void BeendeStoerungen();
    void ZeigeAlles();
    void Miss();
    std::string Wache();
    std::string Bleibender(const std::string& verstoss);
    bool Berichte(const std::string& fehler);

    Betrieb betrieb;
    Regie regie;
    Zufallsbenutzer benutzer;
    std::mt19937 zufall;
    qint64 dauerMs;
    qint64 laengsteLueckeMs;
    QElapsedTimer uhr;
    std::unique_ptr<Abbildpruefung> abbild;
    const char* stoerungsende = nullptr;
    bool warVerloren = false;
    int stoerungen = 0;
    int erholungen = 0;
    /// A value that the controller did not send, and since when it is there.
    struct Verdacht {
        std::string verstoss;
        unsigned durchgaenge;
        qint64 seitMs;
    };
    std::optional<Verdacht> verdacht;
    std::optional<Speicherstand> warm;
    Speicherstand zuletzt{};
};

Dauerlauf::Dauerlauf(const QCommandLineParser& worte)
    : betrieb("varnoth-simulator 1\n", Simulatoroptionen(worte), {"/PVarnoth-Service1"}),
      benutzer(betrieb, worte.value("seed").toUInt()), zufall(worte.value("seed").toUInt()),
      dauerMs(static_cast<qint64>(worte.value("minutes").toDouble() * MsJeMinute)),
      laengsteLueckeMs(worte.value("limit").toInt()) {
    const std::string datei = betrieb.ordner.filePath("soak.con").toStdString();
    SetzeDateiantwort([datei](const Dateifrage&) { return std::string(datei); });
    regie.SetzeWaechter([this] { return Wache(); });
    regie.SetzeAbbruch([this] { betrieb.Hauptfenster().close(); });
}

bool Dauerlauf::Laufe() {
    uhr.start();
    regie.Spiele(Spiele());
    betrieb.LaufeBis([this] { return regie.Zuende(); });
    SetzeDateiantwort({});
    return Berichte(regie.Fehler());
}

Handlung Dauerlauf::Spiele() {
    co_await OeffneAlles();
    co_await Ruhepunkt();
    betrieb.puls.Beginne();
    while (!uhr.hasExpired(dauerMs)) {
        co_await Abschnitt();
        co_await Ruhepunkt();
    }
}

/// A window takes its memory when it is first shown; later that would look like growth.
Handlung Dauerlauf::OeffneAlles() {
    for (const auto& [befehl, fenster] : BleibendeFenster) {
        betrieb.Waehle(befehl);
        co_await regie.Bis(fenster, [name = fenster] { return IstOffen(name); });
        co_await SchliesseDialoge();
    }
}

Handlung Dauerlauf::Abschnitt() {
    const qint64 ende = std::min(uhr.elapsed() + AbschnittMs, dauerMs);
    while (uhr.elapsed() < ende) {
        benutzer.Handle();
        if (zufall() % 6 == 0)
            Stoere();
        if (benutzer.HatEingegriffen())
            abbild.reset();
        co_await regie.Nach(static_cast<int>(zufall() % LaengsteDenkpauseMs));
    }
}

void Dauerlauf::Stoere() {
    BeendeStoerungen();
    const Zufallsstoerung& neue = Stoerungen[zufall() % std::size(Stoerungen)];
    betrieb.geraet.Befehl(neue.beginn);
    stoerungsende = neue.ende;
    ++stoerungen;
}

void Dauerlauf::BeendeStoerungen() {
    if (stoerungsende != nullptr)
        betrieb.geraet.Befehl(stoerungsende);
    stoerungsende = nullptr;
}

/// No value that the controller did not send, no warning, no click left waiting.
std::string Dauerlauf::Wache() {
    const bool verloren = modPolling::VerbindungVerloren();
    erholungen += warVerloren && !verloren ? 1 : 0;
    warVerloren = verloren;
    if (std::string warnungen = UnerwarteteWarnungen(); !warnungen.empty())
        return warnungen;
    if (betrieb.puls.GroessteLueckeMs() > laengsteLueckeMs)
        return "no click served for " + std::to_string(betrieb.puls.GroessteLueckeMs()) + " ms at " +
               betrieb.puls.Wo();
    return Bleibender(abbild ? abbild->Verstoss() : std::string());
}

/// What a reply that came twice has left stands until the pass has shown it wrong, and no longer.
std::string Dauerlauf::Bleibender(const std::string& verstoss) {
    const unsigned durchgaenge = modPolling::GetDurchgaenge();
    if (!verdacht || verstoss != verdacht->verstoss)
        verdacht = {.verstoss = verstoss, .durchgaenge = durchgaenge, .seitMs = uhr.elapsed()};
    const bool bleibt = durchgaenge != verdacht->durchgaenge && durchgaenge != verdacht->durchgaenge + 1;
    return bleibt || uhr.elapsed() > verdacht->seitMs + LaengsterIrrtumMs ? verstoss : std::string();
}

/// The line is good, all dialogs are closed, live data runs anew: now everything must be as it was.
Handlung Dauerlauf::Ruhepunkt() {
    abbild.reset();
    BeendeStoerungen();
    betrieb.geraet.Befehl("fault none");
    co_await SchliesseDialoge();
    if (auto* const aufzeichnung =
            betrieb.Hauptfenster().findChild<QAction*>(QStringLiteral("tlbAufzeichnung"));
        aufzeichnung->isChecked()) {
        aufzeichnung->trigger(); // it has files open
        co_await regie.Bis("the recording's end", [this] { return betrieb.HatRuhe(); });
    }
    betrieb.geraet.Befehl("scene run");
    co_await regie.Nach(static_cast<int>(zufall() % LaengsteDenkpauseMs));
    betrieb.geraet.Befehl("scene freeze");
    betrieb.geraet.Befehl("restart");
    ZeigeAlles();
    betrieb.Gib([this] { betrieb.programm.Verbinde(); });
    co_await regie.Bis("live data", [this] { return betrieb.HatRuhe() && Betrieb::IstLive(); });
    const unsigned ziel = modPolling::GetDurchgaenge() + 2;
    co_await regie.Bis("whole passes", [ziel] { return modPolling::GetDurchgaenge() >= ziel; });
    Miss();
}

Handlung Dauerlauf::SchliesseDialoge() {
    while (!betrieb.HatRuhe()) {
        if (QWidget* const menue = QApplication::activePopupWidget())
            menue->close();
        else if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
            QMetaObject::invokeMethod(dialog, &QDialog::reject, Qt::QueuedConnection);
        co_await regie.Nach(50);
    }
}

void Dauerlauf::ZeigeAlles() {
    for (QWidget* const fenster : QApplication::topLevelWidgets())
        if (fenster != &betrieb.Hauptfenster())
            fenster->close();
    betrieb.Hauptfenster().showNormal();
    betrieb.Hauptfenster().resize(Fenstergroesse);
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        qobject_cast<QMdiSubWindow*>(betrieb.Hauptfenster().Fenster(teil).parentWidget())->showNormal();
}

void Dauerlauf::Miss() {
    abbild = std::make_unique<Abbildpruefung>(betrieb.geraet, Abbildpruefung::Umfang::Livedaten);
    abbild->Erlaube();
    if (const std::string abweichung = abbild->Abweichung(); !abweichung.empty())
        throw std::runtime_error(abweichung);
    zuletzt = LiesSpeicherstand();
    if (uhr.elapsed() < dauerMs / 2)
        warm = Hoechststand(warm.value_or(zuletzt), zuletzt);
    betrieb.puls.UebergeheLuecke();
}

bool Dauerlauf::Berichte(const std::string& fehler) {
    int taten = 0;
    for (const auto& [name, wieOft] : benutzer.Taten())
        taten += wieOft;
    std::printf("transactions   %s\n", betrieb.geraet.Befehl("stats").c_str());
    std::printf("faults         %d, connection lost and back %d times\n", stoerungen, erholungen);
    std::printf("actions        %d of %zu kinds, message boxes %zu\n", taten, benutzer.Taten().size(),
                betrieb.fahrer.Meldungen().size());
    for (const auto& [name, wieOft] : benutzer.Taten())
        std::printf("               %5d %s\n", wieOft, name.c_str());
    std::printf("%s", Speicherzeilen(warm, zuletzt).c_str());
    std::printf("longest gap    %lld ms at %s\n", static_cast<long long>(betrieb.puls.GroessteLueckeMs()),
                betrieb.puls.Wo().c_str());
    std::string urteil = fehler;
    if (urteil.empty())
        urteil = Speicherurteil(warm, zuletzt,
                                dauerMs >= KuerzestesUrteilMs ? std::optional(WachstumKb) : std::nullopt);
    if (!urteil.empty() && !betrieb.fahrer.Meldungen().empty())
        std::printf("last message   %s\n", betrieb.fahrer.Meldungen().back().c_str());
    std::printf("%s\n", urteil.empty() ? "ok" : ("FAILED: " + urteil).c_str());
    return urteil.empty();
}

} // namespace

} // namespace varnoth::pruefung

int main(int argc, char** argv) {
    using namespace varnoth::pruefung;
    const Laufanwendung anwendung(argc, argv);
    QCommandLineParser worte;
    worte.addOptions({{"minutes", "how long (1)", "number", "1"},
                      {"seed", "another run (1)", "number", "1"},
                      {"limit", "the longest that a click may wait (200)", "ms", "200"},
                      {"log", "the controller's log", "file"}});
    worte.addHelpOption();
    worte.process(QApplication::arguments());
    SammleWarnungen();
    std::printf("soak of %s minutes, seed %s\n", qPrintable(worte.value("minutes")),
                qPrintable(worte.value("seed")));
    return Dauerlauf(worte).Laufe() ? 0 : 1;
}
