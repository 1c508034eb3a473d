#include "messhoerer.h"

#include "austausch.h"
#include "polling.h"
#include "pruefgeraet.h"
#include "registerabbild.h"
#include "transaktionen.h"

#include <gtest/gtest.h>

#include <vector>

namespace varnoth {

using namespace modPolling;
using pruefung::PruefGeraet;

namespace {

struct PruefHoerer : Messhoerer {
    ~PruefHoerer() override { modMesshoerer::MeldeAb(*this); }
    void Hoere(const Messdurchgang& durchgang) override { durchgaenge.push_back(durchgang); }
    void Hoere(const Liveereignis& ereignis) override { ereignisse.push_back(ereignis.art); }
    bool Braucht(int teil) const override { return teil == gebrauchter; }
    bool LaeuftAllein() const override { return allein; }

    std::vector<Messdurchgang> durchgaenge;
    std::vector<Liveereignisart> ereignisse;
    int gebrauchter = -1;
    bool allein = false;
};

struct StilleAnsicht : LiveAnsicht {
    bool ZeigtLiveDaten() const override { return zeigt; }
    void NeuerDatensatz() override { ++gerufen; }
    void StrahlzustaendeLiegenVor() override { ++gerufen; }
    void BlankingBekannt() override { ++gerufen; }
    void MesswerteLiegenVor() override { ++gerufen; }

    bool zeigt = true;
    int gerufen = 0;
};

struct EinZiel : PollingZiel {
    LiveAnsicht& Ansicht(int /*optikteil*/) override { return ansicht; }
    void AktualisiereGeraetestatus() override {}
    bool BefehlWartet() override { return befehl; }

    StilleAnsicht ansicht;
    bool befehl = false;
};

class MesshoererTest : public testing::Test {
protected:
    MesshoererTest() {
        SetzeZiel(&ziel);
        modMesshoerer::MeldeAn(hoerer);
        StartePolling();
        modModbus::RTUModeH11IndentifikationsAnforderung();
        SetzeAnzahlOptikteile(1);
        EXPECT_TRUE(modDaten::SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, 12, 20));
        geraet.Spezifisch(0, 44) = 0x80;
        SetzeOptikteilStatus(0, Vorhanden);
    }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefPort port{umgebung};
    PruefGeraet geraet{port};
    EinZiel ziel;
    PruefHoerer hoerer;
};

} // namespace

TEST_F(MesshoererTest, A_pass_is_told_once_what_follows_has_shown_it_right) {
    PollingZyklus();
    EXPECT_TRUE(hoerer.durchgaenge.empty());
    PollingZyklus();
    ASSERT_EQ(hoerer.durchgaenge.size(), 1U);
    PollingZyklus();
    EXPECT_EQ(hoerer.durchgaenge.size(), 2U);
}

TEST_F(MesshoererTest, A_pass_holds_what_was_read_and_when_it_ended) {
    geraet.Spezifisch(0, 44) = 0x85;
    geraet.Spezifisch(0, 335) = 17;
    geraet.Spezifisch(0, 352) = 3;
    geraet.Spezifisch(0, 353) = 0xABCD;
    geraet.Spezifisch(0, 354) = 0xFFFF;
    geraet.Register(196) = 2;
    PollingZyklus();
    const Zeit ende = umgebung.uhr;
    geraet.Spezifisch(0, 335) = 18;
    PollingZyklus();
    ASSERT_EQ(hoerer.durchgaenge.size(), 1U);
    const Messdurchgang& durchgang = hoerer.durchgaenge.front();
    EXPECT_EQ(durchgang.uhr, ende);
    EXPECT_EQ(durchgang.anzahlTeile, 1);
    EXPECT_EQ(durchgang.geraetestatus, 2);
    const Teilmessung& teil = durchgang.teile[0];
    EXPECT_TRUE(teil.vorhanden && teil.gemessen);
    EXPECT_EQ(teil.status, 0x85);
    EXPECT_EQ(teil.strahlen, 20);
    EXPECT_EQ(teil.werte[0], 17);
    EXPECT_EQ(teil.werte[17], 3);
    EXPECT_EQ(teil.strahlregister[0], 0xABCD);
    EXPECT_EQ(teil.strahlregister[1], 0x0F00) << "no bits behind the last beam";
    EXPECT_EQ(durchgang.teile[1], Teilmessung{});
}

TEST_F(MesshoererTest, A_part_has_no_more_beams_than_there_can_be_whatever_its_nummerholds) {
    EXPECT_TRUE(modDaten::SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, 12, 60000));
    PollingZyklus();
    PollingZyklus();
    ASSERT_EQ(hoerer.durchgaenge.size(), 1U);
    EXPECT_EQ(hoerer.durchgaenge[0].teile[0].strahlen, 1009);
}

