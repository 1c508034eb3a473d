#include "hardwarereset.h"

#include "ablauftest.h"
#include "geraetestand.h"

namespace varnoth {

using pruefung::PruefGeraet;

namespace {

struct Resetmitschrift : Resetanzeige {
    void ZeigeWiederholung(int versuch) override {
        versuche.push_back(versuch);
        abbruch = versuch == abbruchBei;
    }
    bool Abgebrochen() override { return abbruch; }

    std::vector<int> versuche;
    int abbruchBei = 0;
    bool abbruch = false;
};

} // namespace

class HardwareresetTest : public pruefung::AblaufTest {
protected:
    Resetmitschrift anzeige;
};

TEST_F(HardwareresetTest, The_value_3_is_written_to_global_register_189) {
    EXPECT_TRUE(SetzeHardwareZurueck(anzeige));
    EXPECT_EQ(geraet.geschrieben,
              (std::vector<PruefGeraet::Schreibvorgang>{{.teil = 0, .adresse = 189, .werte = {3}}}));
}

TEST_F(HardwareresetTest, What_the_controller_held_is_from_before_even_if_nothing_was_confirmed) {
    for (const bool stumm : {false, true}) {
        modGeraetestand::MerkeGelesen({}, "4711");
        if (stumm)
            SchweigeImmer();
        anzeige.abbruchBei = 2;
        EXPECT_EQ(SetzeHardwareZurueck(anzeige), !stumm);
        EXPECT_FALSE(modGeraetestand::HoleGeraetestand().value().ausDieserVerbindung);
    }
}

TEST_F(HardwareresetTest, A_device_that_answers_at_once_shows_no_attempt) {
    EXPECT_TRUE(SetzeHardwareZurueck(anzeige));
    EXPECT_TRUE(anzeige.versuche.empty());
}

TEST_F(HardwareresetTest, A_device_that_answers_the_fourth_write_shows_2_to_4) {
    SchweigeBei(3);
    EXPECT_TRUE(SetzeHardwareZurueck(anzeige));
    EXPECT_EQ(anzeige.versuche, (std::vector<int>{2, 3, 4}));
}

TEST_F(HardwareresetTest, A_silent_device_is_asked_about_once_a_second_without_limit_until_cancel) {
    SchweigeImmer();
    anzeige.abbruchBei = 30;
    const Zeit davor = umgebung.uhr;
    EXPECT_FALSE(SetzeHardwareZurueck(anzeige));
    EXPECT_EQ(AnzahlAnforderungen(), 30);
    EXPECT_GE(umgebung.uhr - davor, std::chrono::seconds(30));
    EXPECT_LT(umgebung.uhr - davor, std::chrono::seconds(31));
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(HardwareresetTest, A_cancel_takes_effect_after_the_transaction_that_is_waiting) {
    SchweigeImmer();
    const Zeit davor = umgebung.uhr;
    umgebung.Plane(davor + std::chrono::milliseconds(400), [this] { anzeige.abbruch = true; });
    EXPECT_FALSE(SetzeHardwareZurueck(anzeige));
    EXPECT_EQ(AnzahlAnforderungen(), 1);
    EXPECT_GE(umgebung.uhr - davor, std::chrono::seconds(1));
}

TEST_F(HardwareresetTest, Window_events_run_after_each_attempt) {
    SchweigeBei(2);
    const int davor = umgebung.ereignisrunden;
    SetzeHardwareZurueck(anzeige);
    EXPECT_GE(umgebung.ereignisrunden - davor, 3);
}

} // namespace varnoth
