// A frame of the waterfall over 8 hours of 512 beams, from the overview on: everything is calculated and
// drawn anew. And one that slides, as live data makes it: only what is new is calculated.

#include "bericht.h"
#include "pruefmessanbieter.h"
#include "statistik.h"
#include "strahlproben.h"
#include "strahlstatistik.h"
#include "wasserfallbild.h"

#include <QApplication>
#include <QImage>

namespace {

using namespace varnoth;
using namespace varnoth::bench;
using namespace std::chrono_literals;

constexpr int Strahlen = 512;
constexpr Zeit Dauer = 8h;

/// A web that moves, and dirt; passes half a second apart, which the overview takes in as it does all others.
void FuelleAchtStunden(pruefung::PruefMessanbieter& anbieter) {
    if (!anbieter.quelle.konfiguration.SetzeRegister(Speicherbereich::SpezifischeGeraetedaten,
                                                     spezifisch::Strahlenzahl, Strahlen))
        return;
    constexpr Zeit Abstand = 500ms;
    for (Zeit zeit{}; zeit < Dauer; zeit += 2 * Abstand) {
        Messpaket paket;
        for (const Zeit uhr : {zeit, zeit + Abstand}) {
            const auto kante = static_cast<int>(uhr / 3s % 200);
            paket.durchgaenge.push_back(strahlproben::Durchgang(uhr, 0, Strahlen, [&](int strahl) {
                return strahl == 400 || (strahl > kante && strahl < kante + 150);
            }));
        }
        anbieter.quelle.uebersicht.Nimm(paket);
        paket.spanne = {zeit, zeit + 2 * Abstand - 1us};
        anbieter.quelle.pakete.push_back(std::move(paket));
    }
}

void Miss(pruefung::PruefMessanbieter& anbieter, const QSize& groesse) {
    constexpr int Bilder = 60;
    Wasserfallbild bild;
    bild.resize(groesse);
    bild.SetzeAnbieter(anbieter);
    bild.ZeigeAlles();
    QImage leinwand(groesse, QImage::Format_RGB32);
    bild.render(&leinwand);
    std::vector<double> ganze;
    std::vector<double> gleitende;
    for (int i = 0; i < Bilder; ++i) {
        bild.SetzeTeil(1);
        bild.SetzeTeil(0);
        bild.SetzeBlick(Wasserfallbild::Blick::Alles);
        const double beginn = Uhrzeit();
        bild.render(&leinwand);
        ganze.push_back(1e3 * (Uhrzeit() - beginn));
        Zeitfenster fenster = bild.Fenster();
        ++fenster.erste;
        bild.SetzeFenster(fenster);
        const double danach = Uhrzeit();
        bild.render(&leinwand);
        gleitende.push_back(1e3 * (Uhrzeit() - danach));
    }
    const auto berichte = [&](const char* was, const std::vector<double>& dauern) {
        Berichte(QStringLiteral("waterfall of 8 hours x 512 beams, %1, %2 x %3 pixels")
                     .arg(QLatin1String(was))
                     .arg(groesse.width())
                     .arg(groesse.height()),
                 Median(dauern), QStringLiteral("ms"), Ziel::Hoechstens, 33,
                 QStringLiteral("95 % %1 ms").arg(Quantil(dauern, 0.95), 0, 'f', 2));
    };
    berichte("a frame anew", ganze);
    berichte("a frame that slides", gleitende);
}

} // namespace

int main(int argc, char** argv) {
    QApplication anwendung(argc, argv);
    pruefung::PruefMessanbieter anbieter;
    FuelleAchtStunden(anbieter);
    Miss(anbieter, {1000, 420});
    Miss(anbieter, {1900, 900});
    return 0;
}
