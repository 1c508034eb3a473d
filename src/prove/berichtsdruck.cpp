#include "berichtsdruck.h"

#include "vektorbild.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QTextDocument>
#include <QUrl>

namespace varnoth {

namespace {

constexpr double Schriftgrad = 9;   // pt
constexpr double Fussschrift = 7.5; // pt
constexpr double Fusshoehe = 2.5;   // of its letters
constexpr int Bildschaerfe = 4;     // points of paper for a pixel of a picture
constexpr int Pdfaufloesung = 600;

/// The picture of an address that holds it, finer than the screen would need it.
QImage BildAus(const QUrl& adresse) {
    const Vektorbild bild(QByteArray::fromBase64(adresse.path().section(',', 1).toLatin1()));
    return bild.Bild((bild.Groesse() * Bildschaerfe).toSize());
}

/// The report laid out for a device.
class Dokument : public QTextDocument {
public:
    Dokument(const QString& html, QPagedPaintDevice& geraet) {
        QFont schrift(QStringLiteral("DejaVu Sans"));
        schrift.setStyleHint(QFont::SansSerif);
        schrift.setPointSizeF(Schriftgrad);
        documentLayout()->setPaintDevice(&geraet);
        setDefaultFont(schrift);
        setDocumentMargin(0);
        setHtml(html);
        const QSizeF papier = geraet.pageLayout().paintRectPixels(Punktdichte(geraet)).size();
        fusshoehe = Fusshoehe * Fussschrift * Punktdichte(geraet) / 72;
        setPageSize({papier.width(), papier.height() - fusshoehe});
    }

    double Fuss() const { return fusshoehe; }

    static int Punktdichte(const QPagedPaintDevice& geraet) {
        return static_cast<const QPaintDevice&>(geraet).logicalDpiY();
    }

protected:
    QVariant loadResource(int /*art*/, const QUrl& name) override {
        if (name.scheme() == QLatin1String("data"))
            return BildAus(name);
        return {}; // nothing outside the document is looked at
    }

private:
    double fusshoehe = 0;
};

void MaleSeite(QPainter& maler, const Dokument& dokument, int seite) {
    const QSizeF groesse = dokument.pageSize();
    QAbstractTextDocumentLayout::PaintContext inhalt;
    inhalt.clip = QRectF(QPointF(0, seite * groesse.height()), groesse);
    inhalt.palette = QPalette(Qt::black, Qt::white);
    inhalt.palette.setColor(QPalette::Text, Qt::black);
    maler.save();
    maler.translate(0, -seite * groesse.height());
    maler.setClipRect(inhalt.clip);
    dokument.documentLayout()->draw(&maler, inhalt);
    maler.restore();
}

void MaleFuss(QPainter& maler, const Dokument& dokument, const Berichtsdruck& druck, int seite) {
    const QRectF feld(0, dokument.pageSize().height(), dokument.pageSize().width(), dokument.Fuss());
    QFont schrift = dokument.defaultFont();
    schrift.setPointSizeF(Fussschrift);
    const QString nummer = druck.seitewort.arg(seite + 1).arg(dokument.pageCount());
    maler.save();
    maler.setPen(Qt::black);
    maler.setFont(schrift);
    const double platz =
        feld.width() - QFontMetricsF(schrift, maler.device()).horizontalAdvance(nummer + "    ");
    const QString fuss =
        QFontMetricsF(schrift, maler.device()).elidedText(druck.fuss, Qt::ElideMiddle, platz);
    maler.drawText(feld, Qt::AlignLeft | Qt::AlignBottom | Qt::TextSingleLine, fuss);
    maler.drawText(feld, Qt::AlignRight | Qt::AlignBottom | Qt::TextSingleLine, nummer);
    maler.restore();
}

} // namespace

bool Drucke(const Berichtsdruck& druck, QPagedPaintDevice& geraet) {
    const Dokument dokument(druck.html, geraet);
    QPainter maler;
    if (!maler.begin(&geraet))
        return false;
    for (int seite = 0; seite < dokument.pageCount(); ++seite) {
        if (seite > 0 && !geraet.newPage())
            return false;
        MaleSeite(maler, dokument, seite);
        MaleFuss(maler, dokument, druck, seite);
    }
    return maler.end();
}

QByteArray AlsPdf(const Berichtsdruck& druck, const QString& titel) {
    QByteArray pdf;
    QBuffer puffer(&pdf);
    puffer.open(QIODevice::WriteOnly);
    QPdfWriter schreiber(&puffer);
    schreiber.setResolution(Pdfaufloesung);
    schreiber.setTitle(titel);
    RichteSeiteEin(schreiber);
    return Drucke(druck, schreiber) ? pdf : QByteArray();
}

} // namespace varnoth
