// The help in the running program: the menu item, the key F1, and a help file that is missing.

#include "programmtest.h"

#include "polling.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTextBrowser>
#include <gmock/gmock.h>

namespace varnoth::pruefung {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class HilfeImBetrieb : public ProgrammTest {
protected:
    /// Puts the help files beside the program, as a build does.
    void LegeHilfeBei() const {
        for (const char* name : {"varnoth.hlp", "varnothE.hlp"})
            ASSERT_TRUE(
                QFile::copy(QCoreApplication::applicationDirPath() + "/" + name, Pfad(QLatin1String(name))));
    }
    static void DrueckeF1(QWidget& fenster) {
        QCoreApplication::postEvent(&fenster, new QKeyEvent(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier));
    }
    /// The heading of the page that the help shows; empty when it is closed.
    static std::string Ueberschrift() {
        QWidget* hilfe = SichtbaresFenster("frmHilfe");
        return hilfe == nullptr
                   ? std::string()
                   : hilfe->findChild<QTextBrowser*>()->toPlainText().section('\n', 0, 0).toStdString();
    }
};

TEST_F(HilfeImBetrieb, The_menu_item_shows_the_first_page_and_ends_live_data) {
    LegeHilfeBei();
    GeheLive();
    ASSERT_TRUE(FuehreAus("mnuHilfethemen"));
    EXPECT_THAT(Ueberschrift(), Not(IsEmpty()));
    EXPECT_EQ(modPolling::GetPollingAktiv(), False);
}

TEST_F(HilfeImBetrieb, F1_in_a_view_shows_its_page_and_leaves_live_data_running) {
    LegeHilfeBei();
    GeheLive();
    Hauptfenster().activateWindow();
    ASSERT_TRUE(LaufeBis([this] { return Hauptfenster().isActiveWindow(); }));
    DrueckeF1(Ansicht(0));
    ASSERT_TRUE(LaufeBis([] { return !Ueberschrift().empty(); }));
    EXPECT_THAT(Ueberschrift(), HasSubstr("Optikteil"));
    EXPECT_TRUE(LaufeDurchgaenge(1));
}

TEST_F(HilfeImBetrieb, F1_in_a_modal_dialog_shows_the_dialogs_page_and_leaves_the_dialog_open) {
    LegeHilfeBei();
    GeheLive();
    std::string ueberschrift;
    InFenster("frmSimulation", [](QWidget& dialog) { DrueckeF1(dialog); });
    fahrer.Sobald([] { return !Ueberschrift().empty(); },
                  [&ueberschrift] {
                      ueberschrift = Ueberschrift();
                      Klicke(*SichtbaresFenster("frmSimulation"), "cmdCancel");
                  });
    ASSERT_TRUE(FuehreAus("mnuSimulation"));
    EXPECT_THAT(ueberschrift, HasSubstr("Simulation"));
}

TEST_F(HilfeImBetrieb, The_help_speaks_the_language_of_the_program) {
    LegeHilfeBei();
    GeheLive();
    ASSERT_TRUE(FuehreAus("mnuHilfethemen"));
    const std::string deutsch = Ueberschrift();
    ASSERT_TRUE(FuehreAus("mnuEnglisch"));
    ASSERT_TRUE(FuehreAus("mnuHilfethemen"));
    EXPECT_THAT(Ueberschrift(), Not(IsEmpty()));
    EXPECT_NE(Ueberschrift(), deutsch);
}

TEST_F(HilfeImBetrieb, A_missing_help_file_is_named) {
    GeheLive();
    ASSERT_TRUE(FuehreAus("mnuHilfethemen"));
    ASSERT_EQ(Meldungen().size(), 1U);
    EXPECT_THAT(Meldungen().front(), StartsWith("Die Hilfedatei wurde nicht gefunden: "));
    EXPECT_THAT(Meldungen().front(), EndsWith("varnoth.hlp"));
}

} // namespace varnoth::pruefung
