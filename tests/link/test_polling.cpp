#include "polling.h"

#include "geraetestand.h"
#include "leitungsstatistik.h"
#include "pruefgeraet.h"
#include "registerabbild.h"
#include "texte.h"
#include "transaktionen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <map>

namespace varnoth {

using namespace modPolling;
using namespace std::chrono_literals;
using pruefung::PruefGeraet;

namespace {

struct PruefAnsicht : LiveAnsicht {
    bool ZeigtLiveDaten() const override { return zeigt; }
    void NeuerDatensatz() override { ablauf += 'n'; }
    void StrahlzustaendeLiegenVor() override { ablauf += 's'; }
    void BlankingBekannt() override { ablauf += 'b'; }
    void MesswerteLiegenVor() override { ablauf += 'm'; }

    bool zeigt = true;
    std::string ablauf;
};

struct PruefZiel : PollingZiel {
    LiveAnsicht& Ansicht(int optikteil) override { return ansichten.at(static_cast<std::size_t>(optikteil)); }
    void AktualisiereGeraetestatus() override { ++aktualisiert; }
    bool BefehlWartet() override { return befehl || (befehlAb && befehlAb()); }

    std::array<PruefAnsicht, AnzahlOptikteile> ansichten;
    int aktualisiert = 0;
    bool befehl = false;
    std::function<bool()> befehlAb;
};

constexpr int DevAuswahl = 212;
constexpr int DevStatus = 0x202C;
constexpr int DevStrahlen = 0x2161;
constexpr int DevMesswerte = 0x214F;
constexpr int DevGlobal = 0x00C4;

using Lesungen = std::vector<std::pair<int, int>>;

} // namespace

class PollingTest : public testing::Test {
protected:
    PollingTest() {
        SetzeZiel(&ziel);
        StartePolling();
        modModbus::RTUModeH11IndentifikationsAnforderung();
    }

