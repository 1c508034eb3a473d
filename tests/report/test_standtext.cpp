#include "standtext.h"

#include "abbildproben.h"
#include "plausibilitaet.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tuple>

namespace varnoth {

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

std::string Deutscher(const Abbild& abbild = abbildproben::Vierteilig()) {
    return Standtext(abbild, Deutsch);
}

/// The text with one piece of it replaced, which it has to have.
std::string Mit(std::string text, std::string_view alt, std::string_view neu) {
    const auto stelle = text.find(alt);
    EXPECT_NE(stelle, std::string::npos) << alt;
    return text.replace(stelle, alt.size(), neu);
}

std::string OhneZeile(std::string text, std::string_view anfang) {
    const auto stelle = text.find("\n" + std::string(anfang));
    EXPECT_NE(stelle, std::string::npos) << anfang;
    return text.erase(stelle, text.find('\n', stelle + 1) - stelle);
}

std::size_t Zeilennummer(std::string_view text, std::string_view anfang) {
    const auto stelle = text.find(anfang);
    return 1 + static_cast<std::size_t>(std::ranges::count(text.substr(0, stelle), '\n'));
}

/// The only error of a text that must not give an image.
Standfehler Einziger(std::string_view text) {
    const Standbefund befund = LiesStandtext(text);
    EXPECT_FALSE(befund.abbild);
    EXPECT_THAT(befund.fehler, SizeIs(1));
    return befund.fehler.empty() ? Standfehler{Standmangel::ZuGross} : befund.fehler.front();
}

} // namespace

TEST(StandtextTest, A_line_tells_range_name_register_and_words) {
    const std::string text = Deutscher();
    EXPECT_THAT(text, StartsWith("Varnoth Konfiguration als Text 1\n# Bereich / Name / Register / Wert\n"
                                 "Global / Gerätetyp / 0 / Varnoth\n"));
    EXPECT_THAT(text, HasSubstr("\nGlobal / Seriennummer / 9 / VN-<2026> & \"K4\" / 7\n"));
    EXPECT_THAT(text, HasSubstr("\nOptikteil 2 / Auflösung / 13 / 20mm\n"));
    EXPECT_THAT(text, HasSubstr("\nOptikteil 1 / Blankingmuster / 52 / 11-15, 36\n"));
    EXPECT_THAT(text, HasSubstr("\nKommunikation / Pausenzeit für Antwort / 8 / 125 * 0,8µs\n"));
}

TEST(StandtextTest, In_English_every_word_is_English) {
    const std::string text = Standtext(abbildproben::Vierteilig(), Englisch);
    EXPECT_THAT(text, StartsWith("Varnoth configuration as text 1\n# range / name / register / value\n"));
    EXPECT_THAT(text, HasSubstr("\nOptical part 2 / Sensing distance / 14 / "));
    EXPECT_THAT(text, Not(HasSubstr("Optikteil")));
}

TEST(StandtextTest, The_language_of_the_moment_is_taken_where_none_is_given) {
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Standtext(Abbild()), Standtext(Abbild(), Englisch));
}

TEST(StandtextTest, Lines_stand_in_the_order_of_ranges_and_registers) {
    Abbild abbild = abbildproben::Vierteilig();
    abbild.Bereich(Global)[Stelle(Global, 10 + 12)] = 1; // belongs to the date of manufacture
    abbild.Bereich(Global)[Stelle(Global, 50)] = 7;
    const std::string text = Deutscher(abbild);
    std::size_t zuvor = 0;
    for (const char* anfang :
         {"Global / Gerätetyp", "Global / Software Version", "Global / Register / 50 / 7 (0x7)",
          "Global / PNP-Ausgang", "Optikteil 1 / ", "Optikteil 2 / ", "Optikteil 3 / ",
          "Optikteil 4 / Anzahl", "Optikteil 4 / Blankingmuster", "Kommunikation / Bus Typ",
          "Kommunikation / Autosend Baudrate"}) {
        const auto stelle = text.find(std::string("\n") + anfang);
        ASSERT_NE(stelle, std::string::npos) << anfang;
        EXPECT_GT(stelle, zuvor) << anfang;
        zuvor = stelle;
    }
}

