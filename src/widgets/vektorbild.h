#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QPainterPath>
#include <QRectF>
#include <QSizeF>

#include <vector>

class QPainter;

namespace varnoth {

/// A picture of lines, faces and words in the part of SVG that the program's own pictures use: svg, g, rect,
/// circle, path and text with colours as "#rrggbb" or "none", widths, ends and corners of lines. Anything
/// else is left out. Qt's own reader is a module that not every system's Qt has.
class Vektorbild {
public:
    /// @param svg a whole document; one that cannot be read gives an empty picture
    explicit Vektorbild(const QByteArray& svg);

    /// The size that the document names, in pixels; empty for an empty picture.
    QSizeF Groesse() const { return groesse; }
    /// Draws the whole picture into a rectangle.
    void Male(QPainter& maler, const QRectF& flaeche) const;
    /// The picture on transparent ground, so many pixels large.
    QImage Bild(const QSize& pixel) const;

private:
    struct Stueck {
        QPainterPath pfad;
        QColor fuellung; ///< invalid: none
        QColor linie;    ///< invalid: none
        double breite = 1;
        Qt::PenCapStyle ende = Qt::FlatCap;
        Qt::PenJoinStyle ecke = Qt::MiterJoin;
    };
    class Leser;

    QSizeF groesse;
    QRectF ausschnitt; ///< of the document, which the picture shows
    std::vector<Stueck> stuecke;
};

} // namespace varnoth
