#include "windowsfehler.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace varnoth {

TEST(Windowsfehler, That_people_meet_have_the_name_that_they_have_elsewhere) {
    const std::pair<unsigned long, int> faelle[] = {
        {2, ENOENT},  {3, ENOENT},   {5, EACCES},         {19, EROFS},    {32, EBUSY},
        {55, ENODEV}, {112, ENOSPC}, {206, ENAMETOOLONG}, {1167, ENODEV}, {1617, ENODEV},
    };
    for (const auto& [windows, posix] : faelle)
        EXPECT_EQ(AlsFehlernummer(windows), posix) << windows;
}

TEST(Windowsfehler, That_people_seldom_meet_have_none) {
    for (const unsigned long nummer : {0UL, 87UL, 1400UL})
        EXPECT_EQ(AlsFehlernummer(nummer), 0) << nummer;
}

TEST(Windowsfehler, Of_opening_a_port_tell_what_stands_in_its_way) {
    const std::pair<unsigned long, Hindernis> faelle[] = {
        {0, Hindernis::Keines},        {2, Hindernis::Fehlt},    {3, Hindernis::Fehlt},
        {433, Hindernis::Fehlt},       {1167, Hindernis::Fehlt}, {5, Hindernis::Belegt},
        {32, Hindernis::Belegt},       {170, Hindernis::Belegt}, {31, Hindernis::Systemfehler},
        {87, Hindernis::Systemfehler},
    };
    for (const auto& [nummer, hindernis] : faelle)
        EXPECT_EQ(HindernisNachOeffnen(nummer), hindernis) << nummer;
}

} // namespace varnoth
