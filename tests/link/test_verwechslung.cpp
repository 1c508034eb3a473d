#include "austausch.h"
#include "pruefgeraet.h"
#include "rahmen.h"
#include "schnittstelle.h"
#include "startzustand.h"
#include "transaktionen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <map>

namespace varnoth {

using namespace modModbus;
using namespace std::chrono_literals;
using pruefung::Bytes;
using pruefung::MitPruefsumme;
using pruefung::PruefGeraet;
using pruefung::Stueck;

namespace {

constexpr std::uint16_t Strahlen = 0x2161, Messwerte = 0x214F;
constexpr int StrahlWert = 0x5555, MessWert = 1234;
constexpr std::uint16_t Anzahl = 18;

bool IstFrage(const std::string& rahmen) {
    return rahmen == Bytes({0x00, 0x11, 0xC1, 0xBC});
}

} // namespace

/// An identified controller that answers in the order it is asked; single replies come late or not at all.
class VerwechslungTest : public testing::Test {
protected:
    VerwechslungTest() {
        modSchnittstelle::OpenCommPort();
        port.antworte = [this, antworte = port.antworte](const std::string& anforderung) {
            return DerReiheNach(antworte(anforderung));
        };
        geraet.schweige = [this](const std::string&) { return verlorene.contains(Nummer()); };
        RTUModeH11IndentifikationsAnforderung();
        port.gesendet.clear();
        port.sendezeiten.clear();
        for (int i = 0; i < Anzahl; ++i) {
            geraet.Register(Strahlen + i) = StrahlWert;
            geraet.Register(Messwerte + i) = MessWert;
        }
        geraet.Register(100) = 7;
    }

    /// The number of the request that is being answered, from 1.
    int Nummer() const { return static_cast<int>(port.gesendet.size()); }
    std::vector<Stueck> DerReiheNach(std::vector<Stueck> stuecke) {
        const auto verspaetung = verspaetete.find(Nummer());
        if (verspaetung != verspaetete.end())
            for (Stueck& stueck : stuecke)
                stueck.nach += verspaetung->second;
        for (Stueck& stueck : stuecke) {
            frei = std::max(frei, umgebung.uhr + stueck.nach);
            stueck.nach = frei - umgebung.uhr;
        }
        return stuecke;
    }

