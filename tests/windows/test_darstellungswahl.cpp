#include "darstellungswahl.h"

#include "beambarcontrol.h"
#include "erscheinungsbild.h"
#include "fenstertest.h"
#include "frmMain.h"
#include "pruefgeraet.h"
#include "strahlfarben.h"
#include "texte.h"
#include "verblassen.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOptionTitleBar>
#include <QTextEdit>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <vector>

namespace varnoth {

using pruefung::WarteBis;

TEST(Darstellungswahl, Without_settings_all_is_as_the_system_has_it) {
    pruefung::PruefEinstellungen einstellungen;
    EXPECT_EQ(LiesDarstellung(einstellungen),
              (Darstellung{Erscheinung::System, Strahlfarbsatz::GruenUndRot}));
}

TEST(Darstellungswahl, Words_that_nobody_knows_count_as_none) {
    pruefung::PruefEinstellungen einstellungen;
    einstellungen.SchreibText("Darstellung", "Erscheinung", "Rosa");
    einstellungen.SchreibText("Darstellung", "Strahlfarben", "7");
    EXPECT_EQ(LiesDarstellung(einstellungen), Darstellung());
}

TEST(Darstellungswahl, Every_choice_is_read_as_it_was_stored) {
    for (const Erscheinung erscheinung : DieErscheinungen)
        for (const Strahlfarbsatz satz : DieFarbsaetze) {
            pruefung::PruefEinstellungen einstellungen;
            SchreibDarstellung(einstellungen, {erscheinung, satz});
            EXPECT_EQ(LiesDarstellung(einstellungen), (Darstellung{erscheinung, satz}));
        }
}

TEST(Darstellungswahl, What_was_not_changed_is_not_written) {
    pruefung::PruefEinstellungen einstellungen;
    SchreibDarstellung(einstellungen, {});
    EXPECT_EQ(einstellungen.geschrieben, 0);
    SchreibDarstellung(einstellungen, {Erscheinung::Dunkel, Strahlfarbsatz::GruenUndRot});
    EXPECT_EQ(einstellungen.geschrieben, 1);
}

TEST(Darstellungswahl, Each_choice_stands_once_in_the_menu) {
    std::set<std::string> woerter;
    std::set<std::int16_t> texte;
    for (const auto& zeile : Erscheinungszeilen()) {
        woerter.insert(zeile.wort);
        texte.insert(zeile.textId);
    }
    for (const auto& zeile : Farbsatzzeilen()) {
        woerter.insert(zeile.wort);
        texte.insert(zeile.textId);
    }
    EXPECT_EQ(woerter.size(), std::size(DieErscheinungen) + std::size(DieFarbsaetze));
    EXPECT_EQ(texte.size(), woerter.size());
}

TEST(Erscheinungsbild, A_look_of_our_own_and_the_way_back_to_that_of_the_system) {
    const QPalette vorher = QApplication::palette();
    const QString stil = QApplication::style()->name();
    {
        Erscheinungsbild bild({.erscheinung = Erscheinung::Dunkel});
        EXPECT_EQ(QApplication::palette().color(QPalette::Window),
                  PaletteFuer(Erscheinung::Dunkel)->color(QPalette::Window));
        bild.WendeAn({.erscheinung = Erscheinung::Hell});
        EXPECT_EQ(QApplication::palette().color(QPalette::Window),
                  PaletteFuer(Erscheinung::Hell)->color(QPalette::Window));
        bild.WendeAn({});
        EXPECT_EQ(QApplication::palette(), vorher);
        bild.WendeAn({.erscheinung = Erscheinung::HoherKontrast});
    }
    EXPECT_EQ(QApplication::palette(), vorher);
    EXPECT_EQ(QApplication::style()->name(), stil);
}

TEST(Erscheinungsbild, Like_the_system_is_dark_where_the_system_wants_dark_windows) {
    const QPalette vorher = QApplication::palette();
    bool dunkel = true;
    {
        Erscheinungsbild bild({}, [&dunkel] { return dunkel; });
        EXPECT_TRUE(IstDunkel(QApplication::palette()));
        EXPECT_EQ(bild.Gewaehlt(), Darstellung());
        bild.WendeAn({.erscheinung = Erscheinung::Hell});
        EXPECT_FALSE(IstDunkel(QApplication::palette()));
        bild.WendeAn({});
        EXPECT_TRUE(IstDunkel(QApplication::palette()));
        dunkel = false;
        bild.WendeAn({});
        EXPECT_EQ(QApplication::palette(), vorher);
        dunkel = true;
        bild.WendeAn({});
    }
    EXPECT_EQ(QApplication::palette(), vorher);
}

TEST(Erscheinungsbild, Other_looks_do_not_ask_what_the_system_wants) {
    for (const Erscheinung erscheinung : {Erscheinung::Hell, Erscheinung::Dunkel, Erscheinung::HoherKontrast})
        EXPECT_EQ(Wirksam(erscheinung, true), erscheinung);
}

TEST(Erscheinungsbild, The_set_of_beam_colours_goes_back_with_it) {
    {
        const Erscheinungsbild bild({.farbsatz = Strahlfarbsatz::Graustufen});
        EXPECT_EQ(GetStrahlfarbsatz(), Strahlfarbsatz::Graustufen);
    }
    EXPECT_EQ(GetStrahlfarbsatz(), Strahlfarbsatz::GruenUndRot);
}

/// Whether there are edges in a picture, at least that high a contrast beside its own corner.
bool HatKante(const QImage& bild, double kontrast) {
    for (int x = 0; x < bild.width(); ++x)
        if (Kontrast(bild.pixelColor(x, 0), Qt::black) >= kontrast)
            return true;
    return false;
}

TEST(Erscheinungsbild, With_high_contrast_buttons_and_fields_have_edges) {
    for (const bool hoch : {true, false}) {
        const Erscheinungsbild bild({.erscheinung = Erscheinung::HoherKontrast});
        QPushButton knopf;
        QLineEdit feld;
        for (QWidget* element : {static_cast<QWidget*>(&knopf), static_cast<QWidget*>(&feld)}) {
            element->resize(80, 24);
            std::unique_ptr<QStyle> ohne(hoch ? nullptr : QStyleFactory::create("Fusion"));
            if (ohne)
                element->setStyle(ohne.get());
            EXPECT_EQ(HatKante(element->grab().toImage(), 7), hoch) << element->metaObject()->className();
        }
    }
}

TEST(Erscheinungsbild, With_high_contrast_a_list_has_edges_and_a_plain_frame_has_none) {
    const Erscheinungsbild bild({.erscheinung = Erscheinung::HoherKontrast});
    QListWidget liste;
    QFrame rahmen;
    rahmen.setFrameShape(QFrame::StyledPanel);
    liste.resize(80, 40);
    rahmen.resize(80, 40);
    EXPECT_TRUE(HatKante(liste.grab().toImage(), 7));
    EXPECT_FALSE(HatKante(rahmen.grab().toImage(), 7));
}

TEST(Erscheinungsbild, With_high_contrast_a_page_of_text_and_the_head_of_a_list_have_edges) {
    const Erscheinungsbild bild({.erscheinung = Erscheinung::HoherKontrast});
    QTextEdit text;
    text.resize(80, 40);
    EXPECT_TRUE(HatKante(text.grab().toImage(), 7));
    QTreeWidget liste;
    liste.setHeaderLabels({"a", "b"});
    EXPECT_TRUE(HatKante(liste.header()->grab().toImage(), 7));
}

TEST(Erscheinungsbild, With_high_contrast_what_cannot_be_chosen_has_edges_too) {
    const Erscheinungsbild bild({.erscheinung = Erscheinung::HoherKontrast});
    QPushButton knopf;
    knopf.setEnabled(false);
    knopf.resize(80, 24);
    EXPECT_TRUE(HatKante(knopf.grab().toImage(), 7));
}

/// The highest contrast of a pixel to the ground.
double GroessterKontrast(const QImage& bild, const QColor& grund) {
    double groesster = 1;
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x)
            groesster = std::max(groesster, Kontrast(bild.pixelColor(x, y), grund));
    return groesster;
}

