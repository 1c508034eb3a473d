#include "frmdocumenttest.h"
#include "zahlfeld.h"

using namespace varnoth;

namespace {

class FrmDocument : public pruefung::FrmDocumentTest {};

} // namespace

TEST_F(FrmDocument, The_view_and_its_tag_carry_the_index) {
    EXPECT_EQ(sicht->objectName(), "frmDocument_1");
    EXPECT_EQ(sicht->property("Tag").toString(), "1");
}

TEST_F(FrmDocument, Current_values_are_shown_first) {
    SetzeMesswerte(10, 20, 30);
    sicht->SetAktuellMinMaxStatus();
    EXPECT_EQ(Werttexte(), (QStringList{"10", "11", "12", "13", "14", "15"}));
}

TEST_F(FrmDocument, A_number_is_laid_out_once_for_all_fields_of_a_view) {
    const auto* werte = sicht->findChild<Zahlfeld*>(QStringLiteral("lblInhaltTU"));
    const auto* positionen = sicht->findChild<Zahlfeld*>(QStringLiteral("lblPositionTU"));
    EXPECT_NE(&werte->Vorrat(), &positionen->Vorrat()) << "of another font";
    for (const Zahlfeld* feld : sicht->findChildren<Zahlfeld*>()) {
        const bool position = feld->objectName().startsWith(QStringLiteral("lblPosition"));
        EXPECT_EQ(&feld->Vorrat(), &(position ? positionen : werte)->Vorrat())
            << feld->objectName().toStdString();
    }
}

TEST_F(FrmDocument, A_click_on_an_option_button_shows_its_values_at_once) {
    SetzeMesswerte(10, 20, 30);
    sicht->SetAktuellMinMaxStatus();
    Waehle(1);
    EXPECT_EQ(Werttexte(), (QStringList{"20", "21", "22", "23", "24", "25"}));
    Waehle(2);
    EXPECT_EQ(Werttexte(), (QStringList{"30", "31", "32", "33", "34", "35"}));
    Waehle(0);
    EXPECT_EQ(Werttexte(), (QStringList{"10", "11", "12", "13", "14", "15"}));
}

TEST_F(FrmDocument, Switching_from_min_to_max_rewrites_all_six_values_even_when_they_are_equal) {
    SetzeMesswerte(1, 50, 50);
    sicht->SetAktuellMinMaxStatus();
    Waehle(1);
    SchreibeUeberall("x");
    Waehle(2);
    EXPECT_EQ(Werttexte(), (QStringList{"50", "51", "52", "53", "54", "55"}));
}

TEST_F(FrmDocument, A_value_that_has_not_changed_is_not_written) {
    SetzeMesswerte(10, 20, 30);
    sicht->SetAktuellMinMaxStatus();
    SchreibeUeberall("x");
    sicht->SetAktuellMinMaxStatus();
    EXPECT_EQ(Werttexte(), QStringList(6, "x"));
}

TEST_F(FrmDocument, Setting_the_view_up_rewrites_values_that_have_not_changed) {
    SetzeMesswerte(10, 20, 30);
    sicht->SetAktuellMinMaxStatus();
    SchreibeUeberall("x");
    sicht->InitfrmDocument();
    sicht->SetAktuellMinMaxStatus();
    EXPECT_FALSE(Werttexte().contains("x"));
}

TEST_F(FrmDocument, Setting_the_view_up_shows_the_beams_of_the_image_as_interrupted) {
    EXPECT_EQ(Balken().Strahlanzahl(), 20);
    EXPECT_EQ(Balken().Strahlabstand(), 20);
    for (int strahl = 0; strahl < 20; ++strahl)
        EXPECT_EQ(Balken().Zustand(strahl), Strahlzustand::Unterbrochen);
}

TEST_F(FrmDocument, Setting_the_view_up_tells_the_menu) {
    int eingerichtet = 0;
    QObject::connect(sicht, &frmDocument::Eingerichtet, [&] { ++eingerichtet; });
    sicht->InitfrmDocument();
    EXPECT_EQ(eingerichtet, 1);
}

TEST_F(FrmDocument, The_first_scan_after_setting_up_draws_free_beams) {
    Scan({0, 1, 2}, {});
    sicht->InitfrmDocument();
    Scan({0, 1, 2}, {});
    EXPECT_EQ(Balken().Zustand(1), Strahlzustand::Frei);
    EXPECT_EQ(Balken().Zustand(3), Strahlzustand::Unterbrochen);
}

