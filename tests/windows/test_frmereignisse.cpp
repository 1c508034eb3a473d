#include "frmEreignisse.h"

#include "bedienelement.h"
#include "ereignisanbieter.h"
#include "ereignisse.h"
#include "fenstertest.h"
#include "pruefmessanbieter.h"
#include "pruefumgebung.h"
#include "statusbits.h"
#include "texte.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

struct PruefEreignisanbieter : Ereignisanbieter {
    Mitschriftstand Mitschrift() override { return stand; }
    void SetzeMitschrift(bool laeuft, const std::string& wo) override {
        stand = {.laeuft = laeuft, .ordner = wo};
    }
    std::optional<std::string> FrageNachOrdner(const std::string& /*titel*/,
                                               const std::string& /*anfang*/) override {
        ++gefragt;
        return ordner;
    }

    Mitschriftstand stand;
    std::optional<std::string> ordner = "/tmp/tage";
    int gefragt = 0;
};

/// A clock that goes on whenever somebody looks at it.
struct LaufendeUhr : pruefung::PruefUmgebung {
    Zeit Uhr() override { return uhr += schritt; }

    Zeit schritt{0};
};

} // namespace

class frmEreignisseTest : public testing::Test {
protected:
    frmEreignisseTest() { einstellungen.geschrieben = 0; }

    frmEreignisse& Fenster() {
        if (fenster == nullptr) {
            fenster = std::make_unique<frmEreignisse>(messungen, anbieter);
            fenster->findChild<QTimer*>({}, Qt::FindDirectChildrenOnly)->setInterval(1);
            fenster->show();
        }
        return *fenster;
    }
    template<class Element>
    Element& Kind(const char* name) {
        return pruefung::Kind<Element>(Fenster(), name);
    }
    QTableView& Tabelle() { return Kind<QTableView>("tblEreignisse"); }
    int Zeilen() { return Tabelle().model()->rowCount(); }
    std::string Was(int zeile) {
        return Tabelle().model()->index(zeile, Ereignismodell::Was).data().toString().toStdString();
    }
    std::string Label(const char* name) { return Kind<QLabel>(name).text().toStdString(); }
    void Druecke(const char* knopf) { Kind<QPushButton>(knopf).click(); }

    /// Keys reach a window only once it is active.
    void Aktiviere() {
        Fenster().activateWindow();
        ASSERT_TRUE(pruefung::WarteBis([&] { return Fenster().isActiveWindow(); }));
    }
    /// The line is busy again and again until the condition holds.
    template<class Bedingung>
    bool Bis(Bedingung bedingung) {
        return pruefung::WarteBis([&] {
            umgebung.ErledigeAufgeschobenes();
            return bedingung();
        });
    }
    bool BisZeilen(int anzahl) {
        Fenster();
        return Bis([&] { return Zeilen() == anzahl; });
    }
    static void Notiere(int anzahl, const std::string& text = "Notiz") {
        for (int i = 0; i < anzahl; ++i)
            modEreignisse::Merke({.art = Ereignisart::Notiz, .text = text + std::to_string(i)});
    }
    /// A record of some seconds in which the output switches at second 20 and 50.
    void SpieleAb(int sekunden = 60) {
        for (int sekunde = 0; sekunde < sekunden; ++sekunde)
            messungen.quelle.Nimm(
                {.durchgaenge = {{.zeit = Systemzeit(24h) + std::chrono::seconds(sekunde),
                                  .uhr = std::chrono::seconds(sekunde),
                                  .geraetestatus = static_cast<std::uint16_t>(
                                      sekunde >= 20 && sekunde < 50 ? geraetestatus::PnpAktiv : 0)}}});
        messungen.wiedergabe = true;
        ++messungen.quellenzahl;
    }

    LaufendeUhr umgebung;
    pruefung::PruefEinstellungen einstellungen;
    pruefung::PruefMessanbieter messungen;
    PruefEreignisanbieter anbieter;
    std::unique_ptr<frmEreignisse> fenster;
};

TEST_F(frmEreignisseTest, Shows_what_was_before_it_opened_and_what_comes) {
    Notiere(3);
    ASSERT_TRUE(BisZeilen(3));
    Notiere(2, "neu");
    ASSERT_TRUE(BisZeilen(5));
    EXPECT_EQ(Was(4), "neu1");
    EXPECT_TRUE(Bis([&] { return Label("lblStand") == "Ereignisse: 5, gezeigt: 5"; }));
}

