// How a beam bar looks whose beams are not known now.

#include "beambartest.h"
#include "strahlfarben.h"

#include <array>

using namespace varnoth;
using namespace varnoth::pruefung;

namespace {

class BeamBarDatenstand : public BeamBarTest {
protected:
    void Mische(int strahlen) {
        for (int strahl = 0; strahl < strahlen; ++strahl)
            Setze(strahl, std::array{Frei, Unterbrochen, Geblankt}[static_cast<std::size_t>(strahl % 3)]);
    }
    void SetzeAlle(Strahlzustand zustand) {
        for (int strahl = 0; strahl < balken.Strahlanzahl(); ++strahl)
            Setze(strahl, zustand);
    }
    /// How coloured the most coloured pixel is.
    static int Buntheit(const QImage& bild) {
        int groesste = 0;
        for (int y = 0; y < bild.height(); ++y)
            for (int x = 0; x < bild.width(); ++x) {
                const QColor farbe = bild.pixelColor(x, y);
                const auto [kleinster, groesster] = std::minmax({farbe.red(), farbe.green(), farbe.blue()});
                groesste = std::max(groesste, groesster - kleinster);
            }
        return groesste;
    }
};

} // namespace

TEST_F(BeamBarDatenstand, A_beam_bar_is_believed_unless_it_is_told_otherwise) {
    EXPECT_EQ(balken.Stand(), Datenstand::Gueltig);
}

TEST_F(BeamBarDatenstand, Without_values_no_state_shows_through) {
    for (const int strahlen : {20, 512}) {
        Stelle(strahlen, 300, 400);
        balken.SetzeDatenstand(Datenstand::Ungueltig);
        SetzeAlle(Frei);
        const QImage alleFrei = Bild();
        Mische(strahlen);
        EXPECT_EQ(Bild(), alleFrei) << strahlen;
    }
}

TEST_F(BeamBarDatenstand, Without_values_the_beams_are_grey_and_not_empty) {
    for (const int strahlen : {20, 512}) {
        balken.SetzeDatenstand(Datenstand::Gueltig);
        Stelle(strahlen, 300, 400);
        Mische(strahlen);
        EXPECT_GT(Buntheit(Bild()), 100);
        balken.SetzeDatenstand(Datenstand::Ungueltig);
        const QImage ohne = Bild();
        EXPECT_LT(Buntheit(ohne), 40) << strahlen;
        std::set<QRgb> farben;
        for (int y = 100; y < 140; ++y)
            for (int x = 100; x < 140; ++x)
                farben.insert(ohne.pixel(x, y));
        EXPECT_GE(farben.size(), 2U) << strahlen << ": hatching and ground";
    }
}

TEST_F(BeamBarDatenstand, Old_values_are_paler_in_every_state_and_still_differ) {
    for (const QPalette& palette : {QPalette(Qt::white), Dunkel()}) {
        const Strahlfarben neu = FarbenAus(palette);
        const Strahlfarben alt = FarbenAus(palette, Datenstand::Veraltet);
        for (const auto farbe : {&Strahlfarben::frei, &Strahlfarben::unterbrochen, &Strahlfarben::geblankt})
            EXPECT_LT(Kontrast(alt.*farbe, alt.grund), 0.75 * Kontrast(neu.*farbe, neu.grund));
        EXPECT_NE(alt.frei, alt.unterbrochen);
    }
}

TEST_F(BeamBarDatenstand, A_picture_of_old_values_differs_from_one_of_new_values) {
    Stelle(40, 300, 400);
    Mische(40);
    const QImage neu = Bild();
    balken.SetzeDatenstand(Datenstand::Veraltet);
    EXPECT_LT(Buntheit(Bild()), Buntheit(neu) * 2 / 3);
    balken.SetzeDatenstand(Datenstand::Gueltig);
    EXPECT_EQ(Bild(), neu);
}

TEST_F(BeamBarDatenstand, A_change_within_a_scan_waits_for_its_end) {
    Stelle(40, 300, 400);
    Zeige();
    balken.SetzeAutomatischesZeichnen(false);
    balken.SetzeDatenstand(Datenstand::Veraltet);
    QApplication::processEvents();
    EXPECT_EQ(balken.gezeichnet, 0);
    balken.SetzeAutomatischesZeichnen(true);
    EXPECT_TRUE(pruefung::WarteBis([this] { return balken.gezeichnet > 0; }));
}

TEST_F(BeamBarDatenstand, The_same_again_is_not_painted) {
    Stelle(40, 300, 400);
    Zeige();
    balken.SetzeDatenstand(Datenstand::Gueltig);
    QApplication::processEvents();
    EXPECT_EQ(balken.gezeichnet, 0);
}
