#include "darstellungsmenue.h"

#include "strahlfarben.h"
#include "texte.h"

#include <QActionGroup>
#include <QMenu>
#include <QPainter>

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

template<class Wert>
void FuegeHinzu(QMenu& menue, std::span<const Darstellungszeile<Wert>> zeilen, Wert Darstellung::*feld,
                const Darstellung& gewaehlt, const std::function<void(const Darstellung&)>& waehle) {
    auto* const gruppe = new QActionGroup(&menue);
    for (const auto& [wert, wort, textId, name] : zeilen) {
        QAction* const aktion = menue.addAction(Text(textId));
        aktion->setObjectName(QLatin1String(name));
        aktion->setCheckable(true);
        aktion->setChecked(gewaehlt.*feld == wert);
        aktion->setActionGroup(gruppe);
        Darstellung neue = gewaehlt;
        neue.*feld = wert;
        QObject::connect(aktion, &QAction::triggered, &menue, [waehle, neue] { waehle(neue); });
    }
}

} // namespace

QMenu* MacheDarstellungsmenue(QWidget& fenster, const Darstellung& gewaehlt,
                              const std::function<void(const Darstellung&)>& waehle) {
    auto* const menue = new QMenu(&fenster);
    menue->setObjectName(QStringLiteral("mnuDarstellung"));
    menue->setAttribute(Qt::WA_DeleteOnClose);
    FuegeHinzu(*menue, Erscheinungszeilen(), &Darstellung::erscheinung, gewaehlt, waehle);
    menue->addSection(Text(TextStrahlfarben));
    FuegeHinzu(*menue, Farbsatzzeilen(), &Darstellung::farbsatz, gewaehlt, waehle);
    for (const auto& zeile : Farbsatzzeilen())
        menue->findChild<QAction*>(QLatin1String(zeile.name))
            ->setIcon(Farbprobe(fenster.palette(), zeile.wert));
    return menue;
}

} // namespace varnoth
