// The port of Windows on a real line, COM1, whose far end is told over the line itself what to do
// (tests/support/ferneende.py).

#include "windowsport.h"

#include "fenstertest.h"
#include "geraetepfade.h"
#include "pruefumgebung.h"
#include "qtumgebung.h"
#include "texte.h"

#include <QCoreApplication>
#include <QTimer>
#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <vector>

namespace varnoth {

using namespace std::chrono_literals;
using pruefung::WarteBis;

namespace {

constexpr const char* Standard = "38400,n,8,2";

} // namespace

class WindowsPortTest : public testing::Test {
protected:
    WindowsPortTest() { SetzeGeraetepfad("COM1"); }
    ~WindowsPortTest() override { port.Schliesse(); }

    /// Opens the port, for which the far end may just be putting another line in place of a lost one, and
    /// reads what a former test has left.
    void Oeffne() {
        ASSERT_TRUE(WarteBis([&] { return port.Oeffne(1, Standard); })) << port.Fehlertext();
        Sage("\nbegin"); // what a former test has not sent to its end is a line too
        std::string gelesen;
        ASSERT_TRUE(WarteBis([&] {
            gelesen += port.LiesAlles();
            return gelesen.ends_with("ready");
        }));
    }
    /// Tells the far end what to do.
    void Sage(const std::string& befehl) { port.Schreibe(befehl + "\n"); }
    void WarteAufBytes(std::size_t anzahl) {
        const Zeit beginn = umgebung.Uhr();
        while (port.BytesWartend() < anzahl && umgebung.Uhr() - beginn < 10s)
            port.WarteAufEingang(10s);
    }
    std::string Lies(std::size_t anzahl) {
        WarteAufBytes(anzahl);
        return port.LiesAlles();
    }
    /// How long something takes.
    template<class Tat>
    Zeit Dauer(Tat tat) {
        const Zeit beginn = umgebung.Uhr();
        tat();
        return umgebung.Uhr() - beginn;
    }

