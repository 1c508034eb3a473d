#include "berichtsseiten.h"

#include "vektorbild.h"

#include <QAbstractTextDocumentLayout>
#include <QPageLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextFrame>
#include <QTextLayout>
#include <QTextTable>
#include <QUrl>

#include <cmath>

namespace varnoth {

namespace {

constexpr double Schriftgrad = 9;   // pt
constexpr double Fussschrift = 7.5; // pt
constexpr double Fusshoehe = 2.5;   // of its letters
constexpr double PunkteJeZoll = 72;
constexpr int HoechstensEinzeln = 1000; // pages laid out one by one
constexpr int Bildschaerfe = 4;         // points of paper for a pixel of a picture

/// The picture of an address that holds it, finer than the screen would need it.
QImage BildAus(const QUrl& adresse) {
    const Vektorbild bild(QByteArray::fromBase64(adresse.path().section(',', 1).toLatin1()));
    return bild.Bild((bild.Groesse() * Bildschaerfe).toSize());
}

/// Cells with an edge each: those that share theirs take Qt three times as long to lay out.
QString MitEinzelnenRaendern(QString html) {
    return html.replace(QStringLiteral("border-collapse: collapse;"), QStringLiteral("border-style: solid;"));
}

/// Two edges side by side are as wide then as one that cells share.
void HalbiereRaender(QTextDocument& dokument) {
    QTextCursor aenderung(&dokument);
    aenderung.beginEditBlock();
    for (QTextFrame* const rahmen : dokument.rootFrame()->childFrames())
        if (auto* const tabelle = qobject_cast<QTextTable*>(rahmen)) {
            QTextTableFormat format = tabelle->format();
            format.setBorder(format.border() / 2);
            tabelle->setFormat(format);
        }
    aenderung.endEditBlock();
}

int Punktdichte(const QPaintDevice& geraet) {
    return geraet.logicalDpiY();
}

} // namespace

QVariant Berichtsseiten::Dokument::loadResource(int art, const QUrl& name) {
    if (name.scheme() != QLatin1String("data"))
        return {}; // nothing outside the document is looked at
    QVariant bild = BildAus(name);
    addResource(art, name, bild); // or layout and painting would ask for it again
    return bild;
}

Berichtsseiten::Berichtsseiten(const Berichtsdruck& druck, QPagedPaintDevice& geraet)
    : fuss(druck.fuss), seitewort(druck.seitewort), punktdichte(Punktdichte(geraet)),
      fusshoehe(Fusshoehe * Fussschrift * punktdichte / PunkteJeZoll) {
    QFont schrift(QStringLiteral("DejaVu Sans"));
    schrift.setStyleHint(QFont::SansSerif);
    schrift.setPointSizeF(Schriftgrad);
    dokument.documentLayout()->setPaintDevice(&geraet);
    dokument.setDefaultFont(schrift);
    dokument.setDocumentMargin(0);
    const QSizeF papier = geraet.pageLayout().paintRectPixels(punktdichte).size();
    dokument.setPageSize({papier.width(), papier.height() - fusshoehe});
    dokument.setHtml(MitEinzelnenRaendern(druck.html));
    HalbiereRaender(dokument);
}

/// Qt lays out what lies above a place that is asked for.
bool Berichtsseiten::LegeAus() {
    const double unten = ++gelegteSeiten * dokument.pageSize().height();
    dokument.documentLayout()->hitTest({0, unten}, Qt::FuzzyHit);
    return dokument.lastBlock().layout()->lineCount() == 0 && gelegteSeiten < HoechstensEinzeln;
}

int Berichtsseiten::Anzahl() const {
    return dokument.pageCount();
}

void Berichtsseiten::Male(QPainter& maler, int seite) const {
    MaleInhalt(maler, seite);
    MaleFuss(maler, seite);
}

void Berichtsseiten::MaleInhalt(QPainter& maler, int seite) const {
    const QSizeF groesse = dokument.pageSize();
    QAbstractTextDocumentLayout::PaintContext inhalt;
    inhalt.clip = QRectF(QPointF(0, seite * groesse.height()), groesse);
    inhalt.palette = QPalette(Qt::black, Qt::white);
    inhalt.palette.setColor(QPalette::Text, Qt::black);
    maler.save();
    maler.translate(0, -seite * groesse.height());
    maler.setClipRect(inhalt.clip, Qt::IntersectClip);
    dokument.documentLayout()->draw(&maler, inhalt);
    maler.restore();
}

/// The document's letters in a size of their own, in points of the device, whatever the painter paints on.
QFont Berichtsseiten::Schrift(double punkte) const {
    QFont schrift = dokument.defaultFont();
    schrift.setPixelSize(static_cast<int>(std::lround(punkte * punktdichte / PunkteJeZoll)));
    return schrift;
}

void Berichtsseiten::MaleFuss(QPainter& maler, int seite) const {
    const QRectF feld(0, dokument.pageSize().height(), dokument.pageSize().width(), fusshoehe);
    const QFont schrift = Schrift(Fussschrift);
    const QFontMetricsF masse(schrift);
    const QString nummer = seitewort.arg(seite + 1).arg(Anzahl());
    const double platz = feld.width() - masse.horizontalAdvance(nummer + "    ");
    maler.save();
    maler.setPen(Qt::black);
    maler.setFont(schrift);
    maler.drawText(feld, Qt::AlignLeft | Qt::AlignBottom | Qt::TextSingleLine,
                   masse.elidedText(fuss, Qt::ElideMiddle, platz));
    maler.drawText(feld, Qt::AlignRight | Qt::AlignBottom | Qt::TextSingleLine, nummer);
    maler.restore();
}

} // namespace varnoth
