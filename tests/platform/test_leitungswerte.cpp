#include "leitungswerte.h"

#include <gtest/gtest.h>

namespace varnoth {

TEST(Leitungswerte, Are_those_of_the_settings_in_the_numbers_of_the_system) {
    const std::pair<const char*, Leitungswerte> faelle[] = {
        {"38400,n,8,2", {.baud = 38400, .datenbits = 8, .paritaet = 0, .stoppbits = 2, .prueft = false}},
        {"9600,o,7,1", {.baud = 9600, .datenbits = 7, .paritaet = 1, .stoppbits = 0, .prueft = true}},
        {"115200,e,8,1", {.baud = 115200, .datenbits = 8, .paritaet = 2, .stoppbits = 0, .prueft = true}},
        {"1200,m,6,2", {.baud = 1200, .datenbits = 6, .paritaet = 3, .stoppbits = 2, .prueft = true}},
        {"4000000,s,5,1.5", {.baud = 4000000, .datenbits = 5, .paritaet = 4, .stoppbits = 1, .prueft = true}},
    };
    for (const auto& [format, werte] : faelle)
        EXPECT_EQ(WerteFuer(LiesPorteinstellungen(format).value()), werte) << format;
}

} // namespace varnoth
