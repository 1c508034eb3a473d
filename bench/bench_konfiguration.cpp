// Time of the identification and of reading the whole configuration, each in its dialog, from the pause
// before the first request to the last reply, beside the time that the line alone needs; into the image in
// use as when connecting, and aside as for a comparison.

#include "bericht.h"
#include "frmIdentifikationsAnforderung.h"
#include "frmKonfigurationLesenAusHardware.h"
#include "gewissheit.h"
#include "lesevorgang.h"
#include "messplatz.h"
#include "statistik.h"

#include <QApplication>
#include <QThread>

namespace {

using namespace varnoth;
using namespace varnoth::bench;

struct Lesung {
    double dauer;         ///< from the pause before the first request to the last reply
    double dialogwechsel; ///< of that, from the identification's reply to the read's first request
    Verkehr verkehr;
};

/// Shows a dialog that goes on by itself, as connecting does.
template<class Dialog, class... Ziel>
void Zeige(Messplatz& platz, Ziel*... ziel) {
    Dialog dialog(&platz.Programm().Hauptfenster(), ziel...);
    dialog.SetWeiter(True);
    dialog.exec();
    if (dialog.GetVollstaendig() == False)
        Scheitere(QStringLiteral("a dialog did not end well"));
}

template<class... Ziel>
Lesung Lies(Messplatz& platz, Ziel*... ziel) {
    Zaehlport& port = platz.Port();
    const Verkehr vorher = platz.Bisher();
    port.VergissSendungen();
    Zeige<frmIdentifikationsAnforderung>(platz);
    const double beginn = port.ErsteSendung() - Sendepause;
    const double identifiziert = port.LetzteLesung();
    port.VergissSendungen();
    Zeige<frmKonfigurationLesenAusHardware>(platz, ziel...);
    return {port.LetzteLesung() - beginn, port.ErsteSendung() - identifiziert, platz.Bisher() - vorher};
}

template<class Lesen>
void Miss(const QString& name, Lesen lesen) {
    constexpr int Lesungen = 9;
    constexpr double Zielanteil = 98.4;
    std::vector<double> dauern;
    std::vector<double> wechsel;
    Verkehr verkehr;
    for (int i = 0; i < Lesungen; ++i) {
        const Lesung lesung = lesen();
        dauern.push_back(lesung.dauer);
        wechsel.push_back(lesung.dialogwechsel);
        verkehr = lesung.verkehr;
    }
    const double median = Median(dauern);
    Berichte(name, 100 * verkehr.Grenze() / median, QStringLiteral("%"), Ziel::Mindestens, Zielanteil,
             QStringLiteral("limit %1 ms, median %2 ms, fastest %3 ms, between the dialogs %4 ms, "
                            "%5 transactions, %6 bytes")
                 .arg(1e3 * verkehr.Grenze(), 0, 'f', 1)
                 .arg(1e3 * median, 0, 'f', 1)
                 .arg(1e3 * Quantil(dauern, 0), 0, 'f', 1)
                 .arg(1e3 * Median(wechsel), 0, 'f', 1)
                 .arg(verkehr.sendungen)
                 .arg(verkehr.bytes));
}

} // namespace

int main(int argc, char** argv) {
    QApplication anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    Messplatz platz({QStringLiteral("--beams"), QStringLiteral("128,128,128,128")});
    platz.Verbinde();
    platz.Stoppe();
    Miss(QStringLiteral("identification and whole read at 38400: limit / median"),
         [&] { return Lies(platz); });
    Miss(QStringLiteral("the same for a comparison at 38400: limit / median"), [&] {
        Geraeteabzug abzug;
        QThread::usleep(Gewissheit::LangeRuhe.count()); // nobody asks again sooner
        return Lies(platz, &abzug);
    });
    return 0;
}
