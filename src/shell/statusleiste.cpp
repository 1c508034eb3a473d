#include "statusleiste.h"

#include "ausgangsanzeige.h"
#include "geraetepfade.h"
#include "kurzlabel.h"
#include "schnittstelle.h"
#include "texte.h"
#include "tipptext.h"
#include "umgebung.h"

#include <QLabel>
#include <QStatusBar>

namespace varnoth {

namespace {

constexpr std::int16_t TextSimuliert = 9220;
constexpr std::int16_t TextOhneAnschluss = 9221;

/// Between two panels, and so behind each one, for the connection follows the last.
QFrame* MacheTrennlinie(QWidget& leiste, std::size_t nummer) {
    auto* const linie = new QFrame(&leiste);
    linie->setObjectName(QStringLiteral("linStatusBar_%1").arg(nummer));
    linie->setFrameStyle(QFrame::VLine | QFrame::Plain);
    linie->setEnabled(false); // the colour of what cannot be chosen is to be seen on every ground
    return linie;
}

} // namespace

Statusleiste::Statusleiste(QStatusBar& leiste) {
    for (std::size_t i = 0; i < felder.size(); ++i) {
        // Messages give way where room is short; port and output stay whole.
        const bool meldungen = i + 1 == FeldMeldungen;
        QLabel* feld = meldungen ? new Kurzlabel(&leiste) : new QLabel(&leiste);
        feld->setObjectName(QStringLiteral("sbStatusBar_%1").arg(i + 1));
        leiste.addPermanentWidget(feld, meldungen ? 2 : 1); // a sentence is longer than what the others say
        leiste.addPermanentWidget(MacheTrennlinie(leiste, i + 1));
        felder[i] = feld;
    }
    ausgang = std::make_unique<Ausgangsanzeige>(*felder[FeldSchaltausgang - 1]);
}

Statusleiste::~Statusleiste() = default;

void Statusleiste::Zeige(int feld, const std::string& text) {
    QLabel& anzeige = *felder.at(static_cast<std::size_t>(feld - 1));
    const QString neu = QString::fromStdString(text);
    if (feld == FeldSchaltausgang)
        ausgang->Zeige(neu);
    else if (anzeige.text() != neu)
        anzeige.setText(neu);
    if (feld == FeldMeldungen)
        anzeige.setToolTip(anzeige.text());
}

void Statusleiste::ZeigeAusgangVon(const std::string& text, const std::string& uhrzeit) {
    ausgang->ZeigeVon(QString::fromStdString(text), QString::fromStdString(uhrzeit));
}

void Statusleiste::ZeigePort() {
    const int nummer = modSchnittstelle::GetComPort();
    Zeige(FeldPort, simuliert ? LadeText(TextSimuliert)
                              : "COM" + std::to_string(nummer) + ": " + modSchnittstelle::GetComSettings());
    felder[FeldPort - 1]->setToolTip(
        AlsTipp(QString::fromStdString(simuliert ? LadeText(TextOhneAnschluss) : Geraetepfad(nummer))));
}

void Statusleiste::SetzeSimuliert(bool ist) {
    simuliert = ist;
    ZeigePort();
}

} // namespace varnoth
