#include "verbindung.h"

#include "ansichtstitel.h"
#include "geraetestand.h"
#include "polling.h"
#include "pruefgeraet.h"
#include "pruefsicherungen.h"
#include "rahmen.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "schnittstelle.h"
#include "standardkonfiguration.h"
#include "texte.h"
#include "transaktionen.h"
#include "zykluszeiten.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace modPolling;

namespace {

struct PruefVerbindungsziel : Verbindungsziel {
    bool Identifiziere() override { return Schritt("ident", identGelingt); }
    bool LiesKonfiguration() override {
        if (lesenGelingt) {
            modDaten::LadeStandardkonfiguration();
            modDaten::SetzeSpezifischeDaten(spezifisch::Strahlenzahl, 1, 0, {32});
            modDaten::SetzeSpezifischeDaten(spezifisch::Aufloesung, 1, 0, {aufloesung});
            modDaten::SetzeGlobaleDaten(global::Geraetestatus, 1, {statuswort});
        }
        return Schritt("lesen", lesenGelingt);
    }
    bool HoleOptikteilInformation() override {
        for (std::int16_t teil = 0; teil < AnzahlOptikteile; ++teil)
            modDaten::SetzeSpezifischeDaten(spezifisch::Optikteilstatus, 1, teil,
                                            {vorhanden.at(static_cast<std::size_t>(teil)) ? 0x80 : 0});
        return Schritt("info", infoGelingt);
    }
    bool FrageNachKonfiguration() override { return Schritt("frage", false); }
    void StoppeLiveDaten() override { Schritt("stop", true); }
    void ZeigeAlleOffline() override { Schritt("offline", true); }
    void BaueAnsichtenAuf() override { Schritt("ansichten", true); }
    void LiveDatenLaufenAn() override { Schritt("live", true); }
    void ZeigeLichtleistenmenue() override { Schritt("menue", true); }
    bool LiveDatenLaufen() const override { return laeuft; }
    bool Beendet() const override { return beendet; }

    bool Schritt(const char* was, bool ergebnis) {
        ablauf += ablauf.empty() ? was : std::string(" ") + was;
        return ergebnis;
    }

    std::string ablauf;
    std::int32_t aufloesung = 5;
    std::int32_t statuswort = 0;
    std::array<bool, AnzahlOptikteile> vorhanden{true, false, false, false};
    bool identGelingt = true;
    bool lesenGelingt = true;
    bool infoGelingt = true;
    bool laeuft = false;
    bool beendet = false;
};

} // namespace

class VerbindungTest : public testing::Test {
protected:
    pruefung::PruefUmgebung umgebung;
    pruefung::PruefPort port{umgebung};
    PruefVerbindungsziel ziel;
};

TEST_F(VerbindungTest, A_connection_runs_all_steps_in_order) {
    EXPECT_TRUE(Autostart(ziel));
    EXPECT_EQ(ziel.ablauf, "offline ident lesen info ansichten live menue");
    EXPECT_EQ(GetPollingAktiv(), True);
}

TEST_F(VerbindungTest, Live_data_that_runs_is_stopped_first) {
    ziel.laeuft = true;
    Autostart(ziel);
    EXPECT_TRUE(ziel.ablauf.starts_with("stop offline"));
}

TEST_F(VerbindungTest, Autosend_that_this_run_has_started_is_ended_before_connecting_and_only_once) {
    const pruefung::PruefGeraet geraet(port);
    modSchnittstelle::OpenCommPort();
    ASSERT_EQ(modModbus::RTUModeH11IndentifikationsAnforderung(), True);
    modModbus::SchreibeSteuerwert2();
    port.gesendet.clear();
    Autostart(ziel);
    EXPECT_EQ(port.gesendet, std::vector{SchreibAnforderung(1, 0x4084, 1, {4})});
    Autostart(ziel);
    EXPECT_EQ(port.gesendet.size(), 1U);
}

class SicherungBeimVerbinden : public VerbindungTest {
protected:
    SicherungBeimVerbinden() { Autostart(ziel); }

    pruefung::PruefSicherungen sicherungen;
};

TEST_F(SicherungBeimVerbinden, Changes_are_put_aside_before_the_image_is_cleared) {
    modDaten::SetzeSpezifischeDaten(spezifisch::Reichweite, 1, 0, {4});
    const Abbild geaendertes = modDaten::DasAbbild();
    Autostart(ziel);
    ASSERT_EQ(sicherungen.gelegte.size(), 1U);
    EXPECT_EQ(sicherungen.gelegte[0].second, geaendertes);
    EXPECT_EQ(sicherungen.gelegte[0].first.angaben.anlass, Sicherungsanlass::VorDemVerbinden);
}

TEST_F(SicherungBeimVerbinden, What_was_only_read_is_not_put_aside) {
    EXPECT_EQ(modDaten::IstGeaendert(), True) << "a read counts as a change";
    Autostart(ziel);
    EXPECT_TRUE(sicherungen.gelegte.empty());
}

TEST_F(SicherungBeimVerbinden, What_a_cancelled_connection_left_is_not_put_aside) {
    ziel.infoGelingt = false;
    Autostart(ziel);
    Autostart(ziel);
    EXPECT_TRUE(sicherungen.gelegte.empty());
}

TEST_F(SicherungBeimVerbinden, Where_the_backup_fails_Cancel_leaves_everything_as_it_is) {
    modDaten::SetzeSpezifischeDaten(spezifisch::Reichweite, 1, 0, {4});
    const Abbild geaendertes = modDaten::DasAbbild();
    sicherungen.fehler = "no room";
    umgebung.antworten = {Antwort::Abbrechen};
    ziel.ablauf.clear();
    ziel.laeuft = true;
    EXPECT_TRUE(Autostart(ziel));
    EXPECT_EQ(ziel.ablauf, "");
    EXPECT_EQ(modDaten::DasAbbild(), geaendertes);
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, "Die Änderungen konnten nicht gesichert werden: no room");
}

