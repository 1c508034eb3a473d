#include "darstellungsmenue.h"

#include "strahlfarben.h"
#include "texte.h"

#include <QActionGroup>
#include <QMenu>
#include <QPainter>

#include <vector>

namespace varnoth {

namespace {

constexpr std::int16_t TextStrahlfarben = 9526;
constexpr QSize Probengroesse(24, 16);

QString Text(std::int16_t id) {
    return QString::fromStdString(LadeText(id));
}

/// Free, blanked and interrupted beams as stripes on their ground.
QIcon Farbprobe(const QPalette& palette, Strahlfarbsatz satz) {
    const Strahlfarben farben = FarbenAus(palette, Datenstand::Gueltig, satz);
    QPixmap bild(Probengroesse);
    bild.fill(farben.grund);
    QPainter maler(&bild);
    const int hoehe = Probengroesse.height() / 4;
    int oben = 1;
    for (const QColor& farbe : {farben.frei, farben.unterbrochen, farben.geblankt}) {
        maler.fillRect(1, oben, Probengroesse.width() - 2, hoehe, farbe);
        oben += hoehe + 1;
    }
    return QIcon(bild);
}

/// Gives the items in the order of the rows.
template<class Wert>
std::vector<QAction*> FuegeHinzu(QMenu& menue, std::span<const Darstellungszeile<Wert>> zeilen,
                                 Wert Darstellung::*feld, const Darstellung& gewaehlt,
                                 const std::function<void(const Darstellung&)>& waehle) {
    auto* const gruppe = new QActionGroup(&menue);
    std::vector<QAction*> punkte;
    for (const auto& [wert, wort, textId, name] : zeilen) {
        QAction* const aktion = menue.addAction(Text(textId));
        aktion->setObjectName(QLatin1String(name));
        aktion->setCheckable(true);
        aktion->setChecked(gewaehlt.*feld == wert);
        aktion->setActionGroup(gruppe);
        Darstellung neue = gewaehlt;
        neue.*feld = wert;
        QObject::connect(aktion, &QAction::triggered, &menue, [waehle, neue] { waehle(neue); });
        punkte.push_back(aktion);
    }
    return punkte;
}

} // namespace

QMenu* MacheDarstellungsmenue(QWidget& fenster, const Darstellung& gewaehlt,
                              const std::function<void(const Darstellung&)>& waehle) {
    auto* const menue = new QMenu(&fenster);
    menue->setObjectName(QStringLiteral("mnuDarstellung"));
    menue->setAttribute(Qt::WA_DeleteOnClose);
    FuegeHinzu(*menue, Erscheinungszeilen(), &Darstellung::erscheinung, gewaehlt, waehle);
    menue->addSection(Text(TextStrahlfarben));
    const auto saetze = FuegeHinzu(*menue, Farbsatzzeilen(), &Darstellung::farbsatz, gewaehlt, waehle);
    for (std::size_t satz = 0; satz < saetze.size(); ++satz)
        saetze[satz]->setIcon(Farbprobe(fenster.palette(), Farbsatzzeilen()[satz].wert));
    return menue;
}

} // namespace varnoth
