#include "lokalisiereform.h"

#include "texte.h"

#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QDockWidget>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include <ostream>

/// Lets GoogleTest print a text as text.
inline void PrintTo(const QString& text, std::ostream* strom) {
    *strom << '"' << text.toStdString() << '"';
}

namespace varnoth {

namespace {

class LokalisiereFormTest : public testing::Test {
protected:
    void Lokalisiere(std::int16_t offset) {
        SetzeSprachoffset(offset);
        LokalisiereForm(form);
    }

    /// A new control in the form.
    template<class Element>
    Element& Neu(const char* tag = nullptr, const char* toolTip = "") {
        auto* const element = new Element(&form);
        if (tag)
            element->setProperty("Tag", QString(tag));
        element->setToolTip(toolTip);
        return *element;
    }

    QWidget form;
};

QString TagVon(const QObject& element) {
    return element.property("Tag").toString();
}

} // namespace

TEST_F(LokalisiereFormTest, A_form_whose_tag_is_3_keeps_its_title) {
    form.setWindowTitle("3. Optikteil");
    form.setProperty("Tag", "3");
    Lokalisiere(Deutsch);
    EXPECT_EQ(form.windowTitle(), "3. Optikteil");
}

TEST_F(LokalisiereFormTest, A_form_whose_tag_is_10_keeps_its_title) {
    form.setWindowTitle("designed");
    form.setProperty("Tag", "10");
    Lokalisiere(Deutsch);
    EXPECT_EQ(form.windowTitle(), "designed");
}

TEST_F(LokalisiereFormTest, A_form_whose_tag_is_6000_is_Varnoth_Monitor_in_both_languages) {
    form.setProperty("Tag", "6000");
    Lokalisiere(Deutsch);
    EXPECT_EQ(form.windowTitle(), "Varnoth Monitor");
    form.setWindowTitle("other");
    Lokalisiere(Englisch);
    EXPECT_EQ(form.windowTitle(), "Varnoth Monitor");
}

TEST_F(LokalisiereFormTest, A_form_title_follows_the_language) {
    form.setProperty("Tag", 7500);
    Lokalisiere(Deutsch);
    EXPECT_EQ(form.windowTitle(), "Initialisierung der Hardware");
    Lokalisiere(Englisch);
    EXPECT_EQ(form.windowTitle(), "Initialize hardware");
}

TEST_F(LokalisiereFormTest, A_label_shows_the_text_of_its_tag) {
    auto& label = Neu<QLabel>("7203");
    Lokalisiere(Deutsch);
    EXPECT_EQ(label.text(), "Slave Adresse: ");
    Lokalisiere(Englisch);
    EXPECT_EQ(label.text(), "Slave address: ");
}

TEST_F(LokalisiereFormTest, A_label_without_a_usable_tag_keeps_its_text) {
    for (const char* tag : {"0", "", "abc", "-5", "1", "999999", "8999"}) {
        auto& label = Neu<QLabel>(tag);
        label.setText("designed");
        Lokalisiere(Deutsch);
        EXPECT_EQ(label.text(), "designed") << tag;
    }
}

TEST_F(LokalisiereFormTest, A_label_leaves_its_tool_tip_alone) {
    auto& label = Neu<QLabel>("7203", "7204");
    Lokalisiere(Deutsch);
    EXPECT_EQ(label.toolTip(), "7204");
}

TEST_F(LokalisiereFormTest, A_doubled_ampersand_shows_as_one_in_a_label) {
    auto& label = Neu<QLabel>("7309");
    Lokalisiere(Deutsch);
    EXPECT_EQ(label.text(), "(&H=Hex. )");
}

TEST_F(LokalisiereFormTest, A_label_with_a_buddy_keeps_the_doubled_ampersand_that_Qt_shows_as_one) {
    auto& label = Neu<QLabel>("7309");
    label.setBuddy(&Neu<QLineEdit>());
    Lokalisiere(Deutsch);
    EXPECT_EQ(label.text(), "(&&H=Hex. )");
}

TEST_F(LokalisiereFormTest, Buttons_boxes_and_docks_show_the_text_of_their_tag) {
    auto& knopf = Neu<QPushButton>("7201");
    auto& haken = Neu<QCheckBox>("7111");
    auto& werkzeug = Neu<QToolButton>("7605");
    auto& rahmen = Neu<QGroupBox>("8038");
    auto& dock = Neu<QDockWidget>("8039");
    Lokalisiere(Englisch);
    EXPECT_EQ(knopf.text(), "Continue");
    EXPECT_EQ(haken.text(), "Save all configuration data");
    EXPECT_EQ(werkzeug.text(), "Reset");
    EXPECT_EQ(rahmen.title(), "Object recognition");
    EXPECT_EQ(dock.windowTitle(), "Hole recognition");
}

TEST_F(LokalisiereFormTest, A_button_without_a_tag_keeps_its_text) {
    auto& knopf = Neu<QPushButton>();
    knopf.setText("1020");
    Lokalisiere(Deutsch);
    EXPECT_EQ(knopf.text(), "1020");
}

TEST_F(LokalisiereFormTest, A_control_without_a_caption_is_passed_over) {
    auto& feld = Neu<QLineEdit>("7201", "5217");
    feld.setText("typed");
    Lokalisiere(Deutsch);
    EXPECT_EQ(feld.text(), "typed");
    EXPECT_EQ(feld.toolTip(), "(Angewählt ist geblankt)");
}

TEST_F(LokalisiereFormTest, Scroll_bars_and_lines_are_skipped) {
    auto& balken = Neu<QScrollBar>("7201", "7201");
    auto& linie = Neu<QFrame>("7201", "7201");
    linie.setFrameShape(QFrame::HLine);
    Lokalisiere(Deutsch);
    EXPECT_EQ(balken.toolTip(), "7201");
    EXPECT_EQ(linie.toolTip(), "7201");
}

TEST_F(LokalisiereFormTest, A_tool_tip_survives_any_number_of_language_switches) {
    auto& knopf = Neu<QPushButton>("5216", "5217");
    for (int runde = 0; runde < 3; ++runde) {
        Lokalisiere(Deutsch);
        EXPECT_EQ(knopf.toolTip(), "(Angewählt ist geblankt)");
        Lokalisiere(Englisch);
        EXPECT_EQ(knopf.toolTip(), "(Selected is blanked)");
    }
}

TEST_F(LokalisiereFormTest, A_tool_tip_in_plain_words_stays) {
    auto& knopf = Neu<QPushButton>("5216", "in plain words");
    Lokalisiere(Englisch);
    EXPECT_EQ(knopf.toolTip(), "in plain words");
}

TEST_F(LokalisiereFormTest, A_tool_tip_given_as_another_id_later_is_taken_over) {
    auto& knopf = Neu<QPushButton>("5216", "5217");
    Lokalisiere(Deutsch);
    knopf.setToolTip("4019");
    Lokalisiere(Deutsch);
    Lokalisiere(Englisch);
    EXPECT_EQ(knopf.toolTip(), "Number of blanked beams");
}

TEST_F(LokalisiereFormTest, Tabs_take_their_text_from_their_page_and_keep_their_tool_tips) {
    auto& reiter = Neu<QTabWidget>();
    auto* const seite = new QWidget;
    seite->setProperty("Tag", "5600");
    reiter.addTab(new QWidget, "designed");
    reiter.addTab(seite, "");
    reiter.setTabToolTip(1, "5609");
    Lokalisiere(Deutsch);
    EXPECT_EQ(reiter.tabText(0), "designed");
    EXPECT_EQ(reiter.tabText(1), "Kommunikation");
    EXPECT_EQ(reiter.tabToolTip(1), "Byteformat:");
    reiter.removeTab(0);
    Lokalisiere(Englisch);
    EXPECT_EQ(reiter.tabText(0), "Communication");
    EXPECT_EQ(reiter.tabToolTip(0), "Byte format:");
}

TEST_F(LokalisiereFormTest, Tabs_of_a_bare_tab_bar_take_their_text_from_their_data) {
    auto& leiste = Neu<QTabBar>();
    for (const int id : {5200, 5201, 5600}) {
        leiste.addTab("");
        leiste.setTabData(leiste.count() - 1, id);
    }
    leiste.setTabToolTip(2, "5609");
    Lokalisiere(Deutsch);
    leiste.removeTab(0);
    Lokalisiere(Englisch);
    EXPECT_EQ(leiste.tabText(0), "C2");
    EXPECT_EQ(leiste.tabText(1), "Communication");
    EXPECT_EQ(leiste.tabToolTip(0), "");
    EXPECT_EQ(leiste.tabToolTip(1), "Byte format:");
}

TEST_F(LokalisiereFormTest, Column_headings_designed_as_ids_follow_the_language) {
    auto& tabelle = Neu<QTableWidget>();
    tabelle.setColumnCount(2);
    tabelle.setRowCount(1);
    tabelle.setHorizontalHeaderLabels({"5506", "designed"});
    auto& baum = Neu<QTreeWidget>();
    baum.setHeaderLabels({"5503", "5504"});
    Lokalisiere(Deutsch);
    EXPECT_EQ(tabelle.horizontalHeaderItem(0)->text(), "Strahlendaten");
    EXPECT_EQ(baum.headerItem()->text(1), "Einfügen danach");
    Lokalisiere(Englisch);
    EXPECT_EQ(tabelle.horizontalHeaderItem(0)->text(), "Beam data");
    EXPECT_EQ(tabelle.horizontalHeaderItem(1)->text(), "designed");
    EXPECT_EQ(baum.headerItem()->text(0), "Insert before");
    EXPECT_EQ(baum.headerItem()->text(1), "Insert after");
}

TEST_F(LokalisiereFormTest, A_column_heading_takes_the_id_of_its_own_tag) {
    QStandardItemModel modell(1, 1);
    modell.setHeaderData(0, Qt::Horizontal, 5506, Qt::UserRole);
    modell.setHeaderData(0, Qt::Horizontal, "?");
    Neu<QTreeView>().setModel(&modell);
    Lokalisiere(Englisch);
    EXPECT_EQ(modell.headerData(0, Qt::Horizontal).toString(), "Beam data");
}

TEST_F(LokalisiereFormTest, A_text_that_is_already_shown_is_not_written_again) {
    QStandardItemModel modell(1, 1);
    modell.setHeaderData(0, Qt::Horizontal, "5506");
    Neu<QTreeView>().setModel(&modell);
    form.setProperty("Tag", "7500");
    Lokalisiere(Deutsch);
    int geschrieben = 0;
    QObject::connect(&modell, &QAbstractItemModel::headerDataChanged, &form, [&] { ++geschrieben; });
    QObject::connect(&form, &QWidget::windowTitleChanged, &form, [&] { ++geschrieben; });
    Lokalisiere(Deutsch);
    EXPECT_EQ(geschrieben, 0);
    Lokalisiere(Englisch);
    EXPECT_EQ(geschrieben, 2);
}

TEST_F(LokalisiereFormTest, A_language_without_texts_leaves_everything_as_it_is) {
    auto& label = Neu<QLabel>("7203");
    Lokalisiere(Deutsch);
    Lokalisiere(20000);
    EXPECT_EQ(label.text(), "Slave Adresse: ");
}

TEST_F(LokalisiereFormTest, Controls_inside_other_controls_are_reached) {
    auto& rahmen = Neu<QGroupBox>();
    auto* const knopf = new QPushButton(&rahmen);
    knopf->setProperty("Tag", "7201");
    Lokalisiere(Deutsch);
    EXPECT_EQ(knopf->text(), "Weiter");
}

TEST_F(LokalisiereFormTest, A_dialog_inside_a_form_is_left_to_its_own_call) {
    QDialog dialog(&form);
    QLabel label(&dialog);
    label.setProperty("Tag", "7203");
    Lokalisiere(Deutsch);
    EXPECT_EQ(label.text(), "");
    LokalisiereForm(dialog);
    EXPECT_EQ(label.text(), "Slave Adresse: ");
}

namespace {

/// A main window as Designer makes it: menus and actions carry their ids as captions.
class HauptfensterTest : public testing::Test {
protected:
    void Lokalisiere(std::int16_t offset) {
        SetzeSprachoffset(offset);
        LokalisiereForm(fenster);
    }

