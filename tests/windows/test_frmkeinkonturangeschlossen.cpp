#include "frmKeinKonturAngeschlossen.h"
#include "letzterdatensatz.h"
#include "strahlentest.h"
#include "texte.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace varnoth {

using Wahl = frmKeinKonturAngeschlossen::Wahl;

class frmKeinKonturAngeschlossenTest : public pruefung::StrahlenTest {
protected:
    using Dialog = frmKeinKonturAngeschlossen;

    /// A file of that name was saved last.
    QString Sichere(const QString& name) {
        QString pfad = ordner.filePath(name);
        QFile datei(pfad);
        if (!datei.open(QIODevice::WriteOnly))
            throw std::runtime_error("cannot write " + pfad.toStdString());
        MerkeDateiname(pfad);
        return pfad;
    }
    void MerkeDateiname(const QString& pfad) {
        einstellungen.texte[{"frmMain", "mnuSpeichernUnter"}] = pfad.toStdString();
    }
    static QRadioButton& Letzter(QDialog& dialog) {
        return Kind<QRadioButton>(dialog, "optLadeletztenKonfigurationsdatensatz");
    }
    static QRadioButton& Oeffnen(QDialog& dialog) {
        return Kind<QRadioButton>(dialog, "optKonfigurationöffnen");
    }
    static QRadioButton& Strahlen(QDialog& dialog) { return Kind<QRadioButton>(dialog, "optStrahlenanzahl"); }

    QTemporaryDir ordner;
};

TEST_F(frmKeinKonturAngeschlossenTest, Without_a_saved_file_the_last_data_set_is_disabled) {
    Dialog dialog;
    EXPECT_FALSE(Letzter(dialog).isEnabled());
    EXPECT_TRUE(Strahlen(dialog).isChecked());
}

TEST_F(frmKeinKonturAngeschlossenTest, A_saved_file_that_is_gone_disables_the_last_data_set) {
    QFile::remove(Sichere("fort.con"));
    Dialog dialog;
    EXPECT_FALSE(Letzter(dialog).isEnabled());
    EXPECT_EQ(LetzterDatensatz(), "");
}

TEST_F(frmKeinKonturAngeschlossenTest, A_folder_in_place_of_the_saved_file_disables_the_last_data_set) {
    MerkeDateiname(ordner.path());
    Dialog dialog;
    EXPECT_FALSE(Letzter(dialog).isEnabled());
}

TEST_F(frmKeinKonturAngeschlossenTest, The_last_saved_file_is_offered_and_chosen_at_first) {
    const QString pfad = Sichere("Überwachung der Halle 2.con");
    Dialog dialog;
    EXPECT_TRUE(Letzter(dialog).isEnabled());
    EXPECT_TRUE(Letzter(dialog).isChecked());
    EXPECT_EQ(Text(dialog, "lblDatensatz"), "Überwachung der Halle 2.con");
    EXPECT_EQ(Kind<QLabel>(dialog, "lblDatensatz").toolTip(), pfad);
    EXPECT_EQ(LetzterDatensatz(), pfad.toStdString());
}

TEST_F(frmKeinKonturAngeschlossenTest, A_file_name_of_200_characters_does_not_widen_the_dialog) {
    Sichere("kurz.con");
    Dialog kurz;
    Sichere(QString(196, 'n') + ".con");
    Dialog lang;
    EXPECT_TRUE(Letzter(lang).isEnabled());
    EXPECT_EQ(lang.sizeHint().width(), kurz.sizeHint().width());
}

TEST_F(frmKeinKonturAngeschlossenTest, The_cause_of_a_failed_connection_stands_above_the_choices_as_text) {
    Dialog dialog;
    auto& zeile = Kind<QLabel>(dialog, "lblUrsache");
    EXPECT_TRUE(zeile.isHidden());
    dialog.ZeigeUrsache({.anschluss = {}, .ursache = "<b>Niemand</b> antwortet.", .einzelheiten = "COM1"});
    EXPECT_FALSE(zeile.isHidden());
    EXPECT_EQ(zeile.text(), "<b>Niemand</b> antwortet.");
    EXPECT_EQ(zeile.textFormat(), Qt::PlainText);
    EXPECT_EQ(zeile.toolTip(), "COM1");
    dialog.ZeigeUrsache({});
    EXPECT_TRUE(zeile.isHidden()) << "nothing is known";
}

TEST_F(frmKeinKonturAngeschlossenTest, Only_the_beam_count_option_enables_the_beam_counts) {
    Sichere("eine.con");
    Dialog dialog;
    EXPECT_EQ(ListenBereit(dialog), (std::vector{false, false, false, false}));
    EXPECT_FALSE(Option1(dialog, 0).isEnabled());
    Strahlen(dialog).click();
    EXPECT_EQ(ListenBereit(dialog), (std::vector{true, true, true, true}));
    EXPECT_TRUE(Option1(dialog, 0).isEnabled());
    Oeffnen(dialog).click();
    EXPECT_EQ(ListenBereit(dialog), (std::vector{false, false, false, false}));
}

TEST_F(frmKeinKonturAngeschlossenTest,
       A_list_disabled_by_the_number_of_parts_stays_so_when_its_option_returns) {
    Dialog dialog;
    Option1(dialog, 1).click();
    Oeffnen(dialog).click();
    Option1(dialog, 2).setChecked(true);
    Strahlen(dialog).click();
    EXPECT_EQ(ListenBereit(dialog), (std::vector{true, true, true, false}));
    EXPECT_EQ(Listen(dialog), QStringList({"32", "32", "32", "0"}));
}