TEST(StandtextTest, What_is_measured_has_a_line_only_where_it_is_not_0) {
    Abbild abbild = abbildproben::Vierteilig();
    EXPECT_THAT(Deutscher(abbild),
                AllOf(Not(HasSubstr("Gerätestatus")), Not(HasSubstr("Status des Optikteils"))));
    ASSERT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Optikteilstatus, 0x80, 2));
    EXPECT_THAT(Deutscher(abbild), HasSubstr("\nOptikteil 3 / Status des Optikteils / 44 / vorhanden\n"));
}

TEST(StandtextTest, Without_what_is_measured_an_image_keeps_its_configuration) {
    Abbild abbild = abbildproben::Vierteilig();
    ASSERT_TRUE(abbild.SetzeRegister(Global, global::Geraetestatus, 3));
    ASSERT_TRUE(abbild.SetzeParameter(Spezifisch, spezifisch::Messwerte, Werte(18, 5), 1));
    ASSERT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Optikteilstatus, 0x80, 2));
    ASSERT_TRUE(abbild.SetzeStrahlzustaende(MaxStrahlregister, 3, Werte(MaxStrahlregister, 1)));
    EXPECT_EQ(OhneMomentanes(abbild), abbildproben::Vierteilig());
}

TEST(StandtextTest, Every_image_reads_back_as_it_was_from_either_language) {
    for (unsigned nummer = 0; nummer < 60; ++nummer) {
        const Abbild abbild = abbildproben::Beliebig(nummer);
        for (const std::int16_t sprache : {Deutsch, Englisch}) {
            const Standbefund befund = LiesStandtext(Standtext(abbild, sprache));
            ASSERT_TRUE(befund.abbild) << nummer << ": " << Fehlertext(befund.fehler.at(0));
            ASSERT_EQ(*befund.abbild, abbild) << nummer;
        }
    }
}

TEST(StandtextTest, Serial_numbers_of_any_characters_read_back) {
    for (std::int32_t zeichen = 0; zeichen < 256; ++zeichen) {
        Abbild abbild = Standardkonfiguration();
        Werte werte(10, ' ' << 8 | ' ');
        werte[0] = zeichen << 8 | '/';
        werte[1] = '#' << 8 | zeichen;
        ASSERT_TRUE(abbild.SetzeParameter(Global, global::Seriennummer, werte));
        const Standbefund befund = LiesStandtext(Deutscher(abbild));
        ASSERT_TRUE(befund.abbild) << zeichen;
        EXPECT_EQ(*befund.abbild, abbild) << zeichen;
    }
}

TEST(StandtextTest, The_order_of_lines_empty_ones_remarks_and_the_line_ends_of_another_system_do_not_count) {
    const std::string text = Deutscher();
    const std::string erste = text.substr(0, text.find("Global"));
    std::string gedreht;
    for (std::string_view rest = std::string_view(text).substr(erste.size()); !rest.empty();) {
        const auto ende = rest.find('\n');
        gedreht = "  " + std::string(rest.substr(0, ende)) + " \r\n\r\n# remark\r\n" + gedreht;
        rest.remove_prefix(ende + 1);
    }
    const Standbefund befund = LiesStandtext("\xEF\xBB\xBF\n" + erste + gedreht);
    ASSERT_TRUE(befund.abbild) << Fehlertext(befund.fehler.at(0));
    EXPECT_EQ(*befund.abbild, abbildproben::Vierteilig());
}

TEST(StandtextTest, A_changed_word_changes_its_register_and_nothing_else) {
    Abbild erwartet = abbildproben::Vierteilig();
    ASSERT_TRUE(erwartet.SetzeRegister(Spezifisch, spezifisch::Aufloesung, 40, 1));
    const auto befund = LiesStandtext(
        Mit(Deutscher(), "Optikteil 2 / Auflösung / 13 / 20mm", "Optikteil 2 / Auflösung / 13 / 40mm"));
    ASSERT_TRUE(befund.abbild);
    EXPECT_EQ(*befund.abbild, erwartet);
}

