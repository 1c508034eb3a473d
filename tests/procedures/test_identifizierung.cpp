#include "identifizierung.h"

#include "ablauftest.h"
#include "verbindungsauskunft.h"

namespace varnoth {

namespace {

struct Identifikationsmitschrift : Identifikationsanzeige {
    void ZeigeVerbleibend(int versuche) override {
        verbleibend.push_back(versuche);
        if (versuche == abbruchBei)
            abbruch = true;
    }
    void ZeigeUrsache(const Verbindungsauskunft& auskunft) override { ursachen.push_back(auskunft.ursache); }
    void ZeigeIdentifikation() override { ++identifiziert; }
    bool Abgebrochen() override { return abbruch; }

    std::vector<int> verbleibend;
    std::vector<std::string> ursachen;
    int identifiziert = 0;
    int abbruchBei = 0;
    bool abbruch = false;
};

} // namespace

class IdentifizierungTest : public pruefung::AblaufTest {
protected:
    Identifikationsmitschrift anzeige;
};

TEST_F(IdentifizierungTest, A_device_that_answers_the_first_request_leaves_nine_attempts) {
    EXPECT_TRUE(Identifiziere(anzeige));
    EXPECT_EQ(anzeige.verbleibend, std::vector<int>{9});
    EXPECT_EQ(anzeige.identifiziert, 1);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(IdentifizierungTest, Window_events_run_after_an_attempt_too_and_a_cancel_among_them_counts) {
    int runden = 0;
    umgebung.beiEreignissen = [&] { ++runden; };
    modModbus::RTUModeH11IndentifikationsAnforderung();
    const int imAustausch = std::exchange(runden, 0);
    umgebung.beiEreignissen = [&] { anzeige.abbruch = ++runden > imAustausch; };
    EXPECT_FALSE(Identifiziere(anzeige));
    EXPECT_EQ(anzeige.identifiziert, 0);
    EXPECT_EQ(AnzahlAnforderungen(), 2);
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
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, "Es kann keine Verbindung zur Hardware aufgebaut werden.");
    EXPECT_EQ(umgebung.meldungen[0].titel, "Achtung");
}

TEST_F(IdentifizierungTest, The_message_names_port_device_format_and_cause) {
    port.befund = {.hindernis = Hindernis::Fehlt};
    SchweigeImmer();
    Identifiziere(anzeige);
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_TRUE(umgebung.meldungen[0].informativtext.starts_with(
        "COM1, /dev/pruefung, Format 38400,n,8,2\n\nDas Gerät /dev/pruefung ist nicht da."));
    EXPECT_NE(umgebung.meldungen[0].details.find("9 ohne Antwort"), std::string::npos)
        << umgebung.meldungen[0].details;
}

TEST_F(IdentifizierungTest, Each_failed_attempt_tells_its_cause_and_one_that_succeeds_none) {
    SchweigeBei(2);
    EXPECT_TRUE(Identifiziere(anzeige));
    ASSERT_EQ(anzeige.ursachen.size(), 2U);
    EXPECT_TRUE(anzeige.ursachen[1].starts_with("Niemand antwortet."));
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
