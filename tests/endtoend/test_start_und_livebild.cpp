// The program starts, connects and shows what the controller measures.

#include "programmtest.h"

#include "beambarcontrol.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "transaktionen.h"

#include <QRadioButton>
#include <gmock/gmock.h>

#include <numeric>

namespace varnoth::pruefung {

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

std::vector<int> GemesseneWerte(Simulatorprozess& geraet, int teil, int versatz = 0) {
    std::vector<int> werte;
    for (int k = 0; k < AnzahlMesswerte; ++k)
        werte.push_back(geraet.Register("specific " + std::to_string(teil) + ' ' +
                                        std::to_string(spezifisch::Messwerte + versatz + k)));
    return werte;
}

/// The beams, numbered from 1, that a view shows in a state.
std::vector<int> Strahlen(frmDocument& ansicht, Strahlzustand zustand) {
    const auto& bild = Kind<BeamBarControl>(ansicht, "BeamBar1");
    std::vector<int> nummern;
    for (int strahl = 0; strahl < bild.Strahlanzahl(); ++strahl)
        if (bild.Zustand(strahl) == zustand)
            nummern.push_back(strahl + 1);
    return nummern;
}

std::vector<int> VonBis(int von, int bis) {
    std::vector<int> zahlen(static_cast<std::size_t>(bis - von + 1));
    std::iota(zahlen.begin(), zahlen.end(), von);
    return zahlen;
}

/// "global 9", "specific 2 12", "communication 4".
std::string Registername(Speicherbereich bereich, int adresse, int teil) {
    switch (bereich) {
    case Speicherbereich::GlobaleGeraetedaten:
        return "global " + std::to_string(adresse);
    case Speicherbereich::SpezifischeGeraetedaten:
        return "specific " + std::to_string(teil) + ' ' + std::to_string(adresse);
    default:
        return "communication " + std::to_string(adresse);
    }
}

/// Compares every readable register of a range with the controller's; gives how many there are.
int VergleicheBereich(Simulatorprozess& geraet, Speicherbereich bereich) {
    const auto abbild = modDaten::Bereich(bereich);
    int verglichen = 0;
    std::int16_t adresse = 0;
    std::int16_t laenge = 0;
    for (auto da = modDaten::ErsterLesbarerEintrag(bereich, adresse, laenge); da != False;
         da = modDaten::NaechsterLesbarerEintrag(bereich, adresse, laenge))
        for (auto stelle = adresse; stelle < adresse + laenge; ++stelle)
            for (int teil = 0; teil < Exemplare(bereich); ++teil, ++verglichen) {
                const std::string name = Registername(bereich, stelle, teil);
                EXPECT_EQ(abbild[Stelle(bereich, stelle, teil)], geraet.Register(name)) << name;
            }
    return verglichen;
}

} // namespace

class StartUndLivebild : public ProgrammTest {};

TEST_F(StartUndLivebild, The_program_connects_without_a_click_and_shows_four_parts_online) {
    GeheLive();
    EXPECT_EQ(AlleTitel(), ViermalTitel(". Optikteil online"));
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        EXPECT_TRUE(Ansicht(teil).ZeigtLiveDaten()) << teil;
    EXPECT_THAT(Meldungen(), IsEmpty());
}

TEST_F(StartUndLivebild, The_identification_learns_the_controllers_address) {
    GeheLive({"--address", "17"});
    EXPECT_EQ(modModbus::GetSlaveAdresse(), 17);
}

TEST_F(StartUndLivebild, The_values_shown_are_the_controllers) {
    GeheLive();
    geraet->Befehl("scene freeze");
    ASSERT_TRUE(LaufeDurchgaenge(2));
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        EXPECT_EQ(GezeigteWerte(teil), GemesseneWerte(*geraet, teil)) << teil;
}

TEST_F(StartUndLivebild, The_maxima_shown_are_the_controllers) {
    GeheLive();
    geraet->Befehl("scene freeze");
    Kind<QRadioButton>(Ansicht(1), "Option1_2").click();
    ASSERT_TRUE(LaufeDurchgaenge(2));
    EXPECT_EQ(GezeigteWerte(1), GemesseneWerte(*geraet, 1, 2 * AnzahlMesswerte));
}

TEST_F(StartUndLivebild, The_values_follow_the_beams_that_something_interrupts) {
    GeheLive();
    geraet->Befehl("scene beams 0 interrupted 5-9,12");
    ASSERT_TRUE(LaufeDurchgaenge(2));
    EXPECT_EQ(GezeigteWerte(0), (std::vector{5, 12, 6, 1, 32, 26}));
}

