#include "schnittstelle.h"

#include "pruefport.h"
#include "trace.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace varnoth {

using namespace modSchnittstelle;
using namespace std::chrono_literals;

class SchnittstelleTest : public testing::Test {
protected:
    pruefung::PruefUmgebung umgebung;
    pruefung::PruefPort port{umgebung};
};

TEST_F(SchnittstelleTest, Opens_the_chosen_port_with_the_chosen_settings) {
    SetzeComPort(3);
    SetzeComSettings("9600,e,8,1");
    OpenCommPort();
    ASSERT_EQ(port.geoeffnet.size(), 1U);
    EXPECT_EQ(port.geoeffnet[0], (std::pair<int, std::string>{3, "9600,e,8,1"}));
    EXPECT_EQ(GetPortIstOffen(), True);
}

TEST_F(SchnittstelleTest, Empty_settings_stand_for_the_standard) {
    SetzeComSettings("");
    OpenCommPort();
    EXPECT_EQ(port.geoeffnet[0], (std::pair<int, std::string>{1, "38400,n,8,2"}));
}

TEST_F(SchnittstelleTest, A_named_device_is_known_to_the_port_in_use_and_to_one_that_is_fitted_in_later) {
    SetzeGeraet("/dev/named");
    EXPECT_EQ(port.genanntes, "/dev/named");
    EXPECT_EQ(GetAnschluss().geraet, "/dev/named");
    port.genanntes.clear();
    SetzePort(&port);
    EXPECT_EQ(port.genanntes, "/dev/named");
    SetzeGeraet("");
    EXPECT_EQ(port.genanntes, "");
    EXPECT_EQ(GetGeraet(), "");
}

TEST_F(SchnittstelleTest, Opening_an_open_port_closes_it_first) {
    OpenCommPort();
    OpenCommPort();
    EXPECT_EQ(port.geschlossen, 1);
    EXPECT_EQ(port.geoeffnet.size(), 2U);
}

TEST_F(SchnittstelleTest, Nobody_sleeps_through_a_reply_of_unknown_pace_or_on_a_closed_port) {
    OpenCommPort();
    CommPortWriteOutput("request");
    WarteAufRest(40);
    EXPECT_TRUE(port.geschlafen.empty()) << "nothing has come yet";
    umgebung.uhr += 20ms;
    port.eingang = "x";
    CommPortReadInput();
    port.offen = false;
    WarteAufRest(40);
    EXPECT_TRUE(port.geschlafen.empty()) << "the line is gone";
    port.offen = true;
    WarteAufRest(40);
    EXPECT_EQ(port.geschlafen.size(), 1U) << "the pace is known now";
}

TEST_F(SchnittstelleTest, Opening_discards_what_was_waiting) {
    port.eingang = "old";
    OpenCommPort();
    EXPECT_EQ(CommPortBytesAvailable(), 0);
}

TEST_F(SchnittstelleTest, Clearing_lets_window_events_run_before_and_after_the_discarded_read) {
    OpenCommPort();
    const int bisher = umgebung.ereignisrunden;
    std::vector<std::string> nochDa;
    umgebung.beiEreignissen = [&] {
        nochDa.push_back(port.eingang);
        port.eingang = "came meanwhile";
    };
    ClearCommPort();
    EXPECT_EQ(umgebung.ereignisrunden - bisher, 2);
    EXPECT_EQ(nochDa, (std::vector<std::string>{"", ""}));
}

