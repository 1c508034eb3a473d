#include "transaktionen.h"

#include "geraetestand.h"
#include "pruefgeraet.h"
#include "schnittstelle.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace modModbus;
using namespace std::chrono_literals;
using pruefung::Bytes;
using pruefung::MitPruefsumme;
using pruefung::Stueck;

class TransaktionenTest : public testing::Test {
protected:
    TransaktionenTest() { modSchnittstelle::OpenCommPort(); }

    void Identifiziere() {
        pruefung::PruefGeraet geraet(port);
        ASSERT_EQ(RTUModeH11IndentifikationsAnforderung(), True);
        port.antworte = nullptr;
        port.gesendet.clear();
        umgebung.uhr += 10ms; // the request has left
    }
    void AntworteMit(const std::vector<Stueck>& stuecke) {
        port.antworte = [stuecke](const std::string&) { return stuecke; };
    }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefPort port{umgebung};
};

TEST_F(TransaktionenTest, A_silent_device_costs_one_second_and_gives_False) {
    Werte werte(1);
    const Zeit davor = umgebung.uhr;
    EXPECT_EQ(RTUModeH03LeseAnforderung(0, 1, werte), False);
    EXPECT_EQ(umgebung.uhr - davor, 1000ms + 2ms);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(TransaktionenTest, A_closed_port_costs_as_much_as_a_silent_device) {
    modSchnittstelle::CloseCommPort();
    Werte werte(1);
    const Zeit davor = umgebung.uhr;
    EXPECT_EQ(RTUModeH03LeseAnforderung(0, 1, werte), False);
    EXPECT_GE(umgebung.uhr - davor, 1000ms);
}

TEST_F(TransaktionenTest, A_read_gives_the_registers) {
    Identifiziere();
    AntworteMit({{0ms, MitPruefsumme(Bytes({1, 3, 4, 0x12, 0x34, 0xFF, 0xFE}))}});
    Werte werte(2);
    EXPECT_EQ(RTUModeH03LeseAnforderung(0x2000, 2, werte), True);
    EXPECT_EQ(werte, (Werte{0x1234, 0xFFFE}));
}

TEST_F(TransaktionenTest, A_reply_in_pieces_with_gaps_under_one_second_is_assembled) {
    Identifiziere();
    const std::string antwort = MitPruefsumme(Bytes({1, 3, 2, 0x12, 0x34}));
    AntworteMit({{0ms, antwort.substr(0, 2)}, {900ms, antwort.substr(2, 3)}, {1800ms, antwort.substr(5)}});
    Werte werte(1);
    EXPECT_EQ(RTUModeH03LeseAnforderung(0, 1, werte), True);
    EXPECT_EQ(werte, (Werte{0x1234}));
}

TEST_F(TransaktionenTest, A_reply_at_the_lines_pace_is_looked_for_when_it_begins_and_when_it_can_end) {
    Identifiziere();
    constexpr Zeit Zeichen = 287us; // eleven bits at 38400 baud
    constexpr int Anforderung = 8;
    const std::string antwort = MitPruefsumme(Bytes({1, 3, 64}) + std::string(64, '\x5A'));
    std::vector<Stueck> stuecke;
    for (int i = 0; i < static_cast<int>(antwort.size()); ++i)
        stuecke.push_back({(Anforderung + 1 + i) * Zeichen, antwort.substr(static_cast<std::size_t>(i), 1)});
    AntworteMit(stuecke);
    Werte werte(32);
    umgebung.gewartet.clear();
    EXPECT_EQ(RTUModeH03LeseAnforderung(0x2000, 32, werte), True);
    EXPECT_EQ(umgebung.uhr - port.sendezeiten.back(), stuecke.back().nach) << "it ends with its last byte";
    EXPECT_LE(umgebung.gewartet.size() + port.geschlafen.size(), 15U) << "not once for each of 69 bytes";
}

TEST_F(TransaktionenTest, A_reply_at_the_lines_pace_that_stops_ends_a_second_after_its_last_byte) {
    Identifiziere();
    AntworteMit({{4ms, Bytes({1, 3, 64})}, {5ms, Bytes({0})}});
    Werte werte(32);
    EXPECT_EQ(RTUModeH03LeseAnforderung(0x2000, 32, werte), False);
    const Zeit gedauert = umgebung.uhr - port.sendezeiten.back();
    EXPECT_GE(gedauert, 5ms + 1000ms);
    EXPECT_LE(gedauert, 5ms + 1000ms + 5ms);
}

TEST_F(TransaktionenTest, A_second_of_silence_inside_a_reply_ends_the_transaction) {
    Identifiziere();
    const std::string antwort = MitPruefsumme(Bytes({1, 3, 2, 0x12, 0x34}));
    AntworteMit({{0ms, antwort.substr(0, 2)}, {1100ms, antwort.substr(2)}});
    Werte werte(1);
    EXPECT_EQ(RTUModeH03LeseAnforderung(0, 1, werte), False);
}

TEST_F(TransaktionenTest, A_reply_with_a_wrong_checksum_changes_no_value) {
    Identifiziere();
    std::string antwort = MitPruefsumme(Bytes({1, 3, 2, 0x12, 0x34}));
    antwort.back() = static_cast<char>(antwort.back() ^ 1);
    AntworteMit({{0ms, antwort}});
    Werte werte{77};
    EXPECT_EQ(RTUModeH03LeseAnforderung(0, 1, werte), False);
    EXPECT_EQ(werte, (Werte{77}));
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(TransaktionenTest, An_exception_reply_ends_in_a_timeout) {
    Identifiziere();
    AntworteMit({{0ms, MitPruefsumme(Bytes({1, 0x83, 2}))}});
    Werte werte(1);
    const Zeit davor = umgebung.uhr;
    EXPECT_EQ(RTUModeH03LeseAnforderung(0, 1, werte), False);
    EXPECT_EQ(umgebung.uhr - davor, 1000ms + 2ms);
}

TEST_F(TransaktionenTest, Eleven_foreign_bytes_fail_at_once) {
    Identifiziere();
    AntworteMit({{0ms, std::string(11, '\x7F')}});
    Werte werte(1);
    const Zeit davor = umgebung.uhr;
    EXPECT_EQ(RTUModeH03LeseAnforderung(0, 1, werte), False);
    EXPECT_EQ(umgebung.uhr - davor, 2ms);
}

TEST_F(TransaktionenTest, A_read_of_no_register_succeeds_on_an_empty_reply) {
    Identifiziere();
    AntworteMit({{0ms, MitPruefsumme(Bytes({1, 3, 0}))}});
    Werte werte;
    EXPECT_EQ(RTUModeH03LeseAnforderung(0, 0, werte), True);
}

TEST_F(TransaktionenTest, Before_any_identification_a_read_goes_to_address_255) {
    EXPECT_EQ(GetSlaveAdresse(), -1);
    Werte werte(1);
    RTUModeH03LeseAnforderung(0, 1, werte);
    ASSERT_EQ(port.gesendet.size(), 1U);
    EXPECT_EQ(port.gesendet[0], MitPruefsumme(Bytes({0xFF, 3, 0, 0, 0, 1})));
}

TEST_F(TransaktionenTest,
       An_array_that_is_too_small_shows_the_error_under_the_procedures_name_and_keeps_its_values) {
    Identifiziere();
    AntworteMit({{0ms, MitPruefsumme(Bytes({1, 3, 4, 0, 1, 0, 2}))}});
    Werte werte{77};
    EXPECT_EQ(RTUModeH03LeseAnforderung(0, 2, werte), False);
    EXPECT_EQ(werte, Werte{77});
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].titel, "RTUModeH03LeseAnforderung()");
    EXPECT_NE(umgebung.meldungen[0].text, "");
}

