// Menu commands while live data runs.

#include "programmtest.h"

#include "polling.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "texte.h"
#include "transaktionen.h"

#include <QMdiSubWindow>
#include <QPushButton>
#include <gmock/gmock.h>

namespace varnoth::pruefung {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class BefehleImBetrieb : public ProgrammTest {
protected:
    bool StarteLiveDaten() { return FuehreAus("mnuMessdatenVisualisierenStart") && LaufeBis(IstLive); }
    QMdiSubWindow& Rahmen(int teil) { return *qobject_cast<QMdiSubWindow*>(Ansicht(teil).parentWidget()); }
    /// Interrupts just this beam (numbered from 1) of part 1.
    void Unterbrich(int strahl) { geraet->Befehl("scene beams 1 interrupted " + std::to_string(strahl)); }
    /// TU of part 1 as the image has it: the lowest interrupted beam.
    static int TuImAbbild() {
        Werte werte;
        modDaten::HoleSpezifischeDaten(spezifisch::Messwerte, 18, 1, werte);
        return werte.at(0);
    }
};

TEST_F(BefehleImBetrieb, Stop_closes_the_port_and_shows_the_parts_offline) {
    GeheLive();
    ASSERT_TRUE(HatLeitungOffen());
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStop"));
    EXPECT_FALSE(HatLeitungOffen());
    EXPECT_EQ(AlleTitel(), ViermalTitel(". Optikteil offline"));
    EXPECT_TRUE(Aktion("mnuMessdatenVisualisierenStart").isEnabled());
    EXPECT_FALSE(Aktion("mnuMessdatenVisualisierenStop").isEnabled());
}

TEST_F(BefehleImBetrieb, Start_after_stop_brings_the_parts_online_again) {
    GeheLive();
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStop"));
    ASSERT_TRUE(StarteLiveDaten());
    EXPECT_EQ(AlleTitel(), ViermalTitel(". Optikteil online"));
}

TEST_F(BefehleImBetrieb, Another_language_ends_live_data_and_changes_every_text) {
    GeheLive();
    ASSERT_TRUE(FuehreAus("mnuEnglisch"));
    EXPECT_EQ(modPolling::GetPollingAktiv(), False);
    EXPECT_EQ(AlleTitel(), ViermalTitel(". Optical part offline"));
    EXPECT_EQ(Aktion("mnuBeenden").text(), "&Exit");
    EXPECT_TRUE(Aktion("mnuEnglisch").isChecked());
    EXPECT_THAT(LiesEinstellungen().toStdString(), HasSubstr("Sprache=10000"));
}

TEST_F(BefehleImBetrieb, Live_data_starts_again_in_the_other_language) {
    GeheLive();
    ASSERT_TRUE(FuehreAus("mnuEnglisch"));
    ASSERT_TRUE(StarteLiveDaten());
    EXPECT_EQ(AlleTitel(), ViermalTitel(". Optical part online"));
    EXPECT_THAT(Statusfeld(3), StartsWith("Status: PNP-"));
}

TEST_F(BefehleImBetrieb, The_way_back_to_the_first_language_leads_to_its_texts) {
    GeheLive();
    ASSERT_TRUE(FuehreAus("mnuEnglisch"));
    ASSERT_TRUE(StarteLiveDaten());
    ASSERT_TRUE(FuehreAus("mnuDeutsch"));
    ASSERT_TRUE(StarteLiveDaten());
    EXPECT_EQ(AlleTitel(), ViermalTitel(". Optikteil online"));
    EXPECT_EQ(Aktion("mnuBeenden").text(), "&Beenden");
    EXPECT_THAT(Meldungen(), IsEmpty());
}

TEST_F(BefehleImBetrieb, The_about_box_ends_live_data_and_does_not_bring_it_back) {
    GeheLive();
    fahrer.Sobald([] { return SichtbaresFenster("frmInfo") != nullptr; },
                  [] { Kind<QPushButton>(*SichtbaresFenster("frmInfo"), "Command1").click(); });
    ASSERT_TRUE(FuehreAus("mnuInfo"));
    EXPECT_TRUE(fahrer.AllesGetan());
    EXPECT_EQ(modPolling::GetPollingAktiv(), False);
}

TEST_F(BefehleImBetrieb, Arranging_the_views_leaves_live_data_running) {
    GeheLive();
    for (const char* aktion : {"mnuFensterUntereinander", "mnuFensterNebeneinander", "mnuFensterÜberlappend"})
        ASSERT_TRUE(FuehreAus(QString::fromUtf8(aktion)));
    EXPECT_TRUE(LaufeDurchgaenge(1));
    EXPECT_EQ(AlleTitel(), ViermalTitel(". Optikteil online"));
}

TEST_F(BefehleImBetrieb, Autosend_starts_in_the_controller_once_the_user_has_agreed) {
    GeheLive();
    ASSERT_TRUE(FuehreAus("mnuAutosendStarten"));
    EXPECT_THAT(Meldungen(), ElementsAre("Soll Autosend gestartet werden?"));
    EXPECT_THAT(geraet->Befehl("state"), HasSubstr("autosend=on"));
}

TEST_F(BefehleImBetrieb, Stop_takes_the_controller_out_of_autosend) {
    GeheLive();
    ASSERT_TRUE(FuehreAus("mnuAutosendStarten"));
    ASSERT_TRUE(StarteLiveDaten());
    ASSERT_TRUE(FuehreAus("mnuMessdatenVisualisierenStop"));
    EXPECT_THAT(geraet->Befehl("state"), HasSubstr("autosend=off"));
}

TEST_F(BefehleImBetrieb, Another_port_leads_to_the_controller_there) {
    GeheLive({"--address", "1"});
    QTemporaryDir woanders;
    Simulatorprozess zweites(woanders.path(), {"--unpaced", "--address", "9", "--beams", "48"});
    Beende();
    SchreibeEinstellungen("[Settings]\nComGeraet1=" + geraet->Geraet().toUtf8() +
                          "\nComGeraet3=" + zweites.Geraet().toUtf8() + "\n");
    Starte();
    Verbinde();
    ASSERT_TRUE(LaufeBis(IstLive));
    ASSERT_TRUE(FuehreAus("mnuCom_3"));
    ASSERT_TRUE(StarteLiveDaten());
    EXPECT_EQ(modModbus::GetSlaveAdresse(), 9);
    EXPECT_EQ(modDaten::Strahlenzahl(0), 48);
    EXPECT_THAT(LiesEinstellungen().toStdString(), HasSubstr("ComPort=3"));
}

TEST_F(BefehleImBetrieb, A_closed_view_gets_no_data) {
    GeheLive();
    Unterbrich(11);
    ASSERT_TRUE(LaufeDurchgaenge(2));
    Rahmen(1).close();
    Unterbrich(22);
    ASSERT_TRUE(LaufeDurchgaenge(2));
    EXPECT_EQ(TuImAbbild(), 11);
    EXPECT_FALSE(Aktion("mnuAnzeigeLichtleiste_1").isChecked());
}

TEST_F(BefehleImBetrieb, A_view_opened_again_shows_live_data_again) {
    GeheLive();
    Rahmen(1).close();
    ASSERT_TRUE(LaufeDurchgaenge(1));
    Unterbrich(22);
    ASSERT_TRUE(FuehreAus("mnuAnzeigeLichtleiste_1"));
    ASSERT_TRUE(LaufeDurchgaenge(2));
    EXPECT_EQ(Titel(1), "2. Optikteil online");
    EXPECT_EQ(GezeigteWerte(1).front(), 22);
    EXPECT_TRUE(Aktion("mnuAnzeigeLichtleiste_1").isChecked());
}

TEST_F(BefehleImBetrieb, A_view_may_be_closed_while_its_data_are_on_the_way) {
    GeheLive();
    geraet->Befehl("fault pieces=30"); // each reply takes 60 ms, the beams are the third
    QTimer::singleShot(150, &Hauptfenster(), [this] { Rahmen(0).close(); });
    EXPECT_TRUE(LaufeBis([this] { return !Ansicht(0).isVisible(); }));
    geraet->Befehl("fault none");
    EXPECT_TRUE(LaufeDurchgaenge(2));
    EXPECT_THAT(Meldungen(), IsEmpty());
}

TEST_F(BefehleImBetrieb, A_minimised_view_gets_no_data) {
    GeheLive();
    Unterbrich(11);
    ASSERT_TRUE(LaufeDurchgaenge(2));
    Rahmen(1).showMinimized();
    Unterbrich(22);
    ASSERT_TRUE(LaufeDurchgaenge(2));
    EXPECT_EQ(TuImAbbild(), 11);
}

TEST_F(BefehleImBetrieb, A_view_that_is_no_longer_minimised_gets_data_again) {
    GeheLive();
    Rahmen(1).showMinimized();
    ASSERT_TRUE(LaufeDurchgaenge(1));
    Unterbrich(22);
    Rahmen(1).showNormal();
    ASSERT_TRUE(LaufeDurchgaenge(2));
    EXPECT_EQ(GezeigteWerte(1).front(), 22);
}

TEST_F(BefehleImBetrieb, Exit_asks_for_changes_ends_the_main_loop_and_gives_the_port_back) {
    GeheLive();
    ASSERT_TRUE(HatLeitungOffen());
    Waehle("mnuBeenden");
    EXPECT_TRUE(LaufeBis([this] { return !programm->Runde(); }));
    EXPECT_FALSE(HatLeitungOffen());
    EXPECT_THAT(Meldungen(), ElementsAre(LadeText(6002)));
}

TEST_F(BefehleImBetrieb, Exit_stores_the_places_of_all_windows) {
    GeheLive();
    Waehle("mnuBeenden");
    ASSERT_TRUE(LaufeBis([this] { return !programm->Runde(); }));
    const std::string einstellungen = LiesEinstellungen().toStdString();
    for (const char* abschnitt : {"[MDIForm]", "[0Form]", "[1Form]", "[2Form]", "[3Form]"})
        EXPECT_THAT(einstellungen, HasSubstr(abschnitt));
}

TEST_F(BefehleImBetrieb, The_views_stand_where_they_stood_when_the_program_starts_again) {
    GeheLive();
    Rahmen(2).setGeometry(40, 30, 400, 350);
    const QRect vorher = Rahmen(2).geometry();
    Waehle("mnuBeenden");
    ASSERT_TRUE(LaufeBis([this] { return !programm->Runde(); }));
    Beende();
    Starte();
    Verbinde();
    ASSERT_TRUE(LaufeBis(IstLive));
    EXPECT_EQ(Rahmen(2).geometry(), vorher);
}

} // namespace varnoth::pruefung
