// How the view uses its room: digits, positions, and the display that fills the window.

#include "ereigniszaehler.h"
#include "frmdocumenttest.h"

#include <QMouseEvent>

using namespace varnoth;

namespace {

class FrmDocumentGroesse : public pruefung::FrmDocumentTest {
protected:
    FrmDocumentGroesse() {
        Zeige();
        SetzeMesswerte(10, 20, 30);
        Scan({0, 1}, {3});
    }
    void SetzeGroesse(int breite, int hoehe) {
        haupt.resize(std::max(900, breite + 50), std::max(700, hoehe + 50));
        rahmen->resize(breite, hoehe);
        QApplication::processEvents();
    }
    int Ziffern() { return Feld("lblInhaltTU").font().pixelSize(); }
    void DoppelklickAuf(QWidget& ziel) {
        const QPointF mitte = QRectF(ziel.rect()).center();
        QMouseEvent klick(QEvent::MouseButtonDblClick, mitte, ziel.mapToGlobal(mitte), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&ziel, &klick);
        QApplication::processEvents();
    }
    bool Druecke(int taste) {
        QKeyEvent ereignis(QEvent::KeyPress, taste, Qt::NoModifier);
        QApplication::sendEvent(sicht, &ereignis);
        return ereignis.isAccepted();
    }
};

} // namespace

TEST_F(FrmDocumentGroesse, Digits_grow_and_shrink_with_the_view) {
    SetzeGroesse(300, 300);
    const int klein = Ziffern();
    SetzeGroesse(1200, 900);
    EXPECT_GT(Ziffern(), 2 * klein);
    EXPECT_GE(Ziffern(), 50) << "readable from two metres";
    SetzeGroesse(300, 300);
    EXPECT_EQ(Ziffern(), klein);
}

TEST_F(FrmDocumentGroesse, Numbers_and_positions_have_room_at_every_size) {
    SetzeMesswerte(65530, 0, 0);
    sicht->SetAktuellMinMaxStatus();
    for (const QSize groesse : {QSize(1200, 900), QSize(227, 230), QSize(310, 640), QSize(640, 400)}) {
        SetzeGroesse(groesse.width(), groesse.height());
        for (const char* name : {"lblInhaltTU", "lblInhaltZNU", "lblTNU", "lblBlankingStrahlenMax"})
            EXPECT_GE(Feld(name).width(), Feld(name).sizeHint().width()) << name << groesse.width();
        for (const char* name : {"lblInhaltTU", "lblPositionTU"}) {
            const int rechts = Feld(name).mapTo(sicht, Feld(name).rect().bottomRight()).x();
            EXPECT_TRUE(Feld(name).isHidden() || rechts < sicht->width()) << name << groesse.width();
        }
        EXPECT_GE(Balken().width(), 64) << groesse.width();
    }
}

TEST_F(FrmDocumentGroesse, Letters_of_another_size_reach_the_numbers_at_once) {
    SetzeGroesse(300, 300);
    const int vorher = Ziffern();
    QFont doppelt = sicht->font();
    doppelt.setPixelSize(2 * QFontInfo(doppelt).pixelSize());
    sicht->setFont(doppelt);
    EXPECT_GT(Ziffern(), vorher);
    EXPECT_EQ(Feld("lblInhaltTU").font().family(), doppelt.family());
}

TEST_F(FrmDocumentGroesse, All_values_of_a_large_view_are_seen_without_scrolling) {
    for (const QSize groesse : {QSize(310, 640), QSize(900, 640), QSize(1200, 900)}) {
        SetzeGroesse(groesse.width(), groesse.height());
        QLabel& letztes = Feld("lblInhaltBlankingStrahlenMax");
        const QRect stelle(letztes.mapTo(sicht, QPoint()), letztes.size());
        EXPECT_TRUE(sicht->rect().contains(stelle)) << groesse.width();
        EXPECT_LE(stelle.bottom(), Feld("sbStatusBar_1").mapTo(sicht, QPoint()).y()) << groesse.width();
    }
}

TEST_F(FrmDocumentGroesse, Large_digits_do_not_keep_a_view_large) {
    SetzeGroesse(1200, 900);
    const int gross = sicht->minimumSizeHint().width();
    SetzeGroesse(227, 230);
    EXPECT_LE(gross, 227);
    EXPECT_EQ(rahmen->size(), QSize(227, 230));
}

TEST_F(FrmDocumentGroesse, Beam_numbers_have_their_position_beside_them_and_counts_have_none) {
    SetzeGroesse(500, 500);
    EXPECT_EQ(Text("lblPositionTU"), "180 mm");
    EXPECT_EQ(Text("lblPositionHU"), "200 mm");
    EXPECT_EQ(Text("lblPositionTNU"), "240 mm");
    EXPECT_EQ(Text("lblPositionHNU"), "260 mm");
    EXPECT_TRUE(Feld("lblPositionTU").isVisible());
    EXPECT_EQ(sicht->findChild<QLabel*>("lblPositionZU"), nullptr);
}

