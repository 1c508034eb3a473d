#include "hilfe.h"

#include "hilfetest.h"
#include "pruefumgebung.h"

#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

namespace varnoth {

using pruefung::Kind;
using pruefung::OffeneHilfe;
using pruefung::Stelle;
using pruefung::WarteBis;

class HilfeTest : public testing::Test {
protected:
    HilfeTest() {
        hauptfenster.setObjectName("frmMain");
        hauptfenster.resize(300, 200);
        hauptfenster.show();
        feld->setObjectName("txtFeld_0");
        dialog->setObjectName("frmProbe");
        auto* const anordnung = new QVBoxLayout(dialog.get());
        anordnung->addWidget(feld);
        anordnung->addWidget(knopf);
        QObject::connect(knopf, &QPushButton::clicked, knopf, [this] { ++klicks; });
    }

    void OeffneDialog() {
        dialog->setModal(true);
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    }
    /// A click as the window system sends it: a blocked window does not get it.
    static void KlickeAuf(QWidget& element) {
        QWidget& fenster = *element.window();
        QTest::mouseClick(fenster.windowHandle(), Qt::LeftButton, {},
                          element.mapTo(&fenster, element.rect().center()));
    }
    static bool Bedienbar(QWidget& fenster) {
        auto& suchfeld = Kind<QLineEdit>(fenster, "txtSuchen");
        suchfeld.clearFocus();
        KlickeAuf(suchfeld);
        return WarteBis([&] { return suchfeld.hasFocus(); }, 1000);
    }
    std::string NichtGefunden() const {
        return "Die Hilfedatei wurde nicht gefunden: " + QDir::toNativeSeparators(pfad).toStdString();
    }
    /// The box that tells without waiting; nullptr when there is none.
    static QMessageBox* Warnung() { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); }

    pruefung::PruefUmgebung umgebung;
    QMainWindow hauptfenster;
    std::unique_ptr<QDialog> dialog = std::make_unique<QDialog>(&hauptfenster);
    QLineEdit* feld = new QLineEdit;
    QPushButton* knopf = new QPushButton;
    int klicks = 0;
    QString pfad = QStringLiteral(HILFEPROBE);
    Hilfe hilfe{[this] { return pfad; }};
};

TEST_F(HilfeTest, Topics_begin_with_the_first_page) {
    hilfe.ZeigeThemen(&hauptfenster);
    ASSERT_NE(OffeneHilfe(), nullptr);
    EXPECT_EQ(Stelle(*OffeneHilfe()), "anfang");
}

TEST_F(HilfeTest, A_window_brings_its_page) {
    hilfe.ZeigeSeiteZu(&hauptfenster);
    EXPECT_EQ(Stelle(*OffeneHilfe()), "haupt");
}

TEST_F(HilfeTest, A_control_with_a_paragraph_of_its_own_brings_that) {
    hilfe.ZeigeSeiteZu(feld);
    EXPECT_EQ(Stelle(*OffeneHilfe()), "dialog#txtFeld");
}

TEST_F(HilfeTest, A_control_without_a_paragraph_brings_the_page_of_its_window) {
    feld->setObjectName("txtOther");
    hilfe.ZeigeSeiteZu(feld);
    EXPECT_EQ(Stelle(*OffeneHilfe()), "dialog");
}

TEST_F(HilfeTest, An_unknown_window_brings_the_first_page) {
    hilfe.ZeigeSeiteZu(&hauptfenster);
    dialog->setObjectName("frmOther");
    hilfe.ZeigeSeiteZu(feld);
    EXPECT_EQ(Stelle(*OffeneHilfe()), "anfang");
}

TEST_F(HilfeTest, No_window_brings_the_first_page) {
    hilfe.ZeigeSeiteZu(nullptr);
    EXPECT_EQ(Stelle(*OffeneHilfe()), "anfang");
}

TEST_F(HilfeTest, Tabs_bring_the_page_of_the_tab_that_is_shown) {
    QTabWidget reiter;
    for (const char* name : {"seite_0", "seite_1"}) {
        auto* const seite = new QWidget;
        seite->setObjectName(name);
        reiter.addTab(seite, {});
    }
    reiter.setCurrentIndex(1);
    hilfe.ZeigeSeiteZu(reiter.tabBar());
    EXPECT_EQ(Stelle(*OffeneHilfe()), "zweite");
}

TEST_F(HilfeTest, A_message_box_brings_its_message) {
    QMessageBox box;
    box.setObjectName("Meldungsfenster");
    box.setText(QString::fromStdString(LadeText(3000)));
    hilfe.ZeigeSeiteZu(&box);
    EXPECT_EQ(Stelle(*OffeneHilfe()), "meldungen#m3000");
}

TEST_F(HilfeTest, Another_call_uses_the_same_window) {
    hilfe.ZeigeSeiteZu(&hauptfenster);
    const QWidget* const fenster = OffeneHilfe();
    hilfe.ZeigeSeiteZu(feld);
    EXPECT_EQ(OffeneHilfe(), fenster);
}

TEST_F(HilfeTest, Another_language_brings_its_file_into_the_window) {
    hilfe.ZeigeThemen(&hauptfenster);
    SetzeSprachoffset(Englisch);
    pfad = QStringLiteral(HILFEPROBE_ENGLISCH);
    hilfe.ZeigeThemen(&hauptfenster);
    EXPECT_EQ(Stelle(*OffeneHilfe()), "start");
    EXPECT_EQ(OffeneHilfe()->windowTitle(), "Help");
}

