#include "suchlauf.h"

#include "identleitung.h"
#include "porteinstellungen.h"
#include "texte.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace varnoth {

using namespace pruefung;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

/// Notes what a search tells, and may cancel it.
struct Mitschreiber : Suchzeiger {
    void Zeige(const Suchstand& stand) override { staende.push_back(stand); }
    bool Abgebrochen() override { return abbruch && abbruch(); }

    std::vector<Suchergebnis> Ergebnisse() const {
        std::vector<Suchergebnis> ergebnisse;
        for (const Suchstand& stand : staende)
            if (stand.ergebnis)
                ergebnisse.push_back(*stand.ergebnis);
        return ergebnisse;
    }

    std::vector<Suchstand> staende;
    std::function<bool()> abbruch;
};

} // namespace

/// Devices whose far ends a test scripts.
class Suchlauf : public testing::Test {
protected:
    Suchlauf() {
        SetzeSprachoffset(Englisch);
        modSchnittstelle::SetzeComPort(3);
        modSchnittstelle::SetzeComSettings("19200,o,8,1");
    }
    ~Suchlauf() override { SetzeSprachoffset(Deutsch); }

    /// A controller at this device that understands this format alone.
    void SetzeSteuergeraet(const std::string& geraet, const std::string& format) {
        port.antworte = [this, geraet, format](const std::string&) {
            return port.genanntes == geraet && port.format == format ? Nach(5, Identantwort(9))
                                                                     : std::vector<Stueck>{};
        };
    }
    Suchfund Suche(const std::vector<std::string>& geraete) { return SucheSteuergeraet(geraete, schreiber); }

    PruefUmgebung umgebung;
    PruefPort port{umgebung};
    Mitschreiber schreiber;
};

TEST_F(Suchlauf, Tries_the_likeliest_format_on_every_device_before_any_other) {
    const auto folge = Suchfolge({"a", "b"});
    ASSERT_EQ(folge.size(), 2 * Suchformate().size());
    EXPECT_EQ(folge[0], (Suchversuch{"a", "38400,n,8,2"}));
    EXPECT_EQ(folge[1], (Suchversuch{"b", "38400,n,8,2"}));
    EXPECT_EQ(folge[2].geraet, "a");
    EXPECT_EQ(folge.back(), (Suchversuch{"b", "1200,o,8,1"}));
}

TEST_F(Suchlauf, Knows_every_speed_of_a_controller_with_every_parity_once) {
    std::set<std::pair<int, Paritaet>> gesehene;
    for (const std::string& format : Suchformate()) {
        const auto gelesen = LiesPorteinstellungen(format);
        ASSERT_TRUE(gelesen.has_value()) << format;
        EXPECT_EQ(gelesen->datenbits, 8) << format;
        EXPECT_DOUBLE_EQ(Bitzeiten(*gelesen), 11) << format;
        gesehene.emplace(gelesen->baud, gelesen->paritaet);
    }
    EXPECT_EQ(gesehene.size(), Suchformate().size());
    for (const int baud : {1200, 2400, 4800, 9600, 19200, 38400, 57600})
        for (const Paritaet paritaet : {Paritaet::Keine, Paritaet::Gerade, Paritaet::Ungerade})
            EXPECT_TRUE(gesehene.contains({baud, paritaet})) << baud;
}

TEST_F(Suchlauf, Finds_the_controller_and_says_where_and_what_it_is) {
    SetzeSteuergeraet("/dev/b", "9600,e,8,1");
    const Suchfund fund = Suche({"/dev/a", "/dev/b"});
    EXPECT_EQ(fund.versuch, (Suchversuch{"/dev/b", "9600,e,8,1"}));
    EXPECT_EQ(fund.ident.gueltig, True);
    EXPECT_FALSE(fund.mitEcho);
    EXPECT_EQ(fund.text,
              "Controller found at /dev/b with 9600,e,8,1: Varnoth, serial number 4711, address 9.");
}

TEST_F(Suchlauf, Stops_at_the_first_that_answers) {
    SetzeSteuergeraet("/dev/b", "38400,n,8,2");
    const Suchfund fund = Suche({"/dev/a", "/dev/b", "/dev/c"});
    EXPECT_EQ(fund.versuche, 2);
    EXPECT_THAT(schreiber.Ergebnisse(), ElementsAre(Suchergebnis::Stille, Suchergebnis::Gefunden));
}