TEST_F(frmKeinKonturAngeschlossenTest, The_way_on_and_the_number_of_parts_are_chosen_independently) {
    Dialog dialog;
    Option1(dialog, 2).click();
    EXPECT_TRUE(Strahlen(dialog).isChecked());
    Oeffnen(dialog).click();
    EXPECT_TRUE(Option1(dialog, 2).isChecked());
}

TEST_F(frmKeinKonturAngeschlossenTest, Each_way_on_leads_to_its_choice) {
    Sichere("eine.con");
    const std::vector<std::pair<QRadioButton& (*)(QDialog&), Wahl>> wege{
        {Letzter, Wahl::LetzterDatensatz}, {Oeffnen, Wahl::DateiOeffnen}, {Strahlen, Wahl::Strahlenanzahl}};
    for (const auto& [option, wahl] : wege) {
        Dialog dialog;
        option(dialog).click();
        dialog.show();
        KlickeOK(dialog);
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(dialog.GetWahl(), wahl);
        EXPECT_EQ(dialog.GetCancel(), False);
    }
}

TEST_F(frmKeinKonturAngeschlossenTest, The_two_loading_ways_leave_the_image_to_the_caller) {
    Sichere("eine.con");
    for (const auto option : {Letzter, Oeffnen}) {
        Dialog dialog;
        option(dialog).click();
        KlickeOK(dialog);
        EXPECT_EQ(GanzesAbbild(), Werte(GanzesAbbild().size(), 0));
    }
}

TEST_F(frmKeinKonturAngeschlossenTest, The_entered_beam_counts_make_a_changed_default_configuration) {
    Dialog dialog;
    Waehle(dialog, {16, 0, 64, 8});
    KlickeOK(dialog);
    EXPECT_EQ(ImAbbild(), (std::vector{16, 0, 64, 8}));
    EXPECT_EQ(modDaten::IstGeaendert(), True);
    Werte autosend{0};
    modDaten::HoleKommunikationsdaten(74, 1, autosend);
    EXPECT_EQ(autosend[0], 259);
}

TEST_F(frmKeinKonturAngeschlossenTest, Part_1_can_never_be_given_0_beams_and_parts_2_to_4_can) {
    Dialog dialog;
    EXPECT_EQ(Combo1(dialog, 0).itemText(0), "1");
    for (int teil = 1; teil < AnzahlOptikteile; ++teil)
        EXPECT_EQ(Combo1(dialog, teil).itemText(0), "0");
}

TEST_F(frmKeinKonturAngeschlossenTest, More_than_512_beams_are_refused_and_the_dialog_stays_open) {
    Dialog dialog;
    Waehle(dialog, {129, 128, 128, 128});
    dialog.show();
    KlickeOK(dialog);
    EXPECT_EQ(umgebung.meldungen,
              (std::vector<Meldung>{{.text = "Es dürfen nicht mehr als 512 Strahlen eingestellt werden."}}));
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.GetWahl(), Wahl::Abgebrochen);
    EXPECT_EQ(ImAbbild(), (std::vector{0, 0, 0, 0}));
}

TEST_F(frmKeinKonturAngeschlossenTest, Too_many_beams_do_not_matter_to_another_way_on) {
    Dialog dialog;
    Waehle(dialog, {512, 512, 512, 512});
    Oeffnen(dialog).click();
    KlickeOK(dialog);
    EXPECT_TRUE(umgebung.meldungen.empty());
    EXPECT_EQ(dialog.GetWahl(), Wahl::DateiOeffnen);
}

TEST_F(frmKeinKonturAngeschlossenTest, Cancel_and_Escape_choose_nothing) {
    for (const bool abbrechen : {true, false}) {
        Dialog dialog;
        dialog.show();
        abbrechen ? Kind<QPushButton>(dialog, "cmdCancel").click() : dialog.reject();
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(dialog.GetWahl(), Wahl::Abgebrochen);
        EXPECT_EQ(dialog.GetCancel(), True);
        EXPECT_EQ(ImAbbild(), (std::vector{0, 0, 0, 0}));
    }
}

TEST_F(frmKeinKonturAngeschlossenTest, The_captions_are_in_the_language_of_the_moment) {
    SetzeSprachoffset(Englisch);
    Dialog dialog;
    EXPECT_EQ(dialog.windowTitle(), "Configuration unknown");
    EXPECT_EQ(Letzter(dialog).text(), "Loading the last configuration data");
    EXPECT_EQ(Oeffnen(dialog).text(),
              "Loading a configuration data block with the dialog (Open Configuration)");
    EXPECT_EQ(Text(dialog, "lblAnzahlDerOptikteile"), "Count of optical parts");
    EXPECT_EQ(Text(dialog, "lblStrahlenanzahlL2"), "Beam count C2: ");
    EXPECT_EQ(Kind<QPushButton>(dialog, "cmdCancel").text(), "Cancel");
}

TEST_F(frmKeinKonturAngeschlossenTest, No_text_is_cut_off_in_either_language) {
    Sichere(QString(196, 'n') + ".con");
    for (const std::int16_t sprache : {Deutsch, Englisch}) {
        SetzeSprachoffset(sprache);
        Dialog dialog;
        ErwarteNichtsAbgeschnitten(dialog);
    }
}

} // namespace varnoth
