#include "datenblock.h"

#include "texte.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace varnoth {

namespace {

/// The value codes 0..20 in German; 0 stands for none.
const std::vector<std::string> Codetexte{"",       "Strahlendaten", "TU",    "HU",    "ZU",    "TNU",
                                         "HNU",    "ZNU",           "TUMin", "HUMin", "ZUMin", "TNUMin",
                                         "HNUMin", "ZNUMin",        "TUMax", "HUMax", "ZUMax", "TNUMax",
                                         "HNUMax", "ZNUMax",        "Status"};
const std::vector<std::string> Quellentexte{"Varnoth", "K1", "K2", "K3", "K4"};

std::int16_t Wort(int wert) {
    return static_cast<std::int16_t>(wert);
}

/// A list with the given entries.
Eintragsliste Liste(std::initializer_list<int> eintraege) {
    Eintragsliste liste{};
    std::transform(eintraege.begin(), eintraege.end(), liste.begin(), Wort);
    return liste;
}

/// A list of the entries 1, 2, 3, ...
Eintragsliste ListeMit(int anzahl) {
    Eintragsliste liste{};
    for (int i = 0; i < anzahl; ++i)
        liste.at(static_cast<std::size_t>(i)) = Wort(i + 1);
    return liste;
}

std::vector<Eintragswahl> AlleWahlen() {
    std::vector<Eintragswahl> wahlen;
    for (int quelle = 0; quelle < AnzahlQuellen; ++quelle)
        for (int art = 0; art < AnzahlWertarten; ++art)
            for (int wert = 0; wert < AnzahlSendewerte; ++wert)
                wahlen.push_back(
                    {static_cast<Quelle>(quelle), static_cast<Wertart>(art), static_cast<Sendewert>(wert)});
    return wahlen;
}

} // namespace

TEST(Datenblock, Every_code_of_every_source_has_its_line) {
    for (int quelle = 0; quelle <= 4; ++quelle)
        for (int code = 1; code <= 20; ++code)
            EXPECT_EQ(Eintragstext(Wort(quelle * 256 + code)),
                      Codetexte.at(static_cast<std::size_t>(code)) + ":" +
                          Quellentexte.at(static_cast<std::size_t>(quelle)));
}

TEST(Datenblock, Entry_0x0108_reads_TUMin_of_K1) {
    EXPECT_EQ(Eintragstext(0x0108), "TUMin:K1");
}

TEST(Datenblock, Entry_0x0014_reads_Status_of_the_device) {
    EXPECT_EQ(Eintragstext(0x0014), "Status:" + LadeText(5514));
}

TEST(Datenblock, A_line_is_in_the_current_language) {
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Eintragstext(0x0201), "Beam data:C2");
}

TEST(Datenblock, A_value_code_above_20_reads_as_question_marks) {
    EXPECT_EQ(Eintragstext(0x0115), "??? :K1");
    EXPECT_EQ(Eintragstext(0x00FF), "??? :Varnoth");
}

TEST(Datenblock, A_value_code_0_beside_a_source_reads_as_question_marks) {
    EXPECT_EQ(Eintragstext(0x0100), "??? :K1");
}

TEST(Datenblock, A_source_above_4_reads_as_question_marks_in_place_of_colon_and_source) {
    EXPECT_EQ(Eintragstext(0x0508), "TUMin ???");
    EXPECT_EQ(Eintragstext(0x0F14), "Status ???");
}

TEST(Datenblock, Unknown_value_and_source_read_as_question_marks_both) {
    EXPECT_EQ(Eintragstext(0x0515), "???  ???");
}

TEST(Datenblock, Bits_12_to_15_do_not_change_a_line) {
    EXPECT_EQ(Eintragstext(Wort(0xF108)), "TUMin:K1");
}