    Boolean Lies(std::uint16_t adresse, std::uint16_t anzahl = Anzahl) {
        werte.assign(anzahl, -1);
        return RTUModeH03LeseAnforderung(adresse, anzahl, werte);
    }
    std::ptrdiff_t Fragen() const { return std::ranges::count_if(port.gesendet, IstFrage); }
    /// The line does not become quiet for so long.
    void Rede(Zeit dauer) {
        port.eingang = "U";
        for (auto wann = umgebung.uhr; wann < umgebung.uhr + dauer; wann += 10ms)
            umgebung.Plane(wann, [this] { port.eingang += 'U'; });
    }
    /// A read whose reply comes half a second after its time-out.
    void LasseLeseantwortOffen(std::uint16_t adresse, std::uint16_t anzahl = Anzahl) {
        verspaetete[Nummer() + 1] = 1500ms;
        EXPECT_EQ(Lies(adresse, anzahl), False);
    }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefPort port{umgebung};
    PruefGeraet geraet{port};
    std::map<int, Zeit> verspaetete; ///< by the number of the request
    std::map<int, bool> verlorene;
    Werte werte;
    Zeit frei{0};
};

TEST_F(VerwechslungTest, Beam_states_that_come_late_are_never_taken_for_measured_values) {
    LasseLeseantwortOffen(Strahlen);
    EXPECT_EQ(Lies(Strahlen), True);
    EXPECT_EQ(Lies(Messwerte), True);
    EXPECT_EQ(werte, Werte(Anzahl, MessWert));
}

TEST_F(VerwechslungTest, A_late_reply_is_not_taken_for_the_next_read_of_as_many_registers) {
    LasseLeseantwortOffen(Strahlen);
    EXPECT_EQ(Lies(Messwerte), True);
    EXPECT_EQ(werte, Werte(Anzahl, MessWert));
}

TEST_F(VerwechslungTest,
       A_line_in_order_carries_nothing_but_the_requests_two_milliseconds_behind_the_replies) {
    const Zeit davor = umgebung.uhr;
    EXPECT_EQ(Lies(Strahlen), True);
    EXPECT_EQ(Lies(Messwerte), True);
    EXPECT_EQ(WaehleOptikteil(1), True);
    EXPECT_EQ(port.sendezeiten, (std::vector<Zeit>{davor + 2ms, davor + 4ms, davor + 6ms}));
}

TEST_F(VerwechslungTest, A_retry_is_sent_at_once_and_takes_the_older_answer) {
    LasseLeseantwortOffen(Strahlen);
    EXPECT_EQ(Lies(Strahlen), True);
    EXPECT_EQ(werte, Werte(Anzahl, StrahlWert));
    EXPECT_EQ(Fragen(), 0);
    EXPECT_EQ(port.sendezeiten.at(1) - port.sendezeiten.at(0), 1002ms);
}

TEST_F(VerwechslungTest, A_request_whose_reply_looks_different_needs_no_question_in_between) {
    verlorene[1] = true;
    EXPECT_EQ(Lies(Strahlen), False);
    EXPECT_EQ(WaehleOptikteil(0), True);
    EXPECT_EQ(Lies(Messwerte), True);
    EXPECT_EQ(Fragen(), 0);
}

TEST_F(VerwechslungTest, One_answered_question_is_enough) {
    verlorene[1] = true;
    EXPECT_EQ(Lies(Strahlen), False);
    EXPECT_EQ(Lies(Messwerte), True);
    EXPECT_EQ(Lies(Strahlen), True);
    EXPECT_EQ(Fragen(), 1);
}

TEST_F(VerwechslungTest, An_echo_that_comes_late_is_not_taken_for_that_of_a_lost_write) {
    verspaetete[1] = 1500ms;
    verlorene[3] = true;
    EXPECT_EQ(WaehleOptikteil(2), False);
    EXPECT_EQ(WaehleOptikteil(3), False);
    ASSERT_EQ(geraet.geschrieben.size(), 1U);
    EXPECT_EQ(geraet.geschrieben[0].werte, std::vector{2});
}

TEST_F(VerwechslungTest, A_value_from_before_a_failed_write_is_not_taken_for_the_value_behind_it) {
    verspaetete[1] = 2500ms;
    EXPECT_EQ(Lies(100, 1), False);
    EXPECT_EQ(RTUModeH10SchreibenAnforderung(100, 1, {8}), False);
    EXPECT_EQ(Lies(100, 1), True);
    EXPECT_EQ(werte, (Werte{8}));
}

TEST_F(VerwechslungTest, A_value_from_before_a_command_is_not_taken_for_the_value_behind_it) {
    LasseLeseantwortOffen(100, 1);
    SendeFunktion09();
    geraet.Register(100) = 8;
    EXPECT_EQ(Lies(100, 1), True);
    EXPECT_EQ(werte, (Werte{8}));
}

TEST_F(VerwechslungTest,
       Without_an_answer_to_the_question_the_request_fails_within_a_second_and_is_not_sent) {
    verlorene[1] = verlorene[2] = true;
    EXPECT_EQ(Lies(Strahlen), False);
    const Zeit davor = umgebung.uhr;
    EXPECT_EQ(Lies(Messwerte), False);
    EXPECT_LE(umgebung.uhr - davor, 1002ms);
    ASSERT_EQ(port.gesendet.size(), 2U);
    EXPECT_TRUE(IstFrage(port.gesendet[1]));
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(VerwechslungTest, The_question_changes_nothing_in_the_identification_record) {
    LasseLeseantwortOffen(Strahlen);
    geraet.identtext = "Other;9;x";
    EXPECT_EQ(Lies(Messwerte), True);
    EXPECT_EQ(GetIdentText1(), "Varnoth");
    EXPECT_EQ(GetIdentText2(), "4711");
}

TEST_F(VerwechslungTest, With_an_older_identification_still_open_the_question_is_asked_twice) {
    verlorene[1] = true;
    RTUModeH11IndentifikationsAnforderung();
    RTUModeH11IndentifikationsAnforderung();
    verlorene[3] = true;
    EXPECT_EQ(Lies(Strahlen), False);
    EXPECT_EQ(Lies(Messwerte), True);
    EXPECT_EQ(Fragen(), 4);
}

TEST_F(VerwechslungTest, A_second_reply_behind_the_first_is_not_taken_for_the_next_request) {
    const auto antworte = port.antworte;
    port.antworte = [&](const std::string& anforderung) {
        auto stuecke = antworte(anforderung);
        if (Nummer() == 1) {
            const std::string antwort = stuecke[0].bytes;
            stuecke[0].bytes += antwort.substr(0, 1);
            stuecke.push_back({30ms, antwort.substr(1)});
            stuecke.push_back({31ms, antwort});
        }
        return stuecke;
    };
    EXPECT_EQ(Lies(Strahlen), True);
    EXPECT_EQ(Lies(Messwerte), True);
    EXPECT_EQ(werte, Werte(Anzahl, MessWert));
}

TEST_F(VerwechslungTest, While_surplus_bytes_keep_coming_the_next_request_waits) {
    port.antworte = [&](const std::string&) -> std::vector<Stueck> {
        std::vector<Stueck> stuecke{{0ms, MitPruefsumme(Bytes({1, 3, 2, 0, 7})) + "U"}};
        for (auto nach = 15ms; Nummer() == 1 && nach <= 75ms; nach += 15ms)
            stuecke.push_back({nach, "UUUU"});
        return stuecke;
    };
    EXPECT_EQ(Lies(100, 1), True);
    EXPECT_EQ(RTUModeH10SchreibenAnforderung(100, 1, {8}), False);
    EXPECT_EQ(port.sendezeiten.at(1) - port.sendezeiten.at(0), 75ms + 20ms + 2ms);
}

TEST_F(VerwechslungTest, Bytes_that_lie_in_the_input_make_the_next_request_wait_for_quiet) {
    EXPECT_EQ(WaehleOptikteil(0), True);
    umgebung.uhr += 100ms;
    port.eingang = "x";
    const Zeit davor = umgebung.uhr;
    EXPECT_EQ(Lies(100, 1), True);
    EXPECT_EQ(port.sendezeiten.back() - davor, 20ms + 2ms);
}

TEST_F(VerwechslungTest, Bytes_that_lie_in_the_input_may_be_a_second_reply_to_the_last_request) {
    EXPECT_EQ(Lies(Strahlen), True);
    port.eingang = "x";
    EXPECT_EQ(Lies(Messwerte), True);
    EXPECT_EQ(Fragen(), 1);
}

TEST_F(VerwechslungTest, A_second_answer_to_the_question_does_not_disturb_the_request_behind_it) {
    verspaetete[1] = 2500ms;
    EXPECT_EQ(Lies(Strahlen), False);
    EXPECT_EQ(Lies(Messwerte), False);
    verspaetete[3] = 505ms;
    EXPECT_EQ(Lies(Messwerte), True);
}

TEST_F(VerwechslungTest, A_line_that_never_falls_quiet_holds_a_request_up_for_a_second) {
    EXPECT_EQ(Lies(100, 1), True);
    Rede(5s);
    const Zeit davor = umgebung.uhr;
    WaehleOptikteil(0);
    EXPECT_GE(port.sendezeiten.back() - davor, 1000ms);
    EXPECT_LE(port.sendezeiten.back() - davor, 1020ms);
}

TEST_F(VerwechslungTest, On_a_line_that_never_falls_quiet_an_identification_is_found_among_the_rest) {
    Rede(10s);
    verspaetete[1] = 150ms; // more stray bytes than a reply may begin with
    EXPECT_EQ(RTUModeH11IndentifikationsAnforderung(), True);
    EXPECT_EQ(GetIdentText2(), "4711");
    verlorene[2] = true;
    EXPECT_EQ(RTUModeH11IndentifikationsAnforderung(), False);
}

TEST_F(VerwechslungTest, A_controller_that_talks_is_told_to_stop_and_one_that_is_quiet_is_not) {
    verlorene[1] = true;
    EXPECT_EQ(Lies(100, 1), False);
    BeruhigeGeraet();
    EXPECT_EQ(port.gesendet.size(), 1U);
    Rede(5s);
    WaehleOptikteil(0);
    EXPECT_TRUE(modAustausch::IstUnruhig());
    BeruhigeGeraet();
    EXPECT_EQ(port.gesendet.back(), SchreibAnforderung(1, 0x4084, 1, {4}));
    EXPECT_EQ(port.gesendet.size(), 3U);
}

TEST_F(VerwechslungTest, A_controller_that_is_not_identified_is_not_told_to_stop_talking) {
    Rede(5s);
    IdentReset();
    WaehleOptikteil(0);
    EXPECT_TRUE(modAustausch::IstUnruhig());
    const std::size_t bisher = port.gesendet.size();
    BeruhigeGeraet();
    EXPECT_EQ(port.gesendet.size(), bisher);
}

TEST_F(VerwechslungTest, What_is_open_stays_open_when_the_port_is_opened_anew) {
    LasseLeseantwortOffen(Strahlen);
    modSchnittstelle::CloseCommPort();
    modSchnittstelle::OpenCommPort();
    EXPECT_EQ(Lies(Messwerte), True);
    EXPECT_EQ(werte, Werte(Anzahl, MessWert));
    EXPECT_EQ(Fragen(), 1);
}

TEST_F(VerwechslungTest, The_start_state_forgets_what_is_open) {
    geraet.slaveAdresse = 0xFF; // where requests go before any identification
    RTUModeH11IndentifikationsAnforderung();
    verlorene[Nummer() + 1] = true;
    EXPECT_EQ(Lies(Strahlen), False);
    const std::ptrdiff_t bisher = Fragen();
    const Startzustand anfang;
    SetzeUmgebung(&umgebung);
    modSchnittstelle::SetzePort(&port);
    modSchnittstelle::OpenCommPort();
    EXPECT_EQ(Lies(Messwerte), True);
    EXPECT_EQ(Fragen(), bisher);
}

TEST_F(VerwechslungTest, What_could_not_be_sent_leaves_nothing_open) {
    modSchnittstelle::CloseCommPort();
    EXPECT_EQ(Lies(Strahlen), False);
    modSchnittstelle::OpenCommPort();
    EXPECT_EQ(Lies(Messwerte), True);
    EXPECT_EQ(Fragen(), 0);
}

TEST_F(VerwechslungTest, A_request_is_given_up_when_the_port_is_closed_while_its_question_waits) {
    verspaetete[1] = 1500ms;
    EXPECT_EQ(Lies(Strahlen), False);
    umgebung.Plane(umgebung.uhr + 100ms, [] { modSchnittstelle::CloseCommPort(); });
    EXPECT_EQ(Lies(Messwerte), False);
    EXPECT_EQ(port.gesendet.size(), 2U);
}

TEST_F(VerwechslungTest, The_command_to_end_autosend_is_sent_whatever_is_open) {
    verlorene[1] = verlorene[2] = true;
    SchreibeSteuerwert2();
    SchreibeSteuerwert4();
    EXPECT_EQ(Fragen(), 0);
    EXPECT_EQ(port.gesendet.size(), 2U);
}

TEST_F(VerwechslungTest, The_echo_of_a_command_nobody_waited_for_is_not_taken_for_that_of_a_write) {
    verspaetete[1] = 1500ms;
    SchreibeSteuerwert2();
    verlorene[3] = true;
    modSchnittstelle::OpenCommPort();
    EXPECT_EQ(RTUModeH10SchreibenAnforderung(0x4084, 1, {4}), False);
}

TEST_F(VerwechslungTest, A_window_that_holds_the_question_up_does_not_use_up_the_time_for_its_answer) {
    LasseLeseantwortOffen(Strahlen);
    verspaetete[Nummer() + 1] = 100ms;
    umgebung.beiEreignissen = [this] { umgebung.HalteAuf(5s); };
    EXPECT_EQ(Lies(Messwerte), True);
    EXPECT_EQ(werte, Werte(Anzahl, MessWert));
    EXPECT_EQ(Fragen(), 1);
}

} // namespace varnoth
