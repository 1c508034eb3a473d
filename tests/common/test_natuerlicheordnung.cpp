#include "natuerlicheordnung.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace varnoth {

TEST(NatuerlicheOrdnung, Numbers_in_names_count_as_numbers) {
    std::vector<std::string> namen{"ttyUSB10", "ttyUSB2", "ttyS1", "ttyACM0", "ttyUSB0", "ttyS", "ttyUSB2b1"};
    std::ranges::sort(namen, NatuerlichDavor);
    EXPECT_EQ(namen, (std::vector<std::string>{"ttyACM0", "ttyS", "ttyS1", "ttyUSB0", "ttyUSB2", "ttyUSB2b1",
                                               "ttyUSB10"}));
}

TEST(NatuerlicheOrdnung, Numbers_of_any_length_are_compared) {
    EXPECT_TRUE(NatuerlichDavor("a9", "a100000000000000000000000000000"));
    EXPECT_TRUE(NatuerlichDavor("a99999999999999999999998", "a99999999999999999999999"));
}

TEST(NatuerlicheOrdnung, No_name_comes_before_itself_and_every_other_has_its_place) {
    for (const std::string name : {"", "a", "a01", "1"})
        EXPECT_FALSE(NatuerlichDavor(name, name)) << name;
    for (const auto& [eines, anderes] : {std::pair<std::string, std::string>{"a01", "a1"},
                                         {"a", "b"},
                                         {"", "a"},
                                         {"a1", "a1b"},
                                         {"1", "a"}}) {
        EXPECT_TRUE(NatuerlichDavor(eines, anderes)) << eines;
        EXPECT_FALSE(NatuerlichDavor(anderes, eines)) << eines;
    }
}

} // namespace varnoth