    void Verbinde(std::vector<int> strahlenzahlen) {
        SetzeAnzahlOptikteile(static_cast<int>(strahlenzahlen.size()));
        for (int teil = 0; teil < GetAnzahlOptikteile(); ++teil) {
            modDaten::SetzeSpezifischeDaten(12, 1, static_cast<std::int16_t>(teil),
                                            {strahlenzahlen[static_cast<std::size_t>(teil)]});
            geraet.Spezifisch(teil, 44) = 0x80;
            SetzeOptikteilStatus(teil, Vorhanden);
        }
    }
    std::int32_t Spezifisch(int teil, std::int16_t adresse, std::int16_t anzahl) {
        Werte werte;
        modDaten::HoleSpezifischeDaten(adresse, anzahl, static_cast<std::int16_t>(teil), werte);
        return werte.at(0);
    }
    /// The controller falls silent at reads of this device address.
    void VerstummeBei(int adresse) {
        geraet.schweige = [adresse](const std::string& anforderung) {
            return pruefung::Wort(anforderung, 2) == adresse;
        };
    }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefPort port{umgebung};
    PruefGeraet geraet{port};
    PruefZiel ziel;
};

TEST_F(PollingTest, The_number_of_beam_registers_follows_the_rounding_rule) {
    const std::pair<int, int> faelle[] = {{0, 0},  {1, 1},  {8, 1},  {9, 2},   {16, 1},   {24, 3},
                                          {32, 2}, {40, 3}, {56, 5}, {100, 7}, {512, 32}, {2000, 64}};
    for (const auto& [strahlen, erwartet] : faelle)
        EXPECT_EQ(GeleseneStrahlregister(strahlen), erwartet) << strahlen << " beams";
}

TEST_F(PollingTest, A_part_of_512_beams_needs_32_registers) {
    Verbinde({512});
    PollingZyklus();
    EXPECT_EQ(geraet.gelesen.at(1), (std::pair{DevStrahlen, 32}));
}

TEST_F(PollingTest, A_part_of_16_beams_needs_one_register) {
    Verbinde({16});
    PollingZyklus();
    EXPECT_EQ(geraet.gelesen.at(1), (std::pair{DevStrahlen, 1}));
}

TEST_F(PollingTest, A_part_of_24_beams_causes_three_registers_to_be_read) {
    Verbinde({24});
    PollingZyklus();
    EXPECT_EQ(geraet.gelesen.at(1), (std::pair{DevStrahlen, 3}));
}

TEST_F(PollingTest, A_pass_selects_each_part_and_reads_status_beams_and_values_then_the_global_status) {
    Verbinde({16, 32});
    PollingZyklus();
    EXPECT_EQ(geraet.gelesen, (Lesungen{{DevStatus, 1},
                                        {DevStrahlen, 1},
                                        {DevMesswerte, 18},
                                        {DevStatus, 1},
                                        {DevStrahlen, 2},
                                        {DevMesswerte, 18},
                                        {DevGlobal, 1}}));
    ASSERT_EQ(geraet.geschrieben.size(), 2U);
    EXPECT_EQ(geraet.geschrieben[0], (PruefGeraet::Schreibvorgang{0, DevAuswahl, {0}}));
    EXPECT_EQ(geraet.geschrieben[1], (PruefGeraet::Schreibvorgang{0, DevAuswahl, {1}}));
}

TEST_F(PollingTest, The_view_is_told_of_the_data_in_their_order) {
    Verbinde({16});
    PollingZyklus();
    EXPECT_EQ(ziel.ansichten[0].ablauf, "nsbm");
}

TEST_F(PollingTest, What_was_read_is_in_the_image) {
    Verbinde({16, 16});
    geraet.Spezifisch(1, 44) = 0x85;
    geraet.Spezifisch(1, 335) = 17;
    geraet.Spezifisch(1, 353) = 0xABCD;
    geraet.Register(196) = 2;
    PollingZyklus();
    EXPECT_EQ(Spezifisch(1, 44, 1), 0x85);
    EXPECT_EQ(Spezifisch(1, 335, 18), 17);
    Werte strahlen;
    EXPECT_EQ(modDaten::HoleStrahlzustaende(1, 1, strahlen), True);
    EXPECT_EQ(strahlen.at(0), 0xABCD);
    Werte global;
    modDaten::HoleGlobaleDaten(196, 1, global);
    EXPECT_EQ(global.at(0), 2);
}

TEST_F(PollingTest, With_no_connected_part_only_the_global_status_is_read) {
    PollingZyklus();
    EXPECT_EQ(geraet.gelesen, (Lesungen{{DevGlobal, 1}}));
    EXPECT_TRUE(geraet.geschrieben.empty());
}

TEST_F(PollingTest, A_part_whose_view_shows_no_live_data_is_read_no_further_than_its_status) {
    Verbinde({16});
    ziel.ansichten[0].zeigt = false;
    PollingZyklus();
    EXPECT_EQ(geraet.gelesen, (Lesungen{{DevStatus, 1}, {DevGlobal, 1}}));
    EXPECT_EQ(ziel.ansichten[0].ablauf, "");
}

TEST_F(PollingTest, An_absent_part_is_read_no_further_than_its_status) {
    Verbinde({16});
    geraet.Spezifisch(0, 44) = 0;
    SetzeOptikteilStatus(0, NichtVorhanden);
    PollingZyklus();
    EXPECT_EQ(geraet.gelesen, (Lesungen{{DevStatus, 1}, {DevGlobal, 1}}));
}

TEST_F(PollingTest, The_switching_output_is_shown_in_the_third_panel) {
    geraet.Register(196) = 2;
    PollingZyklus();
    EXPECT_EQ(umgebung.statustexte[2], LadeText(3001));
    geraet.Register(196) = 0xFFFD;
    PollingZyklus();
    EXPECT_EQ(umgebung.statustexte[2], LadeText(3002));
}

TEST_F(PollingTest, A_silent_device_gives_the_message_after_ten_attempts_of_a_second_and_ends_the_pass) {
    Verbinde({16});
    VerstummeBei(DevStrahlen);
    geraet.Spezifisch(0, 335) = 99;
    const Zeit davor = umgebung.uhr;
    PollingZyklus();
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, LadeText(3000));
    EXPECT_EQ(umgebung.meldungen[0].titel, LadeText(6109));
    EXPECT_TRUE(umgebung.meldungen[0].informativtext.starts_with(
        "COM1, /dev/pruefung, Format 38400,n,8,2\n\nNiemand antwortet."))
        << umgebung.meldungen[0].informativtext;
    EXPECT_EQ((umgebung.uhr - davor) / 1s, 10);
    EXPECT_EQ(Spezifisch(0, 335, 18), 0) << "no data may change after the failed step";
    EXPECT_EQ(ziel.ansichten[0].ablauf, "n");
    EXPECT_EQ(ziel.aktualisiert, 1);
    EXPECT_EQ(GetPollingAktiv(), True) << "polling itself stays on";
}

