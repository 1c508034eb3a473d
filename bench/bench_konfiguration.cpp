// Time of reading the whole configuration in its dialog, from the pause before the first request to the last
// reply, beside the time that the line alone needs.

#include "bericht.h"
#include "frmKonfigurationLesenAusHardware.h"
#include "messplatz.h"
#include "statistik.h"

#include <QApplication>

int main(int argc, char** argv) {
    using namespace varnoth;
    using namespace varnoth::bench;
    constexpr int Lesungen = 9;
    constexpr double Zielanteil = 98.4;

    QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    Messplatz platz({QStringLiteral("--beams"), QStringLiteral("128,128,128,128")});
    platz.Verbinde();
    platz.Stoppe();
    std::vector<double> dauern;
    Verkehr verkehr;
    for (int i = 0; i < Lesungen; ++i) {
        frmKonfigurationLesenAusHardware dialog(&platz.Programm().Hauptfenster());
        dialog.SetWeiter(True);
        const Verkehr vorher = platz.Bisher();
        platz.Port().VergissSendungen();
        dialog.exec();
        dauern.push_back(platz.Port().LetzteLesung() - platz.Port().ErsteSendung() + Sendepause);
        verkehr = platz.Bisher() - vorher;
        if (dialog.GetVollstaendig() == False)
            Scheitere(QStringLiteral("the configuration was not read"));
    }
    const double median = Median(dauern);
    Berichte(QStringLiteral("whole configuration at 38400 baud: limit / median"),
             100 * verkehr.Grenze() / median, QStringLiteral("%"), Ziel::Mindestens, Zielanteil,
             QStringLiteral("limit %1 ms, median %2 ms, fastest %3 ms, %4 transactions, %5 bytes")
                 .arg(1e3 * verkehr.Grenze(), 0, 'f', 1)
                 .arg(1e3 * median, 0, 'f', 1)
                 .arg(1e3 * Quantil(dauern, 0), 0, 'f', 1)
                 .arg(verkehr.sendungen)
                 .arg(verkehr.bytes));
    return 0;
}