TEST_F(TransaktionenTest, Too_few_values_to_write_show_the_error_under_the_procedures_name) {
    EXPECT_EQ(RTUModeH10SchreibenAnforderung(0, 2, {1}), False);
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].titel, "RTUModeH10SchreibenAnforderung()");
    EXPECT_TRUE(port.gesendet.empty());
}

TEST_F(TransaktionenTest, A_write_succeeds_on_its_echo) {
    Identifiziere();
    AntworteMit({{0ms, MitPruefsumme(Bytes({1, 0x10, 0, 212, 0, 1}))}});
    EXPECT_EQ(RTUModeH10SchreibenAnforderung(212, 1, {3}), True);
    EXPECT_EQ(port.gesendet.at(0), MitPruefsumme(Bytes({1, 0x10, 0, 212, 0, 1, 2, 0, 3})));
}

TEST_F(TransaktionenTest, An_identification_fills_the_record) {
    pruefung::PruefGeraet geraet(port);
    geraet.slaveAdresse = 42;
    geraet.identtext = "Varnoth;4711;(C) 2009";
    EXPECT_EQ(RTUModeH11IndentifikationsAnforderung(), True);
    EXPECT_EQ(GetIdentGueltig(), True);
    EXPECT_EQ(GetSlaveAdresse(), 42);
    EXPECT_EQ(GetIdentByte1(), 7);
    EXPECT_EQ(GetIdentByte2(), 50);
    EXPECT_EQ(GetIdentText1(), "Varnoth");
    EXPECT_EQ(GetIdentText2(), "4711");
    EXPECT_EQ(GetIdentText3(), "(C) 2009");
}

