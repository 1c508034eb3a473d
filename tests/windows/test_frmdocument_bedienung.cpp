// Zoom, pointer and context menu of the view.

#include "frmdocumenttest.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPixmap>
#include <QToolButton>

using namespace varnoth;

namespace {

class FrmDocumentBedienung : public pruefung::FrmDocumentTest {
protected:
    FrmDocumentBedienung() {
        Zeige();
        rahmen->resize(500, 500);
        QApplication::processEvents();
    }
    ~FrmDocumentBedienung() override {
        if (auto* offen = Menue())
            offen->close();
    }

    void Zoome() { Balken().ZeigeAusschnitt({4, 8}); }
    void Druecke(QWidget& ziel, int taste) {
        QKeyEvent ereignis(QEvent::KeyPress, taste, Qt::NoModifier);
        QApplication::sendEvent(&ziel, &ereignis);
    }
    void ZeigeAuf(const QPointF& stelle) {
        QMouseEvent bewegung(QEvent::MouseMove, stelle, Balken().mapToGlobal(stelle), Qt::NoButton,
                             Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&Balken(), &bewegung);
    }
    QMenu* Menue() { return sicht->findChild<QMenu*>("mnuAnsicht"); }
    QAction& Punkt(QWidget& ziel, const char* name) {
        const QPoint mitte = ziel.rect().center();
        QContextMenuEvent ereignis(QContextMenuEvent::Mouse, mitte, ziel.mapToGlobal(mitte));
        QApplication::sendEvent(&ziel, &ereignis);
        return *Menue()->findChild<QAction*>(QLatin1String(name));
    }
    QToolButton& Alle() { return *sicht->findChild<QToolButton*>("cmdAlleStrahlen"); }
};

} // namespace

TEST_F(FrmDocumentBedienung, A_view_of_all_beams_needs_no_line_about_its_range) {
    EXPECT_FALSE(Feld("lblAusschnitt").isVisible());
    EXPECT_FALSE(Alle().isVisible());
}

TEST_F(FrmDocumentBedienung, A_zoomed_view_says_which_of_how_many_beams_it_shows) {
    Zoome();
    EXPECT_TRUE(Feld("lblAusschnitt").isVisible());
    EXPECT_EQ(Text("lblAusschnitt"), "Strahlen 5–12 von 20");
    SetzeSprachoffset(Englisch);
    sicht->Lokalisiere();
    EXPECT_EQ(Text("lblAusschnitt"), "Beams 5–12 of 20");
    EXPECT_EQ(Alle().text(), "All");
}

TEST_F(FrmDocumentBedienung, The_line_covers_no_beam_and_a_narrow_view_shortens_it) {
    Zoome();
    for (const int breite : {227, 300, 500}) {
        rahmen->resize(breite, 400);
        QApplication::processEvents();
        const QWidget& zeile = *Feld("lblAusschnitt").parentWidget();
        EXPECT_LT(zeile.geometry().bottom(), Balken().Strahlmitte(11).y()) << breite;
        EXPECT_TRUE(Balken().rect().contains(zeile.geometry())) << breite;
        EXPECT_EQ(Feld("lblAusschnitt").toolTip(), "Strahlen 5–12 von 20");
        EXPECT_GE(Feld("lblAusschnitt").height(), Feld("lblAusschnitt").fontMetrics().height()) << breite;
        EXPECT_GE(Feld("lblAusschnitt").width(), Feld("lblAusschnitt").sizeHint().width()) << breite;
    }
    rahmen->resize(227, 400);
    QApplication::processEvents();
    EXPECT_EQ(Text("lblAusschnitt"), "5–12");
}

TEST_F(FrmDocumentBedienung, The_numbers_of_a_long_range_are_seen_whole_in_the_smallest_view) {
    Setze(spezifisch::Strahlenzahl, 512);
    sicht->InitfrmDocument();
    Balken().ZeigeAusschnitt({188, 135});
    EXPECT_EQ(Text("lblAusschnitt"), "Strahlen 189–323 von 512");
    rahmen->resize(227, 400);
    QApplication::processEvents();
    EXPECT_EQ(Text("lblAusschnitt"), "189–323");
    EXPECT_GE(Feld("lblAusschnitt").width(), Feld("lblAusschnitt").sizeHint().width());
    EXPECT_EQ(Alle().text(), "↕");
    EXPECT_EQ(Alle().accessibleName(), "Alle");
}

TEST_F(FrmDocumentBedienung, The_button_goes_back_to_all_beams) {
    Zoome();
    Alle().click();
    EXPECT_FALSE(Balken().IstGezoomt());
    EXPECT_FALSE(Alle().isVisible());
}

TEST_F(FrmDocumentBedienung, Escape_goes_back_to_all_beams_from_everywhere_in_the_view) {
    for (QWidget* ziel : {static_cast<QWidget*>(&Balken()), sicht->findChild<QWidget*>("Option1_0")}) {
        Zoome();
        Druecke(*ziel, Qt::Key_Escape);
        EXPECT_FALSE(Balken().IstGezoomt());
    }
}

