#include "ereignismitschrift.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth {

using namespace std::chrono_literals;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

class EreignismitschriftTest : public testing::Test {
protected:
    std::uint64_t Notiere(const std::string& text, std::chrono::hours seit, bool offen = false) {
        return speicher.Merke(
            {.art = Ereignisart::Notiz, .zeit = Systemzeit(24h * 365) + seit, .offen = offen, .text = text});
    }
    std::string Schreibe() {
        std::string zeilen = mitschrift.Faellige().zeilen;
        mitschrift.Erledige();
        return zeilen;
    }

    Ereignisspeicher speicher{600};
    Ereignismitschrift mitschrift{speicher};
};

TEST_F(EreignismitschriftTest, Has_what_comes_after_its_beginning_each_once) {
    Notiere("vorher", 0h);
    mitschrift = Ereignismitschrift(speicher);
    EXPECT_EQ(Schreibe(), "");
    Notiere("a", 1h);
    Notiere("b", 1h);
    const Tageszeilen zeilen = mitschrift.Faellige();
    EXPECT_EQ(zeilen.tag.size(), std::string("2026-11-22").size());
    EXPECT_THAT(zeilen.zeilen, HasSubstr("Notiz: a\n"));
    EXPECT_THAT(zeilen.zeilen, EndsWith("Notiz: b\n"));
    EXPECT_THAT(zeilen.zeilen, Not(HasSubstr("vorher")));
    mitschrift.Erledige();
    EXPECT_EQ(Schreibe(), "");
}

TEST_F(EreignismitschriftTest, Has_again_what_could_not_be_written) {
    Notiere("a", 1h);
    const Tageszeilen erste = mitschrift.Faellige();
    EXPECT_EQ(mitschrift.Faellige(), erste);
    EXPECT_NE(erste.zeilen, "");
}

TEST_F(EreignismitschriftTest, Leaves_what_goes_on_until_it_is_over_and_does_not_wait_with_the_rest) {
    const auto offenes = Notiere("Schub", 1h, true);
    Notiere("danach", 1h);
    const std::string zuerst = Schreibe();
    EXPECT_THAT(zuerst, EndsWith("Notiz: danach\n"));
    EXPECT_THAT(zuerst, Not(HasSubstr("Schub")));
    EXPECT_EQ(Schreibe(), "");
    Ereignis ereignis = speicher.Hole(offenes);
    ereignis.offen = false;
    speicher.Aendere(offenes, ereignis);
    EXPECT_THAT(Schreibe(), EndsWith("Notiz: Schub\n"));
    EXPECT_EQ(Schreibe(), "");
}

TEST_F(EreignismitschriftTest, Gives_the_lines_of_one_day_at_a_time) {
    Notiere("heute", 1h);
    Notiere("morgen", 25h);
    const Tageszeilen heute = mitschrift.Faellige();
    EXPECT_THAT(heute.zeilen, Not(HasSubstr("morgen")));
    mitschrift.Erledige();
    const Tageszeilen morgen = mitschrift.Faellige();
    EXPECT_THAT(morgen.zeilen, EndsWith("Notiz: morgen\n"));
    EXPECT_LT(heute.tag, morgen.tag);
}

TEST_F(EreignismitschriftTest, Goes_on_behind_what_was_forgotten_before_it_could_be_written) {
    Notiere("Schub", 1h, true);
    Schreibe();
    for (int i = 0; i < 1000; ++i)
        Notiere(std::to_string(i), 1h);
    std::string alles;
    for (std::string zeilen = Schreibe(); !zeilen.empty(); zeilen = Schreibe())
        alles += zeilen;
    EXPECT_THAT(alles, Not(HasSubstr(": 399\n")));
    EXPECT_THAT(alles, HasSubstr(": 400\n"));
    EXPECT_THAT(alles, EndsWith(": 999\n"));
    EXPECT_THAT(alles, Not(HasSubstr("Schub")));
}

} // namespace varnoth