TEST_F(MesshoererTest, A_part_that_no_view_shows_is_measured_only_for_a_listener_that_needs_it) {
    ziel.ansicht.zeigt = false;
    PollingZyklus();
    PollingZyklus();
    EXPECT_FALSE(hoerer.durchgaenge.at(0).teile[0].gemessen);
    hoerer.gebrauchter = 0;
    geraet.gelesen.clear();
    PollingZyklus();
    EXPECT_EQ(geraet.gelesen.size(), 4U);
    PollingZyklus();
    EXPECT_TRUE(hoerer.durchgaenge.back().teile[0].gemessen);
    EXPECT_EQ(ziel.ansicht.gerufen, 0);
}

TEST_F(MesshoererTest, Registers_behind_the_last_beam_are_not_kept) {
    EXPECT_TRUE(modDaten::SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, 12, 24));
    for (const int nummer : {353, 354, 355})
        geraet.Spezifisch(0, nummer) = 0xFFFF;
    PollingZyklus();
    PollingZyklus();
    const auto& strahlen = hoerer.durchgaenge.at(0).teile[0].strahlregister;
    EXPECT_EQ(strahlen[0], 0xFFFF);
    EXPECT_EQ(strahlen[1], 0xFF00);
    EXPECT_EQ(strahlen[2], 0);
}

TEST_F(MesshoererTest, A_part_without_beams_has_none) {
    EXPECT_TRUE(modDaten::SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, 12, 0));
    PollingZyklus();
    PollingZyklus();
    EXPECT_EQ(hoerer.durchgaenge.at(0).teile[0].strahlen, 0);
}

TEST_F(MesshoererTest, A_pass_keeps_nothing_of_the_one_before_it) {
    geraet.Spezifisch(0, 335) = 17;
    PollingZyklus();
    ziel.ansicht.zeigt = false;
    PollingZyklus();
    PollingZyklus();
    const Teilmessung& teil = hoerer.durchgaenge.at(1).teile[0];
    EXPECT_FALSE(teil.gemessen);
    EXPECT_EQ(teil.werte[0], 0);
}

TEST_F(MesshoererTest, A_pass_tells_the_time_of_day_at_its_end) {
    const auto vorher = std::chrono::system_clock::now();
    PollingZyklus();
    const auto nachher = std::chrono::system_clock::now();
    PollingZyklus();
    EXPECT_GE(hoerer.durchgaenge.at(0).zeit, vorher);
    EXPECT_LE(hoerer.durchgaenge.at(0).zeit, nachher);
}

TEST_F(MesshoererTest, A_pass_that_has_become_certain_meanwhile_is_told_when_live_data_stops) {
    PollingZyklus();
    ASSERT_TRUE(modAustausch::Vergewissere());
    EXPECT_TRUE(hoerer.durchgaenge.empty());
    StoppePolling();
    EXPECT_EQ(hoerer.durchgaenge.size(), 1U);
}

TEST_F(MesshoererTest, A_pass_that_was_not_certain_yet_is_not_told_when_live_data_stops) {
    PollingZyklus();
    StoppePolling();
    StartePolling();
    PollingZyklus();
    EXPECT_TRUE(hoerer.durchgaenge.empty());
    EXPECT_EQ(hoerer.ereignisse,
              (std::vector{Liveereignisart::Begonnen, Liveereignisart::Beendet, Liveereignisart::Begonnen}));
}

TEST_F(MesshoererTest, A_lost_connection_is_told_once_and_so_is_its_return) {
    geraet.schweige = [](const std::string&) { return true; };
    PollingZyklus();
    PollingZyklus();
    geraet.schweige = nullptr;
    PollingZyklus();
    PollingZyklus();
    EXPECT_EQ(hoerer.ereignisse,
              (std::vector{Liveereignisart::Begonnen, Liveereignisart::Verloren, Liveereignisart::Zurueck}));
}

TEST_F(MesshoererTest, Where_live_data_is_to_go_on_by_itself_no_box_waits_for_anybody) {
    geraet.schweige = [](const std::string&) { return true; };
    PollingZyklus();
    EXPECT_EQ(umgebung.meldungen.size(), 1U);
    hoerer.allein = true;
    PollingZyklus();
    geraet.schweige = nullptr;
    geraet.Spezifisch(0, 44) = 0;
    PollingZyklus();
    PollingZyklus();
    EXPECT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(GetOptikteilStatus(0), NichtVorhanden);
}

TEST_F(MesshoererTest, A_listener_that_is_taken_out_hears_nothing_any_more) {
    PollingZyklus();
    modMesshoerer::MeldeAb(hoerer);
    PollingZyklus();
    StoppePolling();
    EXPECT_TRUE(hoerer.durchgaenge.empty());
    EXPECT_EQ(hoerer.ereignisse.size(), 1U);
    EXPECT_FALSE(modMesshoerer::HoertJemand());
}

} // namespace varnoth
