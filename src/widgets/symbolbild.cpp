#include "symbolbild.h"

#include "darstellung.h"
#include "vektorbild.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>

#include <algorithm>
#include <utility>

/// The resources of a static library have to be asked for, and Qt wants that done outside of any namespace.
static void InitRessourcen() {
    Q_INIT_RESOURCE(symbole);
}

namespace varnoth {

namespace {

constexpr char GezeichneteLinie[] = "#222222";
constexpr char GezeichneteBetonung[] = "#2a6fb5";
constexpr QColor AufHell(0x2a, 0x6f, 0xb5);
constexpr QColor AufDunkel(0x7c, 0xb7, 0xf0);

enum class Farbwahl { Palette, Eigene };

QPixmap Gezeichnet(const QByteArray& svg, const QSize& groesse) {
    return QPixmap::fromImage(Vektorbild(svg).Bild(groesse));
}

/// Draws a picture, in its own colours or in the palette's, which it looks up each time: a palette that
/// changes needs no new icon.
class Symbolmaschine : public QIconEngine {
public:
    Symbolmaschine(QString bildname, QByteArray inhalt, Farbwahl wahl)
        : name(std::move(bildname)), svg(std::move(inhalt)), farbwahl(wahl) {}

    void paint(QPainter* maler, const QRect& flaeche, QIcon::Mode mode, QIcon::State zustand) override {
        const qreal schaerfe = maler->device()->devicePixelRatioF();
        maler->drawPixmap(flaeche, pixmap((QSizeF(flaeche.size()) * schaerfe).toSize(), mode, zustand));
    }
    QPixmap pixmap(const QSize& groesse, QIcon::Mode mode, QIcon::State /*zustand*/) override {
        const int seite = std::min(groesse.width(), groesse.height());
        const Symbolfarben farben = SymbolfarbenAus(QGuiApplication::palette(), mode);
        const QString merkmal = QStringLiteral("symbol %1 %2 %3 %4")
                                    .arg(name)
                                    .arg(seite)
                                    .arg(farben.linie.name(), farben.betonung.name());
        QPixmap bild;
        if (!QPixmapCache::find(merkmal, &bild)) {
            bild = Gezeichnet(farbwahl == Farbwahl::Palette ? Umgefaerbt(svg, farben) : svg, {seite, seite});
            QPixmapCache::insert(merkmal, bild);
        }
        return bild;
    }
    QSize actualSize(const QSize& groesse, QIcon::Mode /*mode*/, QIcon::State /*zustand*/) override {
        const int seite = std::min(groesse.width(), groesse.height());
        return {seite, seite};
    }
    QIconEngine* clone() const override { return new Symbolmaschine(name, svg, farbwahl); }

private:
    QString name;
    QByteArray svg;
    Farbwahl farbwahl;
};

QIcon Bild(const QString& datei, Farbwahl farbwahl) {
    QFile quelle(datei);
    if (!quelle.open(QIODevice::ReadOnly))
        return {};
    return QIcon(new Symbolmaschine(datei, quelle.readAll(), farbwahl));
}

} // namespace

Symbolfarben SymbolfarbenAus(const QPalette& palette, QIcon::Mode mode) {
    if (mode == QIcon::Disabled) {
        const QColor blass = palette.color(QPalette::Disabled, QPalette::WindowText);
        return {blass, blass};
    }
    if (mode == QIcon::Selected) {
        const QColor auf = palette.color(QPalette::HighlightedText);
        return {auf, auf};
    }
    const QColor linie = palette.color(QPalette::WindowText);
    if (IstHoherKontrast(palette))
        return {linie, palette.color(QPalette::Link)};
    return {linie, IstDunkel(palette) ? AufDunkel : AufHell};
}

QByteArray Umgefaerbt(QByteArray svg, const Symbolfarben& farben) {
    const QByteArray betonung = farben.betonung.name().toLatin1();
    const QByteArray linie = farben.linie.name().toLatin1();
    // By way of a mark of its own, for the new line's colour may be the designed colour of the other.
    svg.replace(GezeichneteLinie, "\x01");
    svg.replace(GezeichneteBetonung, betonung);
    return svg.replace("\x01", linie);
}

QIcon Symbolbild(const QString& name) {
    InitRessourcen();
    return Bild(QStringLiteral(":/symbole/%1.svg").arg(name), Farbwahl::Palette);
}

QIcon FarbigesBild(const QString& datei) {
    return Bild(datei, Farbwahl::Eigene);
}

} // namespace varnoth
