#include "strahlbits.h"
#include "strahlproben.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace strahlproben;

TEST(Strahlmenge, Holds_beams_in_the_bits_in_which_registers_hold_them) {
    for (const int strahl : {0, 7, 8, 15, 16, 511, 1008}) {
        Werte register_(MaxStrahlregister, 0);
        SetzeStrahlBit(register_, strahl, true);
        Strahlmenge menge{};
        FuegeHinzu(menge, strahl);
        EXPECT_TRUE(std::equal(menge.begin(), menge.end(), register_.begin())) << strahl;
        EXPECT_TRUE(Enthaelt(menge, strahl));
        EXPECT_FALSE(Enthaelt(menge, strahl + 1));
    }
}

TEST(Strahlmenge, Knows_no_beam_outside_of_its_registers) {
    Strahlmenge menge{};
    FuegeHinzu(menge, -1);
    FuegeHinzu(menge, 1024);
    EXPECT_EQ(menge, Strahlmenge{});
    EXPECT_FALSE(Enthaelt(ErsteStrahlen(2000), 1024));
    EXPECT_FALSE(Enthaelt(ErsteStrahlen(2000), -1));
}

TEST(Strahlmenge, The_first_beams_are_those_below_a_number) {
    for (const int anzahl : {0, 1, 8, 9, 15, 16, 17, 300, 1009})
        for (int strahl = 0; strahl < 1020; ++strahl)
            ASSERT_EQ(Enthaelt(ErsteStrahlen(anzahl), strahl), strahl < anzahl) << anzahl << ' ' << strahl;
}

TEST(Strahlmenge, What_a_pass_has_seen_leaves_out_blanked_beams_and_those_behind_the_last) {
    const Messdurchgang durchgang = Durchgang(Zeit{}, 2, 20, [](int strahl) { return strahl % 3 == 0; });
    Strahlmenge geblankt{};
    FuegeHinzu(geblankt, 3);
    FuegeHinzu(geblankt, 4);
    const Strahlsicht sicht = SichtAus(durchgang.teile[2], geblankt);
    EXPECT_EQ(sicht.strahlen, 20);
    for (int strahl = 0; strahl < 40; ++strahl) {
        const bool zaehlt = strahl < 20 && strahl != 3 && strahl != 4;
        EXPECT_EQ(Enthaelt(sicht.unterbrochen, strahl), zaehlt && strahl % 3 == 0) << strahl;
        EXPECT_EQ(Enthaelt(sicht.frei, strahl), zaehlt && strahl % 3 != 0) << strahl;
    }
}

TEST(Strahlmenge, A_pattern_is_that_of_the_part_and_the_configuration_in_force) {
    struct Wechselnde : pruefung::PruefMessquelle {
        std::shared_ptr<const Abbild> Konfiguration(std::uint64_t nummer) const override {
            return nummer < abbilder.size() ? abbilder[nummer] : nullptr;
        }
        std::vector<std::shared_ptr<const Abbild>> abbilder;
    } quelle;
    Abbild eines;
    Blanke(eines, 1, {4});
    Abbild anderes;
    Blanke(anderes, 1, {5});
    quelle.abbilder = {std::make_shared<Abbild>(eines), std::make_shared<Abbild>(anderes)};
    Blankingkenntnis kenntnis;
    EXPECT_TRUE(Enthaelt(kenntnis.Um(quelle, 0, 1), 4));
    EXPECT_EQ(kenntnis.Um(quelle, 0, 0), Strahlmenge{});
    EXPECT_TRUE(Enthaelt(kenntnis.Um(quelle, 1, 1), 5));
    EXPECT_FALSE(Enthaelt(kenntnis.Um(quelle, 1, 1), 4));
    EXPECT_EQ(kenntnis.Um(quelle, 2, 1), Strahlmenge{});
}

} // namespace varnoth