TEST_F(frmEreignisseTest, Ten_thousand_events_are_shown_and_older_ones_are_said_to_be_gone) {
    Notiere(10'010);
    ASSERT_TRUE(BisZeilen(10'000));
    EXPECT_TRUE(Bis([&] {
        return Label("lblStand") == "Ereignisse: 10000, gezeigt: 10000, ältere nicht mehr vorhanden: 10";
    }));
    EXPECT_EQ(Was(0), "Notiz10");
}

TEST_F(frmEreignisseTest, Shows_an_event_anew_that_has_become_more) {
    const auto nummer =
        modEreignisse::Merke({.art = Ereignisart::AusgangGeschaltet, .offen = true, .neu = 1});
    ASSERT_TRUE(BisZeilen(1));
    EXPECT_EQ(Was(0), "PNP-Ausgang aktiv");
    Ereignis mehr = modEreignisse::Alle().Hole(nummer);
    mehr.anzahl = 5;
    modEreignisse::Alle().Aendere(nummer, mehr);
    EXPECT_TRUE(Bis([&] { return Was(0) == "zuletzt: PNP-Ausgang aktiv"; }));
}

TEST_F(frmEreignisseTest, Follows_the_newest_until_somebody_scrolls_back_and_again_at_the_end) {
    Notiere(500);
    ASSERT_TRUE(BisZeilen(500));
    QScrollBar& balken = *Tabelle().verticalScrollBar();
    EXPECT_EQ(balken.value(), balken.maximum());
    balken.setValue(100);
    EXPECT_FALSE(Kind<QCheckBox>("chkFolgen").isChecked());
    Notiere(10);
    ASSERT_TRUE(BisZeilen(510));
    EXPECT_EQ(balken.value(), 100);
    balken.setValue(balken.maximum());
    Notiere(10);
    ASSERT_TRUE(BisZeilen(520));
    EXPECT_EQ(balken.value(), balken.maximum());
}

TEST_F(frmEreignisseTest, Rows_in_view_stay_when_old_ones_go) {
    Notiere(10'000);
    ASSERT_TRUE(BisZeilen(10'000));
    QScrollBar& balken = *Tabelle().verticalScrollBar();
    balken.setValue(5000);
    const std::string oben = Was(balken.value());
    Notiere(40, "neu");
    ASSERT_TRUE(Bis([&] { return Was(Zeilen() - 1) == "neu39"; }));
    EXPECT_EQ(Was(balken.value()), oben);
}

TEST_F(frmEreignisseTest, Kind_and_text_leave_what_is_wanted) {
    Notiere(3);
    modEreignisse::Merke({.art = Ereignisart::Verloren});
    ASSERT_TRUE(BisZeilen(4));
    Kind<QComboBox>("cboArt").setCurrentIndex(1 + static_cast<int>(Ereignisgruppe::Verbindung));
    ASSERT_TRUE(BisZeilen(1));
    EXPECT_EQ(Was(0), "Das Steuergerät antwortet nicht mehr");
    Kind<QComboBox>("cboArt").setCurrentIndex(0);
    Kind<QLineEdit>("txtFilter").setText("notiz2");
    ASSERT_TRUE(BisZeilen(1));
    EXPECT_EQ(Was(0), "Notiz2");
    Kind<QLineEdit>("txtFilter").clear();
    EXPECT_TRUE(BisZeilen(4));
}

TEST_F(frmEreignisseTest, A_search_goes_on_from_the_row_chosen_and_around_the_end_in_both_directions) {
    for (const char* text : {"rot", "blau", "rot", "gelb"})
        modEreignisse::Merke({.art = Ereignisart::Notiz, .text = text});
    ASSERT_TRUE(BisZeilen(4));
    Kind<QLineEdit>("txtSuchen").setText("ROT");
    const auto gefunden = [&](const char* knopf, int zeile) {
        Druecke(knopf);
        return Bis(
            [&] { return Tabelle().currentIndex().row() == zeile && umgebung.aufgeschobenes.empty(); });
    };
    EXPECT_TRUE(gefunden("cmdNaechster", 0));
    EXPECT_TRUE(gefunden("cmdNaechster", 2));
    EXPECT_TRUE(gefunden("cmdNaechster", 0));
    EXPECT_TRUE(gefunden("cmdVoriger", 2));
    EXPECT_FALSE(Kind<QCheckBox>("chkFolgen").isChecked());
    Kind<QLineEdit>("txtSuchen").setText("grün");
    Druecke("cmdNaechster");
    EXPECT_TRUE(Bis([&] { return Label("lblMeldung") == "Nicht gefunden: grün"; }));
    EXPECT_EQ(Tabelle().currentIndex().row(), 2);
}

TEST_F(frmEreignisseTest, Copies_the_rows_chosen_and_all_that_are_shown_where_none_is) {
    Notiere(3);
    ASSERT_TRUE(BisZeilen(3));
    Druecke("cmdKopieren");
    ASSERT_TRUE(Bis([&] { return Label("lblMeldung") == "Zeilen kopiert: 3"; }));
    EXPECT_THAT(QGuiApplication::clipboard()->text().toStdString(), HasSubstr("Notiz: Notiz1\n"));
    Tabelle().selectRow(1);
    Druecke("cmdKopieren");
    ASSERT_TRUE(Bis([&] { return Label("lblMeldung") == "Zeilen kopiert: 1"; }));
    EXPECT_THAT(QGuiApplication::clipboard()->text().toStdString(), EndsWith("  Notiz: Notiz1\n"));
    EXPECT_THAT(QGuiApplication::clipboard()->text().toStdString(), Not(HasSubstr("Notiz0")));
}

TEST_F(frmEreignisseTest, Saves_what_is_shown_as_text_or_as_a_table_in_which_nothing_is_a_formula) {
    modEreignisse::Merke({.art = Ereignisart::Notiz, .text = "=1+1"});
    ASSERT_TRUE(BisZeilen(1));
    messungen.datei = "/tmp/a.CSV";
    Druecke("cmdSpeichern");
    ASSERT_TRUE(Bis([&] { return Label("lblMeldung") == "Gespeichert: /tmp/a.CSV"; }));
    messungen.datei = "/tmp/a.txt";
    Druecke("cmdSpeichern");
    ASSERT_TRUE(Bis([&] { return Label("lblMeldung") == "Gespeichert: /tmp/a.txt"; }));
    ASSERT_EQ(messungen.geschrieben.size(), 2U);
    EXPECT_THAT(messungen.geschrieben[0].second, StartsWith("\xEF\xBB\xBFZeit;Art;"));
    EXPECT_THAT(messungen.geschrieben[0].second, EndsWith(";Notiz;'=1+1;;1\r\n"));
    EXPECT_THAT(messungen.geschrieben[1].second, EndsWith("  Notiz: =1+1\n"));
}

TEST_F(frmEreignisseTest, Says_nothing_of_a_file_that_was_not_written) {
    Notiere(1);
    ASSERT_TRUE(BisZeilen(1));
    messungen.schreibbar = false;
    Druecke("cmdSpeichern");
    ASSERT_TRUE(Bis([&] { return messungen.geschrieben.size() == 1; }));
    EXPECT_EQ(Label("lblMeldung"), "");
    messungen.datei.reset();
    Druecke("cmdSpeichern");
    EXPECT_TRUE(umgebung.aufgeschobenes.empty());
}

TEST_F(frmEreignisseTest, A_cleared_view_shows_what_comes_and_all_again_when_it_opens_anew) {
    Notiere(5);
    ASSERT_TRUE(BisZeilen(5));
    Druecke("cmdLeeren");
    EXPECT_EQ(Zeilen(), 0);
    Notiere(1, "neu");
    ASSERT_TRUE(BisZeilen(1));
    Kind<QComboBox>("cboArt").setCurrentIndex(1 + static_cast<int>(Ereignisgruppe::Notiz));
    EXPECT_TRUE(BisZeilen(1));
    Fenster().close();
    Fenster().show();
    EXPECT_TRUE(BisZeilen(6));
}

TEST_F(frmEreignisseTest, While_a_record_is_replayed_its_events_are_shown_and_then_those_of_this_run_again) {
    Notiere(4);
    SpieleAb();
    ASSERT_TRUE(BisZeilen(2));
    EXPECT_EQ(Was(0), "PNP-Ausgang aktiv");
    EXPECT_EQ(Was(1), "PNP-Ausgang nicht aktiv");
    EXPECT_EQ(Fenster().windowTitle().toStdString(), "Ereignisse der Wiedergabe");
    messungen.wiedergabe = false;
    ++messungen.quellenzahl;
    ASSERT_TRUE(BisZeilen(4));
    EXPECT_EQ(Fenster().windowTitle().toStdString(), "Ereignisse");
}

TEST_F(frmEreignisseTest, A_long_record_is_looked_through_in_pieces_and_how_far_is_told) {
    SpieleAb(20'000);
    umgebung.schritt = 1ms;
    Fenster();
    umgebung.ErledigeAufgeschobenes();
    EXPECT_THAT(Label("lblStand"), StartsWith("Die Aufzeichnung wird durchgesehen: "));
    EXPECT_LT(messungen.quelle.gelesen, 100);
    EXPECT_TRUE(umgebung.BrauchtWartezeit());
    umgebung.schritt = 0ms;
    EXPECT_TRUE(BisZeilen(2));
}

TEST_F(frmEreignisseTest, A_double_click_or_enter_leads_the_replay_there) {
    SpieleAb();
    ASSERT_TRUE(BisZeilen(2));
    const QModelIndex stelle = Tabelle().model()->index(1, Ereignismodell::Was);
    Tabelle().setCurrentIndex(stelle);
    emit Tabelle().doubleClicked(stelle);
    EXPECT_THAT(messungen.spruenge, ElementsAre(Zeit(50s)));
    Aktiviere();
    Tabelle().setFocus();
    Tabelle().setCurrentIndex(Tabelle().model()->index(0, 0));
    QTest::keyClick(&Tabelle(), Qt::Key_Return);
    EXPECT_THAT(messungen.spruenge, ElementsAre(Zeit(50s), Zeit(20s)));
}

TEST_F(frmEreignisseTest, Events_of_this_run_lead_nowhere) {
    Notiere(1);
    ASSERT_TRUE(BisZeilen(1));
    emit Tabelle().doubleClicked(Tabelle().model()->index(0, 0));
    EXPECT_TRUE(messungen.spruenge.empty());
}

TEST_F(frmEreignisseTest, The_file_of_the_day_asks_for_a_folder_once_and_tells_where_it_is) {
    auto& kasten = Kind<QCheckBox>("chkMitschrift");
    kasten.click();
    EXPECT_EQ(anbieter.gefragt, 1);
    EXPECT_TRUE(anbieter.stand.laeuft);
    EXPECT_EQ(anbieter.stand.ordner, "/tmp/tage");
    anbieter.stand.datei = "/tmp/tage/varnoth-2026-11-22.txt";
    EXPECT_TRUE(
        Bis([&] { return Label("lblMitschrift") == "Tagesdatei: /tmp/tage/varnoth-2026-11-22.txt"; }));
    kasten.click();
    EXPECT_FALSE(anbieter.stand.laeuft);
    kasten.click();
    EXPECT_EQ(anbieter.gefragt, 1);
    EXPECT_TRUE(anbieter.stand.laeuft);
}

TEST_F(frmEreignisseTest, Who_changes_his_mind_about_the_folder_gets_no_file) {
    anbieter.ordner.reset();
    auto& kasten = Kind<QCheckBox>("chkMitschrift");
    kasten.click();
    EXPECT_FALSE(kasten.isChecked());
    EXPECT_FALSE(anbieter.stand.laeuft);
}

TEST_F(frmEreignisseTest, A_file_of_the_day_that_cannot_be_written_is_said) {
    anbieter.stand = {.laeuft = true, .ordner = "/tmp/tage", .fehler = "kein Platz"};
    Fenster();
    EXPECT_TRUE(Bis([&] { return Label("lblMitschrift") == "Tagesdatei nicht geschrieben: kein Platz"; }));
}

TEST_F(frmEreignisseTest, Words_change_with_the_language) {
    modEreignisse::Merke({.art = Ereignisart::Verloren});
    ASSERT_TRUE(BisZeilen(1));
    Kind<QLineEdit>("txtFilter").setText("steuergerät");
    SetzeSprachoffset(Englisch);
    Fenster().Lokalisiere();
    EXPECT_TRUE(BisZeilen(0));
    Kind<QLineEdit>("txtFilter").clear();
    ASSERT_TRUE(BisZeilen(1));
    EXPECT_EQ(Was(0), "The controller no longer answers");
    EXPECT_EQ(Fenster().windowTitle().toStdString(), "Events");
    EXPECT_EQ(Kind<QComboBox>("cboArt").itemText(3).toStdString(), "Switching output");
}

TEST_F(frmEreignisseTest, Remembers_the_kind_chosen_and_whether_it_follows) {
    Kind<QComboBox>("cboArt").setCurrentIndex(3);
    Kind<QCheckBox>("chkFolgen").setChecked(false);
    Fenster().close();
    fenster.reset();
    EXPECT_EQ(Kind<QComboBox>("cboArt").currentIndex(), 3);
    EXPECT_FALSE(Kind<QCheckBox>("chkFolgen").isChecked());
}

TEST_F(frmEreignisseTest, Absurd_settings_choose_what_there_is) {
    einstellungen.SchreibText("frmEreignisse", "Art", "99");
    EXPECT_EQ(Kind<QComboBox>("cboArt").currentIndex(), AnzahlEreignisgruppen);
    fenster.reset();
    einstellungen.SchreibText("frmEreignisse", "Art", "-5");
    EXPECT_EQ(Kind<QComboBox>("cboArt").currentIndex(), 0);
}

TEST_F(frmEreignisseTest, Escape_ends_writing_first_and_then_closes) {
    Notiere(100);
    ASSERT_TRUE(BisZeilen(100));
    Aktiviere();
    Druecke("cmdKopieren");
    EXPECT_TRUE(Kind<QPushButton>("cmdCancel").isVisible());
    QTest::keyClick(&Fenster(), Qt::Key_Escape);
    EXPECT_FALSE(Kind<QPushButton>("cmdCancel").isVisible());
    EXPECT_TRUE(Fenster().isVisible());
    QTest::keyClick(&Fenster(), Qt::Key_Escape);
    EXPECT_FALSE(Fenster().isVisible());
}

} // namespace varnoth
