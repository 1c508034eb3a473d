#include "qtseriellerport.h"

#include "fenstertest.h"
#include "porttest.h"
#include "texte.h"

#include <QCoreApplication>
#include <QTimer>
#include <gtest/gtest.h>

#include <pty.h>
#include <sys/resource.h>

namespace varnoth {

using namespace std::chrono_literals;
using pruefung::Standard;
using pruefung::WarteBis;

using QtSeriellerPortTest = pruefung::PortTest;

namespace {

double Prozessorsekunden() {
    rusage verbrauch{};
    getrusage(RUSAGE_SELF, &verbrauch);
    const auto sekunden = [](const timeval& zeit) {
        return static_cast<double>(zeit.tv_sec) + static_cast<double>(zeit.tv_usec) / 1e6;
    };
    return sekunden(verbrauch.ru_utime) + sekunden(verbrauch.ru_stime);
}

} // namespace

TEST_F(QtSeriellerPortTest, Opens_a_pseudo_terminal_although_it_has_no_modem_lines) {
    EXPECT_TRUE(port.Oeffne(1, Standard));
    EXPECT_TRUE(port.IstOffen());
    EXPECT_EQ(port.Fehlertext(), "");
}

TEST_F(QtSeriellerPortTest, Bytes_go_out_whole_and_at_once) {
    port.Oeffne(1, Standard);
    const std::string bytes("\x00\x11\xC1\xBC\n\r\xFF", 7);
    port.Schreibe(bytes);
    EXPECT_EQ(Empfange(bytes.size()), bytes);
}

TEST_F(QtSeriellerPortTest, Bytes_come_in_as_they_are) {
    port.Oeffne(1, Standard);
    const std::string bytes("\x00\x03\x11\x13\n\r\xFF", 7);
    Sende(bytes);
    EXPECT_TRUE(WarteBis([&] { return port.BytesWartend() == bytes.size(); }));
    EXPECT_EQ(port.LiesAlles(), bytes);
    EXPECT_EQ(port.BytesWartend(), 0U);
}

TEST_F(QtSeriellerPortTest, A_wait_ends_when_bytes_arrive) {
    port.Oeffne(1, Standard);
    Sende("x");
    const Zeit beginn = umgebung.Uhr();
    while (port.BytesWartend() == 0 && umgebung.Uhr() - beginn < 10s)
        port.WarteAufEingang(10s);
    EXPECT_LT(umgebung.Uhr() - beginn, 5s);
}

TEST_F(QtSeriellerPortTest, Bytes_taken_up_while_events_ran_come_before_those_that_arrived_later) {
    port.Oeffne(1, Standard);
    Sende("first");
    EXPECT_TRUE(WarteBis([&] { return port.BytesWartend() == 5; }));
    QCoreApplication::processEvents();
    Sende("second");
    EXPECT_TRUE(WarteBis([&] { return port.BytesWartend() == 11; }));
    EXPECT_EQ(port.LiesAlles(), "firstsecond");
}

TEST_F(QtSeriellerPortTest, Sending_leaves_window_events_to_their_turn_where_nothing_was_put_off) {
    port.Oeffne(1, Standard);
    bool gelaufen = false;
    QTimer::singleShot(0, [&gelaufen] { gelaufen = true; });
    port.Schreibe("request");
    EXPECT_FALSE(gelaufen);
    const Zeit beginn = umgebung.Uhr();
    while (!gelaufen && umgebung.Uhr() - beginn < 10s)
        port.WarteAufEingang(10s);
    EXPECT_TRUE(gelaufen);
}

TEST_F(QtSeriellerPortTest, Window_events_are_served_while_nothing_arrives) {
    port.Oeffne(1, Standard);
    bool gelaufen = false;
    QTimer::singleShot(20, [&gelaufen] { gelaufen = true; });
    const Zeit beginn = umgebung.Uhr();
    while (!gelaufen && umgebung.Uhr() - beginn < 10s)
        port.WarteAufEingang(10s);
    EXPECT_TRUE(gelaufen);
}

TEST_F(QtSeriellerPortTest, Window_events_are_served_while_bytes_keep_arriving) {
    port.Oeffne(1, Standard);
    bool gelaufen = false;
    QTimer::singleShot(20, [&gelaufen] { gelaufen = true; });
    const Zeit beginn = umgebung.Uhr();
    while (!gelaufen && umgebung.Uhr() - beginn < 10s) {
        port.LiesAlles();
        port.WarteAufEingang(10s);
        Sende("x");
    }
    EXPECT_TRUE(gelaufen);
}

TEST_F(QtSeriellerPortTest, A_sleep_passes_over_bytes_that_arrive) {
    port.Oeffne(1, Standard);
    port.Schreibe("request");
    Sende("x");
    const Zeit beginn = umgebung.Uhr();
    port.Schlafe(2ms);
    EXPECT_GE(umgebung.Uhr() - beginn, 2ms);
}

TEST_F(QtSeriellerPortTest, A_long_sleep_ends_soon_after_the_window_had_its_turn) {
    port.Oeffne(1, Standard);
    port.Schreibe("request");
    Sende("x");
    bool gelaufen = false;
    QTimer::singleShot(0, [&gelaufen] { gelaufen = true; });
    const Zeit beginn = umgebung.Uhr();
    port.Schlafe(10s);
    EXPECT_TRUE(gelaufen);
    EXPECT_LT(umgebung.Uhr() - beginn, 5s);
}

TEST_F(QtSeriellerPortTest, What_was_put_off_is_done_once_a_request_is_out) {
    port.Oeffne(1, Standard);
    bool gelaufen = false;
    umgebung.FuerWartezeit([&gelaufen] { gelaufen = true; });
    umgebung.LasseEreignisseLaufen();
    EXPECT_FALSE(gelaufen);
    port.Schreibe("request");
    EXPECT_TRUE(gelaufen);
}

TEST_F(QtSeriellerPortTest, A_sender_whose_bytes_have_left_is_empty) {
    EXPECT_TRUE(port.LeereSender(1s)) << "a closed one has nothing to send";
    port.Oeffne(1, Standard);
    port.Schreibe("request");
    EXPECT_TRUE(port.LeereSender(1s));
}

TEST_F(QtSeriellerPortTest, Discarding_leaves_nothing_to_read) {
    port.Oeffne(1, Standard);
    Sende("old");
    EXPECT_TRUE(WarteBis([&] { return port.BytesWartend() == 3; }));
    port.Verwirf();
    EXPECT_EQ(port.BytesWartend(), 0U);
    EXPECT_EQ(port.LiesAlles(), "");
}

TEST_F(QtSeriellerPortTest, Settings_that_cannot_be_understood_keep_the_port_closed) {
    for (const char* text : {"abc", "38400,x,9,7", ""}) {
        EXPECT_FALSE(port.Oeffne(1, text)) << text;
        EXPECT_FALSE(port.IstOffen());
        EXPECT_TRUE(port.Fehlertext().starts_with("„" + std::string(text) + "“ ist kein Leitungsformat."))
            << text;
    }
    EXPECT_TRUE(port.Oeffne(1, Standard));
    EXPECT_EQ(port.Fehlertext(), "");
}

TEST_F(QtSeriellerPortTest, A_device_that_does_not_exist_keeps_the_port_closed_and_says_why) {
    SetzeGeraetepfad("/dev/there-is-no-such-line");
    EXPECT_FALSE(port.Oeffne(1, Standard));
    EXPECT_EQ(port.Fehlertext(), "Datei oder Ordner ist nicht vorhanden.");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(port.Fehlertext(), "The file or folder does not exist.");
}

TEST_F(QtSeriellerPortTest, A_port_number_without_a_device_keeps_the_port_closed) {
    SetzeGeraetepfad({});
    EXPECT_FALSE(port.Oeffne(7, Standard));
}

TEST_F(QtSeriellerPortTest, A_line_that_disappears_closes_the_port) {
    port.Oeffne(1, Standard);
    ZieheAb();
    EXPECT_TRUE(WarteBis([&] { return !port.IstOffen(); }));
    port.Schreibe("x");
    EXPECT_EQ(port.BytesWartend(), 0U);
    EXPECT_EQ(port.LiesAlles(), "");
}

TEST_F(QtSeriellerPortTest, A_line_that_disappears_is_noticed_without_serving_an_event) {
    port.Oeffne(1, Standard);
    ZieheAb();
    EXPECT_FALSE(port.IstOffen());
}

TEST_F(QtSeriellerPortTest, Waiting_on_a_line_that_disappeared_costs_next_to_no_processor_time) {
    port.Oeffne(1, Standard);
    ZieheAb();
    const double vorher = Prozessorsekunden();
    const Zeit ende = umgebung.Uhr() + 500ms;
    while (umgebung.Uhr() < ende)
        port.WarteAufEingang(ende - umgebung.Uhr());
    EXPECT_LT(Prozessorsekunden() - vorher, 0.1);
}

TEST_F(QtSeriellerPortTest, A_port_can_be_opened_again_after_its_line_came_back) {
    port.Oeffne(1, Standard);
    ZieheAb();
    EXPECT_FALSE(port.IstOffen());
    char name[128];
    ASSERT_EQ(openpty(&fernesEnde, &nahesEnde, name, nullptr, nullptr), 0);
    SetzeGeraetepfad(name);
    EXPECT_TRUE(port.Oeffne(1, Standard));
}

TEST_F(QtSeriellerPortTest, A_full_input_buffer_is_reported_as_an_overflow) {
    int gemeldet = 0;
    port.SetzeEreignisbehandlung([&](int ereignis) {
        gemeldet = ereignis;
        port.Verwirf();
    });
    port.Oeffne(1, Standard);
    std::size_t gesendet = 0;
    const std::string stueck(1024, 'x');
    EXPECT_TRUE(WarteBis([&] {
        if (gesendet < 2 * Eingabepuffergroesse) {
            Sende(stueck);
            gesendet += stueck.size();
        }
        return gemeldet != 0;
    }));
    EXPECT_EQ(gemeldet, EreignisEmpfangspufferUeberlauf);
}

} // namespace varnoth
