#include "hilfetaste.h"

#include "hilfetest.h"

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>
#include <QWindow>

#include <vector>

namespace varnoth {

class HilfetasteTest : public testing::Test {
protected:
    HilfetasteTest() {
        fenster.setCentralWidget(feld);
        fenster.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&fenster));
        feld->setFocus();
    }

    QMainWindow fenster;
    QLineEdit* feld = new QLineEdit;
    std::vector<QWidget*> verlangt;
    Hilfetaste taste{[this](QWidget* stelle) { verlangt.push_back(stelle); }};
};

TEST_F(HilfetasteTest, F1_asks_once_for_the_control_with_the_focus) {
    QTest::keyClick(fenster.windowHandle(), Qt::Key_F1);
    EXPECT_EQ(verlangt, std::vector<QWidget*>{feld});
}

TEST_F(HilfetasteTest, F1_in_a_modal_dialog_asks_for_the_dialog) {
    QDialog dialog(&fenster);
    dialog.setModal(true);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(dialog.windowHandle(), Qt::Key_F1);
    EXPECT_EQ(verlangt, std::vector<QWidget*>{&dialog});
}

TEST_F(HilfetasteTest, F1_in_a_window_of_child_windows_asks_for_the_active_one) {
    auto* const bereich = new QMdiArea;
    fenster.setCentralWidget(bereich);
    QWidget* const ansichten[] = {new QWidget, new QWidget};
    for (QWidget* const ansicht : ansichten)
        bereich->addSubWindow(ansicht)->show();
    bereich->setActiveSubWindow(bereich->subWindowList().constFirst());
    QTest::keyClick(fenster.windowHandle(), Qt::Key_F1);
    EXPECT_EQ(verlangt, std::vector<QWidget*>{ansichten[0]});
}

TEST_F(HilfetasteTest, F1_in_a_window_without_a_child_window_asks_for_the_window) {
    fenster.setCentralWidget(new QMdiArea);
    fenster.setFocus();
    QTest::keyClick(fenster.windowHandle(), Qt::Key_F1);
    ASSERT_EQ(verlangt.size(), 1U);
    EXPECT_EQ(verlangt[0]->window(), &fenster);
}

TEST_F(HilfetasteTest, F1_in_an_open_list_closes_it) {
    auto* const liste = new QComboBox;
    liste->addItems({"1", "2"});
    fenster.setCentralWidget(liste);
    liste->show();
    liste->setFocus();
    liste->showPopup();
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    QTest::keyClick(QApplication::activePopupWidget()->windowHandle(), Qt::Key_F1);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(verlangt, std::vector<QWidget*>{liste});
}

TEST_F(HilfetasteTest, A_held_F1_asks_once) {
    QKeyEvent wiederholt(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, {}, true);
    QApplication::sendEvent(feld, &wiederholt);
    EXPECT_TRUE(verlangt.empty());
}

TEST_F(HilfetasteTest, Other_keys_and_F1_with_a_modifier_are_left_alone) {
    QTest::keyClick(fenster.windowHandle(), Qt::Key_F2);
    QTest::keyClick(fenster.windowHandle(), Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_TRUE(verlangt.empty());
}

TEST_F(HilfetasteTest, Text_is_typed_as_ever) {
    QTest::keyClick(fenster.windowHandle(), Qt::Key_A);
    EXPECT_EQ(feld->text(), "a");
}

} // namespace varnoth