TEST(Erscheinungsbild, With_high_contrast_a_line_between_groups_is_seen) {
    const Erscheinungsbild bild({.erscheinung = Erscheinung::HoherKontrast});
    for (const auto form : {QFrame::HLine, QFrame::VLine}) {
        QFrame linie;
        linie.setFrameShape(form);
        linie.setFrameShadow(QFrame::Sunken);
        linie.resize(20, 20);
        EXPECT_GE(GroessterKontrast(linie.grab().toImage(), Qt::black), 7);
    }
}

TEST(Erscheinungsbild, On_dark_grounds_the_lines_of_menus_and_tool_bars_are_seen) {
    for (const Erscheinung erscheinung : {Erscheinung::Dunkel, Erscheinung::HoherKontrast}) {
        const Erscheinungsbild bild({.erscheinung = erscheinung});
        QMenu menue;
        menue.addAction("a");
        QAction* const trenner = menue.addSeparator();
        menue.addAction("b");
        menue.resize(menue.sizeHint());
        EXPECT_GE(GroessterKontrast(menue.grab(menue.actionGeometry(trenner)).toImage(),
                                    menue.palette().color(QPalette::Base)),
                  3);
        QToolBar leiste;
        leiste.addAction("a");
        const QWidget* const strich = leiste.widgetForAction(leiste.addSeparator());
        leiste.addAction("b");
        leiste.resize(leiste.sizeHint());
        leiste.show();
        EXPECT_GE(GroessterKontrast(leiste.grab(strich->geometry()).toImage(),
                                    leiste.palette().color(QPalette::Window)),
                  3);
    }
}