TEST_F(PollingTest, A_pass_that_fails_at_any_read_asks_for_nothing_more) {
    const std::pair<int, std::size_t> faelle[] = {
        {DevStatus, 0}, {DevStrahlen, 1}, {DevMesswerte, 2}, {DevGlobal, 3}};
    for (const auto& [adresse, davor] : faelle) {
        Verbinde({16});
        geraet.gelesen.clear();
        umgebung.meldungen.clear();
        VerstummeBei(adresse);
        PollingZyklus();
        EXPECT_EQ(geraet.gelesen.size(), davor) << "answered reads before " << adresse << " is silent";
        EXPECT_EQ(umgebung.meldungen.size(), 1U) << adresse;
    }
}

TEST(PollingAmAnfang, No_connection_is_lost_before_live_data_has_begun) {
    EXPECT_FALSE(VerbindungVerloren());
}

TEST_F(PollingTest, Polling_that_begins_anew_knows_of_no_lost_connection) {
    Verbinde({16});
    VerstummeBei(DevGlobal);
    PollingZyklus();
    StartePolling();
    EXPECT_FALSE(VerbindungVerloren());
}

TEST_F(PollingTest, A_failure_that_passes_is_retried_silently) {
    Verbinde({16});
    int rest = 8;
    geraet.schweige = [&rest](const std::string&) { return rest-- > 0; };
    PollingZyklus();
    EXPECT_TRUE(umgebung.meldungen.empty());
    EXPECT_EQ(ziel.ansichten[0].ablauf, "nsbm");
}

TEST_F(PollingTest, A_success_at_the_tenth_attempt_counts_as_used_up_all_the_same) {
    Verbinde({16});
    int rest = 9;
    geraet.schweige = [&rest](const std::string&) { return rest-- > 0; };
    PollingZyklus();
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, LadeText(3000));
    EXPECT_EQ(geraet.geschrieben.size(), 1U) << "the tenth was answered";
    EXPECT_TRUE(geraet.gelesen.empty());
}

TEST_F(PollingTest, The_views_hear_of_a_lost_connection_before_the_message_is_shown) {
    Verbinde({16});
    VerstummeBei(DevGlobal);
    int vorDerMeldung = 0;
    umgebung.beiMeldung = [&](const Meldung&) { vorDerMeldung = ziel.aktualisiert; };
    PollingZyklus();
    EXPECT_EQ(vorDerMeldung, 1);
}

TEST_F(PollingTest, The_views_hear_of_a_part_that_disappeared_before_the_message_is_shown) {
    Verbinde({16});
    geraet.Spezifisch(0, 44) = 0;
    int vorDerMeldung = 0;
    Optikteilzustand zustand = Vorhanden;
    umgebung.beiMeldung = [&](const Meldung&) {
        vorDerMeldung = ziel.aktualisiert;
        zustand = GetOptikteilStatus(0);
    };
    PollingZyklus();
    EXPECT_EQ(vorDerMeldung, 1);
    EXPECT_EQ(zustand, NichtVorhanden);
}