TEST_F(SchnittstelleTest, A_port_that_cannot_be_opened_stays_closed_without_a_message) {
    port.oeffnenGelingt = false;
    OpenCommPort();
    EXPECT_EQ(GetPortIstOffen(), False);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(SchnittstelleTest, A_write_soon_after_a_read_waits_until_two_milliseconds_have_passed) {
    OpenCommPort();
    umgebung.uhr += 5ms;
    CommPortReadInput();
    umgebung.uhr += 500us;
    const Zeit gelesen = umgebung.uhr - 500us;
    CommPortWriteOutput("x");
    ASSERT_EQ(port.sendezeiten.size(), 1U);
    EXPECT_EQ(port.sendezeiten[0] - gelesen, 2ms);
}

TEST_F(SchnittstelleTest, A_write_soon_after_a_clear_waits_until_two_milliseconds_have_passed) {
    OpenCommPort();
    umgebung.uhr += 5ms;
    ClearCommPort();
    const Zeit geleert = umgebung.uhr;
    CommPortWriteOutput("x");
    EXPECT_EQ(port.sendezeiten.at(0) - geleert, 2ms);
}

TEST_F(SchnittstelleTest, A_write_right_after_a_write_is_not_delayed) {
    OpenCommPort();
    CommPortWriteOutput("x");
    const Zeit davor = umgebung.uhr;
    CommPortWriteOutput("y");
    EXPECT_EQ(port.sendezeiten.at(1), davor);
}

TEST_F(SchnittstelleTest, With_the_port_closed_nothing_is_read_written_or_traced) {
    const auto datei = std::filesystem::temp_directory_path() / "varnoth-schnittstelle-geschlossen.txt";
    modTrace::Starte(datei);
    const auto groesse = std::filesystem::file_size(datei);
    port.eingang = "bytes";
    EXPECT_EQ(CommPortReadInput(), "");
    CommPortWriteOutput("x");
    EXPECT_TRUE(port.gesendet.empty());
    modTrace::Schliesse();
    EXPECT_EQ(std::filesystem::file_size(datei), groesse);
    std::filesystem::remove(datei);
}

TEST_F(SchnittstelleTest, Waiting_ends_as_soon_as_a_byte_has_arrived) {
    OpenCommPort();
    umgebung.Plane(umgebung.uhr + 300ms, [&] { port.eingang = "x"; });
    const Zeit davor = umgebung.uhr;
    WarteAufZeichen(1000, True);
    EXPECT_EQ(umgebung.uhr - davor, 300ms);
    EXPECT_EQ(CommPortBytesAvailable(), 1);
}

TEST_F(SchnittstelleTest, Waiting_without_a_byte_ends_when_the_time_is_up) {
    OpenCommPort();
    const Zeit davor = umgebung.uhr;
    WarteAufZeichen(1000, True);
    EXPECT_EQ(umgebung.uhr - davor, 1000ms);
}

TEST_F(SchnittstelleTest, An_event_during_the_wait_does_not_shorten_it) {
    OpenCommPort();
    int ereignisse = 0;
    umgebung.Plane(umgebung.uhr + 300ms, [&] { ++ereignisse; });
    const Zeit davor = umgebung.uhr;
    WarteAufZeichen(1000, True);
    EXPECT_EQ(ereignisse, 1);
    EXPECT_EQ(umgebung.uhr - davor, 1000ms);
}

TEST_F(SchnittstelleTest, With_tracing_off_a_timeout_changes_nothing_on_screen) {
    OpenCommPort();
    WarteAufZeichen(1000, True);
    EXPECT_EQ(umgebung.statustexte[0], "");
}

TEST_F(SchnittstelleTest, With_tracing_on_a_timeout_is_shown_in_the_first_panel) {
    const auto datei = std::filesystem::temp_directory_path() / "varnoth-schnittstelle-trace.txt";
    modTrace::Starte(datei);
    OpenCommPort();
    WarteAufZeichen(1000, True);
    EXPECT_EQ(umgebung.statustexte[0], "Zeitüberschreitung, kein Zeichen empfangen. (Nur zum Testen)");
    modTrace::Schliesse();
    std::filesystem::remove(datei);
}

TEST_F(SchnittstelleTest, The_trace_has_a_clear_a_sent_frame_what_was_read_and_a_timeout_in_their_order) {
    const auto datei = std::filesystem::temp_directory_path() / "varnoth-schnittstelle-reihenfolge.txt";
    modTrace::Starte(datei);
    OpenCommPort();
    CommPortWriteOutput({"\x01\x03\xFF", 3});
    port.eingang = "\x01";
    CommPortReadInput();
    WarteAufZeichen(1000, True);
    modTrace::Schliesse();
    std::ifstream strom(datei, std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(strom), {}),
              "Start\r\nClearCommPort, Read: \r\nWrite: 1H 3H FFH \r\nRead: 1H \r\nZeit\xFC"
              "berschreitung\r\n");
    strom.close();
    std::filesystem::remove(datei);
}

TEST_F(SchnittstelleTest, Closing_waits_until_what_was_sent_has_left_the_line_and_the_system) {
    SetzeComSettings("1200,n,8,2");
    OpenCommPort();
    umgebung.uhr += 5ms;
    const Zeit gesendet = umgebung.uhr;
    CommPortWriteOutput("1234");
    CloseCommPort();
    ASSERT_EQ(port.geleert.size(), 1U);
    EXPECT_EQ((port.geleert[0].first - gesendet) / 1ms, 36) << "four characters of eleven bits";
    EXPECT_EQ(port.geschlossen, 1);
    EXPECT_EQ(port.geschlossenUm, port.geleert[0].first);
}

