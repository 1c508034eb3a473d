#include "szene.h"

#include <gtest/gtest.h>

namespace varnoth::simulator {

TEST(Szene, Keeps_within_the_beams) {
    for (const int anzahl : {1, 2, 16, 100, 512})
        for (int sekunde = 0; sekunde < 120; ++sekunde)
            for (int teil = 0; teil < Optikteile; ++teil)
                EXPECT_TRUE((Szene(1).Stand(teil, anzahl, std::chrono::seconds{sekunde}) >>
                             static_cast<std::size_t>(anzahl))
                                .none())
                    << anzahl;
}

TEST(Szene, Is_the_same_for_the_same_seed_and_time) {
    EXPECT_EQ(Szene(7).Stand(0, 512, Zeit{123456}), Szene(7).Stand(0, 512, Zeit{123456}));
}

TEST(Szene, Differs_by_seed_part_and_time) {
    const Strahlenbild bild = Szene(7).Stand(0, 512, std::chrono::seconds{11});
    EXPECT_NE(bild, Szene(8).Stand(0, 512, std::chrono::seconds{11}));
    EXPECT_NE(bild, Szene(7).Stand(1, 512, std::chrono::seconds{11}));
    EXPECT_NE(bild, Szene(7).Stand(0, 512, std::chrono::seconds{12}));
}

TEST(Szene, Shows_every_kind_of_picture_within_a_minute) {
    bool ganzFrei = false, loch = false;
    for (Zeit zeit{0}; zeit < std::chrono::minutes{1}; zeit += std::chrono::milliseconds{100}) {
        const Strahlenbild bild = Szene(1).Stand(0, 128, zeit);
        int wechsel = 0;
        for (std::size_t i = 1; i < 128; ++i)
            wechsel += bild[i] != bild[i - 1] ? 1 : 0;
        ganzFrei |= bild.count() == 128;
        loch |= wechsel == 4;
    }
    EXPECT_TRUE(ganzFrei);
    EXPECT_TRUE(loch);
}

TEST(Szene, Flickers_from_scan_to_scan_in_one_part) {
    const std::chrono::seconds mitte{3};
    EXPECT_NE(Szene(1).Stand(1, 512, mitte), Szene(1).Stand(1, 512, mitte + Abtastzeit));
}

} // namespace varnoth::simulator
