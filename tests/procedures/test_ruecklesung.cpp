#include "ruecklesung.h"

#include "ablauftest.h"
#include "geraetestand.h"
#include "registerabbild.h"
#include "schreibvorgang.h"
#include "standardkonfiguration.h"
#include "texte.h"
#include "transfermitschrift.h"

namespace varnoth {

namespace {

using pruefung::Mitschrift;
using pruefung::Schritt;

const Parametermenge Alle = AlleStellen(IstSchreibbar);
constexpr int AlleRegister = 1 + 4 * (7 + 32) + 1 + 1 + 1 + 30 + 1;

} // namespace

/// The image in use has been written to the controller.
class RuecklesungTest : public pruefung::AblaufTest {
protected:
    RuecklesungTest() {
        modDaten::LadeStandardkonfiguration();
        EXPECT_TRUE(modDaten::SetzeRegister(Spezifisch, spezifisch::Reichweite, 5, 2));
        SchreibeKonfiguration(anzeige, Ablage::Fluechtig);
        anzeige.schritte.clear();
        geraet.geschrieben.clear();
    }

    Pruefergebnis Pruefe(const Parametermenge& stellen = Alle) {
        Ruecklesung ruecklesung;
        gelungen = LiesZurueck(anzeige, stellen, ruecklesung);
        return PruefeRuecklesung(modDaten::DasAbbild(), stellen, ruecklesung);
    }

    Mitschrift anzeige;
    bool gelungen = false;
};

TEST_F(RuecklesungTest, What_was_written_is_read_back_equal) {
    const auto ergebnis = Pruefe();
    EXPECT_TRUE(gelungen);
    EXPECT_TRUE(ergebnis.IstGut());
    EXPECT_EQ(ergebnis.gleicheRegister, AlleRegister);
    EXPECT_EQ(ergebnis.alleRegister, AlleRegister);
    EXPECT_EQ(AnzahlRegister(Alle), AlleRegister);
}

TEST_F(RuecklesungTest, Every_written_parameter_is_read_once_and_only_selections_are_written) {
    Pruefe();
    EXPECT_EQ(geraet.gelesen.size(), Alle.size());
    EXPECT_EQ(geraet.geschrieben.size(), 5U);
    for (const auto& vorgang : geraet.geschrieben)
        EXPECT_TRUE(vorgang.adresse == 212 || vorgang.adresse == 213);
}

TEST_F(RuecklesungTest, Neither_the_image_in_use_nor_its_changed_mark_changes) {
    modDaten::LoescheGeaendert();
    geraet.Register(0x4008) = 99;
    const Abbild vorher = modDaten::DasAbbild();
    Pruefe();
    EXPECT_EQ(modDaten::DasAbbild(), vorher);
    EXPECT_EQ(modDaten::IstGeaendert(), False);
}

TEST_F(RuecklesungTest, It_is_shown_as_a_reading_and_ends_with_its_text) {
    anzeige.ende.clear();
    Pruefe();
    EXPECT_EQ(anzeige.schritte.front().bereich, LadeText(7005));
    EXPECT_EQ(anzeige.schritte.back().bereich, LadeText(7007));
    EXPECT_EQ(anzeige.ende, LadeText(7009));
}

TEST_F(RuecklesungTest, A_register_that_is_another_is_found_in_its_part) {
    geraet.Spezifisch(2, spezifisch::Reichweite) = 1;
    const auto ergebnis = Pruefe();
    EXPECT_TRUE(gelungen);
    EXPECT_EQ(ergebnis.abweichend, (Parametermenge{{Spezifisch, spezifisch::Reichweite, 2}}));
    EXPECT_EQ(ergebnis.gleicheRegister, AlleRegister - 1);
    EXPECT_TRUE(ergebnis.nichtVerglichen.empty());
    EXPECT_FALSE(ergebnis.IstGut());
}

TEST_F(RuecklesungTest, Of_a_block_the_registers_that_are_equal_count) {
    geraet.Register(0x404B + 29) = 99;
    const auto ergebnis = Pruefe();
    EXPECT_EQ(ergebnis.abweichend, (Parametermenge{{Kommunikation, kommunikation::Datenblock, 0}}));
    EXPECT_EQ(ergebnis.gleicheRegister, AlleRegister - 1);
}

TEST_F(RuecklesungTest, A_value_over_16_bits_counts_with_those_that_travel) {
    modDaten::SetzeKommunikationsdaten(kommunikation::Pausenzeit, 1, {0x12345});
    geraet.Register(0x4008) = 0x2345;
    EXPECT_TRUE(Pruefe().IstGut());
}

TEST_F(RuecklesungTest, Only_the_parameters_asked_for_are_read) {
    const Parametermenge eine{{Spezifisch, spezifisch::Reichweite, 2}};
    EXPECT_EQ(Pruefe(eine).alleRegister, 1);
    EXPECT_EQ(geraet.gelesen, (std::vector<std::pair<int, int>>{{0x2000 + spezifisch::Reichweite, 1}}));
}

TEST_F(RuecklesungTest, What_a_cancel_left_unread_is_not_compared_and_not_called_equal) {
    SchweigeImmer();
    anzeige.abbruchBei = [](const Schritt& schritt) { return schritt.versuch == 5; };
    auto ergebnis = Pruefe();
    EXPECT_FALSE(gelungen);
    EXPECT_EQ(ergebnis.nichtVerglichen, Alle);
    EXPECT_EQ(ergebnis.gleicheRegister, 0);
    EXPECT_FALSE(ergebnis.IstGut());
}

TEST_F(RuecklesungTest, A_controller_that_falls_silent_in_the_middle_leaves_the_rest_not_compared) {
    geraet.schweige = [](const std::string& anforderung) { return pruefung::Wort(anforderung, 2) == 213; };
    anzeige.abbruchBei = [](const Schritt& schritt) { return schritt.versuch == 5; };
    const auto ergebnis = Pruefe();
    EXPECT_EQ(ergebnis.gleicheRegister, AlleRegister - 34);
    EXPECT_EQ(ergebnis.nichtVerglichen.size(), 5U);
    for (const auto& stelle : ergebnis.nichtVerglichen)
        EXPECT_EQ(stelle.bereich, Kommunikation);
    EXPECT_EQ(anzeige.ende, "Übertragung beendet.") << "of the write before";
}

TEST_F(RuecklesungTest, What_was_read_is_remembered_as_what_the_controller_holds) {
    geraet.Register(193) = 8;
    Pruefe();
    const auto stand = modGeraetestand::HoleGeraetestand();
    ASSERT_TRUE(stand);
    EXPECT_EQ(stand->abbild.HoleRegister(Global, global::PnpAusgang), 8);
}

TEST_F(RuecklesungTest, What_was_written_is_unchecked_until_it_is_read_back) {
    EXPECT_EQ(modGeraetestand::HoleGeraetestand().value().ungeprueft, Alle);
    Pruefe();
    EXPECT_TRUE(modGeraetestand::HoleGeraetestand().value().ungeprueft.empty());
}

} // namespace varnoth