TEST_F(PollingTest, A_lost_connection_is_over_with_the_next_pass_that_succeeds) {
    Verbinde({16});
    VerstummeBei(DevGlobal);
    PollingZyklus();
    EXPECT_TRUE(VerbindungVerloren());
    geraet.schweige = nullptr;
    PollingZyklus();
    EXPECT_FALSE(VerbindungVerloren());
    EXPECT_EQ(ziel.aktualisiert, 2);
}

TEST_F(PollingTest, Stopping_while_a_transaction_waits_ends_the_pass_without_a_message) {
    Verbinde({16});
    VerstummeBei(DevStatus);
    umgebung.Plane(umgebung.uhr + 500ms, [] { StoppePolling(); });
    const Zeit davor = umgebung.uhr;
    PollingZyklus();
    EXPECT_TRUE(umgebung.meldungen.empty());
    EXPECT_LT(umgebung.uhr - davor, 2s);
    EXPECT_EQ(GetPollingAktiv(), False);
}

TEST_F(PollingTest, A_command_that_waits_ends_the_pass_after_the_attempt_without_a_message) {
    Verbinde({16});
    VerstummeBei(DevStatus);
    umgebung.Plane(umgebung.uhr + 1500ms, [this] { ziel.befehl = true; });
    const Zeit davor = umgebung.uhr;
    PollingZyklus();
    EXPECT_TRUE(umgebung.meldungen.empty());
    EXPECT_LT(umgebung.uhr - davor, 3s);
    EXPECT_EQ(GetPollingAktiv(), True);
}

TEST_F(PollingTest, A_part_that_disappears_gives_its_message_once_and_the_next_pass_treats_it_as_absent) {
    Verbinde({16, 16});
    geraet.Spezifisch(0, 44) = 0;
    PollingZyklus();
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, LadeText(3004));
    EXPECT_EQ(GetOptikteilStatus(0), NichtVorhanden);
    EXPECT_EQ(ziel.aktualisiert, 1);
    EXPECT_EQ(geraet.gelesen, (Lesungen{{DevStatus, 1}})) << "the message ends the pass";
    PollingZyklus();
    EXPECT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(ziel.ansichten[0].ablauf, "");
    EXPECT_EQ(ziel.ansichten[1].ablauf, "nsbm");
}

TEST_F(PollingTest, A_part_that_returns_gives_the_message_again_and_is_read_again) {
    Verbinde({16});
    geraet.Spezifisch(0, 44) = 0;
    PollingZyklus();
    geraet.Spezifisch(0, 44) = 0x80;
    PollingZyklus();
    EXPECT_EQ(umgebung.meldungen.size(), 2U);
    PollingZyklus();
    EXPECT_EQ(ziel.ansichten[0].ablauf, "nsbm");
}

/// A line on which replies take their time and some come twice.
class PollingMitWiederholungTest : public PollingTest {
protected:
    PollingMitWiederholungTest() {
        const auto antworte = port.antworte;
        port.antworte = [this, antworte](const std::string& anforderung) {
            auto stuecke = antworte(anforderung);
            if (stuecke.empty())
                return stuecke;
            frei = std::max(frei, umgebung.uhr) + 5ms;
            stuecke[0].nach = frei - umgebung.uhr;
            const auto welche = wiederholte.find(static_cast<int>(port.gesendet.size()));
            if (welche == wiederholte.end())
                return stuecke;
            frei += welche->second;
            stuecke.push_back({frei - umgebung.uhr, stuecke[0].bytes});
            return stuecke;
        };
    }

    /// The next request's reply comes twice; the one behind it when `spaeter` is 1, and so on.
    void Wiederhole(int spaeter, Zeit nach) {
        wiederholte[static_cast<int>(port.gesendet.size()) + 1 + spaeter] = nach;
    }
    std::int32_t Strahlen(std::int16_t anzahl) {
        Werte werte;
        modDaten::HoleStrahlzustaende(anzahl, 0, werte);
        return werte.at(0);
    }
    /// A part whose beam states and measured values are as many registers.
    void VerbindeGleichlange() {
        Verbinde({288});
        for (int i = 0; i < 18; ++i) {
            geraet.Spezifisch(0, 353 + i) = 5;
            geraet.Spezifisch(0, 335 + i) = 9;
        }
    }

