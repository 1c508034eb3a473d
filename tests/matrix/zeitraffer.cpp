// The soak of the past: hours of live data that nobody has measured, told in minutes, while every window of
// the past is open and recordings run. Nothing may grow once all that is bounded is full.
//   zeitraffer [--hours N] [--seed S]

#include "befehlstabelle.h"
#include "betrieb.h"
#include "laufanwendung.h"
#include "livefolge.h"
#include "speicherstand.h"

#include "dateidialog.h"
#include "ereignisse.h"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>
#include <memory>

namespace varnoth::pruefung {

namespace {

using namespace std::chrono_literals;

constexpr Zeit Runde = 1min;             ///< told between two looks at the windows
constexpr int BlickeJeRunde = 3;         ///< rounds of the main loop, in which windows follow and paint
constexpr std::size_t WachstumKb = 4096; ///< that is still called none
constexpr double RundenJeStunde = 60;
constexpr double KuerzestesUrteil = 60; ///< hours; less does not fill what is bounded

class Zeitraffer {
public:
    explicit Zeitraffer(const QCommandLineParser& worte);
    /// True when nothing went wrong.
    bool Laufe();

private:
    void OeffneFenster();
    void Spiele();
    void Miss(int runde);
    bool Berichte() const;

    Betrieb betrieb;
    Livefolge folge;
    double stunden;
    int runden;
    std::vector<std::string> geoeffnet;
    std::optional<Speicherstand> warm;
    Speicherstand zuletzt{};
};

Zeitraffer::Zeitraffer(const QCommandLineParser& worte)
    : betrieb("varnoth-simulator 1\n", {}, {}), folge(worte.value("seed").toUInt()),
      stunden(worte.value("hours").toDouble()), runden(static_cast<int>(stunden * RundenJeStunde)) {
    const QString ordner = betrieb.ordner.path();
    SetzeDateiantwort([ordner](const Dateifrage& frage) -> std::optional<std::string> {
        if (frage.art == Dateiwahl::Oeffnen)
            return std::nullopt;
        return (frage.art == Dateiwahl::Ordner ? ordner : ordner + "/datei").toStdString();
    });
}

bool Zeitraffer::Laufe() {
    betrieb.Hauptfenster().show();
    OeffneFenster();
    Spiele();
    SetzeDateiantwort({});
    return Berichte();
}

/// Every command that has to do with the past.
void Zeitraffer::OeffneFenster() {
    for (const Befehlszeile& zeile : Befehlstabelle())
        if (zeile.gruppe == Leistengruppe::Verlauf && zeile.anzahl == 1) {
            betrieb.Waehle(QString::fromLatin1(zeile.aktion));
            betrieb.LaufeBis([this] { return betrieb.HatRuhe(); });
            geoeffnet.emplace_back(zeile.aktion);
        }
}

void Zeitraffer::Spiele() {
    for (int runde = 0; runde < runden && UnerwarteteWarnungen().empty(); ++runde) {
        folge.Erzaehle(Runde);
        int blicke = 0;
        betrieb.LaufeBis([&blicke] {
            DieUmgebung().NutzeWartezeit();
            return ++blicke > BlickeJeRunde;
        });
        Miss(runde);
    }
}

void Zeitraffer::Miss(int runde) {
    zuletzt = LiesSpeicherstand();
    if (runde < runden / 2)
        warm = Hoechststand(warm.value_or(zuletzt), zuletzt);
}

bool Zeitraffer::Berichte() const {
    const Ereignisspeicher& ereignisse = modEreignisse::Alle();
    std::printf("passes         %u in %.1f hours, connection lost and back %u times\n", folge.Durchgaenge(),
                stunden, folge.Verluste());
    for (const std::string& aktion : geoeffnet)
        std::printf("open           %s\n", aktion.c_str());
    std::printf("events         %llu, kept %llu\n", static_cast<unsigned long long>(ereignisse.Ende()),
                static_cast<unsigned long long>(ereignisse.Ende() - ereignisse.Erstes()));
    std::printf("%s", Speicherzeilen(warm, zuletzt).c_str());
    std::string urteil = UnerwarteteWarnungen();
    if (urteil.empty())
        urteil = Speicherurteil(warm, zuletzt,
                                stunden >= KuerzestesUrteil ? std::optional(WachstumKb) : std::nullopt);
    std::printf("%s\n", urteil.empty() ? "ok" : ("FAILED: " + urteil).c_str());
    return urteil.empty();
}

} // namespace

} // namespace varnoth::pruefung

int main(int argc, char** argv) {
    using namespace varnoth::pruefung;
    const Laufanwendung anwendung(argc, argv);
    QCommandLineParser worte;
    worte.addOptions(
        {{"hours", "of live data (72)", "number", "72"}, {"seed", "another run (1)", "number", "1"}});
    worte.addHelpOption();
    worte.process(QApplication::arguments());
    SammleWarnungen();
    std::printf("soak of the past, %s hours, seed %s\n", qPrintable(worte.value("hours")),
                qPrintable(worte.value("seed")));
    return Zeitraffer(worte).Laufe() ? 0 : 1;
}