TEST_F(HilfeTest, The_window_can_be_used_while_a_modal_dialog_is_open) {
    OeffneDialog();
    hilfe.ZeigeSeiteZu(dialog.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(OffeneHilfe()));
    EXPECT_TRUE(Bedienbar(*OffeneHilfe()));
}

TEST_F(HilfeTest, A_window_that_was_open_before_the_dialog_becomes_usable_beside_it) {
    hilfe.ZeigeThemen(&hauptfenster);
    OeffneDialog();
    EXPECT_FALSE(Bedienbar(*OffeneHilfe()));
    hilfe.ZeigeSeiteZu(dialog.get());
    EXPECT_TRUE(Bedienbar(*OffeneHilfe()));
}

TEST_F(HilfeTest, The_dialog_can_be_used_while_help_is_open) {
    OeffneDialog();
    hilfe.ZeigeSeiteZu(dialog.get());
    KlickeAuf(*knopf);
    EXPECT_EQ(klicks, 1);
}

TEST_F(HilfeTest, The_dialog_goes_on_when_help_is_closed_first) {
    OeffneDialog();
    hilfe.ZeigeSeiteZu(dialog.get());
    OffeneHilfe()->close();
    KlickeAuf(*knopf);
    EXPECT_EQ(klicks, 1);
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(HilfeTest, The_window_outlives_the_dialog_and_stays_usable) {
    OeffneDialog();
    hilfe.ZeigeSeiteZu(dialog.get());
    dialog.reset();
    ASSERT_NE(OffeneHilfe(), nullptr);
    EXPECT_TRUE(Bedienbar(*OffeneHilfe()));
}

TEST_F(HilfeTest, The_main_window_can_be_used_beside_it) {
    hilfe.ZeigeThemen(&hauptfenster);
    EXPECT_EQ(OffeneHilfe()->windowHandle()->transientParent(), nullptr);
    EXPECT_FALSE(OffeneHilfe()->isModal());
}

TEST_F(HilfeTest, A_closed_window_comes_back) {
    hilfe.ZeigeThemen(&hauptfenster);
    OffeneHilfe()->close();
    EXPECT_EQ(OffeneHilfe(), nullptr);
    hilfe.ZeigeSeiteZu(&hauptfenster);
    EXPECT_EQ(Stelle(*OffeneHilfe()), "haupt");
}

TEST_F(HilfeTest, Topics_without_a_file_name_it_in_a_box_and_wait) {
    pfad = QDir::rootPath() + "nowhere/varnoth.hlp";
    hilfe.ZeigeThemen(&hauptfenster);
    const Meldung erwartet{.text = NichtGefunden(), .titel = "Achtung"};
    EXPECT_EQ(umgebung.meldungen, std::vector{erwartet});
    EXPECT_EQ(OffeneHilfe(), nullptr);
}

TEST_F(HilfeTest, A_page_without_a_file_names_it_in_a_box_that_nobody_waits_for) {
    pfad = QDir::rootPath() + "nowhere/varnoth.hlp";
    hilfe.ZeigeSeiteZu(&hauptfenster);
    ASSERT_NE(Warnung(), nullptr);
    EXPECT_EQ(Warnung()->text().toStdString(), NichtGefunden());
    EXPECT_EQ(Warnung()->windowTitle(), "Achtung");
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(HilfeTest, A_second_key_press_opens_no_second_box) {
    pfad = QDir::rootPath() + "nowhere/varnoth.hlp";
    hilfe.ZeigeSeiteZu(&hauptfenster);
    hilfe.ZeigeSeiteZu(Warnung());
    EXPECT_EQ(std::ranges::count_if(QApplication::topLevelWidgets(),
                                    [](QWidget* fenster) { return qobject_cast<QMessageBox*>(fenster); }),
              1);
}

TEST_F(HilfeTest, The_box_stays_when_the_dialog_behind_it_goes) {
    pfad = QDir::rootPath() + "nowhere/varnoth.hlp";
    OeffneDialog();
    hilfe.ZeigeSeiteZu(dialog.get());
    dialog.reset();
    ASSERT_NE(Warnung(), nullptr);
    EXPECT_TRUE(Warnung()->isVisible());
}

TEST_F(HilfeTest, A_box_that_was_answered_comes_again_at_the_next_key_press) {
    pfad = QDir::rootPath() + "nowhere/varnoth.hlp";
    hilfe.ZeigeSeiteZu(&hauptfenster);
    Warnung()->accept();
    EXPECT_EQ(Warnung(), nullptr);
    hilfe.ZeigeSeiteZu(&hauptfenster);
    EXPECT_NE(Warnung(), nullptr);
}

TEST_F(HilfeTest, A_file_that_comes_later_is_found) {
    pfad = QDir::rootPath() + "nowhere/varnoth.hlp";
    hilfe.ZeigeThemen(&hauptfenster);
    pfad = QStringLiteral(HILFEPROBE);
    hilfe.ZeigeThemen(&hauptfenster);
    EXPECT_NE(OffeneHilfe(), nullptr);
}

} // namespace varnoth
