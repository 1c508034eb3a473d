#include "wertfeld.h"

#include <gtest/gtest.h>

namespace {

using namespace varnoth;

class Platz : public testing::Test {
protected:
    QSize Fuer(const char* text) {
        feld.setText(QString::fromLatin1(text));
        return feld.sizeHint();
    }

    Wertfeld feld;
};

TEST_F(Platz, Depends_on_how_many_digits_a_value_has_and_not_on_which) {
    feld.setFont(QFont(QStringLiteral("Serif"), 20));
    const QSize schmal = Fuer("111");
    EXPECT_EQ(Fuer("888"), schmal);
    EXPECT_GE(schmal.width(),
              static_cast<QLabel&>(feld).fontMetrics().horizontalAdvance(QStringLiteral("888")));
    EXPECT_GT(Fuer("1111").width(), schmal.width());
    EXPECT_LT(Fuer("1").width(), schmal.width());
    EXPECT_EQ(feld.minimumSizeHint(), feld.sizeHint());
}

TEST_F(Platz, Follows_the_font) {
    feld.setFont(QFont(QStringLiteral("Sans"), 10));
    const QSize klein = Fuer("107");
    feld.setFont(QFont(QStringLiteral("Sans"), 30));
    EXPECT_GT(feld.sizeHint().width(), klein.width());
    EXPECT_GT(feld.sizeHint().height(), klein.height());
}

} // namespace
