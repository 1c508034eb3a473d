// Whose turn it is while somebody waits on a line: the rule that the ports of all systems share.

#include "leitungsport.h"

#include "pruefumgebung.h"

#include <gmock/gmock.h>

namespace varnoth {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

/// A line of which a test says what it does. Time passes only while it is slept on.
class Probeleitung : public Leitungsport {
public:
    explicit Probeleitung(pruefung::PruefUmgebung& welt) : umgebung(welt) {}

    void Schliesse() override { offen = false; }
    void Verwirf() override { imSystem = 0; }
    std::size_t BytesWartend() override { return gelesen + imSystem; }
    std::string LiesAlles() override { return {}; }
    bool LeereSender(Zeit /*hoechstens*/) override { return true; }

    bool OeffneLeitung(const std::string& pfad, const Porteinstellungen& einstellungen) override {
        geoeffnet.push_back(pfad + " " + std::to_string(einstellungen.baud));
        return offen = true;
    }
    std::string Oeffnungsfehler() const override { return "line failed"; }
    Hindernis Oeffnungshindernis() const override { return Hindernis::Belegt; }
    using Leitungsport::MeldeUeberlauf;
    bool IstAuf() const override { return offen; }
    bool LeitungIstWeg() override {
        ++fragen;
        return weg;
    }
    void Sende(std::string_view bytes) override { gesendet += bytes; }
    std::size_t BytesGelesen() const override { return gelesen; }
    std::size_t BytesImSystem() override { return imSystem; }
    bool KannFensterWarten() const override { return fensterKannWarten; }
    bool SchlafeAnDerLeitung(Zeit hoechstens) override {
        geschlafen.push_back(hoechstens);
        umgebung.uhr += std::min(hoechstens, Fensterblick);
        return !weg;
    }

    pruefung::PruefUmgebung& umgebung;
    bool offen = true;
    bool weg = false;
    bool fensterKannWarten = true;
    int fragen = 0;
    std::size_t gelesen = 0;
    std::size_t imSystem = 0;
    std::string gesendet;
    std::vector<Zeit> geschlafen;
    std::vector<std::string> geoeffnet;
};

} // namespace

class LeitungsportTest : public testing::Test {
protected:
    LeitungsportTest() { umgebung.uhr = 1s; }

    int Fensterblicke() const { return umgebung.ereignisrunden; }

    pruefung::PruefUmgebung umgebung;
    Probeleitung port{umgebung};
};

TEST_F(LeitungsportTest, The_device_that_is_named_is_opened_with_the_format_of_the_settings) {
    port.SetzeGeraet("a device");
    EXPECT_TRUE(port.Oeffne(2, "19200,e,8,1"));
    EXPECT_THAT(port.geoeffnet, ElementsAre("a device 19200"));
    EXPECT_EQ(port.Fehlertext(), "line failed");
}

TEST_F(LeitungsportTest, A_format_that_is_none_opens_nothing_and_is_told_until_the_next_opening) {
    port.SetzeGeraet("a device");
    EXPECT_FALSE(port.Oeffne(1, "fast"));
    EXPECT_FALSE(port.offen);
    EXPECT_THAT(port.geoeffnet, IsEmpty());
    EXPECT_THAT(port.Fehlertext(), HasSubstr("fast"));
    EXPECT_EQ(port.BefundVon(1).hindernis, Hindernis::Einstellung);
    EXPECT_TRUE(port.Oeffne(1, "38400,n,8,2"));
    EXPECT_EQ(port.Fehlertext(), "line failed");
    EXPECT_NE(port.BefundVon(1).hindernis, Hindernis::Einstellung);
}

TEST_F(LeitungsportTest, An_overflow_is_told_to_who_wants_to_hear_of_it) {
    port.MeldeUeberlauf();
    int gehoert = 0;
    port.SetzeEreignisbehandlung([&gehoert](int ereignis) { gehoert = ereignis; });
    port.MeldeUeberlauf();
    EXPECT_EQ(gehoert, EreignisEmpfangspufferUeberlauf);
}

TEST_F(LeitungsportTest, The_line_is_asked_once_a_millisecond_whether_it_is_still_there) {
    for (int i = 0; i < 5; ++i)
        EXPECT_TRUE(port.IstOffen());
    EXPECT_EQ(port.fragen, 1);
    umgebung.uhr += 1ms;
    EXPECT_TRUE(port.IstOffen());
    EXPECT_EQ(port.fragen, 2);
}

TEST_F(LeitungsportTest, A_line_that_is_gone_closes_the_port_and_is_not_asked_again) {
    port.weg = true;
    EXPECT_FALSE(port.IstOffen());
    EXPECT_FALSE(port.offen);
    umgebung.uhr += 1s;
    EXPECT_FALSE(port.IstOffen());
    EXPECT_EQ(port.fragen, 1);
}

TEST_F(LeitungsportTest, A_closed_port_sends_nothing_and_waits_with_the_events) {
    port.offen = false;
    port.Schreibe("request");
    EXPECT_EQ(port.gesendet, "");
    port.WarteAufEingang(7ms);
    EXPECT_THAT(umgebung.gewartet, ElementsAre(Zeit(7ms)));
    EXPECT_THAT(port.geschlafen, IsEmpty());
}

