#include "vergleichsworte.h"

#include "registeradressen.h"
#include "standardkonfiguration.h"
#include "texte.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace varnoth {

namespace {

Abbild Geraet(std::int32_t strahlen = 32, int teil = 0) {
    Abbild abbild = Standardkonfiguration();
    EXPECT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, strahlen, teil));
    return abbild;
}

struct Vergleichsprobe {
    Abbild a;
    Abbild b;
    Ungelesenes ungelesen{};

    Vergleichsergebnis Ergebnis() const { return Vergleiche(a, b, ungelesen); }
    Vergleichsworte Zeile(const Parameterstelle& stelle) const {
        const auto zeilen = InWorten(Ergebnis(), {a, ungelesen.inA}, {b, ungelesen.inB});
        return *std::ranges::find(zeilen, stelle, &Vergleichsworte::stelle);
    }
};

} // namespace

TEST(Vergleichsworte, A_row_has_group_name_register_and_both_values_in_words) {
    Vergleichsprobe probe{Geraet(), Geraet()};
    Werte muster(32, 0);
    muster[0] = 0x7C08;
    ASSERT_TRUE(probe.b.SetzeParameter(Spezifisch, spezifisch::Blankingmuster, muster, 0));
    const auto zeile = probe.Zeile({Spezifisch, spezifisch::Blankingmuster, 0});
    EXPECT_EQ(zeile.gruppe, "Optikteil 1");
    EXPECT_EQ(zeile.name, "Blankingmuster");
    EXPECT_EQ(zeile.registertext, "2000H + 52");
    EXPECT_EQ(zeile.a, "keine");
    EXPECT_EQ(zeile.b, "3-7, 12");
    EXPECT_EQ(zeile.klasse, Vergleichsklasse::Verschieden);
}

TEST(Vergleichsworte, A_value_outside_its_list_is_shown_in_decimal_and_hexadecimal) {
    Vergleichsprobe probe{Geraet(), Geraet()};
    ASSERT_TRUE(probe.b.SetzeRegister(Spezifisch, spezifisch::Aufloesung, 99, 0));
    EXPECT_EQ(probe.Zeile({Spezifisch, spezifisch::Aufloesung, 0}).b, "99 (0x63)");
}

TEST(Vergleichsworte, The_data_block_is_told_by_its_entries) {
    Vergleichsprobe probe{Geraet(), Geraet()};
    ASSERT_TRUE(probe.b.SetzeParameter(Kommunikation, kommunikation::Datenblock, Werte(30, 0)));
    const auto zeile = probe.Zeile({Kommunikation, kommunikation::Datenblock});
    EXPECT_TRUE(zeile.a.starts_with("Status:")) << zeile.a;
    EXPECT_NE(zeile.a.find(", "), std::string::npos);
    EXPECT_EQ(zeile.b, "keine");
}

TEST(Vergleichsworte, Groups_are_named_in_the_chosen_language) {
    EXPECT_EQ(Gruppenname({Global, global::PnpAusgang}), "Global");
    EXPECT_EQ(Gruppenname({Spezifisch, spezifisch::Reichweite, 3}), "Optikteil 4");
    EXPECT_EQ(Stellenname({Kommunikation, kommunikation::Bustyp}), "Kommunikation, Bus Typ");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Gruppenname({Spezifisch, spezifisch::Reichweite, 3}), "Optical part 4");
    EXPECT_EQ(Stellenname({Kommunikation, kommunikation::Bustyp}), "Communication, Bus type");
}

TEST(Vergleichsworte, A_side_without_a_value_says_why) {
    const Vergleichsprobe probe{Geraet(32, 0), Geraet(32, 1), {.inB = {{Global, global::PnpAusgang}}}};
    EXPECT_EQ(probe.Zeile({Global, global::PnpAusgang}).b, "nicht gelesen");
    EXPECT_NE(probe.Zeile({Global, global::PnpAusgang}).a, "nicht gelesen");
    EXPECT_EQ(probe.Zeile({Spezifisch, spezifisch::Reichweite, 0}).b, "nicht vorhanden");
    EXPECT_EQ(probe.Zeile({Spezifisch, spezifisch::Reichweite, 1}).a, "nicht vorhanden");
}

