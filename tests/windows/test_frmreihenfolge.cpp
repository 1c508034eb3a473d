#include "untereditortest.h"

#include "frmReihenfolge.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "texte.h"

#include <QListWidget>
#include <QUndoView>

#include <memory>

namespace varnoth {

class FrmReihenfolgeTest : public pruefung::UntereditorTest {
protected:
    /// The registers of a data block with the given entries.
    static Werte Block(Werte eintraege) {
        eintraege.resize(Datenblockregister);
        return eintraege;
    }
    static Werte Gespeichert() {
        Werte datenblock(Datenblockregister);
        modDaten::HoleKommunikationsdaten(kommunikation::Datenblock, Datenblockregister, datenblock);
        return datenblock;
    }
    void Oeffne(const Werte& eintraege) {
        modDaten::SetzeKommunikationsdaten(kommunikation::Datenblock, Datenblockregister, Block(eintraege));
        modDaten::LoescheGeaendert();
        geoeffnet = std::make_unique<frmReihenfolge>();
        ZeigeAktiv(*geoeffnet);
    }
    frmReihenfolge& Dialog() { return *geoeffnet; }
    QListWidget& Liste() { return Kind<QListWidget>(Dialog(), "List1"); }
    QStringList Zeilen() {
        QStringList zeilen;
        for (int zeile = 0; zeile < Liste().count(); ++zeile)
            zeilen += Liste().item(zeile)->text();
        return zeilen;
    }
    void Druecke(const char* name) { Klicke(Dialog(), name); }
    void Waehle(std::initializer_list<const char*> optionen) {
        for (const char* option : optionen)
            Druecke(option);
    }
    QAbstractButton& Option(const char* gruppe, int i) {
        return Knopf(Dialog(), (gruppe + ('_' + std::to_string(i))).c_str());
    }
    /// The chosen source, kind and value.
    std::vector<int> Gewaehlt() {
        std::vector<int> gewaehlt;
        for (const auto& [gruppe, anzahl] : {std::pair{"Option1", 5}, {"Option2", 3}, {"Option3", 8}})
            for (int i = 0; i < anzahl; ++i)
                if (Option(gruppe, i).isChecked())
                    gewaehlt.push_back(i);
        return gewaehlt;
    }
    /// The options of a group that are enabled.
    std::vector<int> Waehlbar(const char* gruppe, int anzahl) {
        std::vector<int> waehlbar;
        for (int i = 0; i < anzahl; ++i)
            if (Option(gruppe, i).isEnabled())
                waehlbar.push_back(i);
        return waehlbar;
    }

    std::unique_ptr<frmReihenfolge> geoeffnet;
};

TEST_F(FrmReihenfolgeTest, Thirty_zeros_show_an_empty_list_and_OK_writes_them_back) {
    Oeffne({});
    EXPECT_EQ(Zeilen(), QStringList());
    Druecke("cmdOK");
    EXPECT_EQ(Gespeichert(), Block({}));
    EXPECT_EQ(modDaten::IstGeaendert(), True);
}

TEST_F(FrmReihenfolgeTest, The_entries_are_listed_in_the_order_they_are_sent) {
    Oeffne({0x0014, 0x0108, 0x0201});
    EXPECT_EQ(Zeilen(), QStringList({"Status:Varnoth", "TUMin:K1", "Strahlendaten:K2"}));
}

TEST_F(FrmReihenfolgeTest, The_list_ends_at_the_first_0) {
    Oeffne({0x0102, 0, 0x0103});
    EXPECT_EQ(Zeilen(), QStringList("TU:K1"));
}

TEST_F(FrmReihenfolgeTest, Thirty_entries_are_all_listed) {
    Oeffne(Werte(Datenblockregister, 0x0102));
    EXPECT_EQ(Liste().count(), 30);
}

TEST_F(FrmReihenfolgeTest, Unknown_entries_are_listed_and_written_back_as_they_are) {
    Oeffne({0x0115, 0x0508, 0x7FFF});
    EXPECT_EQ(Zeilen(), QStringList({"??? :K1", "TUMin ???", "???  ???"}));
    Druecke("cmdOK");
    EXPECT_EQ(Gespeichert(), Block({0x0115, 0x0508, 0x7FFF}));
}

TEST_F(FrmReihenfolgeTest, An_entry_with_bit_15_is_reported_when_the_dialog_opens) {
    Oeffne({0x0102, 0x8102});
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, "Error in Ausgabedaten für Autosend, Registeradressen");
    EXPECT_EQ(Liste().count(), 2);
}

