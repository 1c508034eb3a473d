#include "wasserfallplan.h"

#include "strahlmasse.h"

#include <QFontMetrics>

#include <algorithm>

namespace varnoth {

namespace {

constexpr double Lueckenstreifen = 5;

int Breite(const QFontMetrics& masse, int groesste) {
    return masse.horizontalAdvance(QString(QString::number(std::max(groesste, 10)).size(), u'0'));
}

} // namespace

Wasserfallplan TeileAuf(const Wasserfallvorgabe& vorgabe) {
    const auto pixel = [&vorgabe](double logisch) { return Geraetepixel(logisch, vorgabe.dichte); };
    const QFontMetrics masse(vorgabe.schrift);
    const int rand = pixel(Masse::Rand);
    const int luft = pixel(Masse::Luecke);
    const int strich = pixel(Masse::Strich);
    Wasserfallplan plan;
    plan.nummernLinks = rand;
    const int links = rand + Breite(masse, vorgabe.strahlen) + luft + strich;
    const int skala = vorgabe.abstandMm > 0 ? Breite(masse, vorgabe.strahlen * vorgabe.abstandMm) +
                                                  masse.horizontalAdvance(QStringLiteral(" mm"))
                                            : 0;
    plan.skalaRechts = skala;
    const int rechts = skala > 0 ? skala + strich + luft + rand : rand;
    const int unten = masse.height() + strich + luft + rand;
    const int streifen = pixel(Lueckenstreifen);
    const int oben = rand + masse.height() / 2;
    plan.flaeche = {links, oben, std::max(1, vorgabe.groesse.width() - links - rechts),
                    std::max(1, vorgabe.groesse.height() - oben - unten - streifen - pixel(1))};
    plan.luecken = {links, plan.flaeche.bottom() + 1 + pixel(1), plan.flaeche.width(), streifen};
    plan.zeiten = {0, plan.luecken.bottom() + 1, vorgabe.groesse.width(), unten};
    return plan;
}

} // namespace varnoth