TEST(Vergleichsworte, Equal_durations_are_told_by_each_side_with_its_own_cycle_time) {
    const Vergleichsprobe probe{Geraet(32), Geraet(512)};
    const auto zeile = probe.Zeile({Spezifisch, spezifisch::MinMaxHaltezeit, 0});
    EXPECT_EQ(zeile.klasse, Vergleichsklasse::Gleich);
    EXPECT_NE(zeile.a, zeile.b);
}

TEST(Vergleichsworte, Counts_of_every_class_are_told_always) {
    const Vergleichsprobe gleiche{Geraet(), Geraet()};
    EXPECT_EQ(Klassenanzahlen(gleiche.Ergebnis()),
              "Verschieden: 0; nur links: 0; nur rechts: 0; nicht gelesen: 0; gleich: 17");
    const Vergleichsprobe andere{Geraet(32, 0), Geraet(32, 1), {.inA = {{Global, global::PnpAusgang}}}};
    EXPECT_EQ(Klassenanzahlen(andere.Ergebnis()),
              "Verschieden: 0; nur links: 9; nur rechts: 9; nicht gelesen: 1; gleich: 7");
}

TEST(Vergleichsworte, No_difference_is_said_only_of_what_was_compared) {
    Vergleichsprobe probe{Geraet(), Geraet()};
    EXPECT_EQ(Vergleichsbefund(probe.Ergebnis()),
              "Kein Unterschied: Alle 17 Werte sind gleich. Auf keiner Seite vorhanden: Optikteil 2, "
              "Optikteil 3, Optikteil 4.");
    probe.ungelesen.inB = {{Global, global::PnpAusgang}, {Kommunikation, kommunikation::Pausenzeit}};
    EXPECT_TRUE(Vergleichsbefund(probe.Ergebnis())
                    .starts_with("Kein Unterschied in den 15 verglichenen Werten. Nicht verglichen, weil "
                                 "nicht gelesen: 2. Auf keiner"));
}

TEST(Vergleichsworte, Differences_are_counted_in_the_finding) {
    Vergleichsprobe probe{Geraet(), Geraet()};
    ASSERT_TRUE(probe.b.SetzeRegister(Global, global::PnpAusgang, 5));
    EXPECT_TRUE(Vergleichsbefund(probe.Ergebnis()).starts_with("1 Unterschied. "));
    ASSERT_TRUE(probe.b.SetzeRegister(Spezifisch, spezifisch::Aufloesung, 40, 0));
    EXPECT_TRUE(Vergleichsbefund(probe.Ergebnis()).starts_with("2 Unterschiede. "));
}

TEST(Vergleichsworte, As_text_each_group_stands_once_above_its_rows) {
    const std::vector<Vergleichsworte> zeilen{
        {{}, Vergleichsklasse::Verschieden, "Global", "PNP", "1", "2", "193"},
        {{}, Vergleichsklasse::Verschieden, "Kommunikation", "Pause", "3", "4", "4000H + 8"},
        {{}, Vergleichsklasse::Verschieden, "Kommunikation", "Bus", "5", "6", "4000H + 0"}};
    EXPECT_EQ(AlsText(zeilen, "links", "rechts"), "Global\n"
                                                  "  PNP (193)\n"
                                                  "    links: 1\n"
                                                  "    rechts: 2\n"
                                                  "\n"
                                                  "Kommunikation\n"
                                                  "  Pause (4000H + 8)\n"
                                                  "    links: 3\n"
                                                  "    rechts: 4\n"
                                                  "  Bus (4000H + 0)\n"
                                                  "    links: 5\n"
                                                  "    rechts: 6\n");
}

TEST(Vergleichsworte, What_was_not_compared_at_all_has_no_difference_to_speak_of) {
    Vergleichsprobe probe{Geraet(), Geraet(), {.inA = AlleStellen(IstLesbar)}};
    EXPECT_TRUE(Vergleichsbefund(probe.Ergebnis())
                    .starts_with("Es wurde nichts verglichen. Nicht verglichen, weil nicht gelesen: "));
}

TEST(Vergleichsworte, A_single_value_that_was_compared_is_told_as_one) {
    Vergleichsprobe probe{Geraet(), Geraet(), {.inA = AlleStellen(IstLesbar)}};
    probe.ungelesen.inA.erase({Global, global::PnpAusgang, 0});
    EXPECT_TRUE(Vergleichsbefund(probe.Ergebnis())
                    .starts_with("Kein Unterschied in dem einzigen verglichenen Wert. Nicht verglichen"));
}

} // namespace varnoth