    QMainWindow fenster;
    QMenu& datei = *fenster.menuBar()->addMenu("1000");
    QAction& neu = *datei.addAction("1040");
    QAction& strich = *datei.addSeparator();
    QMenu& sprache = *datei.addMenu("1510");
    QAction& deutsch = *sprache.addAction("1511");
};

} // namespace

TEST_F(HauptfensterTest, Menus_and_submenus_move_their_id_from_the_caption_into_the_tag) {
    Lokalisiere(Deutsch);
    EXPECT_EQ(datei.title(), "&Datei");
    EXPECT_EQ(neu.text(), "&Neue Konfiguration...");
    EXPECT_EQ(sprache.title(), "&Sprache...");
    EXPECT_EQ(deutsch.text(), "&Deutsch");
    EXPECT_EQ(TagVon(*datei.menuAction()), "1000");
    EXPECT_EQ(TagVon(neu), "1040");
}

TEST_F(HauptfensterTest, Switching_to_English_and_back_gives_exactly_the_designed_German_texts) {
    auto* const mitte = new QWidget;
    auto* const label = new QLabel(mitte);
    auto* const knopf = new QPushButton(mitte);
    label->setProperty("Tag", "5601");
    knopf->setProperty("Tag", "5216");
    knopf->setToolTip("5217");
    fenster.setCentralWidget(mitte);
    fenster.setProperty("Tag", "8100");
    const auto texte = [&] {
        return QStringList{fenster.windowTitle(), datei.title(), neu.text(),    sprache.title(),
                           deutsch.text(),        label->text(), knopf->text(), knopf->toolTip()};
    };
    const QStringList deutscheTexte{"Info über Varnoth",
                                    "&Datei",
                                    "&Neue Konfiguration...",
                                    "&Sprache...",
                                    "&Deutsch",
                                    "Format zwischen Master/Slave:   ",
                                    "Blankingmuster",
                                    "(Angewählt ist geblankt)"};
    Lokalisiere(Deutsch);
    EXPECT_EQ(texte(), deutscheTexte);
    Lokalisiere(Englisch);
    EXPECT_EQ(texte(),
              (QStringList{"Info about Varnoth", "&File", "&New Configuration...", "&Language...", "&German",
                           "Format between Master/Slave:   ", "Blanking pattern", "(Selected is blanked)"}));
    Lokalisiere(Deutsch);
    EXPECT_EQ(texte(), deutscheTexte);
}

TEST_F(HauptfensterTest, A_separator_is_left_alone) {
    strich.setText("1000");
    Lokalisiere(Deutsch);
    EXPECT_EQ(strich.text(), "1000");
    EXPECT_EQ(TagVon(strich), "");
}

TEST_F(HauptfensterTest, A_menu_item_that_has_a_tag_already_uses_it) {
    neu.setText("designed");
    neu.setProperty("Tag", "1050");
    Lokalisiere(Deutsch);
    EXPECT_EQ(neu.text(), "Konfiguration ö&ffnen...");
}

TEST_F(HauptfensterTest, A_menu_item_with_plain_words_keeps_them) {
    neu.setText("plain words");
    Lokalisiere(Deutsch);
    Lokalisiere(Englisch);
    EXPECT_EQ(neu.text(), "plain words");
}

TEST_F(HauptfensterTest, A_menu_that_hangs_on_no_menu_bar_is_reached) {
    QMenu kontext(&fenster);
    const QAction* const eintrag = kontext.addAction("1430");
    Lokalisiere(Deutsch);
    EXPECT_EQ(eintrag->text(), "&Initialisierung der Hardware");
}

TEST_F(HauptfensterTest, A_menu_inside_a_child_control_is_reached) {
    auto* const knopf = new QToolButton(&fenster);
    auto* const menue = new QMenu(knopf);
    const QAction* const eintrag = menue->addAction("1430");
    knopf->setMenu(menue);
    Lokalisiere(Deutsch);
    EXPECT_EQ(eintrag->text(), "&Initialisierung der Hardware");
}

TEST_F(HauptfensterTest, A_tool_bar_button_translates_its_tool_tip_in_every_pass) {
    QToolBar& leiste = *fenster.addToolBar("");
    QAction& knopf = *leiste.addAction("1440");
    knopf.setToolTip("7903");
    Lokalisiere(Deutsch);
    EXPECT_EQ(leiste.widgetForAction(&knopf)->toolTip(), "Soll ein Neustart wie bei Powerup erfolgen?");
    Lokalisiere(Englisch);
    EXPECT_EQ(leiste.widgetForAction(&knopf)->toolTip(), "Do you want to make a new start like powerup?");
    Lokalisiere(Deutsch);
    EXPECT_EQ(knopf.toolTip(), "Soll ein Neustart wie bei Powerup erfolgen?");
}

TEST_F(HauptfensterTest,
       A_tool_bar_button_without_its_own_tool_tip_shows_its_menu_text_without_the_mnemonic) {
    QToolBar& leiste = *fenster.addToolBar("");
    leiste.addAction(&neu);
    Lokalisiere(Deutsch);
    EXPECT_EQ(leiste.widgetForAction(&neu)->toolTip(), "Neue Konfiguration");
    Lokalisiere(Englisch);
    EXPECT_EQ(leiste.widgetForAction(&neu)->toolTip(), "New Configuration");
}

TEST_F(HauptfensterTest, A_tool_button_outside_a_tool_bar_shows_the_texts_of_its_action) {
    auto* const knopf = new QToolButton(&fenster);
    knopf->setDefaultAction(new QAction("1040", knopf));
    for (int runde = 0; runde < 2; ++runde) {
        Lokalisiere(Deutsch);
        EXPECT_EQ(knopf->text(), "Neue Konfiguration");
        EXPECT_EQ(knopf->toolTip(), "Neue Konfiguration");
    }
}

TEST_F(HauptfensterTest, A_floating_dock_belongs_to_the_window) {
    auto* const dock = new QDockWidget(&fenster);
    dock->setProperty("Tag", "8039");
    dock->setWindowFlags(Qt::Tool);
    Lokalisiere(Deutsch);
    EXPECT_EQ(dock->windowTitle(), "Locherkennung");
}

TEST_F(HauptfensterTest, A_child_window_is_left_to_its_own_call) {
    auto* const bereich = new QMdiArea;
    fenster.setCentralWidget(bereich);
    auto* const ansicht = new QWidget;
    ansicht->setWindowTitle("1. Optikteil online");
    ansicht->setProperty("Tag", "0");
    auto* const label = new QLabel(ansicht);
    label->setProperty("Tag", "4021");
    bereich->addSubWindow(ansicht);
    Lokalisiere(Deutsch);
    EXPECT_EQ(label->text(), "");
    LokalisiereForm(*ansicht);
    EXPECT_EQ(label->text(), "ZB");
    EXPECT_EQ(ansicht->windowTitle(), "1. Optikteil online");
}

} // namespace varnoth
