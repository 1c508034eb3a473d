#include "frmStrahlenBestimmen.h"
#include "pruefsicherungen.h"
#include "registeradressen.h"
#include "strahlentest.h"
#include "texte.h"

namespace varnoth {

class frmStrahlenBestimmenTest : public pruefung::StrahlenTest {
protected:
    /// Gives the configuration in use changes that would be lost.
    static Abbild MacheAenderung() {
        modDaten::LadeStandardkonfiguration();
        modDaten::SetzeSpezifischeDaten(spezifisch::Strahlenzahl, 1, 0, {16});
        modDaten::SetzeGeaendert();
        return modDaten::DasAbbild();
    }

    frmStrahlenBestimmen dialog;
};

TEST_F(frmStrahlenBestimmenTest, The_first_list_offers_1_to_512_beams_and_the_others_0_to_512) {
    EXPECT_EQ(Combo1(dialog, 0).count(), 512);
    EXPECT_EQ(Combo1(dialog, 0).itemText(0), "1");
    EXPECT_EQ(Combo1(dialog, 0).itemText(511), "512");
    for (int teil = 1; teil < AnzahlOptikteile; ++teil) {
        EXPECT_EQ(Combo1(dialog, teil).count(), 513);
        EXPECT_EQ(Combo1(dialog, teil).itemText(0), "0");
        EXPECT_EQ(Combo1(dialog, teil).itemText(512), "512");
    }
}

TEST_F(frmStrahlenBestimmenTest, Each_list_starts_at_32_beams_and_all_four_parts_take_part) {
    EXPECT_EQ(Combo1(dialog, 0).currentIndex(), 31);
    for (int teil = 1; teil < AnzahlOptikteile; ++teil)
        EXPECT_EQ(Combo1(dialog, teil).currentIndex(), 32);
    EXPECT_TRUE(Option1(dialog, 3).isChecked());
    EXPECT_EQ(ListenBereit(dialog), (std::vector{true, true, true, true}));
}

TEST_F(frmStrahlenBestimmenTest, The_keys_begin_at_the_number_of_parts_that_is_chosen) {
    dialog.show();
    EXPECT_EQ(dialog.focusWidget(), &Option1(dialog, 3));
}

TEST_F(frmStrahlenBestimmenTest, OK_makes_a_changed_configuration_of_the_chosen_beam_counts) {
    Waehle(dialog, {1, 0, 48, 100});
    dialog.show();
    KlickeOK(dialog);
    EXPECT_EQ(ImAbbild(), (std::vector{1, 0, 48, 100}));
    EXPECT_EQ(modDaten::IstGeaendert(), True);
    EXPECT_EQ(dialog.GetCancel(), False);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(frmStrahlenBestimmenTest, Four_times_128_beams_are_accepted) {
    Waehle(dialog, {128, 128, 128, 128});
    KlickeOK(dialog);
    EXPECT_EQ(ImAbbild(), (std::vector{128, 128, 128, 128}));
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(frmStrahlenBestimmenTest, OK_puts_unsaved_changes_aside_first) {
    pruefung::PruefSicherungen sicherungen;
    const Abbild geaendertes = MacheAenderung();
    KlickeOK(dialog);
    ASSERT_EQ(sicherungen.gelegte.size(), 1U);
    EXPECT_EQ(sicherungen.gelegte[0].second, geaendertes);
    EXPECT_EQ(sicherungen.gelegte[0].first.angaben.anlass, Sicherungsanlass::VorNeuer);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(frmStrahlenBestimmenTest, Where_the_backup_fails_Cancel_keeps_the_changes_and_the_dialog_stays_open) {
    pruefung::PruefSicherungen sicherungen;
    sicherungen.fehler = "the disk is full";
    const Abbild geaendertes = MacheAenderung();
    umgebung.antworten = {Antwort::Abbrechen, Antwort::Ok};
    dialog.show();
    KlickeOK(dialog);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(modDaten::DasAbbild(), geaendertes);
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, "Die Änderungen konnten nicht gesichert werden: the disk is full");
    KlickeOK(dialog);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(ImAbbild(), (std::vector{32, 32, 32, 32}));
}

TEST_F(frmStrahlenBestimmenTest, One_beam_more_is_refused_with_a_warning_and_the_dialog_stays_open) {
    Waehle(dialog, {129, 128, 128, 128});
    dialog.show();
    KlickeOK(dialog);
    EXPECT_EQ(umgebung.meldungen,
              (std::vector<Meldung>{{.text = "Es dürfen nicht mehr als 512 Strahlen eingestellt werden."}}));
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.GetCancel(), True);
    EXPECT_EQ(Listen(dialog), QStringList({"129", "128", "128", "128"}));
}

TEST_F(frmStrahlenBestimmenTest,
       After_a_refusal_the_default_configuration_is_loaded_and_not_marked_as_changed) {
    Waehle(dialog, {129, 128, 128, 128});
    KlickeOK(dialog);
    const Werte danach = GanzesAbbild();
    EXPECT_EQ(modDaten::IstGeaendert(), False);
    modDaten::LadeStandardkonfiguration();
    EXPECT_EQ(danach, GanzesAbbild());
}

TEST_F(frmStrahlenBestimmenTest, A_refused_entry_can_be_corrected) {
    Waehle(dialog, {129, 128, 128, 128});
    KlickeOK(dialog);
    Combo1(dialog, 0).setCurrentText("128");
    KlickeOK(dialog);
    EXPECT_EQ(dialog.GetCancel(), False);
    EXPECT_EQ(umgebung.meldungen.size(), 1U);
}

TEST_F(frmStrahlenBestimmenTest, Cancel_leaves_the_image_as_it_was) {
    dialog.show();
    Kind<QPushButton>(dialog, "cmdCancel").click();
    EXPECT_EQ(dialog.GetCancel(), True);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(GanzesAbbild(), Werte(GanzesAbbild().size(), 0));
}

TEST_F(frmStrahlenBestimmenTest, The_lists_of_parts_beyond_the_chosen_number_are_disabled_and_0) {
    for (int index = AnzahlOptikteile - 1; index >= 0; --index) {
        Option1(dialog, index).click();
        for (int teil = 0; teil < AnzahlOptikteile; ++teil) {
            EXPECT_EQ(Combo1(dialog, teil).isEnabled(), teil <= index) << teil << " of " << index;
            EXPECT_EQ(Combo1(dialog, teil).currentText(), teil <= index ? "32" : "0")
                << teil << " of " << index;
        }
    }
}

TEST_F(frmStrahlenBestimmenTest, A_part_that_comes_back_has_the_beams_that_were_entered_for_it) {
    Waehle(dialog, {10, 20, 30, 40});
    Option1(dialog, 1).click();
    Option1(dialog, 0).click();
    Option1(dialog, 2).click();
    EXPECT_EQ(Listen(dialog), QStringList({"10", "20", "30", "0"}));
}

TEST_F(frmStrahlenBestimmenTest, One_part_makes_a_configuration_of_that_part_alone) {
    Option1(dialog, 0).click();
    Combo1(dialog, 0).setCurrentText("512");
    KlickeOK(dialog);
    EXPECT_EQ(ImAbbild(), (std::vector{512, 0, 0, 0}));
}

TEST_F(frmStrahlenBestimmenTest, The_total_runs_along_with_the_entries) {
    EXPECT_EQ(Text(dialog, "lblStrahlensumme"), "128 / 512");
    Combo1(dialog, 0).setCurrentText("512");
    EXPECT_EQ(Text(dialog, "lblStrahlensumme"), "608 / 512");
    Option1(dialog, 0).click();
    EXPECT_EQ(Text(dialog, "lblStrahlensumme"), "512 / 512");
}

TEST_F(frmStrahlenBestimmenTest, A_total_above_512_is_marked_before_OK) {
    dialog.show();
    auto& zeichen = Kind<QLabel>(dialog, "imgZuVieleStrahlen");
    Waehle(dialog, {128, 128, 128, 128});
    EXPECT_FALSE(zeichen.isVisible());
    Waehle(dialog, {129, 128, 128, 128});
    EXPECT_TRUE(zeichen.isVisible());
    EXPECT_EQ(zeichen.toolTip(), "Es dürfen nicht mehr als 512 Strahlen eingestellt werden.");
}

TEST_F(frmStrahlenBestimmenTest, The_mark_does_not_change_the_size_of_the_dialog) {
    const QSize davor = dialog.sizeHint();
    Waehle(dialog, {129, 128, 128, 128});
    EXPECT_EQ(dialog.sizeHint(), davor);
}

TEST_F(frmStrahlenBestimmenTest, The_captions_are_in_the_language_of_the_moment) {
    SetzeSprachoffset(Englisch);
    frmStrahlenBestimmen englisch;
    EXPECT_EQ(englisch.windowTitle(), "New Configuration");
    EXPECT_EQ(Text(englisch, "lblAnzahlDerOptikteile"), "Count of optical parts:");
    EXPECT_EQ(Text(englisch, "lblStrahlenanzahlL1"), "Beam count C1: ");
    EXPECT_EQ(Text(englisch, "lblStrahlenanzahlL4"), "Beam count C4: ");
    EXPECT_EQ(Text(englisch, "lblSummeDerStrahlen"), "Total of beams: ");
    EXPECT_EQ(Kind<QPushButton>(englisch, "cmdCancel").text(), "Cancel");
}

TEST_F(frmStrahlenBestimmenTest, The_refusal_is_in_the_language_of_the_moment) {
    SetzeSprachoffset(Englisch);
    Waehle(dialog, {512, 1, 0, 0});
    KlickeOK(dialog);
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, "Not more than 512 beams are allowed.");
}

TEST_F(frmStrahlenBestimmenTest, No_text_is_cut_off_in_either_language) {
    for (const std::int16_t sprache : {Deutsch, Englisch}) {
        SetzeSprachoffset(sprache);
        frmStrahlenBestimmen weiterer;
        Waehle(weiterer, {512, 512, 512, 512});
        ErwarteNichtsAbgeschnitten(weiterer);
    }
}

} // namespace varnoth