TEST_F(FrmDocumentGroesse, Other_values_arrange_nothing_anew_and_draw_only_themselves) {
    SetzeGroesse(500, 500);
    pruefung::Ereigniszaehler gruppe(*sicht->findChild<QWidget*>("Frame1"));
    SetzeMesswerte(17, 0, 0);
    sicht->SetAktuellMinMaxStatus();
    QApplication::processEvents();
    ASSERT_EQ(Text("lblPositionTU"), "320 mm");
    EXPECT_EQ(gruppe.anzahl[QEvent::LayoutRequest], 0);
    EXPECT_EQ(gruppe.anzahl[QEvent::Paint], 0);
    EXPECT_GE(Feld("lblPositionTU").height(), Feld("lblPositionTU").sizeHint().height());
}

TEST_F(FrmDocumentGroesse, Another_status_arranges_nothing_anew_and_draws_only_itself) {
    SetzeGroesse(700, 500);
    sicht->SetStatusSubgerät();
    QApplication::processEvents();
    pruefung::Ereigniszaehler ansicht(*sicht);
    Setze(spezifisch::Optikteilstatus, 4);
    sicht->SetStatusSubgerät();
    QApplication::processEvents();
    ASSERT_EQ(Text("sbStatusBar_1"), "Status: Bahn in Mitte");
    EXPECT_EQ(ansicht.anzahl[QEvent::LayoutRequest], 0);
    EXPECT_EQ(ansicht.anzahl[QEvent::Paint], 0);
}

TEST_F(FrmDocumentGroesse, Positions_follow_the_chosen_block) {
    Waehle(2);
    EXPECT_EQ(Text("lblPositionTU"), "580 mm");
}

TEST_F(FrmDocumentGroesse, Without_a_spacing_there_are_no_positions) {
    Setze(spezifisch::Aufloesung, 0);
    sicht->InitfrmDocument();
    Scan({0, 1}, {3});
    EXPECT_EQ(Text("lblPositionTU"), "");
    EXPECT_FALSE(Feld("lblPositionTU").isVisible());
}

TEST_F(FrmDocumentGroesse, Discarded_values_take_their_positions_along) {
    sicht->VerwirfWerte();
    EXPECT_EQ(Text("lblPositionTU"), "");
}

TEST_F(FrmDocumentGroesse, Tool_tips_say_what_the_captions_mean) {
    const std::pair<const char*, const char*> tips[] = {
        {"TU", "Nummer des tiefsten unterbrochenen Strahls"},
        {"HU", "Nummer des höchsten unterbrochenen Strahls"},
        {"ZU", "Anzahl der unterbrochenen Strahlen"},
        {"TNU", "Nummer des tiefsten nicht unterbrochenen Strahls"},
        {"HNU", "Nummer des höchsten nicht unterbrochenen Strahls"},
        {"ZNU", "Anzahl der nicht unterbrochenen Strahlen"},
        {"BlankingStrahlenMax", "Anzahl der geblankten Strahlen"},
    };
    for (const auto& [name, tip] : tips) {
        EXPECT_EQ(Feld((std::string("lbl") + name).c_str()).toolTip(), QString::fromUtf8(tip));
        EXPECT_EQ(Feld((std::string("lblInhalt") + name).c_str()).toolTip(), QString::fromUtf8(tip));
    }
    SetzeSprachoffset(Englisch);
    sicht->Lokalisiere();
    EXPECT_EQ(Feld("lblTU").toolTip(), "Number of the lowest interrupted beam");
}

TEST_F(FrmDocumentGroesse, A_double_click_on_the_values_fills_the_window_and_another_goes_back) {
    for (const char* name : {"lblInhaltTU", "lblTU", "lblPositionTU"}) {
        SetzeGroesse(500, 500);
        DoppelklickAuf(Feld(name));
        EXPECT_TRUE(sicht->IstGrossanzeige()) << name;
        EXPECT_GT(sicht->width(), 800) << name;
        EXPECT_GT(Ziffern(), 40) << name;
        DoppelklickAuf(Feld(name));
        EXPECT_FALSE(sicht->IstGrossanzeige()) << name;
        EXPECT_EQ(rahmen->size(), QSize(500, 500)) << name;
    }
}

TEST_F(FrmDocumentGroesse, A_double_click_beside_the_numbers_does_the_same) {
    DoppelklickAuf(*sicht->findChild<QWidget*>("Frame1"));
    EXPECT_TRUE(sicht->IstGrossanzeige());
}

TEST_F(FrmDocumentGroesse, A_double_click_on_an_option_or_on_the_beams_does_not) {
    DoppelklickAuf(*sicht->findChild<QWidget*>("Option1_1"));
    DoppelklickAuf(Balken());
    EXPECT_FALSE(sicht->IstGrossanzeige());
}

TEST_F(FrmDocumentGroesse, Escape_ends_the_large_display) {
    sicht->SchalteGrossanzeige();
    EXPECT_TRUE(Druecke(Qt::Key_Escape));
    EXPECT_FALSE(sicht->IstGrossanzeige());
    EXPECT_FALSE(Druecke(Qt::Key_Escape)) << "and is passed on then";
}