TEST(StandtextTest, A_register_that_is_0_again_needs_no_line) {
    Abbild abbild = abbildproben::Vierteilig();
    abbild.Bereich(Kommunikation)[200] = 5;
    const std::string text = Deutscher(abbild);
    ASSERT_THAT(text, HasSubstr("Kommunikation / Register / 200 / 5 (0x5)"));
    EXPECT_EQ(LiesStandtext(OhneZeile(text, "Kommunikation / Register / 200")).abbild,
              abbildproben::Vierteilig());
}

TEST(StandfehlerTest, A_text_that_does_not_begin_as_one_is_told_by_what_it_should_begin_with) {
    for (const char* text : {"", "\n\n", "[Settings]\nSprache=0\n", "Varnoth Konfiguration als Text 2\n",
                             "\xFF\xFEV\0a\0", "# nur eine Bemerkung\n"}) {
        const Standfehler fehler = Einziger(text);
        EXPECT_EQ(fehler, (Standfehler{Standmangel::KeinStand, 0, "Varnoth Konfiguration als Text 1"}));
    }
    EXPECT_EQ(Fehlertext(Einziger("x")),
              "Das ist kein Konfigurationstext. Seine erste Zeile wäre „Varnoth Konfiguration als Text 1“.");
}

TEST(StandfehlerTest, A_text_above_1_MB_is_not_looked_at) {
    const std::string text = Deutscher() + "#" + std::string(10 * LaengsterStandtext, 'x') + "\n";
    EXPECT_EQ(Einziger(text), (Standfehler{Standmangel::ZuGross}));
}

TEST(StandfehlerTest, A_text_of_1_MB_is_read) {
    std::string text = Deutscher() + "#";
    text += std::string(LaengsterStandtext - text.size(), 'x');
    EXPECT_TRUE(LiesStandtext(text).abbild);
}

TEST(StandfehlerTest, The_wrong_line_is_named_with_what_is_wrong_in_it) {
    const std::string gut = Deutscher();
    const char* const zeile = "Optikteil 2 / Auflösung / 13 / 20mm";
    const std::size_t nummer = Zeilennummer(gut, zeile);
    const struct {
        const char* statt;
        Standfehler fehler;
    } faelle[] = {
        {"Optikteil 2 / Aufl\xF6sung / 13 / 20mm", {Standmangel::KeinUtf8, nummer}},
        {"Optikteil 2 / Auflösung / 13", {Standmangel::KeineFelder, nummer}},
        {"<<<<<<< HEAD", {Standmangel::KeineFelder, nummer}},
        {"Optikteil 5 / Auflösung / 13 / 20mm", {Standmangel::UnbekannterBereich, nummer, "Optikteil 5"}},
        {"Optical part 2 / Auflösung / 13 / 20mm",
         {Standmangel::UnbekannterBereich, nummer, "Optical part 2"}},
        {"Optikteil 2 / Aufloesung / 13 / 20mm", {Standmangel::UnbekannterName, nummer, "Aufloesung"}},
        {"Optikteil 2 / Autosend / 13 / 20mm", {Standmangel::UnbekannterName, nummer, "Autosend"}},
        {"Optikteil 2 / Auflösung / 14 / 20mm", {Standmangel::FalschesRegister, nummer, "Auflösung", "13"}},
        {"Optikteil 2 / Auflösung / x / 20mm", {Standmangel::FalschesRegister, nummer, "Auflösung", "13"}},
        {"Optikteil 2 / Register / 13 / 20 (0x14)", {Standmangel::FreiesRegister, nummer, "13"}},
        {"Optikteil 2 / Register / 512 / 20 (0x14)", {Standmangel::FreiesRegister, nummer, "512"}},
        {"Optikteil 2 / Register / -1 / 20 (0x14)", {Standmangel::FreiesRegister, nummer, "-1"}},
        {"Optikteil 2 / Auflösung / 13 / 15mm",
         {Standmangel::UnverstandenerWert, nummer, "15mm", "Auflösung"}},
        {"Optikteil 2 / Auflösung / 13 / ", {Standmangel::KeineFelder, nummer}},
    };
    for (const auto& [statt, fehler] : faelle) {
        const auto befund = LiesStandtext(Mit(gut, zeile, statt));
        EXPECT_FALSE(befund.abbild) << statt;
        ASSERT_FALSE(befund.fehler.empty()) << statt;
        EXPECT_EQ(befund.fehler.front(), fehler) << statt;
        EXPECT_THAT(befund.fehler, SizeIs(1)) << statt;
    }
}