    Zeit frei{0};
    std::map<int, Zeit> wiederholte;
};

TEST_F(PollingMitWiederholungTest, Beam_states_that_come_twice_are_not_left_standing_as_measured_values) {
    VerbindeGleichlange();
    Wiederhole(2, 3ms);
    PollingZyklus();
    EXPECT_EQ(GetDurchgaenge(), 0U) << "the pass ended where something did not fit";
    EXPECT_EQ(Spezifisch(0, 335, 18), 0) << "what was believed is taken back";
    PollingZyklus();
    EXPECT_EQ(GetDurchgaenge(), 1U);
    EXPECT_EQ(Spezifisch(0, 335, 18), 9);
    EXPECT_EQ(Strahlen(18), 5);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(PollingMitWiederholungTest,
       Wherever_a_reply_of_a_pass_comes_again_nothing_wrong_stays_for_longer_than_a_pass) {
    VerbindeGleichlange();
    for (const auto nach : {0ms, 10ms, 40ms, 120ms})
        for (int welche = 0; welche < 5; ++welche) {
            Wiederhole(welche, nach);
            for (int durchgang = 0; durchgang < 4; ++durchgang) {
                PollingZyklus();
                if (durchgang > 0) {
                    EXPECT_EQ(Spezifisch(0, 335, 18), 9) << welche << ' ' << nach.count();
                    EXPECT_EQ(Strahlen(18), 5) << welche << ' ' << nach.count();
                }
            }
            umgebung.uhr += 5s;
        }
    EXPECT_TRUE(umgebung.meldungen.empty());
    EXPECT_EQ(GetOptikteilStatus(0), Vorhanden);
}

TEST_F(PollingMitWiederholungTest, Behind_a_reply_too_many_an_identification_comes_first) {
    VerbindeGleichlange();
    Wiederhole(2, 3ms);
    PollingZyklus();
    const std::size_t davor = port.gesendet.size();
    PollingZyklus();
    EXPECT_EQ(port.gesendet.at(davor).at(1), 0x11);
    EXPECT_EQ(std::ranges::count_if(port.gesendet, [](const std::string& a) { return a.at(1) == 0x11; }), 2);
}

TEST_F(PollingMitWiederholungTest,
       A_controller_that_falls_silent_behind_a_reply_too_many_is_a_lost_connection_and_comes_back) {
    VerbindeGleichlange();
    Wiederhole(2, 3ms);
    PollingZyklus();
    const std::size_t davor = port.gesendet.size();
    geraet.schweige = [](const std::string&) { return true; };
    PollingZyklus();
    EXPECT_TRUE(VerbindungVerloren());
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, LadeText(3000));
    EXPECT_TRUE(std::all_of(port.gesendet.begin() + static_cast<std::ptrdiff_t>(davor), port.gesendet.end(),
                            [](const std::string& a) { return a.at(1) == 0x11; }))
        << "nothing else is asked before it is settled whose turn it is";
    geraet.schweige = nullptr;
    PollingZyklus();
    EXPECT_FALSE(VerbindungVerloren());
    EXPECT_EQ(GetDurchgaenge(), 1U);
}

TEST_F(PollingMitWiederholungTest, A_command_that_waits_ends_the_settling_without_a_message) {
    VerbindeGleichlange();
    Wiederhole(2, 3ms);
    PollingZyklus();
    geraet.schweige = [](const std::string&) { return true; };
    umgebung.Plane(umgebung.uhr + 500ms, [this] { ziel.befehl = true; });
    const Zeit davor = umgebung.uhr;
    PollingZyklus();
    EXPECT_LT(umgebung.uhr - davor, 3s);
    EXPECT_TRUE(umgebung.meldungen.empty());
    EXPECT_FALSE(VerbindungVerloren());
}

