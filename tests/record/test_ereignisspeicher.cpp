#include "ereignisse.h"

#include <gtest/gtest.h>

namespace varnoth {

namespace {

Ereignis Notiert(const std::string& text) {
    return {.art = Ereignisart::Notiz, .text = text};
}

} // namespace

TEST(Ereignisspeicher, Keeps_events_in_their_order_and_the_newest_10000_of_them) {
    for (int i = 0; i < 10'003; ++i)
        modEreignisse::Merke(Notiert("Nr. " + std::to_string(i)));
    const Ereignisspeicher& alle = modEreignisse::Alle();
    EXPECT_EQ(alle.Ende() - alle.Erstes(), 10'000U);
    EXPECT_EQ(alle.Erstes(), 3U);
    EXPECT_EQ(alle.Hole(3).text, "Nr. 3");
    EXPECT_EQ(alle.Hole(10'002).text, "Nr. 10002");
}

TEST(Ereignisspeicher, Keeps_texts_as_one_line_each_and_of_bounded_length) {
    Ereignisspeicher speicher;
    speicher.Merke(Notiert("a\nb"));
    EXPECT_EQ(speicher.Hole(0).text, "a�b");
    speicher.Merke(Notiert("x" + [] {
        std::string lang;
        for (int i = 0; i < 1000; ++i)
            lang += "ä";
        return lang;
    }()));
    const std::string& text = speicher.Hole(1).text;
    EXPECT_EQ(text.size(), 599 + std::string("…").size());
    EXPECT_TRUE(text.ends_with("ä…"));
}

TEST(Ereignisspeicher, Lets_the_oldest_go_when_the_texts_take_too_much) {
    Ereignisspeicher speicher;
    for (int i = 0; i < 5000; ++i)
        speicher.Merke(Notiert(std::string(Ereignisspeicher::LaengsterText, 'x')));
    EXPECT_EQ(speicher.Ende(), 5000U);
    EXPECT_EQ(speicher.Ende() - speicher.Erstes(),
              Ereignisspeicher::HoechsteTextmenge / Ereignisspeicher::LaengsterText);
}

TEST(Ereignisspeicher, Changes_the_values_of_an_event_and_leaves_its_text) {
    Ereignisspeicher speicher(2);
    speicher.Merke(Notiert("a"));
    const auto vorher = speicher.Aenderungen();
    speicher.Aendere(0, {.art = Ereignisart::Notiz, .anzahl = 7, .text = "b"});
    EXPECT_EQ(speicher.Hole(0).anzahl, 7U);
    EXPECT_EQ(speicher.Hole(0).text, "a");
    EXPECT_GT(speicher.Aenderungen(), vorher);
    speicher.Merke(Notiert("c"));
    speicher.Merke(Notiert("d"));
    const auto danach = speicher.Aenderungen();
    speicher.Aendere(0, {.art = Ereignisart::Notiz, .anzahl = 9});
    speicher.Aendere(3, {.art = Ereignisart::Notiz, .anzahl = 9});
    EXPECT_EQ(speicher.Aenderungen(), danach) << "neither of those is there";
    EXPECT_EQ(speicher.Hole(1).anzahl, 1U);
    EXPECT_EQ(speicher.Hole(2).anzahl, 1U);
}

TEST(Ereignisspeicher, Gives_an_event_without_a_time_the_present_one) {
    const auto vorher = std::chrono::system_clock::now();
    modEreignisse::Merke(Notiert("a"));
    EXPECT_GE(modEreignisse::Alle().Hole(0).zeit, vorher);
    modEreignisse::Merke({.art = Ereignisart::Notiz, .zeit = Systemzeit(std::chrono::hours(1))});
    EXPECT_EQ(modEreignisse::Alle().Hole(1).zeit, Systemzeit(std::chrono::hours(1)));
}

} // namespace varnoth
