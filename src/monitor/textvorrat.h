#pragma once

#include <QFont>
#include <QHash>
#include <QRectF>
#include <QString>
#include <QTextLayout>

#include <memory>

class QPainter;

namespace varnoth {

/// Single lines of plain text, laid out once and kept to be drawn again.
class Textvorrat {
public:
    /// How many texts are kept at most; one more, and all are forgotten.
    static constexpr int Hoechstzahl = 600;

    /// Draws the text in the painter's colour where QPainter::drawText draws it: to the left or right of a
    /// place, in the middle of its height. With another font than the last time all that is kept is
    /// forgotten.
    void Zeichne(QPainter& maler, const QRectF& platz, Qt::Alignment lage, const QString& text,
                 const QFont& schrift);
    int Anzahl() const { return static_cast<int>(texte.size()); }

private:
    struct Gelegter {
        QTextLayout anordnung;
        QTextLine zeile;
        double hoehe = 0;
    };

    const Gelegter& Gelegt(const QString& text, const QFont& schrift);

    QFont gelegtIn;
    QHash<QString, std::shared_ptr<Gelegter>> texte;
};

} // namespace varnoth
