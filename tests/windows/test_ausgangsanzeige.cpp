#include "ausgangsanzeige.h"
#include "fenstertest.h"
#include "pruefumgebung.h"
#include "texte.h"

#include <QWidget>
#include <gtest/gtest.h>

namespace varnoth {

namespace {

using std::chrono::milliseconds;

class AusgangsanzeigeTest : public testing::Test {
protected:
    ~AusgangsanzeigeTest() override { SetzeSprachoffset(Deutsch); }

    QColor Farbe() const { return feld.palette().color(QPalette::WindowText); }
    bool VerblasstIn(int hoechstensMs) {
        return pruefung::WarteBis([this] { return Farbe() != frisch; }, hoechstensMs);
    }

    pruefung::PruefUmgebung umgebung;
    QWidget leiste;
    QLabel feld{&leiste};
    const QColor frisch = Farbe();
    Ausgangsanzeige anzeige{feld};
};

} // namespace

TEST_F(AusgangsanzeigeTest, The_state_is_shown_with_the_time_of_its_reading) {
    const QTime vorher = QTime::currentTime();
    anzeige.Zeige("output");
    EXPECT_EQ(feld.text(), "output");
    const QString muster = QStringLiteral("'Letzter Wert: 'hh:mm:ss");
    EXPECT_TRUE(feld.toolTip() == vorher.toString(muster) ||
                feld.toolTip() == QTime::currentTime().toString(muster))
        << feld.toolTip().toStdString();
}

TEST_F(AusgangsanzeigeTest, The_tool_tip_speaks_English) {
    SetzeSprachoffset(Englisch);
    anzeige.Zeige("output");
    EXPECT_TRUE(feld.toolTip().startsWith("Last value: ")) << feld.toolTip().toStdString();
}

TEST_F(AusgangsanzeigeTest, The_tool_tip_follows_the_clock) {
    anzeige.Zeige("output");
    const QString erster = feld.toolTip();
    EXPECT_TRUE(pruefung::WarteBis([&] {
        anzeige.Zeige("output");
        return feld.toolTip() != erster;
    }));
}

TEST_F(AusgangsanzeigeTest, A_state_that_is_not_renewed_is_dimmed_after_a_second) {
    anzeige.Zeige("output");
    umgebung.uhr += milliseconds(999);
    EXPECT_FALSE(VerblasstIn(600));
    umgebung.uhr += milliseconds(1);
    EXPECT_TRUE(VerblasstIn(3000));
    EXPECT_EQ(feld.text(), "output");
    EXPECT_NE(feld.toolTip(), "");
}

TEST_F(AusgangsanzeigeTest, A_renewed_state_is_bright_again) {
    anzeige.Zeige("output");
    umgebung.uhr += milliseconds(1500);
    ASSERT_TRUE(VerblasstIn(3000));
    anzeige.Zeige("output");
    EXPECT_EQ(Farbe(), frisch);
    umgebung.uhr += milliseconds(5000);
    EXPECT_TRUE(VerblasstIn(3000)) << "and ages again";
}

TEST_F(AusgangsanzeigeTest, A_dimmed_state_follows_another_palette) {
    anzeige.Zeige("output");
    umgebung.uhr += milliseconds(1500);
    ASSERT_TRUE(VerblasstIn(3000));
    const QColor aufHell = Farbe();
    leiste.setPalette(QPalette(QColor(40, 42, 46)));
    EXPECT_NE(Farbe(), aufHell);
}

TEST_F(AusgangsanzeigeTest, No_state_has_no_time) {
    anzeige.Zeige("output");
    anzeige.Zeige("");
    EXPECT_EQ(feld.text(), "");
    EXPECT_EQ(feld.toolTip(), "");
}

} // namespace varnoth
