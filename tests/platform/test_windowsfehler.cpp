#include "windowsfehler.h"

#include <gtest/gtest.h>

namespace varnoth {

TEST(Windowsfehler, Of_opening_a_port_tell_what_stands_in_its_way) {
    const std::pair<unsigned long, Hindernis> faelle[] = {
        {0, Hindernis::Keines},        {2, Hindernis::Fehlt},    {3, Hindernis::Fehlt},
        {433, Hindernis::Fehlt},       {1167, Hindernis::Fehlt}, {5, Hindernis::Belegt},
        {32, Hindernis::Belegt},       {170, Hindernis::Belegt}, {31, Hindernis::Systemfehler},
        {87, Hindernis::Systemfehler},
    };
    for (const auto& [fehler, hindernis] : faelle)
        EXPECT_EQ(HindernisNachOeffnen(fehler), hindernis) << fehler;
}

TEST(Windowsfehler, Of_the_device_itself_are_told_from_others) {
    for (const unsigned long fehler : {21UL, 22UL, 31UL, 995UL, 1117UL})
        EXPECT_TRUE(IstGeraetefehler(fehler)) << fehler;
    for (const unsigned long fehler : {0UL, 2UL, 5UL, 87UL})
        EXPECT_FALSE(IstGeraetefehler(fehler)) << fehler;
}

} // namespace varnoth
