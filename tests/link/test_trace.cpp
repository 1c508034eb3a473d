#include "trace.h"

#include "pruefumgebung.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <iterator>

namespace varnoth {

class TraceTest : public testing::Test {
protected:
    TraceTest() { std::filesystem::create_directories(ordner); }
    ~TraceTest() override { std::filesystem::remove_all(ordner); }

    std::string Inhalt() const {
        std::ifstream datei(pfad, std::ios::binary);
        return {std::istreambuf_iterator<char>(datei), {}};
    }
    /// Fills the file so that the mark of a cleared port, written next, brings it to exactly this size.
    void FuelleBisAufLeerung(std::size_t groesse) {
        constexpr std::size_t leerung = 15;   // "ClearCommPort, "
        constexpr std::size_t zeilenrest = 8; // "Read: " and the line end
        const std::size_t fehlt = groesse - leerung - Inhalt().size() - zeilenrest;
        // A byte takes three characters, from 0x10 on four.
        const std::size_t lange = fehlt % 3;
        modTrace::SchreibeLesung(std::string(lange, '\x11') + std::string((fehlt - 4 * lange) / 3, '\x01'));
        ASSERT_EQ(Inhalt().size(), groesse - leerung);
    }

    pruefung::PruefUmgebung umgebung;
    const std::filesystem::path ordner =
        std::filesystem::temp_directory_path() /
        ("varnoth-trace-" + std::to_string(testing::UnitTest::GetInstance()->random_seed()) + "-" +
         testing::UnitTest::GetInstance()->current_test_info()->name());
    const std::filesystem::path pfad = ordner / modTrace::Dateiname;
};

TEST_F(TraceTest, Begins_with_a_start_line) {
    EXPECT_EQ(modTrace::Starte(pfad), "");
    EXPECT_EQ(Inhalt(), "Start\r\n");
}

TEST_F(TraceTest, A_second_start_leaves_only_the_second_trace) {
    modTrace::Starte(pfad);
    modTrace::SchreibeSendung("x");
    modTrace::Schliesse();
    modTrace::Starte(pfad);
    EXPECT_EQ(Inhalt(), "Start\r\n");
}

TEST_F(TraceTest, Bytes_are_upper_case_hexadecimal_without_leading_zeros) {
    modTrace::Starte(pfad);
    modTrace::SchreibeLesung({"\x01\x03\x04", 3});
    modTrace::SchreibeSendung({"\xFF\x00\xAB", 3});
    EXPECT_EQ(Inhalt(), "Start\r\nRead: 1H 3H 4H \r\nWrite: FFH 0H ABH \r\n");
}

TEST_F(TraceTest, The_read_of_a_clear_stands_on_the_same_line) {
    modTrace::Starte(pfad);
    modTrace::SchreibeLeerung();
    modTrace::SchreibeLesung("");
    EXPECT_EQ(Inhalt(), "Start\r\nClearCommPort, Read: \r\n");
}

TEST_F(TraceTest, A_timeout_is_written_in_one_byte_a_character) {
    modTrace::Starte(pfad);
    modTrace::SchreibeZeitueberschreitung();
    EXPECT_EQ(Inhalt(), "Start\r\nZeit\xFC"
                        "berschreitung\r\n");
}

TEST_F(TraceTest, Without_a_started_trace_nothing_is_written) {
    modTrace::SchreibeSendung("x");
    modTrace::SchreibeLeerung();
    EXPECT_FALSE(std::filesystem::exists(pfad));
}

TEST_F(TraceTest, A_file_of_exactly_a_million_bytes_stays_open) {
    modTrace::Starte(pfad);
    FuelleBisAufLeerung(1000000);
    modTrace::SchreibeLeerung();
    EXPECT_EQ(Inhalt().size(), 1000000U);
    EXPECT_TRUE(modTrace::Aktiv());
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(TraceTest, One_byte_more_than_a_million_closes_the_file_at_the_next_clear_with_a_message) {
    modTrace::Starte(pfad);
    FuelleBisAufLeerung(1000001);
    EXPECT_TRUE(modTrace::Aktiv());
    modTrace::SchreibeLeerung();
    EXPECT_FALSE(modTrace::Aktiv());
    EXPECT_TRUE(Inhalt().ends_with("ClearCommPort, \r\nDie Datei wird geschlossen. Sie wird zu gro\xDF."));
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, "Die Datei Test.txt wird geschlossen. Sie wird zu groß.");
}

TEST_F(TraceTest, Only_the_user_may_read_the_file_whatever_the_umask) {
    for (const mode_t maske : {mode_t{0000}, mode_t{0022}, mode_t{0777}}) {
        const mode_t vorher = ::umask(maske);
        modTrace::Starte(pfad);
        ::umask(vorher);
        EXPECT_EQ(std::filesystem::status(pfad).permissions(), static_cast<std::filesystem::perms>(0600))
            << maske;
    }
}

TEST_F(TraceTest, A_link_in_the_files_place_is_replaced_and_what_it_leads_to_kept) {
    const auto fremde = ordner / "foreign";
    std::ofstream(fremde) << "precious";
    std::filesystem::create_symlink(fremde, pfad);
    EXPECT_EQ(modTrace::Starte(pfad), "");
    EXPECT_FALSE(std::filesystem::is_symlink(pfad));
    EXPECT_EQ(std::filesystem::file_size(fremde), 8U);
}

TEST_F(TraceTest, A_program_without_standard_input_can_trace) {
    const int eingabe = ::dup(STDIN_FILENO);
    ::close(STDIN_FILENO);
    EXPECT_EQ(modTrace::Starte(pfad), "");
    modTrace::Schliesse();
    ::dup2(eingabe, STDIN_FILENO);
    ::close(eingabe);
    EXPECT_EQ(Inhalt(), "Start\r\n");
}

TEST_F(TraceTest, A_file_that_cannot_be_created_gives_the_reason) {
    EXPECT_NE(modTrace::Starte(ordner / "missing" / "Test.txt"), "");
    EXPECT_FALSE(modTrace::Aktiv());
}

} // namespace varnoth
