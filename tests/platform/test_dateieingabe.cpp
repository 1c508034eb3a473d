#include "dateieingabe.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>

namespace varnoth {

namespace {

struct DateieingabeTest : testing::Test {
    DateieingabeTest() {
        std::filesystem::create_directories(ordner);
        std::ofstream(ordner / "datei") << "0123456789";
    }
    ~DateieingabeTest() override { std::filesystem::remove_all(ordner); }

    std::filesystem::path ordner = testing::TempDir() + "varnoth-dateieingabe";
};

} // namespace

TEST_F(DateieingabeTest, Reads_any_piece_of_a_file) {
    const Eingabe eingabe = OeffneEingabe(ordner / "datei");
    ASSERT_NE(eingabe.datei, nullptr);
    EXPECT_EQ(eingabe.datei->Groesse(), 10U);
    std::array<char, 3> stueck{};
    EXPECT_TRUE(eingabe.datei->Lies(7, stueck));
    EXPECT_EQ(std::string(stueck.data(), 3), "789");
    EXPECT_TRUE(eingabe.datei->Lies(0, stueck));
    EXPECT_EQ(std::string(stueck.data(), 3), "012");
    EXPECT_FALSE(eingabe.datei->Lies(8, stueck)) << "only two bytes are left";
}

TEST_F(DateieingabeTest, What_is_no_file_is_told) {
    for (const auto& pfad : {ordner, ordner / "keine", std::filesystem::path("/dev/null")}) {
        const Eingabe eingabe = OeffneEingabe(pfad);
        EXPECT_EQ(eingabe.datei, nullptr);
        EXPECT_FALSE(eingabe.fehlertext.empty());
    }
}

} // namespace varnoth