TEST_F(FrmReihenfolgeTest, Entries_without_bit_15_are_not_reported) {
    Oeffne({0x0102, 0x7102});
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(FrmReihenfolgeTest, Insert_before_puts_the_chosen_entry_before_the_selected_line) {
    Oeffne({0x0102, 0x0103});
    Liste().setCurrentRow(1);
    Waehle({"Option1_1", "Option2_1", "Option3_1"});
    Druecke("Command1");
    EXPECT_EQ(Zeilen(), QStringList({"TU:K1", "TUMin:K1", "HU:K1"}));
}

TEST_F(FrmReihenfolgeTest, Insert_after_puts_the_chosen_entry_after_the_selected_line) {
    Oeffne({0x0102, 0x0103});
    Liste().setCurrentRow(0);
    Waehle({"Option1_4", "Option2_2", "Option3_6"});
    Druecke("Command2");
    EXPECT_EQ(Zeilen(), QStringList({"TU:K1", "ZNUMax:K4", "HU:K1"}));
}

TEST_F(FrmReihenfolgeTest, Both_insert_buttons_begin_an_empty_list) {
    for (const char* knopf : {"Command1", "Command2"}) {
        Oeffne({});
        Druecke(knopf);
        EXPECT_EQ(Liste().count(), 1) << knopf;
        EXPECT_EQ(Liste().currentRow(), 0) << knopf;
    }
}

TEST_F(FrmReihenfolgeTest, The_inserted_line_is_selected_so_that_the_next_goes_beside_it) {
    Oeffne({0x0014, 0x0114});
    Liste().setCurrentRow(0);
    for (const char* wert : {"Option3_1", "Option3_2", "Option3_3"})
        Waehle({wert, "Command2"});
    EXPECT_EQ(Liste().currentRow(), 3);
    EXPECT_EQ(Zeilen(), QStringList({"Status:Varnoth", "TU:K1", "HU:K1", "ZU:K1", "Status:K1"}));
}

TEST_F(FrmReihenfolgeTest, With_29_entries_both_insert_buttons_show_the_message) {
    Oeffne(Werte(29, 0x0102));
    Druecke("Command1");
    Druecke("Command2");
    const Meldung grenze{.text = "Es sind nur maximal 29 Einträge möglich.", .symbol = Symbol::Warnung};
    EXPECT_EQ(umgebung.meldungen, (std::vector{grenze, grenze}));
    EXPECT_EQ(Liste().count(), 29);
}

TEST_F(FrmReihenfolgeTest, With_28_entries_one_more_insert_is_accepted) {
    Oeffne(Werte(28, 0x0102));
    Druecke("Command2");
    EXPECT_TRUE(umgebung.meldungen.empty());
    EXPECT_EQ(Liste().count(), 29);
}

TEST_F(FrmReihenfolgeTest, Deleting_the_first_of_three_leaves_two_and_a_0_in_the_third_place) {
    Oeffne({0x0101, 0x0102, 0x0103});
    Liste().setCurrentRow(0);
    Druecke("Command3");
    Druecke("cmdOK");
    EXPECT_EQ(Gespeichert(), Block({0x0102, 0x0103}));
}

TEST_F(FrmReihenfolgeTest, After_a_delete_the_line_that_moved_up_is_selected) {
    Oeffne({0x0101, 0x0102, 0x0103});
    Liste().setCurrentRow(1);
    Druecke("Command3");
    EXPECT_EQ(Liste().currentItem()->text(), "HU:K1");
}

TEST_F(FrmReihenfolgeTest, After_deleting_the_last_line_the_one_before_is_selected) {
    Oeffne({0x0101, 0x0102});
    Liste().setCurrentRow(1);
    Druecke("Command3");
    EXPECT_EQ(Liste().currentRow(), 0);
}

TEST_F(FrmReihenfolgeTest, An_empty_list_offers_no_delete) {
    Oeffne({0x0101});
    EXPECT_TRUE(Knopf(Dialog(), "Command3").isEnabled());
    Druecke("Command3");
    EXPECT_FALSE(Knopf(Dialog(), "Command3").isEnabled());
}

TEST_F(FrmReihenfolgeTest, The_number_of_entries_is_shown_beside_the_limit) {
    Oeffne({0x0101, 0x0102});
    EXPECT_EQ(Beschriftung(Dialog(), "lblAnzahl"), "2 / 29");
    Druecke("Command2");
    EXPECT_EQ(Beschriftung(Dialog(), "lblAnzahl"), "3 / 29");
}

TEST_F(FrmReihenfolgeTest, Nothing_is_written_before_OK) {
    Oeffne({0x0101});
    Druecke("Command2");
    EXPECT_EQ(Gespeichert(), Block({0x0101}));
}

TEST_F(FrmReihenfolgeTest, Cancel_after_edits_leaves_the_registers) {
    Oeffne({0x0101});
    Druecke("Command2");
    Druecke("cmdCancel");
    EXPECT_EQ(Gespeichert(), Block({0x0101}));
    EXPECT_EQ(modDaten::IstGeaendert(), False);
    EXPECT_FALSE(Dialog().isVisible());
}

TEST_F(FrmReihenfolgeTest, The_choice_begins_with_TU_of_K1) {
    Oeffne({});
    EXPECT_EQ(Gewaehlt(), (std::vector{1, 0, 1}));
    EXPECT_EQ(Beschriftung(Dialog(), "lblVorschau"), "TU:K1");
}

TEST_F(FrmReihenfolgeTest, The_preview_shows_the_line_that_would_be_inserted) {
    Oeffne({});
    Waehle({"Option1_3", "Option3_4", "Option2_2"});
    EXPECT_EQ(Beschriftung(Dialog(), "lblVorschau"), "TNUMax:K3");
    Druecke("Command1");
    EXPECT_EQ(Zeilen(), QStringList("TNUMax:K3"));
}

TEST_F(FrmReihenfolgeTest, All_sources_can_be_chosen_though_no_part_is_present) {
    Oeffne({});
    EXPECT_EQ(Waehlbar("Option1", 5), (std::vector{0, 1, 2, 3, 4}));
}

TEST_F(FrmReihenfolgeTest, The_device_leaves_only_its_status) {
    Oeffne({});
    Waehle({"Option2_1", "Option1_0"});
    EXPECT_EQ(Gewaehlt(), (std::vector{0, 0, 7}));
    EXPECT_EQ(Waehlbar("Option2", 3), std::vector{0});
    EXPECT_EQ(Waehlbar("Option3", 8), std::vector{7});
    Druecke("Command1");
    EXPECT_EQ(Zeilen(), QStringList("Status:Varnoth"));
}

TEST_F(FrmReihenfolgeTest, A_part_chosen_after_the_device_offers_every_value_again) {
    Oeffne({});
    Waehle({"Option1_0", "Option1_2"});
    EXPECT_EQ(Waehlbar("Option3", 8), (std::vector{0, 1, 2, 3, 4, 5, 6, 7}));
}

TEST_F(FrmReihenfolgeTest, Beam_data_and_status_disable_minimum_and_maximum) {
    for (const char* wert : {"Option3_0", "Option3_7"}) {
        Oeffne({});
        Waehle({wert});
        EXPECT_EQ(Waehlbar("Option2", 3), std::vector{0}) << wert;
    }
}

TEST_F(FrmReihenfolgeTest, Minimum_and_maximum_disable_beam_data_and_status) {
    for (const char* art : {"Option2_1", "Option2_2"}) {
        Oeffne({});
        Waehle({art});
        EXPECT_EQ(Waehlbar("Option3", 8), (std::vector{1, 2, 3, 4, 5, 6})) << art;
    }
}

TEST_F(FrmReihenfolgeTest, The_arrow_keys_change_the_choice) {
    Oeffne({});
    Knopf(Dialog(), "Option3_1").setFocus();
    QTest::keyClick(&Knopf(Dialog(), "Option3_1"), Qt::Key_Down);
    EXPECT_EQ(Beschriftung(Dialog(), "lblVorschau"), "HU:K1");
}

TEST_F(FrmReihenfolgeTest, The_delete_key_removes_the_selected_line) {
    Oeffne({0x0101, 0x0102});
    Liste().setFocus();
    Liste().setCurrentRow(0);
    QTest::keyClick(&Liste(), Qt::Key_Delete);
    EXPECT_EQ(Zeilen(), QStringList("TU:K1"));
}

TEST_F(FrmReihenfolgeTest, A_double_click_takes_the_entry_as_the_choice) {
    Oeffne({0x0101, 0x030E});
    emit Liste().itemDoubleClicked(Liste().item(1));
    EXPECT_EQ(Gewaehlt(), (std::vector{3, 2, 1}));
    EXPECT_EQ(Beschriftung(Dialog(), "lblVorschau"), "TUMax:K3");
}

TEST_F(FrmReihenfolgeTest, A_double_click_on_an_entry_that_cannot_be_chosen_leaves_the_choice) {
    Oeffne({0x0115, 0x0002});
    emit Liste().itemDoubleClicked(Liste().item(0));
    emit Liste().itemDoubleClicked(Liste().item(1));
    EXPECT_EQ(Gewaehlt(), (std::vector{1, 0, 1}));
}

TEST_F(FrmReihenfolgeTest, Escape_asks_before_it_gives_up_a_changed_list) {
    Oeffne({0x0101});
    Druecke("Command3");
    umgebung.antworten = {Antwort::Abbrechen, Antwort::Ok};
    QTest::keyClick(Dialog().focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(Dialog().isVisible());
    QTest::keyClick(Dialog().focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(Dialog().isVisible());
    EXPECT_EQ(umgebung.meldungen.size(), 2U);
    EXPECT_EQ(Gespeichert(), Block({0x0101}));
}

TEST_F(FrmReihenfolgeTest, A_list_that_is_as_it_was_goes_without_a_question) {
    Oeffne({0x0101});
    QTest::keyClick(Dialog().focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(Dialog().isVisible());
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(FrmReihenfolgeTest, Enter_moves_on_and_writes_nothing_wherever_the_focus_is) {
    Oeffne({0x0101, 0x0102});
    Druecke("Command3");
    for (const char* name : {"List1", "Option3_1", "Command2", "cmdOK", "cmdCancel"}) {
        auto& element = Kind<QWidget>(Dialog(), name);
        element.setFocus();
        QTest::keyClick(&element, Qt::Key_Return);
        EXPECT_NE(Dialog().focusWidget(), &element) << name;
    }
    EXPECT_TRUE(Dialog().isVisible());
    EXPECT_EQ(Gespeichert(), Block({0x0101, 0x0102}));
}

TEST_F(FrmReihenfolgeTest, The_texts_are_in_the_language_of_the_moment) {
    SetzeSprachoffset(Englisch);
    Oeffne({0x0201});
    EXPECT_EQ(Dialog().windowTitle(), "Data block configuration");
    const std::vector<std::pair<const char*, const char*>> texte{
        {"Command1", "Insert before"}, {"Command2", "Insert after"},
        {"Command3", "Delete"},        {"cmdOK", "OK"},
        {"cmdCancel", "Cancel"},       {"Option1_0", "Varnoth"},
        {"Option1_1", "C1"},           {"Option1_4", "C4"},
        {"Option2_0", "Current"},      {"Option2_1", "Min"},
        {"Option2_2", "Max"},          {"Option3_0", "Beam data"},
        {"Option3_1", "TU"},           {"Option3_6", "ZNU"},
        {"Option3_7", "Status"}};
    for (const auto& [name, text] : texte)
        EXPECT_EQ(Knopf(Dialog(), name).text(), text);
    EXPECT_EQ(Zeilen(), QStringList("Beam data:C2"));
}

TEST_F(FrmReihenfolgeTest, Inserted_and_deleted_entries_are_undone_and_done_again) {
    Oeffne({0x0014, 0x0108});
    Druecke("Command3");
    Druecke("Command2");
    ASSERT_EQ(Zeilen(), QStringList({"TUMin:K1", "TU:K1"}));
    QTest::keyClick(&Dialog(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Zeilen(), QStringList({"TUMin:K1"}));
    QTest::keyClick(&Dialog(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Zeilen(), QStringList({"Status:Varnoth", "TUMin:K1"}));
    QTest::keyClick(&Dialog(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Zeilen(), QStringList({"TUMin:K1"}));
}

TEST_F(FrmReihenfolgeTest, The_list_of_changes_names_entry_and_place) {
    Oeffne({0x0014, 0x0108});
    Druecke("Command3");
    Druecke("Command2");
    const auto* const modell = Kind<QUndoView>(Dialog(), "lstVerlauf").model();
    ASSERT_EQ(modell->rowCount(), 3);
    EXPECT_EQ(modell->index(1, 0).data().toString(), "Status:Varnoth gelöscht an Platz 1");
    EXPECT_EQ(modell->index(2, 0).data().toString(), "TU:K1 eingefügt an Platz 2");
}

TEST_F(FrmReihenfolgeTest, After_undoing_everything_closing_asks_nothing) {
    Oeffne({0x0014, 0x0108});
    Druecke("Command3");
    QTest::keyClick(&Dialog(), Qt::Key_Z, Qt::ControlModifier);
    Dialog().close();
    EXPECT_TRUE(umgebung.meldungen.empty());
}

} // namespace varnoth