TEST(Erscheinungsbild, On_dark_grounds_a_menu_has_edges) {
    for (const Erscheinung erscheinung : {Erscheinung::Dunkel, Erscheinung::HoherKontrast}) {
        const Erscheinungsbild bild({.erscheinung = erscheinung});
        QMenu menue;
        menue.addAction("a");
        menue.resize(menue.sizeHint());
        EXPECT_TRUE(HatKante(menue.grab().toImage(), 3));
    }
}

TEST(Erscheinungsbild, The_line_below_the_heading_of_a_menu_begins_behind_it) {
    const Erscheinungsbild bild({.erscheinung = Erscheinung::HoherKontrast});
    QMenu menue;
    QAction* const kopf = menue.addSection("mmmm");
    menue.addAction("a long entry, for a menu that is wide");
    menue.resize(menue.sizeHint());
    const QRect platz = menue.actionGeometry(kopf);
    const QImage zeile = menue.grab(platz).toImage();
    const int ende = menue.fontMetrics().horizontalAdvance("mmmm");
    EXPECT_EQ(zeile.pixelColor(ende + 5, platz.height() / 2 - 1), QColor(Qt::black));
    EXPECT_GE(GroessterKontrast(zeile.copy(ende + 20, 0, 20, platz.height()), Qt::black), 7);
}

/// A title bar as the style draws it whose texts have this colour.
QImage Titelleiste(const QColor& texte, bool aktiv) {
    QStyleOptionTitleBar leiste;
    leiste.rect = QRect(0, 0, 200, 24);
    leiste.text = "1. Optikteil";
    leiste.palette = QApplication::palette();
    leiste.palette.setColor(QPalette::Text, texte);
    leiste.subControls = QStyle::SC_TitleBarLabel;
    leiste.titleBarFlags = Qt::Window | Qt::WindowTitleHint;
    leiste.titleBarState = aktiv ? static_cast<int>(QStyle::State_Active) : 0;
    QImage bild(leiste.rect.size(), QImage::Format_RGB32);
    bild.fill(Qt::black);
    QPainter maler(&bild);
    QApplication::style()->drawComplexControl(QStyle::CC_TitleBar, &leiste, &maler);
    return bild;
}

TEST(Erscheinungsbild, On_dark_grounds_a_title_has_no_light_shadow) {
    const Erscheinungsbild bild({.erscheinung = Erscheinung::Dunkel});
    for (const bool aktiv : {true, false})
        EXPECT_EQ(Titelleiste(Qt::white, aktiv), Titelleiste(Qt::black, aktiv)) << aktiv;
}

TEST(Erscheinungsbild, On_dark_grounds_what_cannot_be_chosen_has_no_shadow) {
    const Erscheinungsbild bild({.erscheinung = Erscheinung::Dunkel});
    EXPECT_EQ(QApplication::style()->styleHint(QStyle::SH_EtchDisabledText), 0);
}

/// The lowest contrast of what is drawn of a sign to black; 0 where nothing is.
double KleinsterKontrast(const QIcon& zeichen) {
    const QImage bild = zeichen.pixmap(16, 16).toImage();
    std::vector<double> kontraste;
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x)
            if (bild.pixelColor(x, y).alpha() > 0)
                kontraste.push_back(Kontrast(bild.pixelColor(x, y), Qt::black));
    return kontraste.empty() ? 0 : std::ranges::min(kontraste);
}

