#include "frmHilfe.h"

#include "funddarstellung.h"
#include "hilfedatei.h"
#include "hilfetest.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

namespace varnoth {

using pruefung::Kind;
using pruefung::Stelle;
using pruefung::WarteBis;

class FrmHilfeTest : public testing::Test {
protected:
    FrmHilfeTest() {
        hilfe.NimmDatei(*datei);
        hilfe.show();
        hilfe.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&hilfe));
    }

    QTextBrowser& Seite() { return Kind<QTextBrowser>(hilfe, "brwSeite"); }
    QTreeWidget& Inhalt() { return Kind<QTreeWidget>(hilfe, "trvInhalt"); }
    QListWidget& Funde() { return Kind<QListWidget>(hilfe, "lstFunde"); }
    QLineEdit& Suchfeld() { return Kind<QLineEdit>(hilfe, "txtSuchen"); }
    QPushButton& Knopf(const char* name) { return Kind<QPushButton>(hilfe, name); }
    QStringList Fundtitel() {
        QStringList titel;
        for (int i = 0; i < Funde().count(); ++i)
            titel.append(Funde().item(i)->text());
        return titel;
    }
    QStringList Hervorgehoben() {
        QStringList texte;
        for (const auto& stelle : Seite().extraSelections())
            texte.append(stelle.cursor.selectedText());
        return texte;
    }

    std::unique_ptr<Hilfedatei> datei = Hilfedatei::Oeffne(QStringLiteral(HILFEPROBE));
    frmHilfe hilfe;
};

TEST_F(FrmHilfeTest, Begins_with_the_first_page_marked_in_the_contents) {
    EXPECT_EQ(Stelle(hilfe), "anfang");
    EXPECT_EQ(Inhalt().currentItem()->text(0), "Anfang");
    EXPECT_TRUE(Seite().toPlainText().contains(QStringLiteral("Prüfgerät")));
}

TEST_F(FrmHilfeTest, The_contents_show_chapters_with_their_pages) {
    EXPECT_EQ(Inhalt().topLevelItemCount(), 3);
    EXPECT_EQ(Inhalt().topLevelItem(1)->childCount(), 3);
    EXPECT_TRUE(Inhalt().topLevelItem(1)->isExpanded());
}

TEST_F(FrmHilfeTest, Its_own_texts_are_in_the_language) {
    EXPECT_EQ(hilfe.windowTitle(), "Hilfe");
    EXPECT_EQ(Inhalt().headerItem()->text(0), "Inhalt");
    EXPECT_EQ(Knopf("cmdZurück").text(), QStringLiteral("Zurück"));
    EXPECT_EQ(Knopf("cmdVor").text(), "Vor");
    EXPECT_EQ(Kind<QLabel>(hilfe, "lblSuchen").text(), "Suchen: ");
}

TEST_F(FrmHilfeTest, Another_file_brings_its_pages_and_the_texts_of_its_language) {
    const auto englisch = Hilfedatei::Oeffne(QStringLiteral(HILFEPROBE_ENGLISCH));
    SetzeSprachoffset(Englisch);
    hilfe.NimmDatei(*englisch);
    EXPECT_EQ(hilfe.windowTitle(), "Help");
    EXPECT_EQ(Stelle(hilfe), "start");
    EXPECT_EQ(Inhalt().topLevelItemCount(), 1);
    EXPECT_FALSE(Seite().isBackwardAvailable());
}

TEST_F(FrmHilfeTest, Choosing_in_the_contents_shows_the_page) {
    Inhalt().setCurrentItem(Inhalt().topLevelItem(2));
    EXPECT_EQ(Stelle(hilfe), "meldungen");
}

TEST_F(FrmHilfeTest, A_link_leads_to_its_place_and_marks_the_page_in_the_contents) {
    Seite().setSource(QUrl("dialog.html#txtFeld"));
    EXPECT_EQ(Stelle(hilfe), "dialog#txtFeld");
    EXPECT_EQ(Inhalt().currentItem()->text(0), "Ein Dialog");
    EXPECT_TRUE(WarteBis([&] { return Seite().verticalScrollBar()->value() > 0; }));
}

TEST_F(FrmHilfeTest, Pictures_are_shown) {
    EXPECT_EQ(Seite()
                  .document()
                  ->resource(QTextDocument::ImageResource, QUrl("bilder/bild.png"))
                  .value<QImage>()
                  .size(),
              QSize(40, 30));
}