TEST_F(SchnittstelleTest, Closing_waits_for_what_was_sent_a_second_at_most) {
    SetzeComSettings("110,n,8,2");
    OpenCommPort();
    umgebung.uhr += 5ms;
    const Zeit gesendet = umgebung.uhr;
    CommPortWriteOutput(std::string(100, 'x'));
    CloseCommPort();
    EXPECT_EQ(umgebung.uhr - gesendet, 1s);
    ASSERT_EQ(port.geleert.size(), 1U);
    EXPECT_EQ(port.geleert[0].second, 0s) << "nothing is left for the system";
    EXPECT_EQ(GetPortIstOffen(), False);
}

TEST_F(SchnittstelleTest, Closing_a_port_over_which_nothing_was_sent_waits_for_nothing) {
    OpenCommPort();
    const Zeit davor = umgebung.uhr;
    CloseCommPort();
    EXPECT_EQ(umgebung.uhr, davor);
    EXPECT_TRUE(port.geleert.empty());
}

TEST_F(SchnittstelleTest, Opening_anew_waits_for_what_was_sent_before) {
    OpenCommPort();
    CommPortWriteOutput("1234");
    OpenCommPort();
    EXPECT_EQ(port.geleert.size(), 1U);
}

TEST_F(SchnittstelleTest, An_overflow_of_the_receive_buffer_discards_the_input) {
    OpenCommPort();
    port.eingang = "too much";
    port.ereignisbehandlung(EreignisEmpfangspufferUeberlauf);
    EXPECT_EQ(CommPortBytesAvailable(), 0);
}

TEST_F(SchnittstelleTest, Other_port_events_are_ignored) {
    OpenCommPort();
    port.eingang = "bytes";
    for (const int ereignis : {1001, 1002, 1003, 1004, 1006, 1007, 1009, 1010})
        BehandleCommEreignis(ereignis);
    EXPECT_EQ(CommPortBytesAvailable(), 5);
}

TEST_F(SchnittstelleTest, A_port_whose_line_disappeared_is_opened_anew) {
    OpenCommPort();
    port.offen = false;
    HoleVerlorenenPortZurueck();
    EXPECT_EQ(GetPortIstOffen(), True);
    EXPECT_EQ(port.geoeffnet.size(), 2U);
}

TEST_F(SchnittstelleTest, A_port_that_was_closed_on_purpose_is_not_opened_anew) {
    OpenCommPort();
    CloseCommPort();
    HoleVerlorenenPortZurueck();
    EXPECT_EQ(GetPortIstOffen(), False);
    EXPECT_EQ(port.geoeffnet.size(), 1U);
}

TEST_F(SchnittstelleTest, Quiet_is_twenty_milliseconds_without_a_byte) {
    OpenCommPort();
    umgebung.uhr += 1s;
    port.eingang = "x";
    const Zeit davor = umgebung.uhr;
    for (const auto nach : {10ms, 25ms, 40ms})
        umgebung.Plane(davor + nach, [this] { port.eingang += 'x'; });
    WarteAufRuhe();
    EXPECT_EQ(umgebung.uhr - davor, 60ms);
    EXPECT_EQ(CommPortBytesAvailable(), 0);
}

TEST_F(SchnittstelleTest, A_line_that_is_quiet_already_needs_no_wait) {
    OpenCommPort();
    port.eingang = "x";
    CommPortReadInput();
    umgebung.uhr += 20ms;
    const Zeit davor = umgebung.uhr;
    WarteAufRuhe();
    EXPECT_EQ(umgebung.uhr, davor);
}

TEST_F(SchnittstelleTest, The_wait_for_quiet_ends_after_a_second) {
    OpenCommPort();
    umgebung.uhr += 1s;
    const Zeit davor = umgebung.uhr;
    port.eingang = "x";
    for (auto nach = 10ms; nach < 2s; nach += 10ms)
        umgebung.Plane(davor + nach, [this] { port.eingang += 'x'; });
    WarteAufRuhe();
    EXPECT_EQ(umgebung.uhr - davor, 1000ms);
}

} // namespace varnoth