TEST_F(Suchlauf, Sends_nothing_but_identification_requests) {
    Suche({"/dev/a", "/dev/b"});
    EXPECT_EQ(port.gesendet.size(), 2 * Suchformate().size());
    EXPECT_THAT(port.gesendet, testing::Each(Identanfrage));
}

TEST_F(Suchlauf, Tells_each_try_when_it_begins_and_what_came_of_it) {
    SetzeSteuergeraet("/dev/b", "38400,n,8,2");
    Suche({"/dev/a", "/dev/b"});
    ASSERT_EQ(schreiber.staende.size(), 4U);
    const Suchstand& beginn = schreiber.staende[2];
    EXPECT_EQ(beginn.nummer, 2);
    EXPECT_EQ(beginn.anzahl, static_cast<int>(2 * Suchformate().size()));
    EXPECT_EQ(beginn.versuch, (Suchversuch{"/dev/b", "38400,n,8,2"}));
    EXPECT_FALSE(beginn.ergebnis.has_value());
    EXPECT_EQ(schreiber.staende[1].text, "no reply");
    EXPECT_EQ(schreiber.staende[3].text, "controller found");
}

TEST_F(Suchlauf, Leaves_device_number_and_format_as_they_were_and_the_port_closed) {
    SetzeSteuergeraet("/dev/b", "9600,e,8,1");
    modSchnittstelle::SetzeGeraet("/dev/former");
    for (const auto& geraete : {std::vector<std::string>{"/dev/b"}, {"/dev/a"}, {}}) {
        Suche(geraete);
        EXPECT_EQ(modSchnittstelle::GetGeraet(), "/dev/former");
        EXPECT_EQ(port.genanntes, "/dev/former");
        EXPECT_EQ(modSchnittstelle::GetComPort(), 3);
        EXPECT_EQ(modSchnittstelle::GetComSettings(), "19200,o,8,1");
        EXPECT_FALSE(port.offen);
    }
}

TEST_F(Suchlauf, Leaves_them_as_they_were_when_whoever_watches_throws) {
    schreiber.abbruch = []() -> bool { throw std::runtime_error("window gone"); };
    modSchnittstelle::SetzeGeraet("/dev/former");
    EXPECT_THROW(Suche({"/dev/a"}), std::runtime_error);
    EXPECT_EQ(port.genanntes, "/dev/former");
    EXPECT_EQ(modSchnittstelle::GetComSettings(), "19200,o,8,1");
}

TEST_F(Suchlauf, Takes_less_than_0_4_s_a_try_at_38400) {
    port.antworte = [](const std::string&) { return Nach(200, "abc"); };
    Zeit zuletzt = umgebung.uhr;
    schreiber.abbruch = [&] {
        EXPECT_LT(umgebung.uhr - zuletzt, std::chrono::milliseconds(400));
        zuletzt = umgebung.uhr;
        return false;
    };
    SucheSteuergeraet(std::vector<Suchversuch>{{"/dev/a", "38400,n,8,2"}, {"/dev/b", "38400,n,8,2"}},
                      schreiber);
    EXPECT_GT(umgebung.uhr, std::chrono::milliseconds(800));
}

TEST_F(Suchlauf, Can_be_cancelled_before_a_try_and_during_one) {
    schreiber.abbruch = [&] { return port.gesendet.size() == 2; };
    Suchfund fund = Suche({"/dev/a"});
    EXPECT_TRUE(fund.abgebrochen);
    EXPECT_EQ(port.gesendet.size(), 2U);
    EXPECT_EQ(fund.text, "Search cancelled (1 try).");

    schreiber.abbruch = [] { return true; };
    fund = Suche({"/dev/a"});
    EXPECT_EQ(port.gesendet.size(), 2U);
    EXPECT_EQ(fund.text, "Search cancelled (0 tries).");
}