TEST_F(FrmHilfeTest, Back_and_forward_walk_through_the_pages_that_were_shown) {
    EXPECT_FALSE(Knopf("cmdZurück").isEnabled());
    hilfe.ZeigeSeite("haupt");
    hilfe.ZeigeSeite("dialog");
    Knopf("cmdZurück").click();
    EXPECT_EQ(Stelle(hilfe), "haupt");
    EXPECT_EQ(Inhalt().currentItem()->text(0), "Das Hauptfenster");
    Knopf("cmdVor").click();
    EXPECT_EQ(Stelle(hilfe), "dialog");
    EXPECT_FALSE(Knopf("cmdVor").isEnabled());
}

TEST_F(FrmHilfeTest, Alt_with_the_arrow_keys_goes_back_and_forward_from_everywhere) {
    hilfe.ZeigeSeite("haupt");
    QTest::keyClick(&Inhalt(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Stelle(hilfe), "anfang");
    QTest::keyClick(&Suchfeld(), Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Stelle(hilfe), "haupt");
}

TEST_F(FrmHilfeTest, Alt_and_an_arrow_key_in_the_page_go_one_page_only) {
    hilfe.ZeigeSeite("haupt");
    hilfe.ZeigeSeite("dialog");
    QTest::keyClick(&Seite(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Stelle(hilfe), "haupt");
}

TEST_F(FrmHilfeTest, Ctrl_F_goes_to_the_search_field) {
    QTest::keyClick(&Seite(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(Suchfeld().hasFocus());
}

TEST_F(FrmHilfeTest, Escape_closes_the_window) {
    QTest::keyClick(&Suchfeld(), Qt::Key_Escape);
    EXPECT_FALSE(hilfe.isVisible());
}

TEST_F(FrmHilfeTest, Typing_shows_the_finds_in_place_of_the_contents) {
    Suchfeld().setText("gitter steuer");
    EXPECT_EQ(Fundtitel(), (QStringList{"Das Hauptfenster", "Ein Dialog"}));
    EXPECT_TRUE(Funde().isVisible());
    EXPECT_FALSE(Inhalt().isVisible());
    EXPECT_TRUE(Funde().item(0)->data(Funddarstellung::AuszugRolle).toString().contains("Ein Lichtgitter"));
}

TEST_F(FrmHilfeTest, An_empty_search_field_brings_the_contents_back) {
    Suchfeld().setText("gitter");
    Suchfeld().clear();
    EXPECT_FALSE(Funde().isVisible());
    EXPECT_TRUE(Inhalt().isVisible());
}

TEST_F(FrmHilfeTest, Choosing_a_find_shows_its_page_with_all_words_marked) {
    Suchfeld().setText("gitter STEUERGERÄT");
    Funde().setCurrentRow(0);
    EXPECT_EQ(Stelle(hilfe), "haupt");
    EXPECT_EQ(Hervorgehoben(), (QStringList{"gitter", QStringLiteral("Steuergerät")}));
}

TEST_F(FrmHilfeTest, A_find_far_down_is_scrolled_to) {
    Suchfeld().setText(QStringLiteral("Wert Steuergerät"));
    Funde().setCurrentRow(0);
    EXPECT_EQ(Stelle(hilfe), "dialog");
    EXPECT_TRUE(WarteBis([&] { return Seite().verticalScrollBar()->value() > 0; }));
}

TEST_F(FrmHilfeTest, Enter_in_the_search_field_shows_the_first_find) {
    QTest::keyClicks(&Suchfeld(), "lupe");
    QTest::keyClick(&Suchfeld(), Qt::Key_Return);
    EXPECT_EQ(Stelle(hilfe), "ansicht");
}

TEST_F(FrmHilfeTest, Enter_after_a_search_without_finds_stays_where_it_is) {
    Suchfeld().setText("zebra");
    QTest::keyClick(&Suchfeld(), Qt::Key_Return);
    EXPECT_EQ(Stelle(hilfe), "anfang");
}

TEST_F(FrmHilfeTest, The_marks_go_with_the_page) {
    Suchfeld().setText("gitter");
    Funde().setCurrentRow(0);
    hilfe.ZeigeSeite("meldungen");
    EXPECT_EQ(Hervorgehoben(), QStringList());
}

} // namespace varnoth
