#include "darstellungswahl.h"

#include "beambarcontrol.h"
#include "erscheinungsbild.h"
#include "fenstertest.h"
#include "frmMain.h"
#include "pruefgeraet.h"
#include "strahlfarben.h"

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QStyle>
#include <QStyleFactory>
#include <QToolButton>
#include <gtest/gtest.h>

#include <memory>
#include <set>

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
