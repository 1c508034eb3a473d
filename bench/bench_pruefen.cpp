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

/// From nothing to a window that is painted with every row, and filling one that is open.
void MissFenster(const Abbild& a, const Abbild& b) {
    OhneQuellen anbieter;
    const auto setze = [&](frmVergleich& fenster) {
        fenster.Setze(Seitenwahl::B, {Vergleichsquelle::Datei, "b.con", b, {}});
        fenster.Setze(Seitenwahl::A, {Vergleichsquelle::Datei, "a.con", a, {}});
    };
    const double geoeffnet = Mittlere([&] {
        frmVergleich fenster(anbieter);
        setze(fenster);
        fenster.show();
        QApplication::processEvents();
    });
    frmVergleich offenes(anbieter);
    setze(offenes);
    offenes.show();
    QApplication::processEvents();
    const double gefuellt = Mittlere([&] {
        setze(offenes);
        QApplication::processEvents();
    });
    const auto zeilen = offenes.Paar().Ergebnis().zeilen.size();
    Berichte(QStringLiteral("comparison window, opened"), 1e3 * geoeffnet, QStringLiteral("ms"),
             Ziel::Hoechstens, 50,
             QStringLiteral("%1 rows, all settings different; both sides of an open window anew: %2 ms")
                 .arg(zeilen)
                 .arg(1e3 * gefuellt, 0, 'f', 2));
}

} // namespace

int main(int argc, char** argv) {
    QApplication anwendung(argc, argv);
    pruefung::PruefUmgebung umgebung;
    pruefung::PruefEinstellungen einstellungen;
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
