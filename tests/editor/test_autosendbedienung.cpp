#include "autosendbedienung.h"
#include "bustyp.h"

#include <gtest/gtest.h>

#include <utility>

namespace varnoth {

TEST(Autosendbedienung, The_class_says_which_controls_can_be_used) {
    const std::pair<std::int16_t, Autosendbedienung> faelle[] = {
        {-1, {.trigger = false, .rate = false, .strahldatenMerken = false, .nurModbus = true}},
        {1, {.trigger = false, .rate = true, .strahldatenMerken = true, .nurModbus = true}},
        {2, {.trigger = true, .rate = false, .strahldatenMerken = true, .nurModbus = true}},
    };
    for (const auto& [klasse, bedienung] : faelle)
        EXPECT_EQ(BedienungFuer(klasse, bustyp::Modbus), bedienung) << klasse;
}

TEST(Autosendbedienung, A_Profibus_hides_what_only_a_Modbus_has_and_remembers_no_beams) {
    for (const std::int16_t klasse : {std::int16_t{-1}, std::int16_t{1}, std::int16_t{2}}) {
        EXPECT_FALSE(BedienungFuer(klasse, bustyp::Profibus).nurModbus);
        EXPECT_FALSE(BedienungFuer(klasse, bustyp::Profibus).strahldatenMerken);
    }
    EXPECT_TRUE(BedienungFuer(1, bustyp::Profibus).rate);
}

TEST(Autosendbedienung, An_unknown_bus_counts_as_a_Modbus) {
    EXPECT_TRUE(BedienungFuer(1, 7).nurModbus);
}

} // namespace varnoth
