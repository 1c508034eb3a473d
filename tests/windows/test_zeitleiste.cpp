#include "zeitleiste.h"

#include "leistenspalten.h"
#include "pruefdurchgaenge.h"
#include "pruefumgebung.h"

#include <QImage>
#include <gtest/gtest.h>

namespace varnoth {

using namespace pruefung;
using std::chrono::seconds;

namespace {

constexpr int Rand = 8; // beside the line

/// A minute of live data in whose middle ten seconds are missing; the replay stands at a quarter.
struct ZeitleisteTest : testing::Test {
    ZeitleisteTest() {
        for (int i = 0; i < 60; ++i)
            if (i < 30 || i >= 40)
                quelle.Nimm(PaketMit(seconds(i), 10, std::chrono::milliseconds(100)));
        leiste.resize(416, leiste.sizeHint().height());
        leiste.SetzeQuelle(&quelle);
        leiste.SetzePosition(seconds(15));
        bild = leiste.grab().toImage();
        unten = bild.height() - 6;
        oben = unten - std::max(8, leiste.fontMetrics().height() - 2) + 1;
    }
    bool IstGrau(int x, int y) { return bild.pixelColor(x, y).rgb() == grau.rgb(); }

    PruefUmgebung umgebung;
    PruefMessquelle quelle;
    Zeitleiste leiste;
    const QColor grau = leiste.palette().color(QPalette::Mid);
    QImage bild;
    int oben = 0; ///< of the line
    int unten = 0;
};

} // namespace

TEST_F(ZeitleisteTest, The_line_has_an_edge_all_around) {
    const int rechts = bild.width() - Rand - 1;
    for (int x = Rand; x <= rechts; ++x)
        if (std::abs(x - bild.width() / 4) > 20) { // the replay's place
            EXPECT_TRUE(IstGrau(x, oben)) << x;
            EXPECT_TRUE(IstGrau(x, unten)) << x;
        }
    for (int y = oben; y <= unten; ++y) {
        EXPECT_TRUE(IstGrau(Rand, y)) << y;
        EXPECT_TRUE(IstGrau(rechts, y)) << y;
    }
    EXPECT_FALSE(IstGrau(Rand + 1, unten - 1));
    EXPECT_FALSE(IstGrau(rechts - 1, unten - 1));
}

TEST_F(ZeitleisteTest, A_gap_covers_its_own_columns_and_no_more) {
    const auto spalten = Leistenspalten(quelle.DieUebersicht(), quelle.Spanne(), bild.width() - 2 * Rand);
    int luecken = 0;
    for (std::size_t i = 1; i + 1 < spalten.size(); ++i) {
        luecken += spalten[i].luecke ? 1 : 0;
        const int x = Rand + static_cast<int>(i);
        const bool unterDemPunkt = std::abs(x - bild.width() / 4) <= 20;
        EXPECT_TRUE(unterDemPunkt || IstGrau(x, unten - 1) == spalten[i].luecke) << x;
    }
    EXPECT_GT(luecken, 50);
    EXPECT_LT(luecken, 90);
}

} // namespace varnoth
