#include "erkenner.h"

#include "pruefgeraet.h"

#include <gtest/gtest.h>

namespace varnoth {

using pruefung::Bytes;
using pruefung::MitPruefsumme;

namespace {

constexpr std::int16_t Slave = 1;

std::string LeseAntwort() {
    return MitPruefsumme(Bytes({Slave, 0x03, 4, 0x12, 0x34, 0x00, 0x0A}));
}

std::string SchreibAntwort() {
    return MitPruefsumme(Bytes({Slave, 0x10, 0x40, 0x84, 0x00, 0x01}));
}

std::string IdentAntwort(const std::string& daten) {
    return MitPruefsumme(Bytes({9, 0x11, static_cast<int>(daten.size())}) + daten);
}

/// How many bytes the recogniser says are still to come at least, before each byte of the reply and at its
/// end.
std::vector<std::size_t> Ausstehende(Erkenner& erkenner, const std::string& antwort) {
    std::vector<std::size_t> noch;
    for (const char byte : antwort) {
        noch.push_back(erkenner.MindestensNoch());
        erkenner.Verarbeite(std::string(1, byte));
    }
    noch.push_back(erkenner.MindestensNoch());
    return noch;
}

bool Gueltig(const Erkenner& erkenner) {
    return erkenner.Fertig() && erkenner.CrcStimmt();
}

} // namespace

TEST(ErkennerTest, A_read_reply_is_recognised_whole_byte_by_byte_and_at_every_split) {
    const std::string antwort = LeseAntwort();
    for (std::size_t schnitt = 0; schnitt <= antwort.size(); ++schnitt) {
        LeseErkenner erkenner(Slave, 2);
        EXPECT_TRUE(erkenner.Verarbeite(antwort.substr(0, schnitt)));
        EXPECT_TRUE(erkenner.Verarbeite(antwort.substr(schnitt)));
        EXPECT_TRUE(Gueltig(erkenner)) << "split at " << schnitt;
        EXPECT_EQ(erkenner.Daten(), Bytes({0x12, 0x34, 0x00, 0x0A}));
    }
    LeseErkenner einzeln(Slave, 2);
    for (const char byte : antwort)
        EXPECT_TRUE(einzeln.Verarbeite(std::string(1, byte)));
    EXPECT_TRUE(Gueltig(einzeln));
}

TEST(ErkennerTest, It_is_known_at_every_byte_how_many_are_still_to_come_at_least) {
    using Zahlen = std::vector<std::size_t>;
    LeseErkenner lesen(Slave, 2);
    EXPECT_EQ(Ausstehende(lesen, LeseAntwort()), (Zahlen{9, 8, 7, 6, 5, 4, 3, 2, 1, 0}));
    SchreibErkenner schreiben(Slave, 0x4084, 1);
    EXPECT_EQ(Ausstehende(schreiben, SchreibAntwort()), (Zahlen{8, 7, 6, 5, 4, 3, 2, 1, 0}));
    Identifikation ident;
    IdentErkenner identifizieren(ident);
    EXPECT_EQ(Ausstehende(identifizieren, IdentAntwort("abc")), (Zahlen{5, 4, 3, 5, 4, 3, 2, 1, 0}))
        << "the count tells the length";
}

TEST(ErkennerTest, A_long_reply_may_be_given_up_long_before_its_end) {
    LeseErkenner erkenner(Slave, 32);
    EXPECT_EQ(erkenner.MindestensNoch(), 11U);
    erkenner.Verarbeite(std::string(4, '\x7F'));
    EXPECT_EQ(erkenner.MindestensNoch(), 7U);
    erkenner.Verarbeite(Bytes({Slave, 3, 64}));
    EXPECT_EQ(erkenner.MindestensNoch(), 66U) << "its head is there: every further byte is taken";
}

TEST(ErkennerTest, A_reply_that_turns_out_foreign_is_awaited_anew) {
    LeseErkenner erkenner(Slave, 2);
    erkenner.Verarbeite(Bytes({Slave, 0x83}));
    EXPECT_EQ(erkenner.MindestensNoch(), 9U);
}

TEST(ErkennerTest, A_read_reply_that_lacks_its_last_byte_is_not_finished) {
    LeseErkenner erkenner(Slave, 2);
    const std::string antwort = LeseAntwort();
    EXPECT_TRUE(erkenner.Verarbeite(antwort.substr(0, antwort.size() - 1)));
    EXPECT_FALSE(erkenner.Fertig());
}

TEST(ErkennerTest, A_reply_after_a_stray_byte_fails_its_checksum) {
    LeseErkenner erkenner(Slave, 2);
    EXPECT_TRUE(erkenner.Verarbeite(Bytes({0x55}) + LeseAntwort()));
    EXPECT_TRUE(erkenner.Fertig());
    EXPECT_FALSE(erkenner.CrcStimmt());
}

TEST(ErkennerTest, An_exception_reply_is_not_taken_for_an_answer) {
    LeseErkenner erkenner(Slave, 2);
    EXPECT_TRUE(erkenner.Verarbeite(MitPruefsumme(Bytes({Slave, 0x83, 2}))));
    EXPECT_FALSE(erkenner.Fertig());
}

TEST(ErkennerTest, After_an_exception_reply_the_address_is_hunted_again) {
    LeseErkenner erkenner(Slave, 2);
    EXPECT_TRUE(erkenner.Verarbeite(Bytes({Slave, 0x83}) + LeseAntwort()));
    EXPECT_TRUE(erkenner.Fertig());
    EXPECT_FALSE(erkenner.CrcStimmt());
}

TEST(ErkennerTest, Ten_foreign_bytes_are_borne_and_the_eleventh_fails_a_read) {
    LeseErkenner erkenner(Slave, 2);
    EXPECT_TRUE(erkenner.Verarbeite(std::string(10, '\x7F')));
    EXPECT_FALSE(erkenner.Verarbeite(std::string(1, '\x7F')));
}

TEST(ErkennerTest, Ten_foreign_bytes_are_borne_and_the_eleventh_fails_a_write) {
    SchreibErkenner erkenner(Slave, 0x4084, 1);
    EXPECT_TRUE(erkenner.Verarbeite(std::string(10, '\x7F')));
    EXPECT_FALSE(erkenner.Verarbeite(std::string(1, '\x7F')));
}

TEST(ErkennerTest, Bytes_behind_the_checksum_are_ignored) {
    LeseErkenner erkenner(Slave, 2);
    EXPECT_TRUE(erkenner.Verarbeite(LeseAntwort() + std::string(20, '\x7F')));
    EXPECT_TRUE(Gueltig(erkenner));
    EXPECT_EQ(erkenner.Daten().size(), 4U);
}

TEST(ErkennerTest, A_reply_with_the_wrong_byte_count_is_not_recognised) {
    LeseErkenner erkenner(Slave, 3);
    EXPECT_TRUE(erkenner.Verarbeite(LeseAntwort().substr(0, 3)));
    EXPECT_FALSE(erkenner.Fertig());
}

TEST(ErkennerTest, A_read_of_no_register_expects_its_checksum_behind_the_byte_count) {
    LeseErkenner erkenner(Slave, 0);
    EXPECT_TRUE(erkenner.Verarbeite(MitPruefsumme(Bytes({Slave, 3, 0}))));
    EXPECT_TRUE(Gueltig(erkenner));
}

TEST(ErkennerTest, A_flipped_bit_at_any_place_is_never_accepted) {
    const std::string antwort = LeseAntwort();
    for (std::size_t bit = 0; bit < 8 * antwort.size(); ++bit) {
        std::string verfaelscht = antwort;
        verfaelscht[bit / 8] = static_cast<char>(verfaelscht[bit / 8] ^ (1 << (bit % 8)));
        LeseErkenner erkenner(Slave, 2);
        EXPECT_FALSE(erkenner.Verarbeite(verfaelscht) && Gueltig(erkenner)) << "bit " << bit;
    }
}

TEST(ErkennerTest, A_write_is_confirmed_by_the_echo_of_start_and_count) {
    SchreibErkenner erkenner(Slave, 0x4084, 1);
    EXPECT_TRUE(erkenner.Verarbeite(SchreibAntwort()));
    EXPECT_TRUE(Gueltig(erkenner));
}

TEST(ErkennerTest, An_echo_that_differs_in_any_byte_confirms_nothing) {
    for (std::size_t stelle = 2; stelle < 6; ++stelle) {
        std::string echo = SchreibAntwort().substr(0, 6);
        echo[stelle] = static_cast<char>(echo[stelle] + 1);
        SchreibErkenner erkenner(Slave, 0x4084, 1);
        EXPECT_TRUE(erkenner.Verarbeite(MitPruefsumme(echo)));
        EXPECT_FALSE(Gueltig(erkenner)) << "byte " << stelle;
    }
}

TEST(ErkennerTest, An_identification_gives_address_bytes_and_text) {
    Identifikation ident;
    IdentErkenner erkenner(ident);
    EXPECT_TRUE(erkenner.Verarbeite(IdentAntwort("\x01\x32"
                                                 "Name;4711")));
    EXPECT_TRUE(Gueltig(erkenner));
    EXPECT_EQ(ident.slaveAdresse, 9);
    EXPECT_EQ(ident.byte1, 1);
    EXPECT_EQ(ident.byte2, 0x32);
    EXPECT_EQ(erkenner.Text(), "Name;4711");
}

TEST(ErkennerTest, An_identification_of_one_byte_sets_only_the_first) {
    Identifikation ident;
    IdentErkenner erkenner(ident);
    EXPECT_TRUE(erkenner.Verarbeite(IdentAntwort("\x05")));
    EXPECT_TRUE(Gueltig(erkenner));
    EXPECT_EQ(ident.byte1, 5);
    EXPECT_EQ(ident.byte2, -1);
    EXPECT_EQ(erkenner.Text(), "");
}

TEST(ErkennerTest, An_identification_of_two_bytes_has_an_empty_text) {
    Identifikation ident;
    IdentErkenner erkenner(ident);
    EXPECT_TRUE(erkenner.Verarbeite(IdentAntwort("\x05\x06")));
    EXPECT_TRUE(Gueltig(erkenner));
    EXPECT_EQ(ident.byte2, 6);
    EXPECT_EQ(erkenner.Text(), "");
}

TEST(ErkennerTest, An_identification_without_data_is_valid_and_sets_neither_byte) {
    Identifikation ident;
    IdentErkenner erkenner(ident);
    EXPECT_TRUE(erkenner.Verarbeite(IdentAntwort("")));
    EXPECT_TRUE(Gueltig(erkenner));
    EXPECT_EQ(ident.byte1, -1);
}

TEST(ErkennerTest, An_identification_behind_stray_bytes_is_recognised) {
    Identifikation ident;
    IdentErkenner erkenner(ident);
    EXPECT_TRUE(erkenner.Verarbeite(Bytes({0x77, 0x66, 0x55}) + IdentAntwort("\x05\x06")));
    EXPECT_TRUE(Gueltig(erkenner));
    EXPECT_EQ(ident.slaveAdresse, 9);
}

TEST(ErkennerTest, More_than_ten_stray_bytes_fail_an_identification) {
    Identifikation ident;
    IdentErkenner erkenner(ident);
    EXPECT_TRUE(erkenner.Verarbeite(std::string(11, '\x7F')));
    EXPECT_FALSE(erkenner.Verarbeite(std::string(1, '\x7F')));
}

TEST(ErkennerTest, A_failed_identification_keeps_what_the_bytes_set_before) {
    Identifikation ident;
    IdentErkenner erkenner(ident);
    std::string antwort = IdentAntwort("\x05\x06");
    antwort.back() = static_cast<char>(antwort.back() ^ 1);
    EXPECT_TRUE(erkenner.Verarbeite(antwort));
    EXPECT_FALSE(Gueltig(erkenner));
    EXPECT_EQ(ident.slaveAdresse, 9);
    EXPECT_EQ(ident.byte1, 5);
}

TEST(ErkennerTest, Bytes_behind_the_reply_are_noticed) {
    LeseErkenner erkenner(Slave, 2);
    erkenner.Verarbeite(LeseAntwort());
    EXPECT_FALSE(erkenner.Ueberzaehlig());
    erkenner.Verarbeite("x");
    EXPECT_TRUE(erkenner.Ueberzaehlig());
}

TEST(ErkennerTest, An_identification_is_found_in_a_stream_and_taken_out_with_what_was_before_it) {
    std::string strom = LeseAntwort() + std::string(20, '\x11') + IdentAntwort("\x05\x06") + "rest";
    EXPECT_TRUE(NimmIdentAntwort(strom));
    EXPECT_EQ(strom, "rest");
}

TEST(ErkennerTest, An_identification_is_found_with_its_last_byte) {
    const std::string antwort = "x" + IdentAntwort("\x05\x06");
    for (std::size_t laenge = 0; laenge < antwort.size(); ++laenge) {
        std::string strom = antwort.substr(0, laenge);
        EXPECT_FALSE(NimmIdentAntwort(strom)) << laenge << " bytes";
        EXPECT_EQ(strom.size(), laenge);
    }
    std::string strom = antwort;
    EXPECT_TRUE(NimmIdentAntwort(strom));
}

TEST(ErkennerTest, Two_identifications_in_a_stream_are_found_one_after_the_other) {
    std::string strom = IdentAntwort("\x05\x06") + IdentAntwort("\x05\x06");
    EXPECT_TRUE(NimmIdentAntwort(strom));
    EXPECT_TRUE(NimmIdentAntwort(strom));
    EXPECT_FALSE(NimmIdentAntwort(strom));
}

TEST(ErkennerTest, An_identification_with_a_wrong_checksum_is_not_found_in_a_stream) {
    std::string strom = IdentAntwort("\x05\x06");
    strom.back() = static_cast<char>(strom.back() ^ 1);
    EXPECT_FALSE(NimmIdentAntwort(strom));
}

} // namespace varnoth
