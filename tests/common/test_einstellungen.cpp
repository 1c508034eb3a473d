#include "einstellungen.h"

#include "pruefumgebung.h"

#include <gtest/gtest.h>

namespace varnoth {

namespace {

std::string Wiederholt(const std::string& zeichen, int anzahl) {
    std::string text;
    for (int i = 0; i < anzahl; ++i)
        text += zeichen;
    return text;
}

} // namespace

TEST(Einstellungen, A_bounded_text_ends_after_80_characters_whatever_their_bytes) {
    pruefung::PruefEinstellungen einstellungen;
    for (const std::string zeichen : {"x", "ä", "€"}) {
        einstellungen.texte[{"A", "B"}] = Wiederholt(zeichen, 80);
        EXPECT_EQ(LiesBegrenzt("A", "B", ""), Wiederholt(zeichen, 80));
        einstellungen.texte[{"A", "B"}] = Wiederholt(zeichen, 81);
        EXPECT_EQ(LiesBegrenzt("A", "B", ""), Wiederholt(zeichen, 80));
    }
}

TEST(Einstellungen, A_bounded_text_that_is_missing_is_the_default) {
    const pruefung::PruefEinstellungen einstellungen;
    EXPECT_EQ(LiesBegrenzt("A", "B", "standard"), "standard");
}

} // namespace varnoth