TEST(StandfehlerTest, A_value_of_a_register_without_name_must_be_a_number) {
    const std::string text = Deutscher() + "Kommunikation / Register / 200 / fünf\n";
    EXPECT_EQ(Einziger(text),
              (Standfehler{Standmangel::UnverstandenerWert, Zeilennummer(text, "Kommunikation / Register"),
                           "fünf", "Register"}));
}

TEST(StandfehlerTest, A_value_that_stands_twice_is_told_with_both_lines) {
    const std::string gut = Deutscher();
    const std::string zeile = "Optikteil 2 / Auflösung / 13 / 20mm";
    const Standfehler fehler = Einziger(gut + zeile + "\n");
    EXPECT_EQ(fehler.mangel, Standmangel::Doppelt);
    EXPECT_EQ(fehler.zeile, static_cast<std::size_t>(std::ranges::count(gut, '\n')) + 1);
    EXPECT_EQ(fehler.erste, std::to_string(Zeilennummer(gut, zeile)));
}

TEST(StandfehlerTest, A_line_that_is_missing_is_named) {
    EXPECT_EQ(Einziger(OhneZeile(Deutscher(), "Optikteil 2 / Auflösung")),
              (Standfehler{Standmangel::Fehlt, 0, "Optikteil 2 / Auflösung"}));
}

TEST(StandfehlerTest, Without_a_beam_count_durations_are_not_called_wrong) {
    EXPECT_EQ(Einziger(OhneZeile(Deutscher(), "Optikteil 2 / Anzahl Strahlen")).mangel, Standmangel::Fehlt);
}

TEST(StandfehlerTest, Several_errors_are_told_in_the_order_of_their_lines) {
    std::string text = Mit(Deutscher(), "Optikteil 3 / Auflösung", "Optikteil 3 / Farbe");
    text = Mit(text, "Optikteil 1 / Auflösung / 13 / 10mm", "Optikteil 1 / Auflösung / 13 / rot");
    const auto befund = LiesStandtext(text);
    ASSERT_THAT(befund.fehler, SizeIs(2));
    EXPECT_EQ(befund.fehler[0].mangel, Standmangel::UnverstandenerWert);
    EXPECT_EQ(befund.fehler[1].mangel, Standmangel::UnbekannterName);
    EXPECT_LT(befund.fehler[0].zeile, befund.fehler[1].zeile);
}

TEST(StandfehlerTest, A_text_full_of_errors_gives_20_of_them) {
    std::string text = Deutscher();
    for (int i = 0; i < 1000; ++i)
        text += "Unfug\n";
    EXPECT_THAT(LiesStandtext(text).fehler, SizeIs(HoechstensStandfehler));
    EXPECT_THAT(LiesStandtext("Varnoth Konfiguration als Text 1\n").fehler, SizeIs(HoechstensStandfehler));
}

TEST(StandfehlerTest, What_a_message_repeats_of_a_long_line_is_cut_between_two_characters) {
    std::string lang;
    for (int i = 0; i < 100; ++i)
        lang += "ä";
    const std::string text = Deutscher() + lang + " / b / 1 / c\n" + "x" + lang + " / b / 1 / c\n";
    const auto befund = LiesStandtext(text);
    ASSERT_THAT(befund.fehler, SizeIs(2));
    EXPECT_EQ(befund.fehler[0].erste, lang.substr(0, 60) + "...");
    EXPECT_EQ(befund.fehler[1].erste, "x" + lang.substr(0, 58) + "...");
}

TEST(StandfehlerTest, A_sentence_tells_the_line_in_the_language_of_the_moment) {
    const Standfehler fehler{Standmangel::FalschesRegister, 12, "Auflösung", "13"};
    EXPECT_EQ(Fehlertext(fehler), "Zeile 12: „Auflösung“ hat das Register 13.");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Fehlertext(fehler), "Line 12: “Auflösung” has register 13.");
    EXPECT_EQ(Fehlertext({Standmangel::Fehlt, 0, "Global / x"}), "A line is missing: Global / x");
}

} // namespace varnoth