TEST_F(FrmDocument, A_scan_shows_free_interrupted_and_blanked_beams) {
    Scan({0, 8, 19}, {4, 8});
    EXPECT_EQ(Balken().Zustand(0), Strahlzustand::Frei);
    EXPECT_EQ(Balken().Zustand(19), Strahlzustand::Frei);
    EXPECT_EQ(Balken().Zustand(4), Strahlzustand::Geblankt);
    EXPECT_EQ(Balken().Zustand(8), Strahlzustand::Geblankt);
    EXPECT_EQ(Balken().Zustand(5), Strahlzustand::Unterbrochen);
}

TEST_F(FrmDocument, Beams_and_values_appear_together_once_the_line_is_busy) {
    SetzeMesswerte(10, 20, 30);
    Lies({0}, {});
    EXPECT_EQ(Text("lblInhaltTU"), "–");
    EXPECT_EQ(Balken().Zustand(0), Strahlzustand::Unterbrochen);
    umgebung.ErledigeAufgeschobenes();
    EXPECT_EQ(Text("lblInhaltTU"), "10");
    EXPECT_EQ(Balken().Zustand(0), Strahlzustand::Frei);
}

TEST_F(FrmDocument, Data_sets_that_follow_before_there_was_time_are_shown_once) {
    Lies({0}, {});
    Lies({1}, {});
    EXPECT_EQ(umgebung.aufgeschobenes.size(), 1);
    umgebung.ErledigeAufgeschobenes();
    EXPECT_EQ(Balken().Zustand(1), Strahlzustand::Frei);
    Lies({2}, {});
    EXPECT_EQ(umgebung.aufgeschobenes.size(), 1);
}

TEST_F(FrmDocument, What_was_taken_back_before_there_was_time_is_not_shown) {
    SetzeMesswerte(50, 20, 30);
    Lies({5}, {});
    SetzeMesswerte(10, 20, 30);
    modDaten::SetzeStrahlzustaende(2, Teil, Werte(2));
    umgebung.ErledigeAufgeschobenes();
    EXPECT_EQ(Text("lblInhaltTU"), "10");
    EXPECT_EQ(Balken().Zustand(5), Strahlzustand::Unterbrochen);
}

TEST_F(FrmDocument, A_view_that_is_gone_before_there_was_time_shows_nothing) {
    Lies({0}, {});
    delete rahmen;
    umgebung.ErledigeAufgeschobenes();
    EXPECT_TRUE(umgebung.aufgeschobenes.empty());
}

TEST_F(FrmDocument, Blanked_beams_are_counted_anew_in_each_scan) {
    Scan({}, {4, 8});
    EXPECT_EQ(Text("lblInhaltBlankingStrahlenMax"), "2");
    Scan({}, {4, 8, 9});
    EXPECT_EQ(Text("lblInhaltBlankingStrahlenMax"), "3");
}

TEST_F(FrmDocument, A_beam_index_at_or_beyond_the_beam_count_is_ignored) {
    Scan({}, {4});
    for (const int index : {20, 21, 1009, 32767, -1})
        sicht->SetBeamIndexState(static_cast<std::int16_t>(index), 1, 1);
    sicht->SetAktuellMinMaxStatus();
    EXPECT_EQ(Text("lblInhaltBlankingStrahlenMax"), "1");
    EXPECT_EQ(Balken().Zustand(19), Strahlzustand::Unterbrochen);
}

TEST_F(FrmDocument, A_beam_count_beyond_all_sense_does_no_harm) {
    Setze(spezifisch::Strahlenzahl, 65535);
    sicht->InitfrmDocument();
    Scan({0}, {});
    EXPECT_EQ(Balken().Zustand(0), Strahlzustand::Frei);
}

TEST_F(FrmDocument, An_optical_part_without_beams_shows_none) {
    Setze(spezifisch::Strahlenzahl, 0);
    sicht->InitfrmDocument();
    Scan({0}, {0});
    EXPECT_EQ(Balken().Strahlanzahl(), 0);
    EXPECT_EQ(Text("lblInhaltBlankingStrahlenMax"), "0");
}

TEST_F(FrmDocument, Status_value_0_shows_the_bare_text) {
    Setze(spezifisch::Optikteilstatus, 0);
    sicht->SetStatusSubgerät();
    EXPECT_EQ(Text("sbStatusBar_1"), "Status: ");
}

