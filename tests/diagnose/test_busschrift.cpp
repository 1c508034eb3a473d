#include "busschrift.h"

#include "busprobe.h"
#include "ortszone.h"
#include "pruefgeraet.h"
#include "rahmen.h"
#include "texte.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth {

using namespace busprobe;
using testing::HasSubstr;
using testing::StartsWith;

/// A moment in a time zone of the test's own.
class BusschriftTest : public testing::Test {
protected:
    static std::string Zeile(Busformat format, const Probe& probe) {
        using namespace std::chrono;
        return Schriftzeile(format, Austausch(probe),
                            sys_days{year{2026} / 11 / 22} + 11h + 17min + 23s + 456ms);
    }
    /// A controller that calls itself so.
    static Probe Ident(const std::string& text) {
        return {.anforderung = IdentifikationsAnforderung(),
                .empfangen = pruefung::MitPruefsumme(
                    pruefung::Bytes({1, 0x11, static_cast<int>(text.size()) + 2, 7, 50}) + text)};
    }

private:
    Ortszone zone{"UTC"};
};

TEST_F(BusschriftTest, The_text_has_a_line_for_the_meaning_and_one_for_the_bytes) {
    EXPECT_EQ(
        Zeile(Busformat::Text, Gelesen(0x2000 + 14, {3})),
        "2026-11-22 11:17:23.456  Lesen (03), Optikteil 1: Reichweite = 1,00 - 2,5m (12,3 ms)  beantwortet\n"
        "    → 01 03 20 0E 00 01 EE 09  ← 01 03 02 00 03 F8 45\n");
    EXPECT_EQ(Schriftkopf(Busformat::Text), "");
}

TEST_F(BusschriftTest, What_went_wrong_is_marked_in_the_text) {
    EXPECT_THAT(Zeile(Busformat::Text, Unbeantwortet(5)), HasSubstr("  ** keine Antwort\n"));
}

TEST_F(BusschriftTest, CSV_is_separated_by_semicolons_in_German_and_by_commas_in_English) {
    const Probe probe = Gelesen(0x2000 + 14, {3});
    EXPECT_EQ(Schriftkopf(Busformat::Csv),
              "\xEF\xBB\xBFNummer;Zeit;Richtung;Funktion;Register;Adresse;Werte;Gesendet;"
              "Empfangen;Umlauf (ms);Ergebnis\r\n");
    EXPECT_EQ(Zeile(Busformat::Csv, probe),
              "1;2026-11-22 11:17:23.456;vom Gerät;Lesen (03);Optikteil 1: Reichweite;200EH;\"1,00 - 2,5m\";"
              "01 03 20 0E 00 01 EE 09;01 03 02 00 03 F8 45;\"12,3\";beantwortet\r\n");
    SetzeSprachoffset(Englisch);
    EXPECT_THAT(Schriftkopf(Busformat::Csv), StartsWith("\xEF\xBB\xBFNumber,Time,Direction,"));
    EXPECT_THAT(Zeile(Busformat::Csv, probe), HasSubstr(",12.3,answered\r\n"));
}

TEST_F(BusschriftTest, What_a_hostile_controller_calls_itself_stays_one_harmless_field) {
    EXPECT_THAT(Zeile(Busformat::Csv, Ident("=cmd|'/c calc'!A1")), HasSubstr(";'=cmd|'/c calc'!A1;"));
    EXPECT_THAT(Zeile(Busformat::Csv, Ident("a\r\n1;2;\"x\"")), HasSubstr("1, 2, \"\"x\"\"\""));
    const std::string zeile = Zeile(Busformat::Text, Ident("a\nb\x1B[2J"));
    EXPECT_EQ(std::ranges::count(zeile, '\n'), 2);
    EXPECT_EQ(zeile.find('\x1B'), std::string::npos);
}

} // namespace varnoth
