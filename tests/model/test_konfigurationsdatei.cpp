#include "konfigurationsdatei.h"

#include "modelltest.h"
#include "texte.h"

#include <limits>
#include <random>

namespace varnoth::modDaten {

namespace {

constexpr std::size_t StelleVersion = 21;
constexpr std::size_t StelleGlobal = 22;
constexpr std::size_t StelleSpezifisch = 1046;
constexpr std::size_t StelleKommunikation = 9238;

/// What lies at an offset of a body, lowest byte first.
std::string Vier(const std::string& bytes, std::size_t stelle) {
    return bytes.substr(stelle, 4);
}

Dateibefund Befund(std::string_view bytes) {
    Abbild inhalt;
    return ZerlegeKonfigurationsdatei(bytes, inhalt);
}

} // namespace

class Konfigurationsdatei : public ModellTest {
protected:
    /// Fills the image with values of every kind: negative, beyond 16 bits and the two ends.
    static void FuelleAbbild(unsigned saat) {
        std::mt19937 zufall(saat);
        for (const auto bereich : AlleSpeicherbereiche) {
            Werte werte(Bereich(bereich).size());
            for (auto& wert : werte)
                wert = static_cast<std::int32_t>(zufall());
            werte.front() = std::numeric_limits<std::int32_t>::min();
            werte.back() = std::numeric_limits<std::int32_t>::max();
            ErsetzeBereich(bereich, werte);
        }
    }
    /// The body of a filled image; the image itself then holds other values.
    static std::string GuteDatei() {
        FuelleAbbild(1);
        std::string bytes = SpeichereKonfigurationsdatei();
        FuelleAbbild(2);
        return bytes;
    }
    /// Loads a bad body and expects the message; nothing else may happen.
    void ErwarteAblehnung(std::string_view bytes, std::int16_t textId) {
        const auto vorher = Kopie();
        LoescheGeaendert();
        umgebung.meldungen.clear();
        EXPECT_EQ(LadeKonfigurationsdatei(bytes), False);
        EXPECT_EQ(Kopie(), vorher);
        EXPECT_EQ(IstGeaendert(), False);
        ASSERT_EQ(umgebung.meldungen.size(), 1U);
        EXPECT_EQ(umgebung.meldungen[0], Meldung{.text = LadeText(textId)});
    }
};

TEST_F(Konfigurationsdatei, A_body_begins_with_the_text_and_the_version_zero) {
    EXPECT_EQ(SpeichereKonfigurationsdatei().substr(0, 22), std::string("Varnoth Konfiguration") + '\0');
}

TEST_F(Konfigurationsdatei, A_body_has_10262_bytes) {
    EXPECT_EQ(SpeichereKonfigurationsdatei().size(), 10262U);
}

TEST_F(Konfigurationsdatei, Global_values_lie_from_offset_22_on) {
    SetzeWert(Global, 0, 0, 0x04030201);
    SetzeWert(Global, 255, 0, 0x14131211);
    const std::string bytes = SpeichereKonfigurationsdatei();
    EXPECT_EQ(Vier(bytes, StelleGlobal), "\x01\x02\x03\x04");
    EXPECT_EQ(Vier(bytes, StelleSpezifisch - 4), "\x11\x12\x13\x14");
}

TEST_F(Konfigurationsdatei, Specific_values_have_the_optical_part_varying_fastest) {
    for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
        SetzeWert(Spezifisch, 0, teil, 0x61616161 + teil);
        SetzeWert(Spezifisch, 1, teil, 0x41414141 + teil);
        SetzeWert(Spezifisch, 511, teil, 0x51515151 + teil);
    }
    const std::string bytes = SpeichereKonfigurationsdatei();
    EXPECT_EQ(bytes.substr(StelleSpezifisch, 32), "aaaabaaacaaadaaaAAAABAAACAAADAAA");
    EXPECT_EQ(bytes.substr(StelleKommunikation - 16, 16), "QQQQRQQQSQQQTQQQ");
}

TEST_F(Konfigurationsdatei, Communication_values_lie_from_offset_9238_to_the_end) {
    SetzeWert(Kommunikation, 0, 0, 0x64636261);
    SetzeWert(Kommunikation, 255, 0, 0x34333231);
    const std::string bytes = SpeichereKonfigurationsdatei();
    EXPECT_EQ(Vier(bytes, StelleKommunikation), "abcd");
    EXPECT_EQ(Vier(bytes, LaengeKonfigurationsdatei - 4), "1234");
}

TEST_F(Konfigurationsdatei, Values_are_signed_32_bit_and_little_endian) {
    SetzeWert(Global, 0, 0, -2);
    SetzeWert(Global, 1, 0, 65536);
    const std::string bytes = SpeichereKonfigurationsdatei();
    EXPECT_EQ(Vier(bytes, StelleGlobal), "\xFE\xFF\xFF\xFF");
    EXPECT_EQ(Vier(bytes, StelleGlobal + 4), std::string("\0\0\x01\0", 4));
}