TEST_F(FrmDocument, The_status_is_shown_as_text) {
    Setze(spezifisch::Optikteilstatus, 0x80 | 0b100100);
    sicht->SetStatusSubgerät();
    EXPECT_EQ(Text("sbStatusBar_1"), "Status: Bahn in Mitte, Loch erkannt");
}

TEST_F(FrmDocument, Bits_6_and_7_of_the_status_register_do_not_rewrite_the_status_text) {
    Setze(spezifisch::Optikteilstatus, 5);
    sicht->SetStatusSubgerät();
    Feld("sbStatusBar_1").setText("x");
    for (const std::int32_t bits : {0x40, 0x80, 0xC0}) {
        Setze(spezifisch::Optikteilstatus, bits | 5);
        sicht->SetStatusSubgerät();
        EXPECT_EQ(Text("sbStatusBar_1"), "x");
    }
}

TEST_F(FrmDocument, The_beam_under_the_mouse_is_shown_with_its_position) {
    emit Balken().StrahlUnterMaus(9);
    EXPECT_EQ(Text("sbStatusBar_2"), "Strahl: 10, 180mm");
    emit Balken().StrahlUnterMaus(-1);
    EXPECT_EQ(Text("sbStatusBar_2"), "");
}

TEST_F(FrmDocument, A_part_with_beam_spacing_0_shows_the_beam_without_a_position) {
    Setze(spezifisch::Aufloesung, 0);
    sicht->InitfrmDocument();
    emit Balken().StrahlUnterMaus(9);
    EXPECT_EQ(Text("sbStatusBar_2"), "Strahl: 10");
}

TEST_F(FrmDocument, All_texts_follow_the_language) {
    Setze(spezifisch::Optikteilstatus, 4);
    sicht->MesswerteLiegenVor();
    umgebung.ErledigeAufgeschobenes();
    emit Balken().StrahlUnterMaus(9);
    SetzeSprachoffset(Englisch);
    sicht->Lokalisiere();
    EXPECT_EQ(sicht->findChild<QRadioButton*>("Option1_0")->text(), "Current");
    EXPECT_EQ(Text("sbStatusBar_1"), "Status: run in middle");
    EXPECT_EQ(Text("sbStatusBar_2"), "beam: 10, 180mm");
    SetzeSprachoffset(Deutsch);
    sicht->Lokalisiere();
    EXPECT_EQ(sicht->findChild<QRadioButton*>("Option1_0")->text(), "Aktuell");
    EXPECT_EQ(Text("sbStatusBar_1"), "Status: Bahn in Mitte");
}

TEST_F(FrmDocument, Captions_carry_their_texts) {
    EXPECT_EQ(Text("lblTU"), "TU");
    EXPECT_EQ(Text("lblHU"), "HU");
    EXPECT_EQ(Text("lblZU"), "ZU");
    EXPECT_EQ(Text("lblTNU"), "TNU");
    EXPECT_EQ(Text("lblHNU"), "HNU");
    EXPECT_EQ(Text("lblZNU"), "ZNU");
    EXPECT_EQ(Text("lblBlankingStrahlenMax"), "ZB");
}

TEST_F(FrmDocument, A_screen_reader_hears_what_a_number_means) {
    EXPECT_EQ(Feld("lblInhaltZNU").accessibleName(), "ZNU");
    EXPECT_EQ(Feld("lblInhaltBlankingStrahlenMax").accessibleName(), "Anzahl der geblankten Strahlen");
    sicht->setWindowTitle("2. Optikteil online");
    EXPECT_EQ(Balken().accessibleName(), "2. Optikteil online");
}

TEST_F(FrmDocument, A_hidden_view_shows_no_live_data) {
    EXPECT_FALSE(sicht->ZeigtLiveDaten());
    Zeige();
    EXPECT_TRUE(sicht->ZeigtLiveDaten());
}

TEST_F(FrmDocument, A_minimised_view_shows_no_live_data) {
    Zeige();
    rahmen->showMinimized();
    EXPECT_FALSE(sicht->ZeigtLiveDaten());
    sicht->Zeige();
    EXPECT_TRUE(sicht->ZeigtLiveDaten());
}

TEST_F(FrmDocument, A_minimised_main_window_shows_no_live_data) {
    Zeige();
    haupt.showMinimized();
    EXPECT_FALSE(sicht->ZeigtLiveDaten());
}

TEST_F(FrmDocument, Closing_hides_the_view_and_tells_the_menu) {
    Zeige();
    int geschlossen = 0;
    QObject::connect(sicht, &frmDocument::Geschlossen, [&] { ++geschlossen; });
    rahmen->close();
    EXPECT_FALSE(sicht->ZeigtLiveDaten());
    EXPECT_EQ(geschlossen, 1);
}