TEST_F(PollingMitWiederholungTest, Stopping_ends_the_settling_without_a_message) {
    VerbindeGleichlange();
    Wiederhole(2, 3ms);
    PollingZyklus();
    geraet.schweige = [](const std::string&) { return true; };
    umgebung.Plane(umgebung.uhr + 500ms, [] { StoppePolling(); });
    const Zeit davor = umgebung.uhr;
    PollingZyklus();
    EXPECT_LT(umgebung.uhr - davor, 3s);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(PollingMitWiederholungTest, A_part_that_goes_on_a_line_in_order_is_told_at_once) {
    Verbinde({16});
    PollingZyklus();
    geraet.Spezifisch(0, 44) = 0;
    const Zeit beginn = umgebung.uhr;
    PollingZyklus();
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.uhr - beginn, 14ms) << "two exchanges of 7 ms";
}

TEST_F(PollingMitWiederholungTest, A_part_that_goes_on_a_line_that_repeats_is_told_once_that_is_certain) {
    VerbindeGleichlange();
    Wiederhole(2, 3ms);
    PollingZyklus();
    PollingZyklus();
    geraet.Spezifisch(0, 44) = 0;
    const Zeit beginn = umgebung.uhr;
    PollingZyklus();
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_GE(umgebung.uhr - beginn, 200ms);
}

TEST_F(PollingMitWiederholungTest,
       A_status_of_earlier_that_comes_again_gives_no_message_on_a_line_that_repeats) {
    VerbindeGleichlange();
    Wiederhole(2, 3ms);
    geraet.Register(DevGlobal) = 0;
    PollingZyklus();
    PollingZyklus();
    ASSERT_EQ(GetDurchgaenge(), 1U);
    // The reply to the global status comes again behind that to the selection, where the part's is due.
    const int auswahl = static_cast<int>(port.gesendet.size()) + 1;
    const auto antworte = port.antworte;
    port.antworte = [&, antworte](const std::string& anforderung) {
        auto stuecke = antworte(anforderung);
        if (static_cast<int>(port.gesendet.size()) == auswahl) {
            frei += 3ms;
            stuecke.push_back(
                {frei - umgebung.uhr, pruefung::MitPruefsumme(pruefung::Bytes({1, 3, 2, 0, 0}))});
        }
        return stuecke;
    };
    PollingZyklus();
    PollingZyklus();
    EXPECT_TRUE(umgebung.meldungen.empty());
    EXPECT_EQ(GetOptikteilStatus(0), Vorhanden);
    EXPECT_EQ(GetDurchgaenge(), 2U);
}

TEST_F(PollingMitWiederholungTest, Ten_broken_passes_in_a_row_are_a_lost_connection) {
    VerbindeGleichlange();
    for (int i = 1; i < 1000; ++i)
        wiederholte[i] = 3ms;
    for (int i = 0; i < 9; ++i)
        PollingZyklus();
    EXPECT_FALSE(VerbindungVerloren());
    PollingZyklus();
    EXPECT_TRUE(VerbindungVerloren());
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, LadeText(3000));
    wiederholte.clear();
    umgebung.uhr += 5s;
    PollingZyklus();
    EXPECT_FALSE(VerbindungVerloren());
}

TEST_F(PollingMitWiederholungTest, When_polling_stops_nothing_provisional_stays_in_the_image) {
    VerbindeGleichlange();
    geraet.Register(DevGlobal) = 2;
    PollingZyklus();
    geraet.Register(DevGlobal) = 3;
    PollingZyklus();
    Werte status;
    modDaten::HoleGlobaleDaten(0xC4, 1, status);
    EXPECT_EQ(status, Werte{3});
    StoppePolling();
    modDaten::HoleGlobaleDaten(0xC4, 1, status);
    EXPECT_EQ(status, Werte{2}) << "nothing has come behind the other that shows it right";
    EXPECT_EQ(Strahlen(18), 5);
}

