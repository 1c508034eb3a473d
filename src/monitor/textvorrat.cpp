#include "textvorrat.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QWidget>

namespace varnoth {

const Textvorrat::Gelegter& Textvorrat::Gelegt(const QString& text, const QFont& schrift) {
    if (schrift != gelegtIn || (texte.size() == Hoechstzahl && !texte.contains(text)))
        texte.clear();
    gelegtIn = schrift;
    std::shared_ptr<Gelegter>& gelegter = texte[text];
    if (gelegter == nullptr) {
        gelegter = std::make_shared<Gelegter>();
        QTextLayout& anordnung = gelegter->anordnung;
        anordnung.setFont(schrift);
        anordnung.setText(text);
        anordnung.setCacheEnabled(true);
        anordnung.beginLayout();
        gelegter->zeile = anordnung.createLine();
        gelegter->zeile.setLineWidth(QWIDGETSIZE_MAX);
        gelegter->zeile.setPosition({});
        anordnung.endLayout();
        gelegter->hoehe = QFontMetricsF(schrift).height(); // that of the line is rounded
    }
    return *gelegter;
}

void Textvorrat::Zeichne(QPainter& maler, const QRectF& platz, Qt::Alignment lage, const QString& text,
                         const QFont& schrift) {
    const Gelegter& gelegter = Gelegt(text, schrift);
    const double rest = platz.width() - gelegter.zeile.horizontalAdvance();
    gelegter.zeile.draw(&maler, {platz.x() + (lage.testFlag(Qt::AlignRight) ? rest : 0),
                                 platz.y() + (platz.height() - gelegter.hoehe) / 2});
}

} // namespace varnoth
