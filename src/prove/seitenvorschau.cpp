#include "seitenvorschau.h"

#include "berichtsdruck.h"
#include "seiteneinrichtung.h"

#include <QPageLayout>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include <cmath>

namespace varnoth {

namespace {

constexpr int Rand = 12; // pixels around each page

} // namespace

Seitenvorschau::Seitenvorschau(QWidget* parent) : QAbstractScrollArea(parent), papier(&nirgends) {
    papier.setResolution(Pdfaufloesung);
    RichteSeiteEin(papier);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    arbeit.setSingleShot(true);
    connect(&arbeit, &QTimer::timeout, this, [this] { Arbeite(); });
}

void Seitenvorschau::Zeige(Berichtsdruck druck) {
    naechste.reset();
    auftrag = std::move(druck);
    arbeit.start(0);
}

int Seitenvorschau::Seitenzahl() const {
    return seiten == nullptr ? 0 : seiten->Anzahl();
}

void Seitenvorschau::Arbeite() {
    if (naechste == nullptr) {
        naechste = std::make_unique<Berichtsseiten>(auftrag, papier);
        return arbeit.start(0);
    }
    if (naechste->LegeAus())
        return arbeit.start(0);
    seiten = std::move(naechste);
    RichteBalken();
    viewport()->update();
    emit Gezeigt();
}

/// Pixels of the window for a point of the paper.
double Seitenvorschau::Massstab() const {
    const int breite = papier.pageLayout().fullRectPixels(Pdfaufloesung).width();
    return static_cast<double>(std::max(viewport()->width() - 2 * Rand, 1)) / breite;
}

/// Where a page lies in the viewport as it is scrolled, in its pixels.
QRectF Seitenvorschau::Seitenfeld(int seite) const {
    const QSizeF groesse = QSizeF(papier.pageLayout().fullRectPixels(Pdfaufloesung).size()) * Massstab();
    const double oben = Rand + seite * (groesse.height() + Rand) - verticalScrollBar()->value();
    return {QPointF(Rand, oben), groesse};
}

/// The place in the document stays, whatever its height is now.
void Seitenvorschau::RichteBalken() {
    QScrollBar& balken = *verticalScrollBar();
    const int hoehe = viewport()->height();
    const int vorher = balken.maximum() + balken.pageStep();
    const double stelle = static_cast<double>(balken.value()) / std::max(vorher, 1);
    const QRectF feld = Seitenfeld(0);
    const int gesamt = static_cast<int>(std::ceil(Rand + Seitenzahl() * (feld.height() + Rand)));
    balken.setPageStep(hoehe);
    balken.setSingleStep(std::max(hoehe / 10, 1));
    balken.setRange(0, std::max(gesamt - hoehe, 0));
    balken.setValue(static_cast<int>(std::lround(stelle * gesamt)));
}

void Seitenvorschau::resizeEvent(QResizeEvent* ereignis) {
    QAbstractScrollArea::resizeEvent(ereignis);
    RichteBalken();
}

void Seitenvorschau::paintEvent(QPaintEvent* ereignis) {
    QPainter maler(viewport());
    maler.fillRect(ereignis->rect(), palette().mid());
    for (int seite = 0; seite < Seitenzahl(); ++seite)
        if (Seitenfeld(seite).intersects(ereignis->rect()))
            MaleSeite(maler, seite);
}

void Seitenvorschau::MaleSeite(QPainter& maler, int seite) const {
    const QRectF feld = Seitenfeld(seite);
    const QRect rand = papier.pageLayout().paintRectPixels(Pdfaufloesung);
    maler.save();
    maler.fillRect(feld, Qt::white);
    maler.setPen(palette().color(QPalette::Dark));
    maler.drawRect(feld);
    maler.translate(feld.topLeft());
    maler.scale(Massstab(), Massstab());
    maler.translate(rand.topLeft());
    maler.setRenderHint(QPainter::SmoothPixmapTransform);
    seiten->Male(maler, seite);
    maler.restore();
}

} // namespace varnoth
