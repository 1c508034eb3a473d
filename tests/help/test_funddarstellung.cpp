#include "funddarstellung.h"

#include <QImage>
#include <QListWidget>
#include <gtest/gtest.h>

#include <algorithm>

using namespace varnoth;

namespace {

/// A list with one find, as the help's search shows it.
class Fundliste : public testing::Test {
protected:
    Fundliste() {
        liste.setItemDelegate(&darstellung);
        liste.addItem(QStringLiteral("Titel"));
        liste.resize(300, 200);
        liste.ensurePolished();
    }
    void Auszug(const QString& text) { liste.item(0)->setData(Funddarstellung::AuszugRolle, text); }
    QRect Platz() const { return liste.visualItemRect(liste.item(0)); }
    QImage Bild() {
        QImage bild(liste.viewport()->size(), QImage::Format_RGB32);
        liste.viewport()->render(&bild);
        return bild;
    }
    bool Zeigt(const QColor& farbe) {
        const QImage bild = Bild();
        const QRect platz = Platz() & bild.rect();
        for (int y = platz.top(); y <= platz.bottom(); ++y)
            for (int x = platz.left(); x <= platz.right(); ++x)
                if (bild.pixelColor(x, y) == farbe)
                    return true;
        return false;
    }
    /// The lowest row in which two pictures of the list differ, -1 when they are equal.
    static int UntersteVerschiedene(const QImage& eines, const QImage& anderes) {
        for (int y = eines.height() - 1; y >= 0; --y)
            if (!std::equal(eines.constScanLine(y), eines.constScanLine(y) + eines.bytesPerLine(),
                            anderes.constScanLine(y)))
                return y;
        return -1;
    }

    Funddarstellung darstellung;
    QListWidget liste;
};

} // namespace

TEST_F(Fundliste, The_excerpt_stands_below_the_title) {
    Auszug(QStringLiteral(" "));
    const int titelhoehe = Platz().height() / 2;
    const QImage ohne = Bild();
    Auszug(QStringLiteral("mmm"));
    EXPECT_GT(UntersteVerschiedene(ohne, Bild()), Platz().top() + titelhoehe);
}

TEST_F(Fundliste, A_long_excerpt_takes_as_many_lines_as_it_needs) {
    Auszug(QStringLiteral("kurz"));
    const int eineZeile = Platz().height();
    Auszug(QStringLiteral("ein langer Auszug ").repeated(12));
    EXPECT_GT(Platz().height(), 2 * eineZeile);
    EXPECT_LE(Platz().width(), liste.viewport()->width());
}

TEST_F(Fundliste, A_chosen_find_is_written_in_the_colour_of_chosen_text) {
    QPalette palette = liste.palette();
    palette.setColor(QPalette::HighlightedText, Qt::magenta);
    liste.setPalette(palette);
    Auszug(QStringLiteral("mmm"));
    EXPECT_FALSE(Zeigt(Qt::magenta));
    liste.setCurrentRow(0);
    EXPECT_TRUE(Zeigt(Qt::magenta));
}