TEST_F(TransaktionenTest, What_another_controller_held_does_not_count_once_this_one_has_named_itself) {
    modGeraetestand::MerkeGelesen({}, "4711");
    pruefung::PruefGeraet geraet(port);
    ASSERT_EQ(RTUModeH11IndentifikationsAnforderung(), True);
    EXPECT_TRUE(modGeraetestand::HoleGeraetestand());
    geraet.identtext = "Varnoth;4712;(C)";
    ASSERT_EQ(RTUModeH11IndentifikationsAnforderung(), True);
    EXPECT_FALSE(modGeraetestand::HoleGeraetestand());
}

TEST_F(TransaktionenTest, A_text_of_two_fields_leaves_the_third_empty) {
    pruefung::PruefGeraet geraet(port);
    geraet.identtext = "Varnoth;4711";
    EXPECT_EQ(RTUModeH11IndentifikationsAnforderung(), True);
    EXPECT_EQ(GetIdentText1(), "Varnoth");
    EXPECT_EQ(GetIdentText2(), "4711");
    EXPECT_EQ(GetIdentText3(), "");
}

TEST_F(TransaktionenTest, A_failed_identification_empties_the_record_and_stays_invalid) {
    Identifiziere();
    std::string antwort = MitPruefsumme(Bytes({9, 0x11, 2, 5, 6}));
    antwort.back() = static_cast<char>(antwort.back() ^ 1);
    AntworteMit({{0ms, antwort}});
    EXPECT_EQ(RTUModeH11IndentifikationsAnforderung(), False);
    EXPECT_EQ(GetIdentGueltig(), False);
    EXPECT_EQ(GetSlaveAdresse(), 9);
    EXPECT_EQ(GetIdentText1(), "");
}

TEST_F(TransaktionenTest, What_arrived_before_the_request_is_discarded) {
    Identifiziere();
    port.eingang = MitPruefsumme(Bytes({1, 3, 2, 0, 99}));
    AntworteMit({{0ms, MitPruefsumme(Bytes({1, 3, 2, 0, 5}))}});
    Werte werte(1);
    EXPECT_EQ(RTUModeH03LeseAnforderung(0, 1, werte), True);
    EXPECT_EQ(werte, (Werte{5}));
}

TEST_F(TransaktionenTest, Control_values_are_written_on_a_port_of_their_own_when_identified) {
    Identifiziere();
    modSchnittstelle::CloseCommPort();
    SchreibeSteuerwert4();
    SchreibeSteuerwert2();
    ASSERT_EQ(port.gesendet.size(), 2U);
    EXPECT_EQ(port.gesendet[0], MitPruefsumme(Bytes({1, 0x10, 0x40, 0x84, 0, 1, 2, 0, 4})));
    EXPECT_EQ(port.gesendet[1], MitPruefsumme(Bytes({1, 0x10, 0x40, 0x84, 0, 1, 2, 0, 2})));
    EXPECT_FALSE(port.offen);
}

TEST_F(TransaktionenTest, A_control_value_waits_for_nobody_when_the_port_cannot_be_opened) {
    Identifiziere();
    port.oeffnenGelingt = false;
    const Zeit davor = umgebung.uhr;
    SchreibeSteuerwert4();
    EXPECT_EQ(umgebung.uhr, davor);
}

TEST_F(TransaktionenTest, Without_an_identification_no_wrapper_sends_anything) {
    SchreibeSteuerwert4();
    SchreibeSteuerwert2();
    EXPECT_EQ(SendeFunktion09Kommando(), True);
    EXPECT_TRUE(port.gesendet.empty());
}

TEST_F(TransaktionenTest, The_command_frame_is_waited_for_until_it_has_left_and_no_longer) {
    Identifiziere();
    const Zeit davor = umgebung.uhr;
    EXPECT_EQ(SendeFunktion09Kommando(), True);
    EXPECT_EQ(port.gesendet.at(0), MitPruefsumme(Bytes({1, 9})));
    EXPECT_EQ(umgebung.uhr - davor, 2ms + 1146us) << "four characters of eleven bits";
    EXPECT_EQ(port.geleert.back().first, port.geschlossenUm);
    EXPECT_FALSE(port.offen);
}

TEST_F(TransaktionenTest, The_command_frame_goes_out_on_a_cleared_port) {
    Identifiziere();
    const int geleert = port.verworfen;
    int beimSenden = 0;
    port.antworte = [&](const std::string&) {
        beimSenden = port.verworfen - geleert;
        return std::vector<Stueck>{};
    };
    SendeFunktion09();
    EXPECT_EQ(beimSenden, 1);
}

TEST_F(TransaktionenTest, A_line_that_came_back_is_used_by_the_next_transaction) {
    pruefung::PruefGeraet geraet(port);
    port.offen = false;
    EXPECT_EQ(RTUModeH11IndentifikationsAnforderung(), True);
}

} // namespace varnoth
