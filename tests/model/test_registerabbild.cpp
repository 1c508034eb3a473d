#include "registerabbild.h"

#include "modelltest.h"
#include "startzustand.h"

namespace varnoth::modDaten {

namespace {

using Eintraege = std::vector<std::pair<int, int>>;
using Schritt = Boolean (*)(Speicherbereich, std::int16_t&, std::int16_t&);

Eintraege Durchlauf(Speicherbereich bereich, Schritt erster, Schritt naechster) {
    Eintraege eintraege;
    std::int16_t adresse = 0;
    std::int16_t anzahl = 0;
    for (Boolean weiter = erster(bereich, adresse, anzahl); weiter == True;
         weiter = naechster(bereich, adresse, anzahl))
        eintraege.emplace_back(adresse, anzahl);
    return eintraege;
}

Eintraege Lesbare(Speicherbereich bereich) {
    return Durchlauf(bereich, ErsterLesbarerEintrag, NaechsterLesbarerEintrag);
}

Eintraege Schreibbare(Speicherbereich bereich) {
    return Durchlauf(bereich, ErsterSchreibbarerEintrag, NaechsterSchreibbarerEintrag);
}

} // namespace

class Registerabbild : public ModellTest {};

TEST_F(Registerabbild, Every_value_is_0_at_start) {
    EXPECT_EQ(Kopie(), Abbild{});
}

TEST_F(Registerabbild, Every_parameter_of_every_range_comes_back_as_it_was_stored) {
    for (std::int16_t a = 0; a < 512; ++a) {
        const auto n = Beschreibung(Spezifisch, a).Laenge;
        for (std::int16_t teil = 0; n > 0 && teil < AnzahlOptikteile; ++teil) {
            const Werte hinein = Folge(a * 10 + teil, static_cast<std::size_t>(n));
            Werte heraus;
            EXPECT_EQ(SetzeSpezifischeDaten(a, n, teil, hinein), True) << a;
            EXPECT_EQ(HoleSpezifischeDaten(a, n, teil, heraus), True) << a;
            EXPECT_EQ(heraus, hinein) << a;
        }
    }
}

TEST_F(Registerabbild, Global_and_communication_data_are_kept_apart) {
    SetzeGlobaleDaten(0, 1, {11});
    SetzeKommunikationsdaten(0, 1, {22});
    Werte globale;
    Werte kommunikative;
    EXPECT_EQ(HoleGlobaleDaten(0, 1, globale), True);
    EXPECT_EQ(HoleKommunikationsdaten(0, 1, kommunikative), True);
    EXPECT_EQ(globale, Werte{11});
    EXPECT_EQ(kommunikative, Werte{22});
}

TEST_F(Registerabbild, Storing_for_one_optical_part_leaves_the_others) {
    SetzeSpezifischeDaten(12, 1, 2, {77});
    for (const int teil : {0, 1, 3})
        EXPECT_EQ(Wert(Spezifisch, 12, teil), 0);
    EXPECT_EQ(Wert(Spezifisch, 12, 2), 77);
}

TEST_F(Registerabbild, Keeps_values_above_16_bits) {
    SetzeKommunikationsdaten(8, 1, {65536});
    EXPECT_EQ(Wert(Kommunikation, 8), 65536);
}

TEST_F(Registerabbild, Specific_address_52_with_count_32_is_copied) {
    const Werte muster = Folge(100, 32);
    SetzeSpezifischeDaten(52, 32, 1, muster);
    Werte werte;
    EXPECT_EQ(HoleSpezifischeDaten(52, 32, 1, werte), True);
    EXPECT_EQ(werte, muster);
}

TEST_F(Registerabbild, Specific_address_52_with_count_31_is_refused_and_copies_nothing) {
    SetzeSpezifischeDaten(52, 32, 1, Folge(100, 32));
    Werte werte = {1, 2, 3};
    EXPECT_EQ(HoleSpezifischeDaten(52, 31, 1, werte), False);
    EXPECT_EQ(werte, (Werte{1, 2, 3}));
}

TEST_F(Registerabbild, Specific_address_53_inside_a_parameter_is_refused_and_copies_nothing) {
    SetzeSpezifischeDaten(52, 32, 1, Folge(100, 32));
    Werte werte = {1, 2, 3};
    for (const auto anzahl : std::vector<std::int16_t>{0, 1, 31, 32})
        EXPECT_EQ(HoleSpezifischeDaten(53, anzahl, 1, werte), False) << anzahl;
    EXPECT_EQ(werte, (Werte{1, 2, 3}));
}

TEST_F(Registerabbild, Optical_part_4_or_minus_1_is_refused) {
    Werte werte;
    for (const auto teil : std::vector<std::int16_t>{-1, 4, 32767, -32768}) {
        EXPECT_EQ(HoleSpezifischeDaten(12, 1, teil, werte), False) << teil;
        EXPECT_EQ(SetzeSpezifischeDaten(12, 1, teil, {5}), False) << teil;
    }
    EXPECT_TRUE(werte.empty());
}

TEST_F(Registerabbild, Addresses_outside_the_range_are_refused) {
    Werte werte;
    for (const auto adresse : std::vector<std::int16_t>{-32768, -1, 256, 512, 32767}) {
        EXPECT_EQ(HoleGlobaleDaten(adresse, 1, werte), False) << adresse;
        EXPECT_EQ(HoleSpezifischeDaten(adresse, 1, 0, werte), False) << adresse;
        EXPECT_EQ(HoleKommunikationsdaten(adresse, 1, werte), False) << adresse;
    }
}

TEST_F(Registerabbild, A_count_of_0_or_less_is_refused_even_where_no_parameter_starts) {
    Werte werte;
    for (const auto anzahl : std::vector<std::int16_t>{0, -1})
        for (const auto adresse : std::vector<std::int16_t>{0, 1}) {
            EXPECT_EQ(HoleGlobaleDaten(adresse, anzahl, werte), False);
            EXPECT_EQ(SetzeGlobaleDaten(adresse, anzahl, {1}), False);
        }
}

TEST_F(Registerabbild, A_refused_store_changes_neither_values_nor_mark) {
    const auto vorher = Kopie();
    SetzeGlobaleDaten(1, 1, {1});
    SetzeGlobaleDaten(9, 9, Folge(1, 10));
    SetzeSpezifischeDaten(12, 1, 4, {1});
    SetzeKommunikationsdaten(75, 31, Folge(1, 31));
    EXPECT_EQ(Kopie(), vorher);
    EXPECT_EQ(IstGeaendert(), False);
}

TEST_F(Registerabbild, A_store_from_too_short_an_array_is_refused) {
    const auto vorher = Kopie();
    EXPECT_EQ(SetzeSpezifischeDaten(52, 32, 0, Folge(1, 31)), False);
    EXPECT_EQ(SetzeGlobaleDaten(0, 1, {}), False);
    EXPECT_EQ(Kopie(), vorher);
    EXPECT_EQ(IstGeaendert(), False);
}

TEST_F(Registerabbild, A_store_from_a_longer_array_takes_only_the_parameter) {
    EXPECT_EQ(SetzeSpezifischeDaten(12, 1, 0, {32, 99}), True);
    EXPECT_EQ(Wert(Spezifisch, 12), 32);
    EXPECT_EQ(Wert(Spezifisch, 13), 0);
}

TEST_F(Registerabbild, A_longer_array_keeps_its_other_elements) {
    SetzeGlobaleDaten(20, 4, {1, 2, 3, 4});
    Werte werte = {9, 9, 9, 9, 9, 9};
    HoleGlobaleDaten(20, 4, werte);
    EXPECT_EQ(werte, (Werte{1, 2, 3, 4, 9, 9}));
}

TEST_F(Registerabbild, Every_store_marks_the_configuration_as_changed) {
    const auto Geaendert = [](Boolean gelungen) {
        const bool markiert = gelungen == True && IstGeaendert() == True;
        LoescheGeaendert();
        return markiert;
    };
    EXPECT_TRUE(Geaendert(SetzeGlobaleDaten(193, 1, {0})));
    EXPECT_TRUE(Geaendert(SetzeSpezifischeDaten(12, 1, 3, {0})));
    EXPECT_TRUE(Geaendert(SetzeKommunikationsdaten(2, 1, {0})));
}

TEST_F(Registerabbild, Reading_does_not_mark_the_configuration_as_changed) {
    Werte werte;
    HoleGlobaleDaten(193, 1, werte);
    EXPECT_EQ(IstGeaendert(), False);
}

TEST_F(Registerabbild, The_changed_mark_is_set_and_cleared_by_hand) {
    SetzeGeaendert();
    EXPECT_EQ(IstGeaendert(), True);
    LoescheGeaendert();
    EXPECT_EQ(IstGeaendert(), False);
}

TEST_F(Registerabbild, The_file_name_is_empty_at_start_and_kept_when_set) {
    EXPECT_EQ(GetDateiname(), "");
    SetDateiname("/tmp/größe.con");
    EXPECT_EQ(GetDateiname(), "/tmp/größe.con");
}

TEST_F(Registerabbild, Initialising_forgets_file_name_and_mark_but_no_value) {
    SetDateiname("a.con");
    SetzeGlobaleDaten(193, 1, {5});
    InitRegisterbeschreibung();
    EXPECT_EQ(GetDateiname(), "");
    EXPECT_EQ(IstGeaendert(), False);
    EXPECT_EQ(Wert(Global, 193), 5);
}

TEST_F(Registerabbild, The_start_state_forgets_everything) {
    const auto vorher = Kopie();
    SetDateiname("a.con");
    SetzeGlobaleDaten(193, 1, {5});
    const Startzustand anfang;
    EXPECT_EQ(GetDateiname(), "");
    EXPECT_EQ(IstGeaendert(), False);
    EXPECT_EQ(Kopie(), vorher);
}

TEST_F(Registerabbild, A_whole_read_fetches_the_readable_global_parameters) {
    EXPECT_EQ(Lesbare(Global), (Eintraege{{0, 1}, {9, 10}, {20, 4}, {24, 1}, {25, 1}, {193, 1}, {196, 1}}));
}

TEST_F(Registerabbild, A_whole_read_fetches_52_once_and_never_53_to_83_or_44_or_335) {
    EXPECT_EQ(Lesbare(Spezifisch),
              (Eintraege{{12, 1}, {13, 1}, {14, 1}, {19, 1}, {24, 1}, {25, 1}, {26, 1}, {27, 1}, {52, 32}}));
}

TEST_F(Registerabbild, A_whole_read_fetches_the_readable_communication_parameters) {
    EXPECT_EQ(Lesbare(Kommunikation),
              (Eintraege{{0, 1}, {2, 1}, {4, 1}, {8, 1}, {74, 1}, {75, 30}, {126, 1}}));
}

TEST_F(Registerabbild, A_whole_write_sends_one_global_parameter) {
    EXPECT_EQ(Schreibbare(Global), (Eintraege{{193, 1}}));
}

TEST_F(Registerabbild, A_whole_write_sends_the_specific_parameters_but_the_beam_count) {
    EXPECT_EQ(Schreibbare(Spezifisch),
              (Eintraege{{13, 1}, {14, 1}, {19, 1}, {24, 1}, {25, 1}, {26, 1}, {27, 1}, {52, 32}}));
}

TEST_F(Registerabbild, A_whole_write_leaves_out_communication_address_2) {
    EXPECT_EQ(Schreibbare(Kommunikation), (Eintraege{{4, 1}, {8, 1}, {74, 1}, {75, 30}, {126, 1}}));
}

TEST_F(Registerabbild, Both_iterators_of_a_range_share_one_cursor) {
    std::int16_t adresse = 0;
    std::int16_t anzahl = 0;
    ErsterLesbarerEintrag(Kommunikation, adresse, anzahl);
    EXPECT_EQ(adresse, 0);
    EXPECT_EQ(NaechsterSchreibbarerEintrag(Kommunikation, adresse, anzahl), True);
    EXPECT_EQ(adresse, 4);
    EXPECT_EQ(NaechsterLesbarerEintrag(Kommunikation, adresse, anzahl), True);
    EXPECT_EQ(adresse, 8);
    ErsterSchreibbarerEintrag(Kommunikation, adresse, anzahl);
    EXPECT_EQ(adresse, 4);
}

TEST_F(Registerabbild, Each_range_has_a_cursor_of_its_own) {
    std::int16_t adresse = 0;
    std::int16_t anzahl = 0;
    ErsterLesbarerEintrag(Global, adresse, anzahl);
    Lesbare(Spezifisch);
    NaechsterLesbarerEintrag(Global, adresse, anzahl);
    EXPECT_EQ(adresse, 9);
}

TEST_F(Registerabbild, An_iterator_at_its_end_stays_there_and_leaves_its_arguments) {
    Lesbare(Global);
    std::int16_t adresse = 1234;
    std::int16_t anzahl = 56;
    EXPECT_EQ(NaechsterLesbarerEintrag(Global, adresse, anzahl), False);
    EXPECT_EQ(NaechsterSchreibbarerEintrag(Global, adresse, anzahl), False);
    EXPECT_EQ(adresse, 1234);
    EXPECT_EQ(anzahl, 56);
}

TEST_F(Registerabbild, Live_beam_states_come_back_as_they_were_stored) {
    const Werte zustaende = Folge(1, 64);
    EXPECT_EQ(SetzeStrahlzustaende(64, 3, zustaende), True);
    Werte werte;
    EXPECT_EQ(HoleStrahlzustaende(64, 3, werte), True);
    EXPECT_EQ(werte, zustaende);
}

TEST_F(Registerabbild, Live_beam_states_lie_from_specific_353_on) {
    SetzeStrahlzustaende(2, 1, {7, 8});
    EXPECT_EQ(Wert(Spezifisch, 353, 1), 7);
    EXPECT_EQ(Wert(Spezifisch, 354, 1), 8);
    EXPECT_EQ(Wert(Spezifisch, 355, 1), 0);
}

TEST_F(Registerabbild, Live_beam_states_do_not_mark_the_configuration_as_changed) {
    SetzeStrahlzustaende(1, 0, {1});
    EXPECT_EQ(IstGeaendert(), False);
}

TEST_F(Registerabbild, Live_beam_states_with_bad_arguments_are_refused) {
    const auto vorher = Kopie();
    const std::pair<std::int16_t, std::int16_t> schlechte[] = {{0, 0}, {-1, 0}, {65, 0}, {1, -1}, {1, 4}};
    Werte werte;
    for (const auto& [anzahl, teil] : schlechte) {
        EXPECT_EQ(SetzeStrahlzustaende(anzahl, teil, Folge(1, 65)), False) << anzahl << ' ' << teil;
        EXPECT_EQ(HoleStrahlzustaende(anzahl, teil, werte), False) << anzahl << ' ' << teil;
    }
    EXPECT_EQ(SetzeStrahlzustaende(2, 0, {1}), False);
    EXPECT_EQ(Kopie(), vorher);
    EXPECT_TRUE(werte.empty());
}

TEST_F(Registerabbild, The_block_operations_refuse_the_live_beam_states) {
    Werte werte;
    EXPECT_EQ(HoleSpezifischeDaten(353, 1, 0, werte), False);
    EXPECT_EQ(SetzeSpezifischeDaten(353, 1, 0, {1}), False);
}

TEST_F(Registerabbild, Gives_the_beam_count_of_each_part_and_0_for_no_part) {
    for (std::int16_t teil = 0; teil < AnzahlOptikteile; ++teil)
        SetzeSpezifischeDaten(12, 1, teil, {teil + 10});
    EXPECT_EQ(Strahlenzahl(0), 10);
    EXPECT_EQ(Strahlenzahl(3), 13);
    EXPECT_EQ(Strahlenzahl(-1), 0);
    EXPECT_EQ(Strahlenzahl(4), 0);
}

TEST_F(Registerabbild, Specific_data_lie_with_the_optical_part_varying_fastest) {
    SetzeSpezifischeDaten(13, 1, 3, {42});
    const auto werte = Bereich(Spezifisch);
    ASSERT_EQ(werte.size(), 2048U);
    EXPECT_EQ(werte[3 + 4 * 13], 42);
}

TEST_F(Registerabbild, A_whole_range_is_replaced_without_the_changed_mark) {
    EXPECT_EQ(ErsetzeBereich(Spezifisch, Folge(0, 2048)), True);
    EXPECT_EQ(Wert(Spezifisch, 511, 2), 2 + 4 * 511);
    EXPECT_EQ(IstGeaendert(), False);
}

TEST_F(Registerabbild, A_range_of_the_wrong_size_is_refused) {
    const auto vorher = Kopie();
    EXPECT_EQ(ErsetzeBereich(Global, Folge(1, 255)), False);
    EXPECT_EQ(ErsetzeBereich(Global, Folge(1, 257)), False);
    EXPECT_EQ(Kopie(), vorher);
}

TEST_F(Registerabbild, Emptying_sets_every_value_to_0_and_leaves_the_changed_mark) {
    const auto leer = Kopie();
    for (const auto bereich : AlleSpeicherbereiche)
        ErsetzeBereich(bereich, Folge(1, Bereich(bereich).size()));
    SetzeGeaendert();
    LeereAbbild();
    EXPECT_EQ(Kopie(), leer);
    EXPECT_EQ(IstGeaendert(), True);
}

} // namespace varnoth::modDaten
