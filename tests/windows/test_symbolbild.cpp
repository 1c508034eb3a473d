#include "symbolbild.h"

#include <QApplication>
#include <QImage>
#include <gtest/gtest.h>

namespace varnoth {

namespace {

QPalette Palette(const QColor& schrift, const QColor& grund) {
    QPalette palette;
    palette.setColor(QPalette::WindowText, schrift);
    palette.setColor(QPalette::Window, grund);
    return palette;
}

bool HatFarbe(const QIcon& symbol, const QColor& farbe) {
    const QImage bild = symbol.pixmap(48).toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x)
            if (bild.pixelColor(x, y) == farbe)
                return true;
    return false;
}

} // namespace

TEST(Symbolbild, A_name_that_no_picture_has_gives_an_empty_one) {
    EXPECT_TRUE(Symbolbild("no such picture").isNull());
    EXPECT_FALSE(Symbolbild("neu").isNull());
}

TEST(Symbolbild, Lines_and_what_stands_out_take_their_own_colours) {
    EXPECT_EQ(Umgefaerbt("<a stroke=\"#222222\" fill=\"#2a6fb5\"/>", {Qt::white, Qt::red}),
              "<a stroke=\"#ffffff\" fill=\"#ff0000\"/>");
}

TEST(Symbolbild, A_line_in_the_colour_designed_for_what_stands_out_stays_a_line) {
    EXPECT_EQ(Umgefaerbt("#222222 #2a6fb5", {QColor("#2a6fb5"), Qt::red}), "#2a6fb5 #ff0000");
}

TEST(Symbolbild, Colours_follow_the_palette_and_what_cannot_be_chosen_is_pale_all_over) {
    QPalette hell = Palette(Qt::black, Qt::white);
    hell.setColor(QPalette::Disabled, QPalette::WindowText, Qt::gray);
    const auto farben = SymbolfarbenAus(hell, QIcon::Normal);
    EXPECT_EQ(farben.linie, Qt::black);
    EXPECT_EQ(SymbolfarbenAus(hell, QIcon::Disabled), (Symbolfarben{Qt::gray, Qt::gray}));
    EXPECT_NE(SymbolfarbenAus(Palette(Qt::white, Qt::black), QIcon::Normal).betonung, farben.betonung);
}

TEST(Symbolbild, A_new_palette_draws_the_same_icon_anew) {
    const QPalette vorher = QApplication::palette();
    const QIcon symbol = Symbolbild("speichern");
    QApplication::setPalette(Palette(QColor(1, 2, 3), Qt::white));
    EXPECT_TRUE(HatFarbe(symbol, QColor(1, 2, 3)));
    QApplication::setPalette(Palette(QColor(250, 251, 252), Qt::black));
    EXPECT_TRUE(HatFarbe(symbol, QColor(250, 251, 252)));
    EXPECT_FALSE(HatFarbe(symbol, QColor(1, 2, 3)));
    QApplication::setPalette(vorher);
}

} // namespace varnoth