TEST_F(PollingMitWiederholungTest, What_the_parts_said_last_is_remembered_when_polling_stops) {
    VerbindeGleichlange();
    StoppePolling();
    EXPECT_FALSE(modGeraetestand::HoleTeilzustaende()) << "no pass has ended";
    StartePolling();
    const auto davor = std::chrono::system_clock::now();
    PollingZyklus();
    const auto danach = std::chrono::system_clock::now();
    StoppePolling();
    const auto zustaende = modGeraetestand::HoleTeilzustaende();
    ASSERT_TRUE(zustaende);
    EXPECT_EQ(zustaende->status, std::vector<std::int32_t>{0x80});
    EXPECT_LE(davor, zustaende->zeit);
    EXPECT_LE(zustaende->zeit, danach);
    modDaten::LeereAbbild();
    StoppePolling();
    EXPECT_EQ(modGeraetestand::HoleTeilzustaende()->status.at(0), 0x80) << "polling was off already";
}

TEST_F(PollingMitWiederholungTest, When_a_command_waits_nothing_provisional_stays_in_the_image) {
    VerbindeGleichlange();
    PollingZyklus();
    for (int i = 0; i < 18; ++i)
        geraet.Spezifisch(0, 353 + i) = 6;
    const std::size_t bisStrahlen = port.gesendet.size() + 3;
    ziel.befehlAb = [&] { return port.gesendet.size() == bisStrahlen + 1; };
    PollingZyklus();
    EXPECT_EQ(Strahlen(18), 5);
}

TEST_F(PollingMitWiederholungTest, A_pass_on_a_line_in_order_carries_its_requests_alone_at_their_times) {
    VerbindeGleichlange();
    const std::size_t davor = port.gesendet.size();
    const Zeit beginn = umgebung.uhr;
    for (int i = 0; i < 3; ++i)
        PollingZyklus();
    std::vector<Zeit> zeiten;
    for (int i = 0; i < 15; ++i)
        zeiten.push_back(beginn + 2ms + i * 7ms);
    EXPECT_EQ(std::vector<Zeit>(port.sendezeiten.begin() + static_cast<std::ptrdiff_t>(davor),
                                port.sendezeiten.end()),
              zeiten);
}

TEST_F(PollingTest, Polling_is_on_exactly_when_the_port_could_be_opened) {
    EXPECT_EQ(GetPollingAktiv(), True);
    StoppePolling();
    EXPECT_EQ(GetPollingAktiv(), False);
    port.oeffnenGelingt = false;
    StartePolling();
    EXPECT_EQ(GetPollingAktiv(), False);
}

TEST_F(PollingTest, A_window_that_holds_every_exchange_up_for_seconds_costs_no_value_and_no_connection) {
    Verbinde({16, 16});
    geraet.Spezifisch(1, 335) = 17;
    const auto ziehe = [this] { umgebung.HalteAuf(5s); };
    umgebung.beiEreignissen = [&] {
        ziehe();
        umgebung.FuerWartezeit(ziehe); // once the next request is out
    };
    port.antworte = [&, antworte = port.antworte](const std::string& anforderung) {
        umgebung.Plane(umgebung.uhr, ziehe); // while its reply is waited for
        auto stuecke = antworte(anforderung);
        for (auto& stueck : stuecke)
            stueck.nach += 20ms;
        return stuecke;
    };
    auto erwartet = modLeitungsstatistik::GetStand().anzahl;
    erwartet[static_cast<std::size_t>(Austauschende::Gelungen)] += 9;
    PollingZyklus();
    EXPECT_EQ(GetDurchgaenge(), 1U);
    EXPECT_EQ(Spezifisch(1, 335, 18), 17);
    EXPECT_EQ(modLeitungsstatistik::GetStand().anzahl, erwartet) << "none has failed";
    EXPECT_TRUE(umgebung.meldungen.empty());
    EXPECT_FALSE(VerbindungVerloren());
}

} // namespace varnoth