TEST_F(SicherungBeimVerbinden, Where_the_backup_fails_OK_connects_all_the_same) {
    modDaten::SetzeSpezifischeDaten(spezifisch::Reichweite, 1, 0, {4});
    sicherungen.fehler = "no room";
    EXPECT_TRUE(Autostart(ziel));
    EXPECT_NE(modDaten::HoleRegister(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Reichweite), 4);
    EXPECT_EQ(umgebung.meldungen.size(), 1U);
}

TEST_F(VerbindungTest, The_image_is_cleared_before_anything_is_read) {
    modDaten::SetzeSpezifischeDaten(spezifisch::Strahlenzahl, 1, 3, {99});
    ziel.identGelingt = false;
    Autostart(ziel);
    EXPECT_EQ(modDaten::Strahlenzahl(3), 0);
}

TEST_F(VerbindungTest, What_the_controller_held_before_becomes_older_than_the_connection) {
    modGeraetestand::MerkeGelesen({}, "4711");
    ziel.identGelingt = false;
    Autostart(ziel);
    EXPECT_FALSE(modGeraetestand::HoleGeraetestand().value().ausDieserVerbindung);
}

TEST_F(VerbindungTest, Parts_are_polled_up_to_the_last_one_that_is_present) {
    ziel.vorhanden = {true, false, true, false};
    Autostart(ziel);
    EXPECT_EQ(GetAnzahlOptikteile(), 3);
    EXPECT_EQ(GetOptikteilStatus(0), Vorhanden);
    EXPECT_EQ(GetOptikteilStatus(1), NichtVorhanden);
    EXPECT_EQ(GetOptikteilStatus(2), Vorhanden);
}

TEST_F(VerbindungTest, A_cancelled_identification_leads_to_the_question_for_a_configuration) {
    ziel.identGelingt = false;
    EXPECT_FALSE(Autostart(ziel));
    EXPECT_EQ(ziel.ablauf, "offline ident frage ansichten menue");
    EXPECT_EQ(GetPollingAktiv(), False);
    EXPECT_EQ(GetAnzahlOptikteile(), 0);
}

TEST_F(VerbindungTest, A_cancelled_read_leads_to_the_question_for_a_configuration) {
    ziel.lesenGelingt = false;
    Autostart(ziel);
    EXPECT_EQ(ziel.ablauf, "offline ident lesen frage ansichten menue");
}

TEST_F(VerbindungTest, A_cancelled_part_information_leads_to_the_question_for_a_configuration) {
    ziel.infoGelingt = false;
    Autostart(ziel);
    EXPECT_EQ(ziel.ablauf, "offline ident lesen info frage ansichten menue");
}

TEST_F(VerbindungTest, An_implausible_configuration_counts_as_a_failed_connection_without_a_question) {
    ziel.aufloesung = 7;
    EXPECT_FALSE(Autostart(ziel));
    EXPECT_EQ(ziel.ablauf, "offline ident lesen info ansichten menue");
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, LadeText(3102));
    EXPECT_EQ(modDaten::Strahlenzahl(0), 0) << "the default configuration is loaded";
}

TEST_F(VerbindungTest, The_status_report_comes_before_the_plausibility_message) {
    ziel.aufloesung = 7;
    ziel.statuswort = 1 << 4;
    Autostart(ziel);
    ASSERT_EQ(umgebung.meldungen.size(), 2U);
    EXPECT_NE(umgebung.meldungen[0].text.find(LadeText(3105)), std::string::npos);
    EXPECT_EQ(umgebung.meldungen[1].text, LadeText(3102));
}

TEST_F(VerbindungTest, Cycle_times_are_recomputed_from_what_was_read) {
    Autostart(ziel);
    EXPECT_EQ(modHilfsFunktionen::GetZykluszeit(0), 1750);
}

TEST_F(VerbindungTest, Cycle_times_are_recomputed_after_a_failure_too) {
    Autostart(ziel);
    ziel.identGelingt = false;
    Autostart(ziel);
    EXPECT_EQ(modHilfsFunktionen::GetZykluszeit(0), 0);
}

TEST_F(VerbindungTest, A_program_that_ends_meanwhile_shows_and_starts_nothing_more) {
    ziel.beendet = true;
    EXPECT_FALSE(Autostart(ziel));
    EXPECT_EQ(ziel.ablauf, "offline ident lesen info");
    EXPECT_EQ(GetPollingAktiv(), False);
}

TEST_F(VerbindungTest, A_port_that_cannot_be_opened_leaves_polling_off) {
    port.oeffnenGelingt = false;
    EXPECT_FALSE(Autostart(ziel));
    EXPECT_EQ(GetPollingAktiv(), False);
}

TEST(Ansichtstitel, Tells_online_offline_and_not_available) {
    EXPECT_EQ(Titeltext(Vorhanden, true), TextOnline);
    EXPECT_EQ(Titeltext(Vorhanden, false), TextOffline);
    EXPECT_EQ(Titeltext(NichtVorhanden, true), TextNichtVorhanden);
    EXPECT_EQ(Titeltext(Unbekannt, true), TextNichtVorhanden);
}

TEST(Ansichtstitel, Begins_with_the_part_number_from_one) {
    EXPECT_EQ(Ansichtstitel(0, TextOnline), "1. Optikteil online");
    EXPECT_EQ(Ansichtstitel(3, TextNichtVorhanden), "4. Optikteil nicht vorhanden");
}

} // namespace varnoth