TEST_F(Konfigurationsdatei, Saving_and_loading_round_trips_every_value_bit_for_bit) {
    FuelleAbbild(1);
    const auto vorher = Kopie();
    const std::string bytes = SpeichereKonfigurationsdatei();
    LeereAbbild();
    EXPECT_EQ(LadeKonfigurationsdatei(bytes), True);
    EXPECT_EQ(Kopie(), vorher);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(Konfigurationsdatei, Loading_a_valid_body_marks_the_configuration_as_changed) {
    const std::string bytes = GuteDatei();
    LoescheGeaendert();
    LadeKonfigurationsdatei(bytes);
    EXPECT_EQ(IstGeaendert(), True);
}

TEST_F(Konfigurationsdatei, Saving_leaves_the_changed_mark_and_the_file_name_alone) {
    SetzeGeaendert();
    SetDateiname("alt.con");
    SpeichereKonfigurationsdatei();
    EXPECT_EQ(IstGeaendert(), True);
    EXPECT_EQ(GetDateiname(), "alt.con");
}

TEST_F(Konfigurationsdatei, A_body_of_10261_bytes_is_an_unknown_format_and_leaves_the_image_unchanged) {
    ErwarteAblehnung(std::string_view(GuteDatei()).substr(0, 10261), 3100);
}

TEST_F(Konfigurationsdatei, A_correct_header_with_version_1_is_an_unknown_version) {
    std::string bytes = GuteDatei();
    bytes[StelleVersion] = 1;
    ErwarteAblehnung(bytes, 3101);
}

TEST_F(Konfigurationsdatei, A_header_that_differs_in_the_case_of_its_first_letter_is_an_unknown_format) {
    std::string bytes = GuteDatei();
    bytes[0] = 'v';
    ErwarteAblehnung(bytes, 3100);
}

TEST_F(Konfigurationsdatei, Truncated_at_any_length_it_is_an_unknown_format_and_nothing_changes) {
    const std::string bytes = GuteDatei();
    const auto vorher = Kopie();
    for (std::size_t laenge = 0; laenge < LaengeKonfigurationsdatei; ++laenge)
        ASSERT_EQ(LadeKonfigurationsdatei(std::string_view(bytes).substr(0, laenge)), False) << laenge;
    EXPECT_EQ(Kopie(), vorher);
    EXPECT_EQ(umgebung.meldungen,
              std::vector<Meldung>(LaengeKonfigurationsdatei, Meldung{.text = LadeText(3100)}));
    EXPECT_EQ(LadeKonfigurationsdatei(bytes), True) << "complete";
}

TEST_F(Konfigurationsdatei, A_wrong_version_is_reported_even_where_the_body_ends_behind_it) {
    const std::string kopf = "Varnoth Konfiguration";
    EXPECT_EQ(Befund(kopf), Dateibefund::UnbekanntesFormat);
    EXPECT_EQ(Befund(kopf + '\x01'), Dateibefund::UnbekannteVersion);
    EXPECT_EQ(Befund(kopf + '\xFF'), Dateibefund::UnbekannteVersion);
    EXPECT_EQ(Befund(kopf + '\0'), Dateibefund::UnbekanntesFormat);
}

TEST_F(Konfigurationsdatei, A_change_of_any_header_byte_is_an_unknown_format) {
    const std::string gut = GuteDatei();
    for (std::size_t stelle = 0; stelle < StelleVersion; ++stelle) {
        std::string bytes = gut;
        bytes[stelle] = static_cast<char>(bytes[stelle] ^ 0x20);
        EXPECT_EQ(Befund(bytes), Dateibefund::UnbekanntesFormat) << stelle;
    }
}

TEST_F(Konfigurationsdatei, A_wrong_header_is_reported_before_a_wrong_version) {
    std::string bytes = GuteDatei();
    bytes[0] = 'v';
    bytes[StelleVersion] = 1;
    ErwarteAblehnung(bytes, 3100);
}

TEST_F(Konfigurationsdatei, Bytes_behind_a_complete_body_are_ignored) {
    const std::string bytes = GuteDatei();
    LadeKonfigurationsdatei(bytes);
    const auto erwartet = Kopie();
    LeereAbbild();
    EXPECT_EQ(LadeKonfigurationsdatei(bytes + std::string(100000, '\x55')), True);
    EXPECT_EQ(Kopie(), erwartet);
}

TEST_F(Konfigurationsdatei, A_file_of_another_program_is_an_unknown_format) {
    ErwarteAblehnung("[Settings]\nSprache=0\n" + std::string(20000, 'x'), 3100);
    std::string bild("\x89PNG\r\n\x1A\n");
    bild.resize(20000);
    ErwarteAblehnung(bild, 3100);
}

TEST_F(Konfigurationsdatei, The_messages_are_in_the_chosen_language) {
    SetzeSprachoffset(Englisch);
    LadeKonfigurationsdatei("");
    LadeKonfigurationsdatei("Varnoth Konfiguration\x01");
    ASSERT_EQ(umgebung.meldungen.size(), 2U);
    EXPECT_EQ(umgebung.meldungen[0].text, "Unknown file format");
    EXPECT_EQ(umgebung.meldungen[1].text, "Unknown file version");
}

} // namespace varnoth::modDaten
