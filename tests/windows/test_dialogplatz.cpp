#include "dialogplatz.h"

#include "dialogtest.h"

#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace varnoth {

namespace {

constexpr QSize KleinerSchirm(960, 540);

} // namespace

using DialogplatzTest = pruefung::DialogTest;

/// A column of buttons of 40 logical pixels each.
class HoherDialog : public QDialog {
public:
    explicit HoherDialog(int knoepfe) {
        auto* const spalte = new QVBoxLayout(this);
        for (int i = 1; i <= knoepfe; ++i) {
            auto* const knopf = new QPushButton(QString::number(i));
            knopf->setObjectName(QStringLiteral("cmd_%1").arg(i));
            knopf->setMinimumHeight(40);
            spalte->addWidget(knopf);
        }
    }
};

TEST_F(DialogplatzTest, A_dialog_that_fits_keeps_its_layout) {
    HoherDialog dialog(3);
    PasseEin(dialog, KleinerSchirm);
    EXPECT_EQ(dialog.findChild<QScrollArea*>(), nullptr);
    EXPECT_EQ(dialog.layout()->count(), 3);
}

TEST_F(DialogplatzTest, A_dialog_that_is_too_high_scrolls_and_keeps_the_order_of_its_controls) {
    HoherDialog dialog(30);
    const QString vorher = Tabfolge(dialog);
    PasseEin(dialog, KleinerSchirm);
    dialog.show();
    EXPECT_EQ(Tabfolge(dialog), vorher);
    EXPECT_LE(dialog.height(), 540);
    const auto* const bereich = dialog.findChild<QScrollArea*>("Dialogrollbereich");
    ASSERT_NE(bereich, nullptr);
    EXPECT_GT(bereich->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(bereich->horizontalScrollBar()->maximum(), 0);
}

TEST_F(DialogplatzTest, A_dialog_that_was_made_larger_than_the_screen_is_made_smaller) {
    HoherDialog dialog(3);
    dialog.resize(2000, 1500);
    PasseEin(dialog, KleinerSchirm);
    EXPECT_EQ(dialog.size(), KleinerSchirm);
}

TEST_F(DialogplatzTest, Every_dialog_of_the_program_is_fitted_when_it_appears) {
    const Dialogplatz platz;
    HoherDialog dialog(100);
    dialog.show();
    EXPECT_LE(dialog.height(), dialog.screen()->availableSize().height());
    EXPECT_NE(dialog.findChild<QScrollArea*>("Dialogrollbereich"), nullptr);
}

TEST_F(DialogplatzTest, A_dialog_that_scrolls_takes_the_height_of_the_screen) {
    const Dialogplatz platz;
    HoherDialog dialog(100);
    dialog.show();
    EXPECT_GT(dialog.height(), dialog.screen()->availableSize().height() * 9 / 10);
}

TEST_F(DialogplatzTest, A_dialog_that_the_user_has_made_smaller_keeps_that_size_when_it_comes_back) {
    const Dialogplatz platz;
    HoherDialog dialog(100);
    dialog.show();
    dialog.resize(200, 150);
    dialog.hide();
    dialog.show();
    EXPECT_EQ(dialog.size(), QSize(200, 150));
}

TEST_F(DialogplatzTest, A_window_beside_the_main_one_is_fitted_too) {
    const Dialogplatz platz;
    QWidget fenster;
    fenster.setLayout(new QVBoxLayout);
    fenster.resize(5000, 4000);
    fenster.show();
    EXPECT_LE(fenster.height(), fenster.screen()->availableSize().height());
    EXPECT_LE(fenster.width(), fenster.screen()->availableSize().width());
}

TEST_F(DialogplatzTest, What_lies_inside_a_window_is_left_alone) {
    const Dialogplatz platz;
    QWidget fenster;
    QWidget darin(&fenster);
    darin.setLayout(new QVBoxLayout);
    darin.resize(5000, 4000);
    fenster.show();
    EXPECT_EQ(darin.size(), QSize(5000, 4000));
}

} // namespace varnoth