TEST_F(LeitungsportTest, Sending_leaves_the_window_to_its_turn_four_milliseconds_later) {
    port.Schreibe("request");
    EXPECT_EQ(port.gesendet, "request");
    EXPECT_EQ(Fensterblicke(), 0);
    port.WarteAufEingang(10s);
    EXPECT_EQ(Fensterblicke(), 0);
    EXPECT_THAT(port.geschlafen, ElementsAre(Zeit(10s)));
    port.WarteAufEingang(10s);
    EXPECT_EQ(Fensterblicke(), 1);
    port.WarteAufEingang(10s);
    EXPECT_EQ(Fensterblicke(), 2) << "and every four milliseconds from then on";
}

TEST_F(LeitungsportTest, A_wait_that_gave_the_window_its_turn_ends_soon) {
    port.WarteAufEingang(10s);
    port.WarteAufEingang(1ms);
    EXPECT_EQ(Fensterblicke(), 2);
    EXPECT_THAT(port.geschlafen, ElementsAre(Zeit(4ms), Zeit(1ms)));
}

TEST_F(LeitungsportTest, A_window_for_which_there_is_nothing_is_left_alone_and_the_line_slept_on) {
    port.fensterKannWarten = false;
    port.WarteAufEingang(10s);
    EXPECT_EQ(Fensterblicke(), 0);
    EXPECT_THAT(port.geschlafen, ElementsAre(Zeit(10s)));
    umgebung.FuerWartezeit([] {});
    port.WarteAufEingang(10s);
    EXPECT_EQ(Fensterblicke(), 1) << "but for what was put off";
}

TEST_F(LeitungsportTest, What_was_put_off_is_done_once_the_system_has_handed_the_request_on) {
    bool getan = false;
    umgebung.FuerWartezeit([&] {
        getan = true;
        EXPECT_THAT(port.geschlafen, ElementsAre(Zeit(200us)));
    });
    port.Schreibe("request");
    EXPECT_TRUE(getan);
}

TEST_F(LeitungsportTest, What_is_put_off_while_a_reply_comes_in_waits_for_the_next_request) {
    port.Schreibe("request");
    bool getan = false;
    umgebung.FuerWartezeit([&] { getan = true; });
    umgebung.uhr += 4ms;
    port.WarteAufEingang(10s);
    EXPECT_EQ(Fensterblicke(), 1);
    EXPECT_FALSE(getan);
    port.Schreibe("next");
    EXPECT_TRUE(getan);
}

TEST_F(LeitungsportTest, A_reply_that_takes_long_leaves_room_for_what_was_put_off) {
    port.Schreibe("request");
    bool getan = false;
    umgebung.FuerWartezeit([&] { getan = true; });
    umgebung.uhr += 49ms;
    port.WarteAufEingang(10s);
    EXPECT_FALSE(getan);
    port.WarteAufEingang(10s);
    EXPECT_TRUE(getan);
}

TEST_F(LeitungsportTest, A_line_that_has_answered_by_then_leaves_the_window_to_its_usual_turn) {
    port.Schreibe("first");
    umgebung.FuerWartezeit([] {});
    port.imSystem = 3;
    port.Schreibe("second");
    EXPECT_EQ(Fensterblicke(), 0);
    umgebung.uhr += 4ms;
    port.Schreibe("third");
    EXPECT_EQ(Fensterblicke(), 1);
}

TEST_F(LeitungsportTest, Bytes_that_are_there_end_a_wait_before_the_window_has_its_turn) {
    port.imSystem = 1;
    port.WarteAufEingang(10s);
    port.imSystem = 0;
    port.gelesen = 1;
    port.WarteAufEingang(10s);
    EXPECT_EQ(Fensterblicke(), 0);
    EXPECT_THAT(port.geschlafen, IsEmpty());
}

TEST_F(LeitungsportTest, What_events_take_up_in_the_windows_turn_ends_the_wait) {
    umgebung.beiEreignissen = [&] { port.gelesen = 1; };
    port.WarteAufEingang(10s);
    EXPECT_EQ(Fensterblicke(), 1);
    EXPECT_THAT(port.geschlafen, IsEmpty());
}

TEST_F(LeitungsportTest, A_sleep_passes_over_bytes_that_are_there) {
    port.Schreibe("request");
    port.imSystem = 1;
    const auto beginn = std::chrono::steady_clock::now();
    port.Schlafe(2ms);
    EXPECT_GE(std::chrono::steady_clock::now() - beginn, 2ms);
    EXPECT_EQ(Fensterblicke(), 0);
}

TEST_F(LeitungsportTest, A_sleep_over_the_windows_turn_begins_with_it_and_lasts_until_the_next) {
    port.Schreibe("request");
    std::chrono::steady_clock::time_point blick;
    umgebung.beiEreignissen = [&] { blick = std::chrono::steady_clock::now(); };
    port.Schlafe(10s);
    EXPECT_GE(std::chrono::steady_clock::now() - blick, 4ms);
    EXPECT_EQ(Fensterblicke(), 1);
}

TEST_F(LeitungsportTest, A_device_that_was_named_stands_for_every_number) {
    port.SetzeGeraet("/dev/line");
    EXPECT_EQ(port.AnschlussVon(1).geraet, "/dev/line");
    EXPECT_EQ(port.AnschlussVon(4).geraet, "/dev/line");
}

} // namespace varnoth