TEST(Datenblock, A_choice_becomes_its_entry_word) {
    EXPECT_EQ(Eintragswort({Quelle::Geraet, Wertart::Aktuell, Sendewert::Status}), 0x0014);
    EXPECT_EQ(Eintragswort({Quelle::K1, Wertart::Aktuell, Sendewert::Strahlendaten}), 0x0101);
    EXPECT_EQ(Eintragswort({Quelle::K1, Wertart::Min, Sendewert::TU}), 0x0108);
    EXPECT_EQ(Eintragswort({Quelle::K3, Wertart::Max, Sendewert::TU}), 0x030E);
    EXPECT_EQ(Eintragswort({Quelle::K4, Wertart::Max, Sendewert::ZNU}), 0x0413);
}

TEST(Datenblock, A_minimum_of_beam_data_or_status_has_no_entry_word) {
    EXPECT_EQ(Eintragswort({Quelle::K1, Wertart::Min, Sendewert::Strahlendaten}), 0);
    EXPECT_EQ(Eintragswort({Quelle::K1, Wertart::Max, Sendewert::Status}), 0);
}

TEST(Datenblock, Every_known_word_comes_back_from_its_choice) {
    for (int quelle = 0; quelle <= 4; ++quelle)
        for (int code = 1; code <= 20; ++code) {
            const auto wahl = WahlAus(Wort(quelle * 256 + code));
            ASSERT_TRUE(wahl) << quelle << ' ' << code;
            EXPECT_EQ(Eintragswort(*wahl), quelle * 256 + code);
        }
}

TEST(Datenblock, The_permitted_choices_have_words_all_their_own) {
    std::set<std::int16_t> worte;
    for (const Eintragswahl& wahl : AlleWahlen())
        if (IstErlaubt(wahl)) {
            EXPECT_TRUE(worte.insert(Eintragswort(wahl)).second);
        }
    EXPECT_EQ(worte.size(), 4U * 20U + 1U);
    EXPECT_FALSE(worte.contains(0));
}

TEST(Datenblock, No_choice_stands_behind_an_unknown_value_or_source) {
    for (const int wort : {0x0000, 0x0100, 0x0115, 0x00FF, 0x0508, 0x0F14})
        EXPECT_EQ(WahlAus(Wort(wort)), std::nullopt) << wort;
}

TEST(Datenblock, Beam_data_and_status_have_no_minimum_and_maximum) {
    for (const Eintragswahl& wahl : AlleWahlen())
        if (wahl.art != Wertart::Aktuell &&
            (wahl.wert == Sendewert::Strahlendaten || wahl.wert == Sendewert::Status)) {
            EXPECT_FALSE(IstErlaubt(wahl));
        }
}

TEST(Datenblock, Of_the_device_only_the_current_status_is_permitted) {
    for (const Eintragswahl& wahl : AlleWahlen())
        if (wahl.quelle == Quelle::Geraet) {
            EXPECT_EQ(IstErlaubt(wahl),
                      wahl == (Eintragswahl{Quelle::Geraet, Wertart::Aktuell, Sendewert::Status}));
        }
}

TEST(Datenblock, Of_every_part_20_choices_are_permitted) {
    for (int quelle = 1; quelle <= 4; ++quelle) {
        const auto wahlen = AlleWahlen();
        EXPECT_EQ(std::count_if(wahlen.begin(), wahlen.end(),
                                [&](const Eintragswahl& wahl) {
                                    return wahl.quelle == static_cast<Quelle>(quelle) && IstErlaubt(wahl);
                                }),
                  20);
    }
}

TEST(Datenblock, The_fitting_choice_is_permitted_and_keeps_the_source) {
    for (const Eintragswahl& wahl : AlleWahlen()) {
        EXPECT_TRUE(IstErlaubt(Passend(wahl)));
        EXPECT_EQ(Passend(wahl).quelle, wahl.quelle);
    }
}

TEST(Datenblock, A_permitted_choice_fits_as_it_is) {
    for (const Eintragswahl& wahl : AlleWahlen())
        if (IstErlaubt(wahl)) {
            EXPECT_EQ(Passend(wahl), wahl);
        }
}

TEST(Datenblock, Thirty_zeros_are_an_empty_list_and_come_back) {
    const Eintragsliste liste = ListeAus(Werte(Datenblockregister, 0));
    EXPECT_EQ(AnzahlEintraege(liste), 0);
    EXPECT_EQ(DatenblockAus(liste), Werte(Datenblockregister, 0));
}

