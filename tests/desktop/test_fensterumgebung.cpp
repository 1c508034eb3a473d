#include "fensterumgebung.h"

#include "fenstertest.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QWidget>
#include <gtest/gtest.h>

namespace varnoth {

namespace {

/// Counts how often it was painted.
class Malflaeche : public QWidget {
public:
    int gemalt = 0;

protected:
    void paintEvent(QPaintEvent* /*ereignis*/) override { ++gemalt; }
};

} // namespace

class FensterumgebungTest : public testing::Test {
protected:
    Fensterumgebung umgebung;
};

TEST_F(FensterumgebungTest, A_message_is_a_box_until_someone_else_answers_and_again_afterwards) {
    int boxen = 0;
    QTimer blick;
    QObject::connect(&blick, &QTimer::timeout, [&boxen] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            ++boxen;
            box->button(QMessageBox::No)->click();
        }
    });
    blick.start(1);
    const Meldung frage{.text = "x", .knoepfe = Knoepfe::JaNeinAbbrechen};
    EXPECT_EQ(umgebung.ZeigeMeldung(frage), Antwort::Nein);
    umgebung.SetzeMeldungsweg([](const Meldung&) { return Antwort::Ja; });
    EXPECT_EQ(umgebung.ZeigeMeldung(frage), Antwort::Ja);
    umgebung.SetzeMeldungsweg({});
    EXPECT_EQ(umgebung.ZeigeMeldung(frage), Antwort::Nein);
    EXPECT_EQ(boxen, 2);
}

TEST_F(FensterumgebungTest, A_window_is_painted_while_there_is_time_to_wait_and_not_before) {
    using namespace std::chrono_literals;
    Malflaeche fenster;
    fenster.show();
    ASSERT_TRUE(pruefung::WarteBis([&fenster] { return fenster.gemalt > 0; }));
    QCoreApplication::processEvents();
    fenster.gemalt = 0;
    fenster.update();
    umgebung.LasseEreignisseLaufen();
    umgebung.WarteAufEreignis(1ms);
    EXPECT_EQ(fenster.gemalt, 0);
    const Zeit ende = umgebung.Uhr() + 10s;
    while (fenster.gemalt == 0 && umgebung.Uhr() < ende)
        umgebung.WarteAufEreignis(100ms);
    EXPECT_EQ(fenster.gemalt, 1);
}

} // namespace varnoth