TEST(Erscheinungsbild, On_dark_grounds_the_buttons_of_a_view_that_fills_the_window_have_light_signs) {
    for (const Erscheinung erscheinung : {Erscheinung::Dunkel, Erscheinung::HoherKontrast}) {
        const Erscheinungsbild bild({.erscheinung = erscheinung});
        for (const auto zeichen :
             {QStyle::SP_TitleBarMinButton, QStyle::SP_TitleBarNormalButton, QStyle::SP_TitleBarCloseButton})
            EXPECT_GE(KleinsterKontrast(QApplication::style()->standardIcon(zeichen)), 7) << zeichen;
    }
}

TEST(Erscheinungsbild, With_high_contrast_what_is_old_stays_legible) {
    QLabel wert("9");
    Verblasse(wert, true, *PaletteFuer(Erscheinung::HoherKontrast));
    EXPECT_GE(Kontrast(wert.palette().color(QPalette::WindowText), Qt::black), 7);
    Verblasse(wert, true, *PaletteFuer(Erscheinung::Hell));
    EXPECT_LT(Kontrast(wert.palette().color(QPalette::WindowText),
                       PaletteFuer(Erscheinung::Hell)->color(QPalette::Window)),
              4);
}

class DarstellungTest : public testing::Test {
protected:
    frmMain& Fenster() {
        if (!fenster) {
            fenster = std::make_unique<frmMain>();
            fenster->resize(1280, 600);
            fenster->show();
            QApplication::processEvents();
        }
        return *fenster;
    }
    QMenu& Menue() {
        Fenster().findChild<QAction*>("tlbDarstellung")->trigger();
        Fenster().MenuAusführen();
        return *qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
    void Waehle(const char* name) {
        QMenu& menue = Menue();
        menue.findChild<QAction*>(QLatin1String(name))->trigger();
        menue.close();
    }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefEinstellungen einstellungen;
    pruefung::PruefPort port{umgebung};
    pruefung::PruefGeraet geraet{port};
    std::unique_ptr<frmMain> fenster;
};

TEST_F(DarstellungTest, The_menu_opens_below_its_button) {
    const auto* const knopf = Fenster().findChild<QToolButton*>("cmdDarstellung");
    EXPECT_EQ(Menue().y(), knopf->mapToGlobal(knopf->rect().bottomLeft()).y());
    QApplication::activePopupWidget()->close();
}

TEST_F(DarstellungTest, A_choice_holds_at_once_and_in_the_next_run) {
    const QPalette vorher = QApplication::palette();
    Waehle("mnuErscheinungDunkel");
    Waehle("mnuFarbsatzBlauUndOrange");
    const QColor dunkel = PaletteFuer(Erscheinung::Dunkel)->color(QPalette::Window);
    EXPECT_TRUE(WarteBis([&] { return Fenster().palette().color(QPalette::Window) == dunkel; }));
    EXPECT_EQ(GetStrahlfarbsatz(), Strahlfarbsatz::BlauUndOrange);
    fenster.reset();
    EXPECT_EQ(QApplication::palette(), vorher);
    EXPECT_EQ(Fenster().palette().color(QPalette::Window), dunkel);
    EXPECT_EQ(GetStrahlfarbsatz(), Strahlfarbsatz::BlauUndOrange);
}

TEST_F(DarstellungTest, The_buttons_behind_which_more_commands_wait_have_light_signs_on_a_dark_ground) {
    Waehle("mnuErscheinungDunkel");
    auto& leiste = *Fenster().findChild<QToolBar*>();
    for (const auto bereich : {Qt::TopToolBarArea, Qt::LeftToolBarArea}) {
        Fenster().addToolBar(bereich, &leiste);
        for (const auto* const knopf :
             {leiste.findChild<QToolButton*>("qt_toolbar_ext_button"),
              Fenster().menuBar()->findChild<QToolButton*>("qt_menubar_ext_button")})
            EXPECT_GE(GroessterKontrast(knopf->icon().pixmap(16, 16).toImage(), Qt::black), 7);
    }
}

TEST_F(DarstellungTest, The_sign_of_more_commands_points_to_where_they_wait) {
    auto& leiste = *Fenster().findChild<QToolBar*>();
    const auto* const knopf = leiste.findChild<QToolButton*>("qt_toolbar_ext_button");
    const QImage liegt = knopf->icon().pixmap(16, 16).toImage();
    Fenster().addToolBar(Qt::LeftToolBarArea, &leiste);
    EXPECT_NE(knopf->icon().pixmap(16, 16).toImage(), liegt);
    Fenster().addToolBar(Qt::TopToolBarArea, &leiste);
    EXPECT_EQ(knopf->icon().pixmap(16, 16).toImage(), liegt);
}

TEST_F(DarstellungTest, The_menu_ticks_what_is_in_use) {
    Waehle("mnuErscheinungHell");
    Waehle("mnuFarbsatzGraustufen");
    QMenu& menue = Menue();
    for (const QAction* aktion : menue.actions())
        EXPECT_EQ(aktion->isChecked(), aktion->objectName() == "mnuErscheinungHell" ||
                                           aktion->objectName() == "mnuFarbsatzGraustufen")
            << aktion->objectName().toStdString();
    menue.close();
}

TEST_F(DarstellungTest, Beside_each_set_of_colours_stand_free_interrupted_and_blanked_beams_on_their_ground) {
    QMenu& menue = Menue();
    for (const auto& zeile : Farbsatzzeilen()) {
        const QIcon probe = menue.findChild<QAction*>(QLatin1String(zeile.name))->icon();
        const QImage bild = probe.pixmap(probe.availableSizes().value(0)).toImage();
        const Strahlfarben farben = FarbenAus(Fenster().palette(), Datenstand::Gueltig, zeile.wert);
        std::vector<QColor> spalte{farben.grund};
        for (const QColor& farbe : {farben.frei, farben.unterbrochen, farben.geblankt}) {
            spalte.insert(spalte.end(), 4, farbe);
            spalte.push_back(farben.grund);
        }
        ASSERT_EQ(bild.height(), static_cast<int>(spalte.size()));
        for (int y = 0; y < bild.height(); ++y) {
            for (const int x : {1, bild.width() - 2})
                EXPECT_EQ(bild.pixelColor(x, y).rgb(), spalte[static_cast<std::size_t>(y)].rgb()) << y;
            for (const int x : {0, bild.width() - 1})
                EXPECT_EQ(bild.pixelColor(x, y).rgb(), farben.grund.rgb()) << y;
        }
    }
    menue.close();
}

TEST_F(DarstellungTest, The_menu_names_each_choice_in_the_chosen_language) {
    const auto punkte = [this] {
        QMenu& menue = Menue();
        std::vector<std::string> texte;
        for (const QAction* aktion : menue.actions())
            texte.push_back(aktion->text().toStdString());
        menue.close();
        return texte;
    };
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(punkte(), (std::vector<std::string>{
                            "Like the &system", "&Light", "&Dark", "High &contrast", "Colours of the beams",
                            "Green and &red", "&Blue and orange", "Green and &magenta", "Shades of &grey"}));
}

TEST_F(DarstellungTest, Beams_on_the_screen_take_new_colours_at_once) {
    Fenster();
    BeamBarControl balken;
    balken.SetzeStrahlanzahl(8);
    balken.resize(200, 300);
    balken.show();
    const auto zeigt = [&](Strahlfarbsatz satz) {
        const QRgb frei = FarbenAus(balken.palette(), Datenstand::Gueltig, satz).frei.rgb();
        const QImage bild = balken.grab().toImage();
        for (int y = 0; y < bild.height(); ++y)
            if (bild.pixel(bild.width() / 2, y) == frei)
                return true;
        return false;
    };
    EXPECT_TRUE(zeigt(Strahlfarbsatz::GruenUndRot));
    Waehle("mnuFarbsatzBlauUndOrange");
    EXPECT_TRUE(zeigt(Strahlfarbsatz::BlauUndOrange));
    EXPECT_FALSE(zeigt(Strahlfarbsatz::GruenUndRot));
}

TEST_F(DarstellungTest, Nothing_is_written_while_nothing_is_chosen) {
    Fenster().close();
    fenster.reset();
    for (const auto& [stelle, text] : einstellungen.texte)
        EXPECT_NE(stelle.first, "Darstellung");
}

} // namespace varnoth
