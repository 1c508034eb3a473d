// The program's pictures beside what Qt's own SVG module makes of them, which not every system has.

#include "vektorbild.h"

#include <QBuffer>
#include <QDir>
#include <QImageReader>
#include <gtest/gtest.h>

#include <cmath>

namespace varnoth {

namespace {

/// What Qt's own module makes of the same document.
QImage Vorbild(QByteArray svg, const QSize& groesse) {
    QBuffer puffer(&svg);
    QImageReader leser(&puffer, "svg");
    leser.setScaledSize(groesse);
    return leser.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// The mean difference between two pictures of one size, each channel of each pixel counting from 0 to 255.
double Unterschied(const QImage& eines, const QImage& anderes) {
    double summe = 0;
    for (int y = 0; y < eines.height(); ++y)
        for (int x = 0; x < eines.width(); ++x) {
            const QRgb a = eines.pixel(x, y);
            const QRgb b = anderes.pixel(x, y);
            summe += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) +
                     std::abs(qBlue(a) - qBlue(b)) + std::abs(qAlpha(a) - qAlpha(b));
        }
    return summe / (4.0 * eines.width() * eines.height());
}

QByteArray Inhalt(const QString& datei) {
    QFile quelle(datei);
    EXPECT_TRUE(quelle.open(QIODevice::ReadOnly));
    return quelle.readAll();
}

} // namespace

TEST(Vektorbild, Every_picture_of_the_program_looks_as_another_reader_draws_it) {
    ASSERT_TRUE(QImageReader::supportedImageFormats().contains("svg")) << "install libqt6svg6";
    const QDir ordner(QStringLiteral(VARNOTH_SYMBOLE));
    const QStringList namen = ordner.entryList({QStringLiteral("*.svg")}, QDir::Files);
    ASSERT_GT(namen.size(), 50);
    for (const QString& name : namen)
        for (const int seite : {16, 24, 96}) {
            const QByteArray svg = Inhalt(ordner.filePath(name));
            const QImage unseres = Vektorbild(svg).Bild({seite, seite});
            EXPECT_LT(Unterschied(unseres, Vorbild(svg, {seite, seite})), 1)
                << name.toStdString() << " at " << seite;
        }
}

} // namespace varnoth
