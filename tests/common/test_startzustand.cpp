#include "startzustand.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace varnoth {

namespace {

struct Zustand {
    int zahl = 7;
    std::string text = "neu";
};

Zustand zustand;
int* zeiger = nullptr;
const Startwert startwert(zustand, zeiger);
const int vorgeschichte = zustand.zahl = 9;

std::unique_ptr<int> einzelnes;
const Startwert anderswo(einzelnes);

/// Both tests below begin with it and leave something behind: whichever runs second would inherit it.
void ErwarteDenStartUndHinterlasse(int zahl) {
    EXPECT_EQ(zustand.zahl, 7);
    EXPECT_EQ(zustand.text, "neu");
    zustand = {zahl, "alt"};
}

} // namespace

TEST(StartzustandTest, Every_variable_of_every_module_goes_back_to_the_start_value_of_its_type) {
    ErwarteDenStartUndHinterlasse(8);
    int irgendwas = 0;
    zeiger = &irgendwas;
    einzelnes = std::make_unique<int>(3);
    const Startzustand anfang;
    EXPECT_EQ(zustand.zahl, 7);
    EXPECT_EQ(zustand.text, "neu");
    EXPECT_EQ(zeiger, nullptr);
    EXPECT_EQ(einzelnes, nullptr);
    ErwarteDenStartUndHinterlasse(10);
}

TEST(StartzustandTest, A_test_does_not_inherit_what_was_there_before_it) {
    EXPECT_EQ(vorgeschichte, 9);
    ErwarteDenStartUndHinterlasse(11);
}

} // namespace varnoth
