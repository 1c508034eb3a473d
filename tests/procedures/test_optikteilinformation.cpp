#include "optikteilinformation.h"

#include "ablauftest.h"
#include "polling.h"
#include "registerabbild.h"
#include "texte.h"

namespace varnoth {

namespace {

struct Optikteilmitschrift : Optikteilanzeige {
    void ZeigeOptikteil(int optikteil, const std::string& text) override {
        zeilen.at(static_cast<std::size_t>(optikteil)).push_back(text);
    }
    void ZeigeFortschritt(int erledigt, int gesamt) override { fortschritt.emplace_back(erledigt, gesamt); }
    bool Abgebrochen() override { return abbruch && abbruch(); }

    std::array<std::vector<std::string>, AnzahlOptikteile> zeilen;
    std::vector<std::pair<int, int>> fortschritt;
    std::function<bool()> abbruch;
};

} // namespace

class OptikteilinformationTest : public pruefung::AblaufTest {
protected:
    Optikteilmitschrift anzeige;
};

TEST_F(OptikteilinformationTest, Bit_7_of_the_status_tells_present_and_no_other_bit_does) {
    geraet.Spezifisch(0, 44) = 0x0080;
    geraet.Spezifisch(1, 44) = 0x0040;
    EXPECT_TRUE(HoleOptikteilInformation(anzeige));
    EXPECT_EQ(anzeige.zeilen[0].back(), "Optikteil 0:  vorhanden,  ");
    EXPECT_EQ(anzeige.zeilen[1].back(), "Optikteil 1:  nicht vorhanden,  ");
}

TEST_F(OptikteilinformationTest, With_only_part_0_present_the_other_three_lines_say_not_available) {
    SetzeSprachoffset(Englisch);
    geraet.Spezifisch(0, 44) = 0x0080;
    HoleOptikteilInformation(anzeige);
    EXPECT_EQ(anzeige.zeilen[0].back(), "Optical part 0:  available,  ");
    for (const std::size_t teil : {1U, 2U, 3U})
        EXPECT_EQ(anzeige.zeilen[teil].back(),
                  "Optical part " + std::to_string(teil) + ":  not available,  ");
}

TEST_F(OptikteilinformationTest, A_line_begins_with_the_part_before_the_answer_is_known) {
    HoleOptikteilInformation(anzeige);
    EXPECT_EQ(anzeige.zeilen[2].front(), "Optikteil 2:  ");
}

TEST_F(OptikteilinformationTest, Each_part_is_selected_and_its_status_register_read) {
    HoleOptikteilInformation(anzeige);
    const std::vector<pruefung::PruefGeraet::Schreibvorgang> erwartet{
        {0, 212, {0}}, {0, 212, {1}}, {1, 212, {2}}, {2, 212, {3}}};
    EXPECT_EQ(geraet.geschrieben, erwartet);
    EXPECT_EQ(geraet.gelesen, (std::vector<std::pair<int, int>>(4, {0x202C, 1})));
}

TEST_F(OptikteilinformationTest, The_answers_are_kept_and_mark_the_configuration_as_changed) {
    geraet.Spezifisch(3, 44) = 0x1280;
    modDaten::LoescheGeaendert();
    HoleOptikteilInformation(anzeige);
    Werte werte;
    modDaten::HoleSpezifischeDaten(spezifisch::Optikteilstatus, 1, 3, werte);
    EXPECT_EQ(werte, Werte{0x1280});
    EXPECT_EQ(modDaten::IstGeaendert(), True);
}

TEST_F(OptikteilinformationTest, Failed_exchanges_are_repeated_without_a_message) {
    SchweigeBei(20);
    EXPECT_TRUE(HoleOptikteilInformation(anzeige));
    EXPECT_EQ(AnzahlAnforderungen(), 28);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(OptikteilinformationTest, A_cancel_stops_at_once_and_leaves_the_image) {
    geraet.Spezifisch(0, 44) = 0x0080;
    anzeige.abbruch = [this] { return AnzahlAnforderungen() == 2; };
    EXPECT_FALSE(HoleOptikteilInformation(anzeige));
    Werte werte;
    modDaten::HoleSpezifischeDaten(spezifisch::Optikteilstatus, 1, 0, werte);
    EXPECT_EQ(werte, Werte{0});
    EXPECT_EQ(anzeige.zeilen[0].back(), "Optikteil 0:  ");
}

TEST_F(OptikteilinformationTest, The_progress_counts_the_four_parts) {
    HoleOptikteilInformation(anzeige);
    EXPECT_EQ(anzeige.fortschritt,
              (std::vector<std::pair<int, int>>{{0, 4}, {1, 4}, {2, 4}, {3, 4}, {4, 4}}));
}

TEST_F(OptikteilinformationTest, Live_data_asks_the_parts_up_to_the_last_one_that_is_there) {
    geraet.Spezifisch(0, 44) = 0x0080;
    geraet.Spezifisch(2, 44) = 0x0080;
    HoleOptikteilInformation(anzeige);
    UebernimmOptikteile();
    EXPECT_EQ(modPolling::GetAnzahlOptikteile(), 3);
    EXPECT_EQ(modPolling::GetOptikteilStatus(0), modPolling::Vorhanden);
    EXPECT_NE(modPolling::GetOptikteilStatus(1), modPolling::Vorhanden);
    EXPECT_EQ(modPolling::GetOptikteilStatus(2), modPolling::Vorhanden);
    EXPECT_NE(modPolling::GetOptikteilStatus(3), modPolling::Vorhanden);
}

} // namespace varnoth
