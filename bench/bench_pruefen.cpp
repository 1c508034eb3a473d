// Time of comparing two configurations, and of the window that shows every row of it.

#include "bericht.h"
#include "frmVergleich.h"
#include "pruefumgebung.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"
#include "statistik.h"
#include "vergleichsanbieter.h"

#include <QApplication>

#include <chrono>
#include <tuple>
#include <vector>

namespace {

using namespace varnoth;
using namespace varnoth::bench;

constexpr int Messungen = 21;
constexpr int Zeilen = 400;

struct OhneQuellen : Vergleichsanbieter {
    std::vector<Vergleichsquelle> Fragbare() override { return {}; }
    void Verlange(Vergleichsquelle /*quelle*/, Seitenwahl /*seite*/) override {}
    void SpeichereText(const std::string& /*text*/) override {}
};

template<class Arbeit>
double Dauer(Arbeit arbeit) {
    const auto beginn = std::chrono::steady_clock::now();
    arbeit();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - beginn).count();
}

template<class Arbeit>
double Mittlere(Arbeit arbeit) {
    std::vector<double> dauern;
    for (int i = 0; i < Messungen; ++i)
        dauern.push_back(Dauer(arbeit));
    return Median(dauern);
}

/// A controller with four parts; every register that can differ from the default does.
Abbild Geraet(std::int32_t abweichung) {
    Abbild abbild = Standardkonfiguration();
    for (const auto& [bereich, adresse, teil] : AlleStellen(IstSchreibbar)) {
        Werte werte = abbild.HoleParameter(bereich, adresse, teil);
        for (std::int32_t& wert : werte)
            wert += abweichung;
        std::ignore = abbild.SetzeParameter(bereich, adresse, werte, teil);
    }
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        std::ignore = abbild.SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Strahlenzahl,
                                           128, teil);
    return abbild;
}

/// A comparison has fewer rows than the figure asks for: what grows with them is multiplied, what comes once
/// is added.
void MissFenster(const Abbild& a, const Abbild& b) {
    OhneQuellen anbieter;
    frmVergleich fenster(anbieter);
    fenster.show();
    fenster.Setze(Seitenwahl::B, {Vergleichsquelle::Datei, "b.con", b, {}});
    const auto fuelle = [&] { fenster.Setze(Seitenwahl::A, {Vergleichsquelle::Datei, "a.con", a, {}}); };
    const double gefuellt = Mittlere(fuelle);
    const double gezeigt = Mittlere([&] {
        fuelle();
        QApplication::processEvents();
    });
    const auto zeilen = static_cast<double>(fenster.Paar().Ergebnis().zeilen.size());
    Berichte(QStringLiteral("comparison window, %1 rows").arg(Zeilen),
             1e3 * (gefuellt * Zeilen / zeilen + gezeigt - gefuellt), QStringLiteral("ms"), Ziel::Hoechstens,
             50,
             QStringLiteral("reckoned from %1 rows, all settings different: %2 ms to fill, %3 ms painted too")
                 .arg(zeilen)
                 .arg(1e3 * gefuellt, 0, 'f', 2)
                 .arg(1e3 * gezeigt, 0, 'f', 2));
}

} // namespace

int main(int argc, char** argv) {
    QApplication anwendung(argc, argv);
    pruefung::PruefUmgebung umgebung;
    const Abbild a = Geraet(0);
    const Abbild b = Geraet(1);
    Vergleichsergebnis ergebnis;
    const double vergleich = Mittlere([&] { ergebnis = Vergleiche(a, b); });
    Berichte(QStringLiteral("comparison of two configurations"), 1e3 * vergleich, QStringLiteral("ms"),
             Ziel::Hoechstens, 5,
             QStringLiteral("%1 parameters, %2 differences")
                 .arg(ergebnis.zeilen.size())
                 .arg(ergebnis.Unterschiede()));

    MissFenster(a, b);
    return 0;
}
