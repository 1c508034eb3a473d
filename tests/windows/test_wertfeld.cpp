#include "ereigniszaehler.h"
#include "wertegruppe.h"
#include "wertfeld.h"

#include <QApplication>
#include <QEnterEvent>
#include <QGridLayout>

#include <gtest/gtest.h>

namespace {

using namespace varnoth;
using pruefung::Ereigniszaehler;

constexpr int Breite = 80;

class WertfeldTest : public testing::Test {
protected:
    WertfeldTest() {
        gruppe.setTitle(QStringLiteral("Values"));
        auto* gitter = new QGridLayout(&gruppe);
        gitter->addWidget(feld, 0, 0, Qt::AlignRight);
        feld->SetzeZiffern(QFont(QStringLiteral("Sans"), 20), Breite);
        gruppe.resize(200, 100);
        gruppe.show();
        Zeige("107");
    }

    void Zeige(const char* text) {
        feld->setText(QString::fromLatin1(text));
        QApplication::processEvents();
    }

    Wertegruppe gruppe;
    Wertfeld* feld = new Wertfeld;
};

TEST_F(WertfeldTest, Its_place_is_the_same_for_every_number) {
    const QRect platz = feld->geometry();
    EXPECT_EQ(platz.width(), Breite);
    EXPECT_GE(platz.height(), feld->QLabel::sizeHint().height());
    for (const char* text : {"0", "65535", "111"}) {
        Zeige(text);
        EXPECT_EQ(feld->geometry(), platz) << text;
    }
}

TEST_F(WertfeldTest, Another_number_arranges_nothing_anew_and_draws_nothing_below_it) {
    Ereigniszaehler unten(gruppe);
    Ereigniszaehler oben(*feld);
    Zeige("65535");
    EXPECT_EQ(oben.anzahl[QEvent::Paint], 1);
    EXPECT_EQ(unten.anzahl[QEvent::LayoutRequest], 0);
    EXPECT_EQ(unten.anzahl[QEvent::Paint], 0);
}

TEST_F(WertfeldTest, It_is_higher_with_larger_digits) {
    const int niedrig = feld->height();
    feld->SetzeZiffern(QFont(QStringLiteral("Sans"), 40), Breite);
    EXPECT_GT(feld->height(), niedrig);
}

TEST_F(WertfeldTest, Its_text_can_be_selected_while_the_pointer_is_over_it) {
    EXPECT_EQ(feld->textInteractionFlags(), Qt::NoTextInteraction);
    QEnterEvent hinein({1, 1}, {1, 1}, {1, 1});
    QEvent hinaus(QEvent::Leave);
    QApplication::sendEvent(feld, &hinein);
    EXPECT_EQ(feld->textInteractionFlags(), Qt::TextSelectableByMouse);
    feld->setSelection(0, 2);
    QApplication::sendEvent(feld, &hinaus);
    EXPECT_EQ(feld->selectedText(), "10") << "what was selected stays so";
    feld->setSelection(0, 0);
    QApplication::sendEvent(feld, &hinaus);
    EXPECT_EQ(feld->textInteractionFlags(), Qt::NoTextInteraction);
}

TEST_F(WertfeldTest, Its_group_shows_the_title_and_no_frame) {
    const QImage mit = gruppe.grab().toImage();
    const QColor grund = gruppe.palette().color(QPalette::Window);
    EXPECT_EQ(mit.pixelColor(0, gruppe.height() / 2), grund);
    EXPECT_EQ(mit.pixelColor(gruppe.width() / 2, gruppe.height() - 1), grund);
    gruppe.setTitle({});
    EXPECT_NE(gruppe.grab().toImage(), mit);
}

} // namespace