TEST_F(StartUndLivebild, Just_the_beams_that_something_interrupts_are_drawn_so) {
    GeheLive();
    geraet->Befehl("scene beams 0 interrupted 5-9,12");
    geraet->Befehl("scene beams 3 interrupted 280-288");
    ASSERT_TRUE(LaufeDurchgaenge(2));
    EXPECT_EQ(Strahlen(Ansicht(0), Strahlzustand::Unterbrochen), (std::vector{5, 6, 7, 8, 9, 12}));
    EXPECT_EQ(Strahlen(Ansicht(3), Strahlzustand::Unterbrochen), VonBis(280, 288));
    EXPECT_EQ(Strahlen(Ansicht(3), Strahlzustand::Frei), VonBis(1, 279));
}

TEST_F(StartUndLivebild, Blanked_beams_are_drawn_so_and_left_out_of_the_values) {
    SchliesseGeraetAn();
    geraet->Befehl("scene beams 0 interrupted 1-4");
    geraet->Befehl("set specific 0 52 " + std::to_string(0x0300)); // beams 1 and 2
    Starte();
    Verbinde();
    ASSERT_TRUE(LaufeBis(IstLive));
    EXPECT_EQ(Strahlen(Ansicht(0), Strahlzustand::Geblankt), (std::vector{1, 2}));
    EXPECT_EQ(GezeigteWerte(0), (std::vector{3, 4, 2, 5, 32, 28}));
}

TEST_F(StartUndLivebild, Every_register_of_the_configuration_is_the_controllers_after_the_read) {
    SchliesseGeraetAn();
    geraet->Befehl("scene freeze");
    Starte();
    Verbinde();
    ASSERT_TRUE(LaufeBis(IstLive));
    for (const Speicherbereich bereich : AlleSpeicherbereiche)
        EXPECT_GT(VergleicheBereich(*geraet, bereich), 0);
}

TEST_F(StartUndLivebild, Only_the_parts_that_are_there_have_a_view) {
    GeheLive({"--beams", "16,0,24"});
    EXPECT_EQ(AlleTitel(), (std::vector<std::string>{"1. Optikteil online", "2. Optikteil nicht vorhanden",
                                                     "3. Optikteil online", "4. Optikteil nicht vorhanden"}));
    EXPECT_FALSE(Ansicht(1).isVisible());
    EXPECT_FALSE(Aktion("mnuAnzeigeLichtleiste_1").isVisible());
    EXPECT_TRUE(Aktion("mnuAnzeigeLichtleiste_2").isVisible());
}

TEST_F(StartUndLivebild, Without_any_part_the_user_is_told_and_only_the_controllers_state_is_polled) {
    SchliesseGeraetAn({"--beams", "16"});
    geraet->Befehl("part 0 remove");
    Starte();
    Verbinde();
    EXPECT_THAT(Meldungen(), ElementsAre(StartsWith("Es ist kein Optikteil am Varnoth angeschlossen!")));
    geraet->Befehl("stats clear");
    ASSERT_TRUE(LaufeDurchgaenge(5));
    EXPECT_THAT(geraet->Befehl("stats"), AllOf(StartsWith("03=5 "), HasSubstr(" 10=0 ")));
}

TEST_F(StartUndLivebild, A_part_with_another_beam_count_than_before_is_named) {
    SchliesseGeraetAn();
    geraet->Befehl("beams 1 48");
    Starte();
    Verbinde();
    EXPECT_THAT(Meldungen(),
                ElementsAre(StartsWith("Optikteil2\r\n   Die Strahlenanzahl eines Optikteiles")));
    EXPECT_EQ(modDaten::Strahlenzahl(1), 48);
    EXPECT_TRUE(LaufeBis(IstLive));
}

TEST_F(StartUndLivebild, All_512_beams_of_one_part_are_shown) {
    GeheLive({"--beams", "512"});
    geraet->Befehl("scene beams 0 interrupted 256-512");
    ASSERT_TRUE(LaufeDurchgaenge(2));
    EXPECT_EQ(Strahlen(Ansicht(0), Strahlzustand::Unterbrochen), VonBis(256, 512));
}

TEST_F(StartUndLivebild, The_switching_outputs_state_stands_in_the_status_bar) {
    GeheLive();
    geraet->Befehl("scene freeze");
    ASSERT_TRUE(LaufeDurchgaenge(2));
    const bool aktiv = (geraet->Register("global 196") & 2) != 0;
    EXPECT_EQ(Statusfeld(3), aktiv ? "Status: PNP-Ausgang ist aktiv" : "Status: PNP-Ausgang ist nicht aktiv");
}

} // namespace varnoth::pruefung