TEST_F(Suchlauf, A_device_that_sends_back_what_is_sent_is_no_controller) {
    port.antworte = [](const std::string& anfrage) { return Nach(1, anfrage); };
    const Suchfund fund = Suche({"/dev/a"});
    EXPECT_EQ(fund.ident.gueltig, False);
    EXPECT_THAT(schreiber.Ergebnisse(), testing::Each(Suchergebnis::Echo));
    EXPECT_EQ(fund.versuche, static_cast<int>(Suchformate().size()));
    EXPECT_THAT(fund.text, HasSubstr("At /dev/a what is sent comes back (echo), and nothing else."));
}

TEST_F(Suchlauf, Of_several_devices_with_an_echo_the_first_is_named) {
    port.antworte = [](const std::string& anfrage) { return Nach(1, anfrage); };
    EXPECT_THAT(Suche({"/dev/a", "/dev/b"}).text, HasSubstr("At /dev/a what is sent comes back"));
}

TEST_F(Suchlauf, An_echo_with_other_bytes_beside_it_is_something_that_is_not_understood) {
    port.antworte = [](const std::string& anfrage) { return Nach(1, anfrage + "xyz"); };
    EXPECT_THAT(Suche({"/dev/a"}).text, HasSubstr("Something talks at /dev/a"));
    EXPECT_THAT(schreiber.Ergebnisse(), testing::Each(Suchergebnis::Unverstanden));
}

TEST_F(Suchlauf, A_line_on_which_something_was_said_before_the_request_alone_is_not_called_silent) {
    schreiber.abbruch = [&] {
        umgebung.Plane(umgebung.uhr + std::chrono::milliseconds(1), [this] { port.eingang = "block"; });
        return false;
    };
    SucheSteuergeraet(std::vector<Suchversuch>{{"/dev/a", "38400,n,8,2"}}, schreiber);
    EXPECT_EQ(schreiber.Ergebnisse().front(), Suchergebnis::Unverstanden);
}

TEST_F(Suchlauf, A_controller_behind_an_echoing_adapter_is_found_with_a_warning) {
    port.antworte = [](const std::string& anfrage) { return Nach(1, anfrage + Identantwort()); };
    const Suchfund fund = Suche({"/dev/a"});
    EXPECT_TRUE(fund.mitEcho);
    EXPECT_THAT(schreiber.Ergebnisse(), ElementsAre(Suchergebnis::NurMitEcho));
    EXPECT_THAT(fund.text, HasSubstr("the adapter's echo must be switched off"));
}

TEST_F(Suchlauf, A_device_that_answers_everything_is_no_controller) {
    port.antworte = [](const std::string&) { return Nach(1, "OK\r\n"); };
    const Suchfund fund = Suche({"/dev/a"});
    EXPECT_EQ(fund.ident.gueltig, False);
    EXPECT_THAT(fund.text, HasSubstr("Something talks at /dev/a that is no controller"));
}

TEST_F(Suchlauf, A_controller_that_talks_by_itself_is_asked_up_to_three_times_in_a_row) {
    int anfragen = 0;
    port.antworte = [&](const std::string&) {
        return ++anfragen == 3 ? Nach(20, "block" + Identantwort()) : Nach(20, "block");
    };
    const Suchfund fund = Suche({"/dev/a"});
    EXPECT_EQ(fund.ident.gueltig, True);
    EXPECT_EQ(fund.versuch.format, "38400,n,8,2");
    EXPECT_EQ(anfragen, 3);
    EXPECT_EQ(schreiber.staende.back().anzahl, static_cast<int>(Suchformate().size()) + 2);
}

TEST_F(Suchlauf, No_line_is_asked_a_fourth_time_in_one_format) {
    port.antworte = [](const std::string&) { return Nach(20, "block"); };
    SucheSteuergeraet(std::vector<Suchversuch>{{"/dev/a", "38400,n,8,2"}, {"/dev/a", "9600,n,8,2"}},
                      schreiber);
    EXPECT_EQ(port.gesendet.size(), 6U);
}

