// Time of a backup on the disk of the current folder: beside as many as there can be, with its text, until
// the disk holds both.

#include "bericht.h"
#include "dateisicherungen.h"
#include "registeradressen.h"
#include "statistik.h"

#include <QDir>
#include <QTemporaryDir>

#include <chrono>

int main() {
    using namespace varnoth;
    using namespace varnoth::bench;
    using Uhr = std::chrono::steady_clock;

    constexpr int Messungen = 25;
    constexpr double Hoechstdauer = 30;

    const QTemporaryDir ordner(QDir::current().filePath(QStringLiteral("bench-XXXXXX")));
    Dateisicherungen sicherungen(ordner.path(), "1.0.0");
    Abbild abbild;
    if (!abbild.SetzeParameter(Speicherbereich::GlobaleGeraetedaten, global::Seriennummer, Werte(10, 0x4142)))
        Scheitere(QStringLiteral("no serial number"));
    const auto lege = [&] {
        const auto fehler = sicherungen.Lege(abbild, AngabenZu(abbild, std::chrono::system_clock::now()));
        if (!fehler.empty())
            Scheitere(QString::fromStdString(fehler));
    };
    for (int i = 0; i < Dateisicherungen::Hoechstens; ++i)
        lege();
    std::vector<double> dauern;
    for (int i = 0; i < Messungen; ++i) {
        const auto beginn = Uhr::now();
        lege();
        dauern.push_back(std::chrono::duration<double, std::milli>(Uhr::now() - beginn).count());
    }
    Berichte(QStringLiteral("backup before a write"), Median(dauern), QStringLiteral("ms"), Ziel::Hoechstens,
             Hoechstdauer,
             QStringLiteral("beside %1 others, slowest of %2 %3 ms")
                 .arg(Dateisicherungen::Hoechstens)
                 .arg(Messungen)
                 .arg(Quantil(dauern, 1), 0, 'f', 1));
    return 0;
}
