#include "untereditortest.h"

#include "beambarcontrol.h"
#include "fensterplatz.h"
#include "frmBlankingmuster.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "texte.h"

#include <QUndoView>
#include <array>

namespace varnoth {

namespace {
constexpr std::int16_t Teil = 2;
constexpr auto Abschnitt = "frmBlankingmuster";
} // namespace

class FrmBlankingmusterTest : public pruefung::UntereditorTest {
protected:
    FrmBlankingmusterTest() { SetzeTeil(20, 20); }

    static void SetzeTeil(int strahlen, int aufloesung) {
        modDaten::SetzeSpezifischeDaten(spezifisch::Strahlenzahl, 1, Teil, {strahlen});
        modDaten::SetzeSpezifischeDaten(spezifisch::Aufloesung, 1, Teil, {aufloesung});
    }
    static void SetzeMuster(const Werte& muster) {
        modDaten::SetzeSpezifischeDaten(spezifisch::Blankingmuster, Blankingregister, Teil, muster);
        modDaten::LoescheGeaendert();
    }
    static Werte Muster(std::int16_t optikteil = Teil) {
        Werte muster(Blankingregister);
        modDaten::HoleSpezifischeDaten(spezifisch::Blankingmuster, Blankingregister, optikteil, muster);
        return muster;
    }
    static Werte Beginn(std::int32_t erstes, std::int32_t zweites) {
        Werte muster(Blankingregister, 0);
        muster[0] = erstes;
        muster[1] = zweites;
        return muster;
    }
    BeamBarControl& Strahlen() { return Kind<BeamBarControl>(dialog, "BeamBar1"); }
    std::vector<int> GezeigteGeblankte() {
        std::vector<int> geblankte;
        for (int strahl = 0; strahl < Strahlen().Strahlanzahl(); ++strahl)
            if (Strahlen().Zustand(strahl) == Strahlzustand::Geblankt)
                geblankte.push_back(strahl);
        return geblankte;
    }
    void KlickeStrahl(int strahl) {
        QTest::mouseClick(&Strahlen(), Qt::LeftButton, {}, Strahlen().Strahlmitte(strahl).toPoint());
    }
    void Oeffne() {
        dialog.InitFormBlankingmuster(Teil);
        ZeigeAktiv(dialog);
    }

