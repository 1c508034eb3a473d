#include "malaufschub.h"

#include "ereignispumpe.h"
#include "fenstertest.h"

#include <QDialog>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

#include <gtest/gtest.h>

namespace varnoth {

namespace {

/// Counts how often it was painted.
class Malzaehler : public QWidget {
public:
    using QWidget::QWidget;
    int gemalt = 0;

protected:
    void paintEvent(QPaintEvent* /*ereignis*/) override { ++gemalt; }
};

} // namespace

class MalaufschubTest : public testing::Test {
protected:
    MalaufschubTest() {
        fenster.show();
        EXPECT_TRUE(pruefung::WarteBis([this] { return fenster.gemalt > 0; }));
        QCoreApplication::processEvents();
        fenster.gemalt = 0;
    }

    Malzaehler fenster;
    Ereignispumpe pumpe;
    Malaufschub aufschub{pumpe};
};

TEST_F(MalaufschubTest, Nothing_is_painted_while_pending_events_run) {
    fenster.update();
    pumpe.LaufeOhneAufgeschobenes();
    EXPECT_EQ(fenster.gemalt, 0);
}

TEST_F(MalaufschubTest, What_was_put_off_is_painted_once_when_there_is_time) {
    fenster.update();
    pumpe.LaufeOhneAufgeschobenes();
    pumpe.LaufeOhneAufgeschobenes();
    pumpe.LaufeMitAllem();
    EXPECT_EQ(fenster.gemalt, 1);
}

TEST_F(MalaufschubTest, Other_events_run) {
    bool gelaufen = false;
    QMetaObject::invokeMethod(
        &fenster, [&] { gelaufen = true; }, Qt::QueuedConnection);
    pumpe.LaufeOhneAufgeschobenes();
    EXPECT_TRUE(gelaufen);
}

TEST_F(MalaufschubTest, Layout_is_put_off_and_done_later) {
    auto* rahmen = new QVBoxLayout(&fenster);
    auto* inhalt = new QWidget;
    rahmen->addWidget(inhalt);
    QCoreApplication::processEvents();
    inhalt->setMinimumHeight(fenster.height() + 50);
    pumpe.LaufeOhneAufgeschobenes();
    EXPECT_LT(fenster.height(), inhalt->minimumHeight());
    pumpe.LaufeMitAllem();
    EXPECT_GE(fenster.height(), inhalt->minimumHeight());
}

TEST_F(MalaufschubTest, A_dialog_that_opens_meanwhile_paints_as_ever) {
    QDialog dialog;
    Malzaehler inhalt(&dialog);
    QTimer takt;
    QObject::connect(&takt, &QTimer::timeout, &dialog, [&] {
        if (inhalt.gemalt == 1)
            inhalt.update();
        else if (inhalt.gemalt > 1)
            dialog.accept();
    });
    takt.start(1);
    QTimer::singleShot(10000, &dialog, &QDialog::reject);
    QMetaObject::invokeMethod(
        &fenster, [&] { dialog.exec(); }, Qt::QueuedConnection);
    pumpe.LaufeOhneAufgeschobenes();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST_F(MalaufschubTest, A_window_that_is_gone_is_not_painted) {
    auto* anderes = new Malzaehler;
    anderes->show();
    ASSERT_TRUE(pruefung::WarteBis([&] { return anderes->gemalt > 0; }));
    anderes->update();
    QMetaObject::invokeMethod(
        anderes, [anderes] { delete anderes; }, Qt::QueuedConnection);
    fenster.update();
    pumpe.LaufeOhneAufgeschobenes();
    pumpe.LaufeMitAllem();
    EXPECT_EQ(fenster.gemalt, 1);
}

} // namespace varnoth