    QtUmgebung umgebung;
    pruefung::PruefEinstellungen einstellungen;
    WindowsPort port;
};

TEST_F(WindowsPortTest, Opens_a_line_and_says_so) {
    Oeffne();
    EXPECT_TRUE(port.IstOffen());
    EXPECT_EQ(port.Fehlertext(), "");
    EXPECT_EQ(port.BefundVon(1).hindernis, Hindernis::Keines);
    EXPECT_TRUE(port.BefundVon(1).benutzungUnbekannt);
}

TEST_F(WindowsPortTest, Bytes_go_out_and_come_in_whole_and_as_they_are) {
    Oeffne();
    Sage("say 0003111300ff0a0d3f");
    EXPECT_EQ(Lies(9), std::string("\x00\x03\x11\x13\x00\xFF\n\r?", 9));
    EXPECT_EQ(port.BytesWartend(), 0U);
    EXPECT_EQ(port.LiesAlles(), "");
}

TEST_F(WindowsPortTest, Bytes_keep_their_order_over_many_exchanges) {
    Oeffne();
    for (int i = 0; i < 50; ++i) {
        Sage("say 6162636465666768");
        ASSERT_EQ(Lies(8), "abcdefgh") << i;
    }
}

TEST_F(WindowsPortTest, A_wait_ends_when_bytes_arrive) {
    Oeffne();
    Sage("later 100 78");
    const Zeit gewartet = Dauer([&] { WarteAufBytes(1); });
    EXPECT_GE(gewartet, 50ms);
    EXPECT_LT(gewartet, 5s);
    EXPECT_EQ(port.LiesAlles(), "x");
}

TEST_F(WindowsPortTest, A_wait_without_bytes_lasts_its_time) {
    Oeffne();
    const Zeit ende = umgebung.Uhr() + 50ms;
    int gewartet = 0;
    for (; umgebung.Uhr() < ende; ++gewartet)
        port.WarteAufEingang(ende - umgebung.Uhr());
    EXPECT_LT(umgebung.Uhr() - ende, 500ms);
    EXPECT_LT(gewartet, 8) << "nothing but a byte or a message ends it";
}

TEST_F(WindowsPortTest, Window_events_are_served_while_nothing_arrives) {
    Oeffne();
    bool gelaufen = false;
    QTimer::singleShot(20, [&gelaufen] { gelaufen = true; });
    const Zeit gewartet = Dauer([&] {
        const Zeit beginn = umgebung.Uhr();
        while (!gelaufen && umgebung.Uhr() - beginn < 10s)
            port.WarteAufEingang(10s);
    });
    EXPECT_TRUE(gelaufen);
    EXPECT_LT(gewartet, 5s);
}

TEST_F(WindowsPortTest, Window_events_are_served_while_bytes_keep_arriving) {
    Oeffne();
    Sage("flood 20000");
    bool gelaufen = false;
    QTimer::singleShot(1, [&gelaufen] { gelaufen = true; });
    const Zeit beginn = umgebung.Uhr();
    while (!gelaufen && umgebung.Uhr() - beginn < 10s) {
        port.LiesAlles();
        port.WarteAufEingang(10s);
    }
    EXPECT_TRUE(gelaufen);
}

TEST_F(WindowsPortTest, A_sleep_passes_over_bytes_that_arrive) {
    Oeffne();
    Sage("say 78");
    WarteAufBytes(1);
    EXPECT_GE(Dauer([&] { port.Schlafe(2ms); }), 2ms);
}

TEST_F(WindowsPortTest, Discarding_leaves_nothing_to_read_and_what_comes_later_stays) {
    Oeffne();
    Sage("say 6f6c64");
    WarteAufBytes(3);
    port.Verwirf();
    EXPECT_EQ(port.BytesWartend(), 0U);
    Sage("say 6e6577");
    EXPECT_EQ(Lies(3), "new");
}

TEST_F(WindowsPortTest, A_sender_whose_bytes_have_left_is_empty) {
    EXPECT_TRUE(port.LeereSender(1s)) << "a closed one has nothing to send";
    Oeffne();
    Sage("say 78");
    EXPECT_TRUE(port.LeereSender(1s));
    EXPECT_EQ(Lies(1), "x");
}

TEST_F(WindowsPortTest, A_sender_that_cannot_get_rid_of_its_bytes_gives_up_in_time_and_forgets_them) {
    Oeffne();
    Sage("deaf 1500");
    ASSERT_EQ(Lies(4), "deaf");
    Sage(std::string(300000, 'x'));
    const Zeit gewartet = Dauer([&] { EXPECT_FALSE(port.LeereSender(100ms)); });
    EXPECT_GE(gewartet, 100ms);
    EXPECT_LT(gewartet, 1s);
    EXPECT_TRUE(port.IstOffen());
    EXPECT_TRUE(port.LeereSender(1s));
}

TEST_F(WindowsPortTest, What_was_put_off_is_done_once_a_request_is_out) {
    Oeffne();
    bool gelaufen = false;
    umgebung.FuerWartezeit([&gelaufen] { gelaufen = true; });
    umgebung.LasseEreignisseLaufen();
    EXPECT_FALSE(gelaufen);
    Sage("say 78");
    EXPECT_TRUE(gelaufen);
}

TEST_F(WindowsPortTest, A_line_that_disappears_closes_the_port_and_ends_a_wait) {
    Oeffne();
    Sage("hangup 100");
    const Zeit gewartet = Dauer([&] {
        const Zeit beginn = umgebung.Uhr();
        while (port.IstOffen() && umgebung.Uhr() - beginn < 10s)
            port.WarteAufEingang(10s);
    });
    EXPECT_FALSE(port.IstOffen());
    EXPECT_LT(gewartet, 5s);
    port.Schreibe("x");
    EXPECT_EQ(port.BytesWartend(), 0U);
    EXPECT_EQ(port.LiesAlles(), "");
    EXPECT_TRUE(port.LeereSender(1s));
}

TEST_F(WindowsPortTest, A_line_that_disappears_is_noticed_without_serving_an_event) {
    Oeffne();
    Sage("hangup 0");
    const Zeit beginn = umgebung.Uhr();
    while (port.IstOffen() && umgebung.Uhr() - beginn < 10s)
        port.Schlafe(1ms);
    EXPECT_FALSE(port.IstOffen());
}

TEST_F(WindowsPortTest, A_wait_on_a_line_that_disappeared_lasts_its_time) {
    Oeffne();
    Sage("hangup 0");
    const Zeit ende = umgebung.Uhr() + 500ms;
    int gewartet = 0;
    for (; umgebung.Uhr() < ende; ++gewartet)
        port.WarteAufEingang(ende - umgebung.Uhr());
    EXPECT_FALSE(port.IstOffen());
    EXPECT_LT(gewartet, 100) << "a wait that returns at once would be asked thousands of times";
}

TEST_F(WindowsPortTest, A_port_can_be_opened_again_after_its_line_came_back) {
    Oeffne();
    Sage("hangup 0");
    EXPECT_TRUE(WarteBis([&] { return !port.IstOffen(); }));
    Oeffne();
    Sage("say 6261636b");
    EXPECT_EQ(Lies(4), "back");
}

TEST_F(WindowsPortTest, A_full_input_buffer_is_reported_as_an_overflow) {
    Oeffne();
    int gemeldet = 0;
    port.SetzeEreignisbehandlung([&](int ereignis) {
        gemeldet = ereignis;
        port.Verwirf();
    });
    Sage("flood 60000");
    EXPECT_TRUE(WarteBis([&] { return port.BytesWartend() == 0 && gemeldet != 0; }));
    EXPECT_EQ(gemeldet, EreignisEmpfangspufferUeberlauf);
}

TEST_F(WindowsPortTest, A_device_that_does_not_exist_keeps_the_port_closed_and_says_why) {
    SetzeGeraetepfad("COM97");
    EXPECT_FALSE(port.Oeffne(1, Standard));
    EXPECT_FALSE(port.IstOffen());
    EXPECT_EQ(port.BefundVon(1).hindernis, Hindernis::Fehlt);
    EXPECT_EQ(port.Fehlertext(), "Datei oder Ordner ist nicht vorhanden.");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(port.Fehlertext(), "The file or folder does not exist.");
}

TEST_F(WindowsPortTest, A_port_number_without_a_device_keeps_the_port_closed) {
    SetzeGeraetepfad({});
    EXPECT_FALSE(port.Oeffne(7, Standard));
}

TEST_F(WindowsPortTest, Settings_that_cannot_be_understood_keep_the_port_closed) {
    EXPECT_FALSE(port.Oeffne(1, "38400,x,9,7"));
    EXPECT_TRUE(port.Fehlertext().starts_with("„38400,x,9,7“ ist kein Leitungsformat."));
    EXPECT_EQ(port.BefundVon(1).hindernis, Hindernis::Einstellung);
}

TEST_F(WindowsPortTest, What_is_no_serial_port_stays_closed_and_is_called_so) {
    SetzeGeraetepfad("NUL");
    EXPECT_FALSE(port.Oeffne(1, Standard));
    EXPECT_FALSE(port.IstOffen());
    EXPECT_EQ(port.BefundVon(1).hindernis, Hindernis::Systemfehler);
    EXPECT_EQ(port.Fehlertext(), "Das ist keine serielle Schnittstelle.");
}

TEST_F(WindowsPortTest, An_exchange_takes_some_milliseconds) {
    Oeffne();
    constexpr int Anzahl = 200;
    std::vector<Zeit> zeiten;
    for (int i = 0; i < Anzahl; ++i)
        zeiten.push_back(Dauer([&] {
            Sage("say 0102030405060708");
            Lies(8);
        }));
    std::ranges::sort(zeiten);
    std::cout << "exchange: median " << zeiten[Anzahl / 2].count() << " us, 95 % below "
              << zeiten[Anzahl * 95 / 100].count() << " us\n";
    EXPECT_LT(zeiten[Anzahl / 2], 100ms);
}

} // namespace varnoth