TEST_F(Suchlauf, A_port_that_cannot_be_opened_is_tried_once_and_its_cause_is_told) {
    port.oeffnet = [](const std::string& geraet, const std::string&) { return geraet != "/dev/a"; };
    port.befund = {.hindernis = Hindernis::Belegt, .prozesse = {"varnothctl (1234)"}};
    const Suchfund fund = Suche({"/dev/a", "/dev/b"});
    EXPECT_EQ(fund.versuche, 1 + static_cast<int>(Suchformate().size()));
    EXPECT_EQ(schreiber.staende[1].ergebnis, Suchergebnis::PortVerschlossen);
    EXPECT_EQ(schreiber.staende[1].text, "/dev/a is in use by: varnothctl (1234). Please end that program.");
    EXPECT_EQ(schreiber.staende.back().anzahl, fund.versuche);
    EXPECT_EQ(fund.text,
              "No controller found (22 tries). Nothing has answered. Is the controller switched on "
              "and connected? Not every port could be opened: /dev/a is in use by: varnothctl (1234). "
              "Please end that program.");
}

TEST_F(Suchlauf, Where_no_port_could_be_opened_the_cause_is_all_that_is_said) {
    port.oeffnenGelingt = false;
    port.befund = {.hindernis = Hindernis::Fehlt};
    EXPECT_EQ(Suche({"/dev/a"}).text,
              "No controller found (1 try). There is no device /dev/a. Is the adapter "
              "plugged in, and is the right port chosen?");
    EXPECT_EQ(Suche({"/dev/a", "/dev/b"}).text,
              "No controller found (2 tries). There is no device /dev/a. Is the adapter "
              "plugged in, and is the right port chosen?");
}

TEST_F(Suchlauf, An_adapter_that_vanishes_is_not_asked_again_and_the_search_goes_on) {
    port.befund = {.hindernis = Hindernis::Fehlt};
    umgebung.Plane(std::chrono::milliseconds(10), [this] { port.offen = false; });
    SetzeSteuergeraet("/dev/b", "38400,n,8,2");
    const Suchfund fund = Suche({"/dev/a", "/dev/b"});
    EXPECT_EQ(fund.ident.gueltig, True);
    EXPECT_THAT(schreiber.Ergebnisse(), ElementsAre(Suchergebnis::PortVerschlossen, Suchergebnis::Gefunden));
    EXPECT_THAT(schreiber.staende[1].text, StartsWith("There is no device /dev/a."));
}

TEST_F(Suchlauf, Without_a_port_it_says_so) {
    const Suchfund fund = Suche({});
    EXPECT_EQ(fund.versuche, 0);
    EXPECT_EQ(fund.text, "There is no port to search. Please plug the adapter in.");
}

TEST_F(Suchlauf, The_built_in_controller_is_not_taken_for_one_on_a_port) {
    port.anschluss = {.simuliert = true};
    SetzeSteuergeraet("/dev/a", "38400,n,8,2");
    const Suchfund fund = Suche({"/dev/a"});
    EXPECT_EQ(fund.ident.gueltig, False);
    EXPECT_TRUE(port.gesendet.empty());
    EXPECT_THAT(fund.text, StartsWith("The program works with its built-in controller"));
}

TEST_F(Suchlauf, A_controller_without_a_serial_number_is_told_as_one) {
    port.antworte = [](const std::string&) { return Nach(1, Identantwort(1, "Varnoth")); };
    EXPECT_THAT(Suche({"/dev/a"}).text, HasSubstr("serial number unknown"));
}

TEST_F(Suchlauf, What_the_controller_says_is_told_in_the_characters_of_the_machine) {
    port.antworte = [](const std::string&) {
        return Nach(1, Identantwort(1, "Me\xDFger\xE4t;\xFC"
                                       "1"));
    };
    EXPECT_THAT(Suche({"/dev/a"}).text, HasSubstr("Meßgerät, serial number ü1,"));
}

TEST_F(Suchlauf, Nothing_that_the_controller_says_takes_effect_where_it_is_shown) {
    port.antworte = [](const std::string&) { return Nach(1, Identantwort(1, "a\x1B[2J\nb;4711\x07")); };
    EXPECT_THAT(Suche({"/dev/a"}).text, HasSubstr("a�[2J�b, serial number 4711�,"));
}

TEST_F(Suchlauf, Sixty_four_ports_are_searched_in_their_order) {
    std::vector<std::string> geraete;
    for (int i = 0; i < 64; ++i)
        geraete.push_back("/dev/ttyUSB" + std::to_string(i));
    SetzeSteuergeraet("/dev/ttyUSB63", "38400,n,8,2");
    EXPECT_EQ(Suche(geraete).versuche, 64);
}

} // namespace varnoth