TEST_F(FrmDocumentBedienung, Escape_zooms_back_before_it_ends_the_large_display) {
    sicht->SchalteGrossanzeige();
    Zoome();
    Druecke(*sicht, Qt::Key_Escape);
    EXPECT_FALSE(Balken().IstGezoomt());
    EXPECT_TRUE(sicht->IstGrossanzeige());
}

TEST_F(FrmDocumentBedienung, Other_numbers_of_beams_are_not_zoomed) {
    Zoome();
    Setze(spezifisch::Strahlenzahl, 64);
    sicht->InitfrmDocument();
    EXPECT_FALSE(Feld("lblAusschnitt").isVisible());
}

TEST_F(FrmDocumentBedienung, The_text_of_the_beam_under_the_pointer_stands_at_the_pointer_too) {
    ZeigeAuf(Balken().Strahlmitte(9));
    const QPoint stelle = Balken().mapTo(sicht, Balken().Strahlmitte(9).toPoint());
    EXPECT_EQ(Text("lblZeiger"), "Strahl: 10, 180mm");
    EXPECT_EQ(Text("sbStatusBar_2"), "Strahl: 10, 180mm");
    EXPECT_TRUE(Feld("lblZeiger").isVisible());
    const QRect schild = Feld("lblZeiger").geometry();
    EXPECT_FALSE(schild.contains(stelle));
    EXPECT_LT((schild.center() - stelle).manhattanLength(), 150);
}

TEST_F(FrmDocumentBedienung, The_text_at_the_pointer_stays_inside_the_view_and_beside_its_beam) {
    for (const int strahl : {0, 10, 19})
        for (const double x : {1.0, 150.0, Balken().width() - 2.0}) {
            ZeigeAuf({x, Balken().Strahlmitte(strahl).y()});
            const QRect schild = Feld("lblZeiger").geometry();
            EXPECT_TRUE(sicht->rect().contains(schild)) << strahl << " " << x;
            EXPECT_GE(schild.width(), Feld("lblZeiger").sizeHint().width()) << strahl << " " << x;
            const QPoint zeiger =
                Balken().mapTo(sicht, QPointF(x, Balken().Strahlmitte(strahl).y()).toPoint());
            EXPECT_LT(schild.bottom(), zeiger.y()) << strahl << " " << x;
        }
}

TEST_F(FrmDocumentBedienung, The_text_at_the_pointer_goes_with_the_pointer) {
    ZeigeAuf(Balken().Strahlmitte(9));
    QEvent weg(QEvent::Leave);
    QApplication::sendEvent(&Balken(), &weg);
    EXPECT_FALSE(Feld("lblZeiger").isVisible());
}

TEST_F(FrmDocumentBedienung, The_menu_copies_the_values_with_title_and_time) {
    sicht->setWindowTitle("2. Optikteil online");
    SetzeMesswerte(10, 20, 30);
    Scan({0, 1}, {3});
    Punkt(Balken(), "mnuWerteKopieren").trigger();
    const QStringList zeilen = QApplication::clipboard()->text().split('\n');
    ASSERT_EQ(zeilen.size(), 11) << zeilen.join('|').toStdString();
    EXPECT_EQ(zeilen[0], "2. Optikteil online");
    EXPECT_TRUE(zeilen[1].startsWith("Letzter Wert: 2")) << zeilen[1].toStdString();
    EXPECT_EQ(zeilen[2], "Aktuell");
    EXPECT_EQ(zeilen[3], "TU\t10\t180 mm");
    EXPECT_EQ(zeilen[5], "ZU\t12");
    EXPECT_EQ(zeilen[9], "ZB\t1");
}

TEST_F(FrmDocumentBedienung, Copied_values_that_are_none_say_so) {
    Feld("lblInhaltTU").setSelection(0, 1);
    QAction& kopieren = Punkt(Feld("lblInhaltTU"), "mnuWerteKopieren");
    EXPECT_EQ(QApplication::activePopupWidget(), Menue());
    kopieren.trigger();
    const QStringList zeilen = QApplication::clipboard()->text().split('\n');
    EXPECT_EQ(zeilen[1], "Keine aktuellen Werte");
    EXPECT_EQ(zeilen[3], "TU\t–");
}

TEST_F(FrmDocumentBedienung, The_menu_copies_the_picture_of_the_view) {
    Punkt(*sicht, "mnuBildKopieren").trigger();
    EXPECT_EQ(QApplication::clipboard()->pixmap().size(), sicht->size());
}

TEST_F(FrmDocumentBedienung, The_menu_zooms_back_where_there_is_something_to_zoom_back_from) {
    EXPECT_FALSE(Punkt(Balken(), "mnuAlleStrahlen").isEnabled());
    Menue()->close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Zoome();
    Punkt(Balken(), "mnuAlleStrahlen").trigger();
    EXPECT_FALSE(Balken().IstGezoomt());
}

TEST_F(FrmDocumentBedienung, The_menu_offers_the_large_display) {
    Punkt(Balken(), "mnuGrossanzeige").trigger();
    EXPECT_TRUE(sicht->IstGrossanzeige());
}

TEST_F(FrmDocumentBedienung, The_menu_speaks_the_chosen_language) {
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Punkt(Balken(), "mnuWerteKopieren").text(), "Copy &values");
}
