#include "sicherungen.h"

#include "geraetestand.h"
#include "modelltest.h"
#include "pruefsicherungen.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"

namespace varnoth {

class SicherungenTest : public ModellTest {
protected:
    SicherungenTest() {
        modDaten::LadeStandardkonfiguration();
        SetzeWert(Spezifisch, spezifisch::Strahlenzahl, 0, 32);
        modDaten::LoescheGeaendert();
        MerkeAusgangslage();
    }

    static void Aendere(std::int32_t reichweite = 5) {
        EXPECT_TRUE(modDaten::SetzeRegister(Spezifisch, spezifisch::Reichweite, reichweite, 0));
    }
    /// Whether the changes are put aside.
    bool SichertAenderungen() {
        const auto davor = sicherungen.gelegte.size();
        EXPECT_EQ(SichereAenderungen(Sicherungsanlass::VorNeuer), "");
        return sicherungen.gelegte.size() > davor;
    }

    pruefung::PruefSicherungen sicherungen;
};

TEST_F(SicherungenTest, Changes_are_put_aside_as_they_stand_with_their_occasion) {
    Aendere();
    ASSERT_TRUE(SichertAenderungen());
    const auto& [sicherung, abbild] = sicherungen.gelegte.front();
    EXPECT_EQ(abbild, modDaten::DasAbbild());
    EXPECT_EQ(sicherung.angaben.anlass, Sicherungsanlass::VorNeuer);
    EXPECT_EQ(sicherung.angaben.strahlen, "32, 0, 0, 0");
}

TEST_F(SicherungenTest, Without_changes_nothing_is_put_aside) {
    EXPECT_FALSE(SichertAenderungen());
}

TEST_F(SicherungenTest, Changes_that_were_saved_are_not_put_aside) {
    Aendere();
    modDaten::LoescheGeaendert();
    EXPECT_FALSE(SichertAenderungen());
}

TEST_F(SicherungenTest, A_configuration_that_counts_as_changed_but_is_what_was_read_is_not_put_aside) {
    modDaten::SetzeGeaendert();
    EXPECT_FALSE(SichertAenderungen());
    Aendere();
    MerkeAusgangslage();
    EXPECT_FALSE(SichertAenderungen());
}

TEST_F(SicherungenTest, Measured_values_are_no_changes) {
    modDaten::SetzeGeaendert();
    EXPECT_TRUE(modDaten::SetzeParameter(Spezifisch, spezifisch::Messwerte, Werte(18, 7)));
    EXPECT_FALSE(SichertAenderungen());
}

TEST_F(SicherungenTest, Changes_that_the_controller_holds_are_not_put_aside) {
    Aendere();
    modGeraetestand::MerkeGelesen(modDaten::DasAbbild(), "1");
    EXPECT_FALSE(SichertAenderungen());
    Aendere(4);
    EXPECT_TRUE(SichertAenderungen());
}

TEST_F(SicherungenTest, What_the_controller_holds_in_part_only_is_no_reason_to_lose_changes) {
    Aendere();
    modGeraetestand::MerkeGeschrieben(modDaten::DasAbbild(), {{Spezifisch, spezifisch::Reichweite, 0}}, "1");
    EXPECT_TRUE(SichertAenderungen());
}

TEST_F(SicherungenTest, An_image_without_beams_is_not_put_aside) {
    SetzeWert(Spezifisch, spezifisch::Strahlenzahl, 0, 0);
    Aendere();
    EXPECT_FALSE(SichertAenderungen());
}

TEST_F(SicherungenTest, Why_changes_could_not_be_put_aside_is_given) {
    Aendere();
    sicherungen.fehler = "full";
    EXPECT_EQ(SichereAenderungen(Sicherungsanlass::VorNeuer), "full");
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(SicherungenTest, Changes_that_could_not_be_put_aside_may_be_replaced_after_a_question_only) {
    Aendere();
    sicherungen.fehler = "full";
    umgebung.antworten = {Antwort::Abbrechen, Antwort::Ok};
    EXPECT_FALSE(DarfErsetzen(Sicherungsanlass::VorNeuer));
    EXPECT_TRUE(DarfErsetzen(Sicherungsanlass::VorNeuer));
    ASSERT_EQ(umgebung.meldungen.size(), 2U);
    EXPECT_EQ(umgebung.meldungen[0].text, "Die Änderungen konnten nicht gesichert werden: full");
    EXPECT_EQ(umgebung.meldungen[0].informativtext,
              "Soll trotzdem fortgefahren werden? Die Änderungen gehen dann verloren.");
    EXPECT_EQ(umgebung.meldungen[0].knoepfe, Knoepfe::OkAbbrechen);
    EXPECT_TRUE(umgebung.meldungen[0].abbrechenVorgegeben);
}

TEST_F(SicherungenTest, Changes_that_were_put_aside_may_be_replaced_without_a_word) {
    Aendere();
    EXPECT_TRUE(DarfErsetzen(Sicherungsanlass::VorNeuer));
    EXPECT_EQ(sicherungen.gelegte.size(), 1U);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(SicherungenTest, What_the_controller_held_is_put_aside_whatever_the_image_in_use_holds) {
    Abbild imGeraet = modDaten::DasAbbild();
    modGeraetestand::MerkeGelesen(imGeraet, "1");
    Aendere();
    EXPECT_TRUE(IstGeraetestandSicherbar());
    EXPECT_EQ(SichereGeraetestand(), "");
    ASSERT_EQ(sicherungen.gelegte.size(), 1U);
    EXPECT_EQ(sicherungen.gelegte.front().second, imGeraet);
    EXPECT_EQ(sicherungen.gelegte.front().first.angaben.anlass, Sicherungsanlass::VorDemSchreiben);
}

TEST_F(SicherungenTest, What_the_controller_holds_cannot_be_put_aside_unless_it_is_known_in_whole) {
    EXPECT_FALSE(IstGeraetestandSicherbar());
    modGeraetestand::MerkeGeschrieben(modDaten::DasAbbild(), {{Spezifisch, spezifisch::Reichweite, 0}}, "1");
    EXPECT_FALSE(IstGeraetestandSicherbar());
    EXPECT_EQ(SichereGeraetestand(), "");
    EXPECT_TRUE(sicherungen.gelegte.empty());
}

TEST_F(SicherungenTest, Where_no_backups_are_fitted_in_nothing_is_put_aside) {
    SetzeSicherungen(nullptr);
    Aendere();
    modGeraetestand::MerkeGelesen({}, "1");
    EXPECT_EQ(SichereAenderungen(Sicherungsanlass::VorNeuer), "");
    EXPECT_EQ(SichereGeraetestand(), "");
    EXPECT_FALSE(IstGeraetestandSicherbar());
}

} // namespace varnoth