TEST_F(FrmDocument, A_closed_view_can_be_shown_again) {
    Zeige();
    rahmen->close();
    QApplication::processEvents();
    Zeige();
    EXPECT_TRUE(sicht->ZeigtLiveDaten());
    EXPECT_EQ(bereich->activeSubWindow(), rahmen);
}

TEST_F(FrmDocument, Without_a_stored_place_the_view_stays_where_it_is) {
    rahmen->setGeometry(30, 40, 400, 380);
    sicht->InitForm();
    EXPECT_EQ(rahmen->geometry(), QRect(30, 40, 400, 380));
}

TEST_F(FrmDocument, A_stored_place_is_restored_with_defaults_for_what_is_missing) {
    einstellungen.SchreibText("1Form", "WindowState", "0");
    einstellungen.SchreibText("1Form", "Left", "1500");
    sicht->InitForm();
    Zeige();
    EXPECT_EQ(rahmen->geometry(), QRect(100, 67, 433, 433));
}

TEST_F(FrmDocument, Closing_stores_the_place_as_decimal_text) {
    Zeige();
    rahmen->setGeometry(30, 40, 400, 380);
    rahmen->close();
    EXPECT_EQ(einstellungen.LiesText("1Form", "WindowState", ""), "0");
    EXPECT_EQ(einstellungen.LiesText("1Form", "Left", ""), "450");
    EXPECT_EQ(einstellungen.LiesText("1Form", "Top", ""), "600");
    EXPECT_EQ(einstellungen.LiesText("1Form", "Width", ""), "6000");
    EXPECT_EQ(einstellungen.LiesText("1Form", "Height", ""), "5700");
}

TEST_F(FrmDocument, Closing_a_minimised_view_keeps_the_stored_place) {
    Zeige();
    rahmen->showMinimized();
    rahmen->close();
    EXPECT_EQ(einstellungen.geschrieben, 0);
}

TEST_F(FrmDocument, A_view_that_was_never_shown_stores_no_place) {
    sicht->SpeicherePlatz();
    EXPECT_EQ(einstellungen.geschrieben, 0);
}

TEST_F(FrmDocument, A_view_is_at_least_3400_by_3440_twips) {
    Zeige();
    rahmen->resize(50, 50);
    EXPECT_EQ(rahmen->size(), QSize(227, 230));
}

TEST_F(FrmDocument, No_status_makes_the_smallest_view_larger) {
    Zeige();
    rahmen->resize(50, 50);
    Setze(spezifisch::Optikteilstatus, 0x3F);
    sicht->SetStatusSubgerät();
    emit Balken().StrahlUnterMaus(19);
    QApplication::processEvents();
    EXPECT_EQ(rahmen->size(), QSize(227, 230));
}

TEST_F(FrmDocument, The_status_text_has_room_at_every_width) {
    Zeige();
    Setze(spezifisch::Optikteilstatus, 0b100110);
    sicht->SetStatusSubgerät();
    emit Balken().StrahlUnterMaus(19);
    for (const int breite : {227, 280, 330, 433, 800}) {
        rahmen->resize(breite, 400);
        QApplication::processEvents();
        const QLabel& status = Feld("sbStatusBar_1");
        const QLabel& strahl = Feld("sbStatusBar_2");
        EXPECT_GE(status.height(), status.heightForWidth(status.width())) << breite;
        EXPECT_GE(strahl.height(), strahl.sizeHint().height()) << breite;
        EXPECT_GE(strahl.width(), strahl.sizeHint().width()) << breite;
    }
}

TEST_F(FrmDocument, A_minimised_view_is_not_held_at_its_least_size) {
    Zeige();
    rahmen->showMinimized();
    QApplication::processEvents();
    EXPECT_LT(rahmen->height(), 100);
    rahmen->showNormal();
    rahmen->resize(50, 50);
    EXPECT_EQ(rahmen->size(), QSize(227, 230));
}

TEST_F(FrmDocument, Values_have_room_for_their_widest_number) {
    SetzeMesswerte(65530, 0, 0);
    Zeige();
    sicht->SetAktuellMinMaxStatus();
    for (const char* name : {"lblInhaltTU", "lblInhaltZNU", "lblTNU", "lblBlankingStrahlenMax"})
        EXPECT_GE(Feld(name).width(), Feld(name).sizeHint().width()) << name;
}
