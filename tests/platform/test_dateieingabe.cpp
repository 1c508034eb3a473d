#include "dateieingabe.h"

#include "dateiprobe.h"

#include <gtest/gtest.h>

#include <array>

namespace varnoth {

class DateieingabeTest : public pruefung::Dateiprobe {};

TEST_F(DateieingabeTest, Reads_any_piece_of_a_file) {
    ErsetzeDatei(Pfad("datei"), "0123456789");
    const Eingabe eingabe = OeffneEingabe(Pfad("datei"));
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
    for (const std::string& pfad : {ordner.path().toStdString(), Pfad("keine")}) {
        const Eingabe eingabe = OeffneEingabe(pfad);
        EXPECT_EQ(eingabe.datei, nullptr);
        EXPECT_FALSE(eingabe.fehlertext.empty());
    }
}

} // namespace varnoth