TEST(Datenblock, The_first_0_ends_the_list_and_what_follows_is_dropped) {
    Werte block(Datenblockregister, 0x0102);
    block[2] = 0;
    EXPECT_EQ(ListeAus(block), Liste({0x0102, 0x0102}));
}

TEST(Datenblock, Thirty_entries_without_an_end_are_all_in_the_list) {
    EXPECT_EQ(AnzahlEintraege(ListeAus(Werte(Datenblockregister, 0x0102))), 30);
}

TEST(Datenblock, Registers_come_back_from_the_list_with_their_upper_bits) {
    Werte block(Datenblockregister, 0);
    block[0] = 0x8108;
    block[1] = 0xFFFF;
    EXPECT_EQ(DatenblockAus(ListeAus(block)), block);
}

TEST(Datenblock, A_short_block_of_registers_is_filled_up_with_0) {
    EXPECT_EQ(ListeAus({0x0102}), Liste({0x0102}));
}

TEST(Datenblock, An_entry_is_inserted_before_the_one_at_its_place) {
    Eintragsliste liste = Liste({1, 2});
    EXPECT_TRUE(FuegeEin(liste, 1, 20));
    EXPECT_EQ(liste, Liste({1, 20, 2}));
}

TEST(Datenblock, An_entry_is_inserted_at_the_front) {
    Eintragsliste liste = Liste({1, 2});
    FuegeEin(liste, 0, 20);
    EXPECT_EQ(liste, Liste({20, 1, 2}));
}

TEST(Datenblock, A_place_beyond_the_last_entry_appends) {
    Eintragsliste liste = Liste({1, 2});
    FuegeEin(liste, 29, 20);
    EXPECT_EQ(liste, Liste({1, 2, 20}));
}

TEST(Datenblock, With_28_entries_one_more_is_accepted) {
    Eintragsliste liste = ListeMit(28);
    EXPECT_TRUE(FuegeEin(liste, 0, 20));
    EXPECT_EQ(AnzahlEintraege(liste), 29);
    EXPECT_EQ(liste[28], 28);
    EXPECT_EQ(liste[29], 0);
}

TEST(Datenblock, With_29_entries_nothing_is_inserted) {
    Eintragsliste liste = ListeMit(29);
    EXPECT_FALSE(FuegeEin(liste, 0, 20));
    EXPECT_EQ(liste, ListeMit(29));
}

TEST(Datenblock, With_30_entries_nothing_is_inserted) {
    Eintragsliste liste = ListeMit(30);
    EXPECT_FALSE(FuegeEin(liste, 0, 20));
    EXPECT_EQ(liste, ListeMit(30));
}

TEST(Datenblock, Deleting_the_first_of_three_leaves_the_others_in_order_and_a_0_behind) {
    Eintragsliste liste = Liste({0x0101, 0x0102, 0x0103});
    Loesche(liste, 0);
    EXPECT_EQ(liste, Liste({0x0102, 0x0103, 0}));
}

TEST(Datenblock, Deleting_from_30_entries_leaves_a_0_in_the_last_place) {
    Eintragsliste liste = ListeMit(30);
    Loesche(liste, 29);
    EXPECT_EQ(liste, ListeMit(29));
}

TEST(Datenblock, Deleting_nowhere_changes_nothing) {
    Eintragsliste liste = ListeMit(30);
    Loesche(liste, -1);
    Loesche(liste, 30);
    EXPECT_EQ(liste, ListeMit(30));
}

TEST(Datenblock, An_entry_with_bit_15_is_noticed) {
    EXPECT_TRUE(HatUngueltigenEintrag(Liste({0x0102, 0x8102})));
    EXPECT_FALSE(HatUngueltigenEintrag(Liste({0x0102, 0x7FFF})));
}

TEST(Datenblock, The_limit_is_told_in_both_languages) {
    EXPECT_EQ(GrenzeText(), "Es sind nur maximal 29 Einträge möglich.");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(GrenzeText(), "At most 29 entries possible.");
}

} // namespace varnoth
