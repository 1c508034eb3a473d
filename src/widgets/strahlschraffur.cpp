#include "strahlschraffur.h"

#include "strahlmasse.h"

#include <QPainter>

namespace varnoth {

namespace {

constexpr double LinienAb = 3; // pixels a beam

void ZeichneLinien(QPainter& maler, const Aufteilung& plan, const QColor& farbe, double dichte) {
    const Strahlfeld& feld = plan.feld;
    const int dicke = Geraetepixel(1, dichte);
    for (int strahl = 0; strahl < feld.strahlen; ++strahl)
        maler.fillRect(plan.strahlenLinks, static_cast<int>(feld.Y(strahl + 0.5)) - dicke / 2,
                       plan.strahlenBreite, dicke, farbe);
}

} // namespace

void Schraffiere(QPainter& maler, const Aufteilung& aufteilung, const Strahlfarben& farben, double dichte) {
    const Strahlfeld& feld = aufteilung.feld;
    const QRect flaeche(aufteilung.strahlenLinks, feld.oben, aufteilung.strahlenBreite, feld.hoehe);
    if (feld.strahlen == 0)
        return;
    maler.save();
    maler.setClipRect(flaeche);
    if (feld.Teilung() >= LinienAb * dichte)
        ZeichneLinien(maler, aufteilung, farben.geblankt, dichte);
    else
        maler.fillRect(flaeche, farben.gehaeuse);
    QBrush schraffur(farben.striche, Qt::BDiagPattern);
    schraffur.setTransform(QTransform::fromScale(dichte, dichte));
    maler.fillRect(flaeche, schraffur);
    maler.restore();
}

} // namespace varnoth
