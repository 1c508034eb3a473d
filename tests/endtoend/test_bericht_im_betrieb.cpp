// The report about a controller at the line: what it says of it, and when it says nothing.

#include "programmtest.h"

#include "frmBericht.h"
#include "geraetestand.h"
#include "polling.h"
#include "registerabbild.h"
#include "registeradressen.h"

#include <gmock/gmock.h>

namespace varnoth::pruefung {

using testing::ContainsRegex;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class BerichtImBetrieb : public ProgrammTest {
protected:
    /// The document that the report's window shows.
    std::string Bericht() {
        std::string html;
        InFenster("frmBericht", [&html](QWidget& fenster) {
            html = dynamic_cast<frmBericht&>(fenster).Html();
            fenster.close();
        });
        EXPECT_TRUE(FuehreAus("mnuBericht"));
        return html;
    }
};

TEST_F(BerichtImBetrieb,
       It_names_the_controller_and_the_state_of_each_part_with_the_time_and_live_data_goes_on) {
    GeheLive({"--beams", "32,16,0,0"});
    const std::string html = Bericht();
    EXPECT_THAT(html, HasSubstr("Steuergerät, gelesen am "));
    EXPECT_THAT(html, HasSubstr("SIM-0001"));
    const std::string zustand = "</h3><p>Zustand am ..\\...\\..... ..:..: vorhanden";
    EXPECT_THAT(html, ContainsRegex("Optikteil 1" + zustand));
    EXPECT_THAT(html, ContainsRegex("Optikteil 2" + zustand));
    EXPECT_TRUE(LaufeDurchgaenge(1));
    EXPECT_THAT(Meldungen(), IsEmpty());
}

TEST_F(BerichtImBetrieb,
       About_another_configuration_than_the_controller_s_it_says_nothing_of_the_controller) {
    GeheLive({"--beams", "32,16,0,0"});
    ASSERT_TRUE(modDaten::SetzeRegister(Speicherbereich::Kommunikationsdaten, kommunikation::Pausenzeit, 77));
    const std::string html = Bericht();
    EXPECT_THAT(html, Not(HasSubstr("gelesen am")));
    EXPECT_THAT(html, Not(HasSubstr("Zustand")));
}

TEST_F(BerichtImBetrieb, What_was_only_written_is_not_called_read_from_the_controller) {
    GeheLive({"--beams", "32,16,0,0"});
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStop"));
    modGeraetestand::MerkeGeschrieben(modDaten::DasAbbild(), AlleStellen(IstSchreibbar), "SIM-0001");
    EXPECT_THAT(Bericht(), Not(HasSubstr("gelesen am")));
    modGeraetestand::MerkeZurueckgelesen(modDaten::DasAbbild(), AlleStellen(IstSchreibbar), "SIM-0001");
    EXPECT_THAT(Bericht(), HasSubstr("gelesen am"));
}

TEST_F(BerichtImBetrieb, A_new_connection_that_came_to_nothing_leaves_no_state_behind) {
    GeheLive({"--beams", "32,16,0,0"});
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStop"));
    EXPECT_THAT(Bericht(), HasSubstr("Zustand am"));
    geraet->Befehl("fault silence");
    InFenster("frmIdentifikationsAnforderung", [](QWidget& dialog) { Klicke(dialog, "cmdCancel"); });
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStart"));
    EXPECT_THAT(Bericht(), Not(HasSubstr("Zustand am")));
}

} // namespace varnoth::pruefung
