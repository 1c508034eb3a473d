// Optical parts that are taken away and put back while live data runs.

#include "programmtest.h"

#include "polling.h"

#include <gmock/gmock.h>

namespace varnoth::pruefung {

using testing::ElementsAre;

constexpr const char* AnzahlGeaendert = "Die Anzahl der Optikteile hat sich geändert.";

class OptikteileImBetrieb : public ProgrammTest {
protected:
    bool NimmWeg(int teil) { return Aendere(teil, "remove", modPolling::NichtVorhanden); }
    bool FuegeHinzu(int teil) { return Aendere(teil, "add", modPolling::Vorhanden); }

private:
    bool Aendere(int teil, const char* wie, modPolling::Optikteilzustand zustand) {
        geraet->Befehl("part " + std::to_string(teil) + ' ' + wie);
        return LaufeBis([=] { return modPolling::GetOptikteilStatus(teil) == zustand; }) &&
               LaufeDurchgaenge(3);
    }
};

TEST_F(OptikteileImBetrieb, A_part_that_disappears_is_reported_once) {
    GeheLive();
    ASSERT_TRUE(NimmWeg(1));
    EXPECT_THAT(Meldungen(), ElementsAre(AnzahlGeaendert));
}

TEST_F(OptikteileImBetrieb, The_captions_tell_which_part_disappeared) {
    GeheLive();
    ASSERT_TRUE(NimmWeg(1));
    EXPECT_THAT(AlleTitel(), ElementsAre("1. Optikteil online", "2. Optikteil nicht vorhanden",
                                         "3. Optikteil online", "4. Optikteil online"));
}

TEST_F(OptikteileImBetrieb, The_other_parts_stay_live) {
    GeheLive();
    ASSERT_TRUE(NimmWeg(1));
    geraet->Befehl("scene beams 2 interrupted 77");
    ASSERT_TRUE(LaufeDurchgaenge(2));
    EXPECT_EQ(GezeigteWerte(2).front(), 77);
}

TEST_F(OptikteileImBetrieb, A_part_that_returns_is_reported_again) {
    GeheLive();
    ASSERT_TRUE(NimmWeg(1));
    ASSERT_TRUE(FuegeHinzu(1));
    EXPECT_THAT(Meldungen(), ElementsAre(AnzahlGeaendert, AnzahlGeaendert));
}

TEST_F(OptikteileImBetrieb, A_part_that_returns_is_live_again) {
    GeheLive();
    ASSERT_TRUE(NimmWeg(1));
    ASSERT_TRUE(FuegeHinzu(1));
    geraet->Befehl("scene beams 1 interrupted 33");
    ASSERT_TRUE(LaufeDurchgaenge(2));
    EXPECT_EQ(Titel(1), "2. Optikteil online");
    EXPECT_EQ(GezeigteWerte(1).front(), 33);
}

TEST_F(OptikteileImBetrieb, The_main_window_may_be_closed_while_the_message_is_shown) {
    GeheLive();
    fahrer.Sobald([] { return SichtbaresFenster("Meldungsfenster") != nullptr; },
                  [this] { Hauptfenster().close(); });
    geraet->Befehl("part 1 remove");
    EXPECT_TRUE(LaufeBis([this] { return !programm->Runde(); }));
    EXPECT_EQ(SichtbaresFenster("Meldungsfenster"), nullptr);
}

TEST_F(OptikteileImBetrieb, The_last_part_may_come_and_go_as_any_other) {
    GeheLive();
    ASSERT_TRUE(NimmWeg(3));
    ASSERT_TRUE(FuegeHinzu(3));
    EXPECT_EQ(AlleTitel(), ViermalTitel(". Optikteil online"));
}

} // namespace varnoth::pruefung
