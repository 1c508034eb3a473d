#include "identifizierung.h"

#include "ablauftest.h"

namespace varnoth {

namespace {

struct Mitschrift : Identifikationsanzeige {
    void ZeigeVerbleibend(int versuche) override {
        verbleibend.push_back(versuche);
        if (versuche == abbruchBei)
            abbruch = true;
    }
    void ZeigeIdentifikation() override { ++identifiziert; }
    bool Abgebrochen() override { return abbruch; }

    std::vector<int> verbleibend;
    int identifiziert = 0;
    int abbruchBei = 0;
    bool abbruch = false;
};

} // namespace

class IdentifizierungTest : public pruefung::AblaufTest {
protected:
    Mitschrift anzeige;
};

TEST_F(IdentifizierungTest, A_device_that_answers_the_first_request_leaves_nine_attempts) {
    EXPECT_TRUE(Identifiziere(anzeige));
    EXPECT_EQ(anzeige.verbleibend, std::vector<int>{9});
    EXPECT_EQ(anzeige.identifiziert, 1);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(IdentifizierungTest, A_device_that_answers_the_eighth_request_is_identified) {
    SchweigeBei(7);
    EXPECT_TRUE(Identifiziere(anzeige));
    EXPECT_EQ(anzeige.verbleibend.back(), 2);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(IdentifizierungTest, A_device_that_answers_only_the_ninth_request_counts_as_no_connection) {
    SchweigeBei(8);
    EXPECT_FALSE(Identifiziere(anzeige));
    EXPECT_EQ(modModbus::GetIdentGueltig(), True);
    EXPECT_EQ(anzeige.identifiziert, 0);
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
}

TEST_F(IdentifizierungTest, A_silent_device_is_asked_nine_times_and_then_reported) {
    SchweigeImmer();
    EXPECT_FALSE(Identifiziere(anzeige));
    EXPECT_EQ(AnzahlAnforderungen(), 9);
    EXPECT_EQ(anzeige.verbleibend, (std::vector<int>{9, 8, 7, 6, 5, 4, 3, 2, 1}));
    const Meldung erwartet{.text = "Es kann keine Verbindung zur Hardware aufgebaut werden.",
                           .titel = "Achtung"};
    EXPECT_EQ(umgebung.meldungen, std::vector<Meldung>{erwartet});
}

TEST_F(IdentifizierungTest, A_cancel_during_a_request_takes_effect_after_that_request_ends) {
    SchweigeImmer();
    anzeige.abbruchBei = 8;
    const Zeit davor = umgebung.uhr;
    EXPECT_FALSE(Identifiziere(anzeige));
    EXPECT_EQ(AnzahlAnforderungen(), 2);
    EXPECT_GE(umgebung.uhr - davor, std::chrono::seconds(2));
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(IdentifizierungTest, A_cancel_during_the_request_that_succeeds_shows_nothing_of_the_device) {
    anzeige.abbruchBei = 9;
    EXPECT_FALSE(Identifiziere(anzeige));
    EXPECT_EQ(anzeige.identifiziert, 0);
}

} // namespace varnoth
