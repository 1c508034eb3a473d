#include "werkzeugleiste.h"

#include "aktionen.h"
#include "fenstertest.h"
#include "frmMain.h"
#include "pruefgeraet.h"
#include "qttexte.h"
#include "symbolbild.h"
#include "texte.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <utility>

namespace varnoth {

using pruefung::WarteBis;

namespace {

constexpr int BreiteEinesKleinenSchirms = 1280;

} // namespace

class WerkzeugleisteTest : public testing::Test {
protected:
    ~WerkzeugleisteTest() override {
        fenster.reset();
        LadeQtTexte(Englisch);
    }
    frmMain& Fenster() {
        if (!fenster) {
            fenster = std::make_unique<frmMain>();
            fenster->resize(BreiteEinesKleinenSchirms, 600);
            fenster->show();
            fenster->activateWindow();
            QApplication::processEvents();
        }
        return *fenster;
    }
    Werkzeugleiste& Leiste() { return *Fenster().findChild<Werkzeugleiste*>("tlbBefehle"); }
    QToolButton& Knopf(const char* name) {
        auto* const knopf = Leiste().findChild<QToolButton*>(QLatin1String(name));
        if (knopf == nullptr)
            throw std::out_of_range(name);
        return *knopf;
    }
    QToolButton& Mehr() { return Knopf("qt_toolbar_ext_button"); }
    void Druecke(Qt::Key taste) {
        QWidget* const ziel = QApplication::focusWidget();
        QTest::keyClick(ziel != nullptr ? ziel : &Fenster(), taste);
    }
    static QString ImFokus() {
        const QWidget* const ziel = QApplication::focusWidget();
        return ziel != nullptr ? ziel->objectName() : QString();
    }
    /// The entries of the menu that a right click at the place opens.
    static QMenu* MenueVon(QWidget& element) {
        QContextMenuEvent klick(QContextMenuEvent::Mouse, element.rect().center(),
                                element.mapToGlobal(element.rect().center()));
        QApplication::sendEvent(&element, &klick);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefEinstellungen einstellungen;
    pruefung::PruefPort port{umgebung};
    pruefung::PruefGeraet geraet{port};
    std::unique_ptr<frmMain> fenster;
};

TEST_F(WerkzeugleisteTest, Where_there_is_room_every_button_has_a_picture_beside_its_text) {
    Fenster().resize(3000, 600);
    QApplication::processEvents();
    for (QToolButton* knopf : Leiste().findChildren<QToolButton*>()) {
        if (knopf == &Mehr())
            continue;
        EXPECT_FALSE(knopf->icon().isNull()) << knopf->objectName().toStdString();
        EXPECT_FALSE(knopf->text().isEmpty()) << knopf->objectName().toStdString();
        EXPECT_EQ(knopf->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    }
}

TEST_F(WerkzeugleisteTest, A_button_does_what_its_menu_item_does) {
    for (const QString name : {"MessdatenVisualisierenStart", "Neu", "Oeffnen", "SpeichernUnter",
                               "AnzeigeKonfiguration", "Hilfethemen"}) {
        int klicks = 0;
        QObject::connect(&Aktion(Fenster(), "mnu" + name), &QAction::triggered, &Leiste(), [&] { ++klicks; });
        Knopf("cmd" + name.toLatin1()).click();
        EXPECT_EQ(klicks, 1) << name.toStdString();
    }
}

TEST_F(WerkzeugleisteTest, A_button_can_be_pressed_when_its_menu_item_can_be_chosen) {
    QAction& start = Aktion(Fenster(), "mnuMessdatenVisualisierenStart");
    EXPECT_TRUE(Knopf("cmdMessdatenVisualisierenStart").isEnabled());
    EXPECT_FALSE(Knopf("cmdMessdatenVisualisierenStop").isEnabled());
    start.setEnabled(false);
    EXPECT_FALSE(Knopf("cmdMessdatenVisualisierenStart").isEnabled());
    start.setVisible(false);
    EXPECT_FALSE(Aktion(Leiste(), "tlbMessdatenVisualisierenStart").isVisible());
}

TEST_F(WerkzeugleisteTest, Menu_items_keep_their_texts_and_have_no_tips_of_the_bar) {
    const QAction& oeffnen = Aktion(Fenster(), "mnuOeffnen");
    EXPECT_EQ(oeffnen.text(), "Konfiguration ö&ffnen...");
    EXPECT_FALSE(oeffnen.toolTip().contains("Datei"));
}

TEST_F(WerkzeugleisteTest, A_line_stands_between_two_groups) {
    const auto aktionen = Leiste().actions();
    const auto stop = aktionen.indexOf(&Aktion(Leiste(), "tlbMessdatenVisualisierenStop"));
    EXPECT_EQ(aktionen.indexOf(&Aktion(Leiste(), "tlbMessdatenVisualisierenStart")), stop - 1);
    EXPECT_EQ(aktionen.indexOf(&Aktion(Fenster(), "tlbVerbindung")), stop + 1);
    EXPECT_TRUE(aktionen.at(stop + 2)->isSeparator());
}

TEST_F(WerkzeugleisteTest, Texts_tips_and_keys_are_in_the_language_in_use) {
    LadeQtTexte(Deutsch);
    Leiste().Lokalisiere();
    EXPECT_EQ(Knopf("cmdOeffnen").text(), "Öffnen");
    EXPECT_EQ(Knopf("cmdOeffnen").toolTip(), "Konfiguration aus einer Datei laden (Strg+O)");
    Aktion(Fenster(), "mnuEnglisch").trigger();
    Fenster().MenuAusführen();
    EXPECT_EQ(Knopf("cmdOeffnen").text(), "Open");
    EXPECT_EQ(Knopf("cmdOeffnen").toolTip(), "Load a configuration from a file (Ctrl+O)");
    EXPECT_EQ(Leiste().windowTitle(), "Tool bar");
    EXPECT_EQ(Mehr().toolTip(), "More commands");
    EXPECT_EQ(Mehr().accessibleName(), "More commands");
}

TEST_F(WerkzeugleisteTest, All_of_it_fits_a_small_screen_in_German) {
    Fenster();
    EXPECT_TRUE(WarteBis([&] { return Leiste().width() == BreiteEinesKleinenSchirms; }));
    EXPECT_LE(Leiste().sizeHint().width(), BreiteEinesKleinenSchirms);
    EXPECT_FALSE(Mehr().isVisible());
}

TEST_F(WerkzeugleisteTest, Where_room_is_short_some_groups_show_their_pictures_alone) {
    constexpr auto mitText = Qt::ToolButtonTextBesideIcon;
    Fenster().resize(3000, 600);
    EXPECT_TRUE(WarteBis([&] { return Knopf("cmdAufzeichnung").toolButtonStyle() == mitText; }));
    Fenster().resize(BreiteEinesKleinenSchirms, 600);
    EXPECT_TRUE(
        WarteBis([&] { return Knopf("cmdAufzeichnung").toolButtonStyle() == Qt::ToolButtonIconOnly; }));
    EXPECT_EQ(Knopf("cmdOeffnen").toolButtonStyle(), mitText);
    EXPECT_FALSE(Knopf("cmdAufzeichnung").toolTip().isEmpty());
}

TEST_F(WerkzeugleisteTest, It_takes_its_room_from_the_area_and_not_from_the_screen) {
    einstellungen.SchreibText("Werkzeugleiste", "Sichtbar", "0");
    const QSize ohne = frmMain().size();
    einstellungen.SchreibText("Werkzeugleiste", "Sichtbar", "1");
    EXPECT_EQ(frmMain().size(), ohne);
}

TEST_F(WerkzeugleisteTest, F10_steps_into_the_bar_and_out_again) {
    auto* const anderswo = Fenster().findChild<QWidget*>("cmdWillkommenOeffnen");
    anderswo->setFocus();
    Druecke(Qt::Key_F10);
    EXPECT_EQ(ImFokus(), "cmdMessdatenVisualisierenStart");
    Druecke(Qt::Key_F10);
    EXPECT_EQ(QApplication::focusWidget(), anderswo);
}

TEST_F(WerkzeugleisteTest, F10_shows_a_hidden_bar) {
    Leiste().hide();
    Druecke(Qt::Key_F10);
    EXPECT_TRUE(Leiste().isVisible());
    EXPECT_EQ(ImFokus(), "cmdMessdatenVisualisierenStart");
}

TEST_F(WerkzeugleisteTest, Arrow_keys_walk_over_the_buttons_that_can_be_pressed) {
    Fenster();
    Druecke(Qt::Key_F10);
    Druecke(Qt::Key_Right);
    EXPECT_EQ(ImFokus(), "cmdVerbindung");
    Druecke(Qt::Key_Right);
    EXPECT_EQ(ImFokus(), "cmdNeu");
    Druecke(Qt::Key_Left);
    Druecke(Qt::Key_Left);
    EXPECT_EQ(ImFokus(), "cmdMessdatenVisualisierenStart");
    Druecke(Qt::Key_Left);
    const QString letzter = ImFokus();
    Druecke(Qt::Key_Home);
    EXPECT_EQ(ImFokus(), "cmdMessdatenVisualisierenStart");
    Druecke(Qt::Key_End);
    EXPECT_EQ(ImFokus(), letzter);
    EXPECT_NE(letzter, "cmdMessdatenVisualisierenStart");
}

TEST_F(WerkzeugleisteTest, Enter_and_space_press_the_button_and_Escape_leaves_the_bar) {
    auto* const anderswo = Fenster().findChild<QWidget*>("cmdWillkommenOeffnen");
    anderswo->setFocus();
    int klicks = 0;
    QObject::connect(&Knopf("cmdNeu"), &QToolButton::clicked, &Leiste(), [&] { ++klicks; });
    Druecke(Qt::Key_F10);
    Druecke(Qt::Key_Right);
    Druecke(Qt::Key_Right);
    Druecke(Qt::Key_Return);
    EXPECT_EQ(klicks, 1);
    Druecke(Qt::Key_Space);
    EXPECT_EQ(klicks, 2);
    Druecke(Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), anderswo);
}

TEST_F(WerkzeugleisteTest, In_a_narrow_window_the_keys_reach_what_waits_behind_the_last_button) {
    Fenster().resize(500, 600);
    ASSERT_TRUE(WarteBis([&] { return Mehr().isVisible(); }));
    ASSERT_FALSE(Knopf("cmdHilfethemen").isVisible());
    Druecke(Qt::Key_F10);
    Druecke(Qt::Key_End);
    EXPECT_EQ(QApplication::focusWidget(), &Mehr());
    Druecke(Qt::Key_Return);
    EXPECT_TRUE(WarteBis([&] { return QApplication::focusWidget() != &Mehr(); }));
    EXPECT_TRUE(Leiste().isAncestorOf(QApplication::focusWidget()));
    const QString dort = ImFokus();
    EXPECT_NE(dort, "cmdNeu");
    for (const bool sichtbar : {false, true}) {
        Aktion(Leiste(), "tlbNeu").setVisible(sichtbar);
        EXPECT_TRUE(WarteBis([&] { return Knopf("cmdNeu").isVisible() == sichtbar; }));
    }
    EXPECT_EQ(ImFokus(), dort) << "a button that appears later takes nothing away";
    EXPECT_TRUE(Knopf("cmdHilfethemen").isVisible());
    Druecke(Qt::Key_Escape);
    EXPECT_TRUE(WarteBis([&] { return !Knopf("cmdHilfethemen").isVisible(); }));
}

TEST_F(WerkzeugleisteTest, The_menu_of_the_status_bar_brings_a_hidden_bar_back) {
    Leiste().hide();
    QMenu* const menue = MenueVon(*Fenster().statusBar());
    ASSERT_NE(menue, nullptr);
    ASSERT_EQ(menue->actions().size(), 1);
    EXPECT_EQ(menue->actions().at(0)->text(), "Werkzeugleiste");
    menue->actions().at(0)->trigger();
    EXPECT_TRUE(Leiste().isVisible());
    menue->close();
}

TEST_F(WerkzeugleisteTest, The_menu_of_the_menu_bar_hides_the_bar) {
    QMenu* const menue = MenueVon(*Fenster().menuBar());
    ASSERT_NE(menue, nullptr);
    menue->actions().at(0)->trigger();
    EXPECT_FALSE(Leiste().isVisible());
    menue->close();
}

TEST_F(WerkzeugleisteTest, Keys_of_a_command_work_with_the_bar_hidden) {
    Leiste().hide();
    int klicks = 0;
    for (const Befehlszeile& zeile : Befehlstabelle())
        if (zeile.textId != 0 && *zeile.kuerzel != 0) {
            QAction& aktion = Aktion(Fenster(), QString::fromStdString(Aktionsname(zeile, 0)));
            aktion.setEnabled(true);
            QObject::connect(&aktion, &QAction::triggered, &Leiste(), [&] { ++klicks; });
            const auto tasten = aktion.shortcut()[0];
            QTest::keyClick(&Fenster(), tasten.key(), tasten.keyboardModifiers());
            EXPECT_EQ(std::exchange(klicks, 0), 1) << zeile.aktion;
        }
}

TEST_F(WerkzeugleisteTest, Its_place_is_remembered) {
    Fenster().addToolBar(Qt::LeftToolBarArea, &Leiste());
    Leiste().hide();
    Fenster().close();
    fenster.reset();
    EXPECT_FALSE(Leiste().isVisible());
    EXPECT_EQ(Fenster().toolBarArea(&Leiste()), Qt::LeftToolBarArea);
    Leiste().show();
    Fenster().close();
    fenster.reset();
    EXPECT_TRUE(Leiste().isVisible());
}

TEST_F(WerkzeugleisteTest, The_sign_for_more_commands_points_to_where_they_open) {
    const auto zeigt = [this](const char* bild) {
        const QSize groesse(24, 24);
        return Mehr().icon().pixmap(groesse).toImage() ==
               Symbolbild(QLatin1String(bild)).pixmap(groesse).toImage();
    };
    EXPECT_TRUE(zeigt("mehr"));
    EXPECT_FALSE(zeigt("mehr_unten"));
    Fenster().addToolBar(Qt::LeftToolBarArea, &Leiste());
    EXPECT_TRUE(zeigt("mehr_unten"));
}

TEST_F(WerkzeugleisteTest, A_bar_that_nobody_moved_leaves_no_setting) {
    Fenster().close();
    for (const auto& [stelle, text] : einstellungen.texte)
        EXPECT_NE(stelle.first, "Werkzeugleiste");
}

} // namespace varnoth