    frmBlankingmuster dialog;
};

TEST_F(FrmBlankingmusterTest, The_beams_and_their_spacing_come_from_the_part) {
    dialog.InitFormBlankingmuster(Teil);
    EXPECT_EQ(Strahlen().Strahlanzahl(), 20);
    EXPECT_EQ(Strahlen().Strahlabstand(), 20);
}

TEST_F(FrmBlankingmusterTest, The_heading_names_the_part) {
    dialog.InitFormBlankingmuster(Teil);
    EXPECT_EQ(Beschriftung(dialog, "lblOptikteil"), "K3");
}

TEST_F(FrmBlankingmusterTest, Register_value_0x0001_shows_beam_8_blanked) {
    SetzeMuster(Beginn(0x0001, 0));
    dialog.InitFormBlankingmuster(Teil);
    EXPECT_EQ(GezeigteGeblankte(), std::vector{8});
}

TEST_F(FrmBlankingmusterTest, Register_value_0x0100_shows_beam_0_blanked) {
    SetzeMuster(Beginn(0x0100, 0));
    dialog.InitFormBlankingmuster(Teil);
    EXPECT_EQ(GezeigteGeblankte(), std::vector{0});
}

TEST_F(FrmBlankingmusterTest, More_beams_than_the_pattern_holds_are_not_shown) {
    SetzeTeil(600, 5);
    dialog.InitFormBlankingmuster(Teil);
    EXPECT_EQ(Strahlen().Strahlanzahl(), 512);
}

TEST_F(FrmBlankingmusterTest, A_part_without_beams_opens_and_writes_zeros) {
    SetzeTeil(0, 5);
    SetzeMuster(Werte(Blankingregister, 0xFFFF));
    Oeffne();
    Klicke(dialog, "cmdOK");
    EXPECT_EQ(Muster(), Werte(Blankingregister, 0));
}

TEST_F(FrmBlankingmusterTest, All_blanking_and_OK_on_20_beams_writes_no_bit_beyond_them) {
    SetzeMuster(Werte(Blankingregister, 0xFFFF));
    dialog.InitFormBlankingmuster(Teil);
    Klicke(dialog, "cmdAllesBlanking");
    Klicke(dialog, "cmdOK");
    EXPECT_EQ(Muster(), Beginn(0xFFFF, 0x0F00));
}

TEST_F(FrmBlankingmusterTest, All_blanking_and_OK_on_512_beams_writes_0xFFFF_everywhere) {
    SetzeTeil(512, 5);
    dialog.InitFormBlankingmuster(Teil);
    Klicke(dialog, "cmdAllesBlanking");
    Klicke(dialog, "cmdOK");
    EXPECT_EQ(Muster(), Werte(Blankingregister, 0xFFFF));
}

TEST_F(FrmBlankingmusterTest, No_blanking_and_OK_writes_zeros) {
    SetzeMuster(Beginn(0xFFFF, 0x0F00));
    dialog.InitFormBlankingmuster(Teil);
    Klicke(dialog, "cmdKeinBlanking");
    Klicke(dialog, "cmdOK");
    EXPECT_EQ(Muster(), Werte(Blankingregister, 0));
}

TEST_F(FrmBlankingmusterTest, OK_leaves_the_other_parts_alone) {
    dialog.InitFormBlankingmuster(Teil);
    Klicke(dialog, "cmdAllesBlanking");
    Klicke(dialog, "cmdOK");
    for (const auto anderes : std::array<std::int16_t, 3>{0, 1, 3})
        EXPECT_EQ(Muster(anderes), Werte(Blankingregister, 0)) << anderes;
}

TEST_F(FrmBlankingmusterTest, OK_marks_the_configuration_as_changed_and_closes) {
    modDaten::LoescheGeaendert();
    Oeffne();
    Klicke(dialog, "cmdOK");
    EXPECT_EQ(modDaten::IstGeaendert(), True);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST_F(FrmBlankingmusterTest, Nothing_is_written_before_OK) {
    SetzeMuster(Beginn(0x0100, 0));
    dialog.InitFormBlankingmuster(Teil);
    Klicke(dialog, "cmdAllesBlanking");
    EXPECT_EQ(Muster(), Beginn(0x0100, 0));
}

TEST_F(FrmBlankingmusterTest, Cancel_after_edits_leaves_the_registers_and_closes) {
    SetzeMuster(Beginn(0x0100, 0));
    Oeffne();
    Klicke(dialog, "cmdAllesBlanking");
    Klicke(dialog, "cmdCancel");
    EXPECT_EQ(Muster(), Beginn(0x0100, 0));
    EXPECT_EQ(modDaten::IstGeaendert(), False);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(FrmBlankingmusterTest, Reset_after_edits_shows_the_pattern_of_the_image_again) {
    SetzeMuster(Beginn(0x0100, 0x0100));
    dialog.InitFormBlankingmuster(Teil);
    Klicke(dialog, "cmdAllesBlanking");
    Klicke(dialog, "cmdReset");
    EXPECT_EQ(GezeigteGeblankte(), (std::vector{0, 16}));
}

TEST_F(FrmBlankingmusterTest, It_opens_for_blanking_and_says_how) {
    Oeffne();
    EXPECT_EQ(Strahlen().Bedienung(), Bedienart::Blanking);
    EXPECT_TRUE(Knopf(dialog, "Option1_0").isChecked());
    EXPECT_TRUE(Kind<QLabel>(dialog, "lblHinweis").isVisible());
    EXPECT_EQ(Beschriftung(dialog, "lblHinweis"), QString::fromStdString(LadeText(7607)));
}

TEST_F(FrmBlankingmusterTest, The_options_switch_between_blanking_and_zoom) {
    Oeffne();
    Klicke(dialog, "Option1_1");
    EXPECT_EQ(Strahlen().Bedienung(), Bedienart::Zoom);
    EXPECT_FALSE(Kind<QLabel>(dialog, "lblHinweis").isVisible());
    Klicke(dialog, "Option1_0");
    EXPECT_EQ(Strahlen().Bedienung(), Bedienart::Blanking);
}

TEST_F(FrmBlankingmusterTest, A_click_on_a_beam_blanks_it_in_the_registers) {
    Oeffne();
    KlickeStrahl(16);
    Klicke(dialog, "cmdOK");
    EXPECT_EQ(Muster(), Beginn(0, 0x0100));
}

TEST_F(FrmBlankingmusterTest, A_click_while_zooming_blanks_nothing) {
    Oeffne();
    Klicke(dialog, "Option1_1");
    KlickeStrahl(16);
    EXPECT_EQ(GezeigteGeblankte(), std::vector<int>{});
}

TEST_F(FrmBlankingmusterTest, The_blanked_beams_are_counted_with_every_change) {
    SetzeMuster(Beginn(0x0700, 0));
    Oeffne();
    EXPECT_EQ(Beschriftung(dialog, "sbStatusBar_2"), "Anzahl der geblankten Strahlen: 3");
    KlickeStrahl(10);
    EXPECT_EQ(Beschriftung(dialog, "sbStatusBar_2"), "Anzahl der geblankten Strahlen: 4");
    Klicke(dialog, "cmdAllesBlanking");
    EXPECT_EQ(Beschriftung(dialog, "sbStatusBar_2"), "Anzahl der geblankten Strahlen: 20");
    Klicke(dialog, "cmdKeinBlanking");
    EXPECT_EQ(Beschriftung(dialog, "sbStatusBar_2"), "Anzahl der geblankten Strahlen: 0");
}

TEST_F(FrmBlankingmusterTest, The_status_bar_shows_the_beam_under_the_pointer) {
    dialog.InitFormBlankingmuster(Teil);
    emit Strahlen().StrahlUnterMaus(10);
    EXPECT_EQ(Beschriftung(dialog, "sbStatusBar_1"), "Strahl: 11, 200mm");
}

TEST_F(FrmBlankingmusterTest, Without_a_resolution_the_status_bar_shows_no_position) {
    SetzeTeil(20, 0);
    dialog.InitFormBlankingmuster(Teil);
    emit Strahlen().StrahlUnterMaus(10);
    EXPECT_EQ(Beschriftung(dialog, "sbStatusBar_1"), "Strahl: 11");
}

TEST_F(FrmBlankingmusterTest, The_panel_is_emptied_when_no_beam_is_under_the_pointer) {
    dialog.InitFormBlankingmuster(Teil);
    for (const int keiner : {65535, -1}) {
        emit Strahlen().StrahlUnterMaus(10);
        emit Strahlen().StrahlUnterMaus(keiner);
        EXPECT_EQ(Beschriftung(dialog, "sbStatusBar_1"), "") << keiner;
    }
}

TEST_F(FrmBlankingmusterTest, Arrows_and_space_blank_at_once_after_opening) {
    Oeffne();
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Up);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Space);
    EXPECT_EQ(GezeigteGeblankte(), std::vector{1});
    EXPECT_EQ(Beschriftung(dialog, "sbStatusBar_1"), "Strahl: 2, 20mm");
}

TEST_F(FrmBlankingmusterTest, Escape_asks_before_it_gives_up_a_changed_pattern) {
    Oeffne();
    Klicke(dialog, "cmdAllesBlanking");
    umgebung.antworten = {Antwort::Abbrechen, Antwort::Ok};
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(dialog.isVisible());
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(umgebung.meldungen.size(), 2U);
    EXPECT_EQ(Muster(), Werte(Blankingregister, 0));
}

TEST_F(FrmBlankingmusterTest, A_pattern_that_is_as_it_was_goes_without_a_question) {
    Oeffne();
    Klicke(dialog, "cmdAllesBlanking");
    Klicke(dialog, "cmdReset");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(FrmBlankingmusterTest, Enter_moves_on_and_writes_nothing_wherever_the_focus_is) {
    SetzeMuster(Werte(Blankingregister, 0));
    Oeffne();
    KlickeStrahl(0);
    for (const char* name : {"BeamBar1", "Option1_0", "cmdReset", "cmdOK", "cmdCancel"}) {
        auto& element = Kind<QWidget>(dialog, name);
        element.setFocus();
        QTest::keyClick(&element, Qt::Key_Return);
        EXPECT_NE(dialog.focusWidget(), &element) << name;
    }
    EXPECT_EQ(Muster(), Werte(Blankingregister, 0));
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(FrmBlankingmusterTest, The_texts_are_in_the_language_of_the_moment) {
    SetzeSprachoffset(Englisch);
    frmBlankingmuster englischer;
    englischer.InitFormBlankingmuster(Teil);
    EXPECT_EQ(englischer.windowTitle(), "Blanking pattern");
    EXPECT_EQ(Knopf(englischer, "cmdAllesBlanking").text(), "All blanking");
    EXPECT_EQ(Knopf(englischer, "cmdKeinBlanking").text(), "No blanking");
    EXPECT_EQ(Knopf(englischer, "cmdReset").text(), "Reset");
    EXPECT_EQ(Knopf(englischer, "cmdOK").text(), "OK");
    EXPECT_EQ(Knopf(englischer, "cmdCancel").text(), "Cancel");
    EXPECT_EQ(Knopf(englischer, "Option1_0").text(), "Blanking");
    EXPECT_EQ(Knopf(englischer, "Option1_1").text(), "Zoom");
    EXPECT_EQ(Beschriftung(englischer, "lblOptikteil"), "C3");
}

TEST_F(FrmBlankingmusterTest, Closing_stores_the_place_in_the_section_of_the_window) {
    Oeffne();
    dialog.move(100, 50);
    dialog.resize(600, 640);
    QApplication::processEvents();
    Klicke(dialog, "cmdCancel");
    EXPECT_EQ(LiesFensterplatz(einstellungen, Abschnitt, {}),
              (Fensterplatz{Fensterplatz::Normal, 1500, 750, 9000, 9600}));
}

TEST_F(FrmBlankingmusterTest, OK_stores_the_place_too) {
    Oeffne();
    Klicke(dialog, "cmdOK");
    EXPECT_TRUE(einstellungen.texte.contains({Abschnitt, "WindowState"}));
}

TEST_F(FrmBlankingmusterTest, A_stored_place_is_taken_again) {
    SchreibFensterplatz(einstellungen, Abschnitt, {Fensterplatz::Normal, 1500, 750, 9000, 9600});
    frmBlankingmuster zweiter;
    zweiter.InitFormBlankingmuster(Teil);
    ZeigeAktiv(zweiter);
    EXPECT_EQ(QRect(zweiter.pos(), zweiter.size()), QRect(100, 50, 600, 640));
}

TEST_F(FrmBlankingmusterTest, A_maximised_window_opens_maximised_again) {
    SchreibFensterplatz(einstellungen, Abschnitt, {Fensterplatz::Maximiert, 1500, 750, 9000, 9600});
    frmBlankingmuster zweiter;
    zweiter.InitFormBlankingmuster(Teil);
    ZeigeAktiv(zweiter);
    EXPECT_TRUE(zweiter.isMaximized());
    Klicke(zweiter, "cmdCancel");
    EXPECT_EQ(LiesFensterplatz(einstellungen, Abschnitt, {}),
              (Fensterplatz{Fensterplatz::Maximiert, 1500, 750, 9000, 9600}));
}

TEST_F(FrmBlankingmusterTest, A_window_that_was_never_shown_stores_nothing) {
    dialog.InitFormBlankingmuster(Teil);
    Klicke(dialog, "cmdCancel");
    EXPECT_EQ(einstellungen.geschrieben, 0);
}

TEST_F(FrmBlankingmusterTest, The_beams_take_the_room_of_a_larger_window) {
    Oeffne();
    const QSize vorher = Strahlen().size();
    dialog.resize(dialog.size() + QSize(200, 60));
    QApplication::processEvents();
    EXPECT_EQ(Strahlen().size(), vorher + QSize(200, 60));
}

TEST_F(FrmBlankingmusterTest, The_smallest_window_cuts_the_hint_off_in_no_language) {
    for (const std::int16_t sprache : {Deutsch, Englisch}) {
        SetzeSprachoffset(sprache);
        frmBlankingmuster kleiner;
        kleiner.InitFormBlankingmuster(Teil);
        ZeigeAktiv(kleiner);
        kleiner.resize(1, 1);
        QApplication::processEvents();
        const auto& hinweis = Kind<QLabel>(kleiner, "lblHinweis");
        EXPECT_GE(hinweis.width(), hinweis.sizeHint().width()) << sprache;
        EXPECT_GE(hinweis.height(), hinweis.sizeHint().height()) << sprache;
    }
}

TEST_F(FrmBlankingmusterTest, Blanked_beams_are_undone_and_done_again) {
    Oeffne();
    Klicke(dialog, "cmdAllesBlanking");
    Klicke(dialog, "cmdKeinBlanking");
    QTest::keyClick(&dialog, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(GezeigteGeblankte().size(), 20U);
    QTest::keyClick(&dialog, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(GezeigteGeblankte().empty());
    QTest::keyClick(&dialog, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(GezeigteGeblankte().size(), 20U);
}

TEST_F(FrmBlankingmusterTest, A_beam_blanked_with_the_mouse_is_a_step_told_as_ranges) {
    Oeffne();
    KlickeStrahl(4);
    ASSERT_EQ(GezeigteGeblankte(), std::vector{4});
    QTest::keyClick(&dialog, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(GezeigteGeblankte().empty());
    const auto* const modell = Kind<QUndoView>(dialog, "lstVerlauf").model();
    ASSERT_EQ(modell->rowCount(), 2);
    EXPECT_EQ(modell->index(1, 0).data().toString(), "Blankingmuster: keine → 5");
}

TEST_F(FrmBlankingmusterTest, After_undoing_everything_closing_asks_nothing) {
    Oeffne();
    Klicke(dialog, "cmdAllesBlanking");
    QTest::keyClick(&dialog, Qt::Key_Z, Qt::ControlModifier);
    dialog.close();
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(FrmBlankingmusterTest, A_suggestion_is_shown_as_a_change_and_stored_only_with_OK) {
    SetzeMuster(Beginn(0x0100, 0));
    Oeffne();
    dialog.SchlageVor(Beginn(0x0300, 0));
    EXPECT_EQ(GezeigteGeblankte(), (std::vector<int>{0, 1}));
    EXPECT_EQ(dialog.windowTitle(), "Blankingmuster – Vorschlag aus dem Strahlverlauf");
    EXPECT_EQ(Muster(), Beginn(0x0100, 0));
    EXPECT_FALSE(modDaten::IstGeaendert());
    Klicke(dialog, "cmdOK");
    EXPECT_EQ(Muster(), Beginn(0x0300, 0));
}

TEST_F(FrmBlankingmusterTest, A_suggestion_for_more_beams_than_there_are_blanks_those_that_are_there) {
    SetzeMuster(Beginn(0, 0));
    Oeffne();
    dialog.SchlageVor(Werte(Blankingregister, 0xFFFF));
    EXPECT_EQ(GezeigteGeblankte().size(), 20U);
}

} // namespace varnoth
