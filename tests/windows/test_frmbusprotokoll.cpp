#include "frmBusprotokoll.h"

#include "bedienelement.h"
#include "busprobe.h"
#include "ereignisse.h"
#include "fenstertest.h"
#include "protokollanbieter.h"
#include "pruefumgebung.h"
#include "servicetext.h"
#include "texte.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth {

using namespace busprobe;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

struct PruefAnbieter : Protokollanbieter {
    std::optional<std::string> FrageNachDatei(const std::string& titel, const std::string& /*filter*/,
                                              const std::string& /*name*/) override {
        gefragt.push_back(titel);
        return pfad;
    }
    bool Schreibe(const std::string& wohin, const std::string& bytes) override {
        geschrieben.emplace_back(wohin, bytes);
        return gelingt;
    }
    Supportangaben Angaben() override {
        return {.umfeld = "Varnoth Monitor 1.0.0", .einstellungen = "[Settings]\nPasswort=geheim\n"};
    }

    std::optional<std::string> pfad = "/tmp/bus.txt";
    bool gelingt = true;
    std::vector<std::string> gefragt;
    std::vector<std::pair<std::string, std::string>> geschrieben;
};

} // namespace

/// An open window whose log hears what the test lets go over the line.
class frmBusprotokollTest : public testing::Test {
protected:
    frmBusprotokollTest() {
        fenster.show();
        Takt().setInterval(1);
    }
    QTimer& Takt() { return *fenster.findChild<QTimer*>({}, Qt::FindDirectChildrenOnly); }

    template<class Element>
    Element& Kind(const char* name) {
        return pruefung::Kind<Element>(fenster, name);
    }
    QTableView& Tabelle() { return Kind<QTableView>("tblProtokoll"); }
    int Zeilen() { return Tabelle().model()->rowCount(); }
    std::string Text(int zeile, int spalte) {
        return Tabelle().model()->index(zeile, spalte).data().toString().toStdString();
    }
    std::string Label(const char* name) { return Kind<QLabel>(name).text().toStdString(); }
    std::string Details() { return Kind<QPlainTextEdit>("txtEinzelheiten").toPlainText().toStdString(); }
    void Druecke(const char* knopf) { Kind<QPushButton>(knopf).click(); }
    void Setze(const char* kasten, bool an) { Kind<QCheckBox>(kasten).setChecked(an); }
    bool IstAn(const char* kasten) { return Kind<QCheckBox>(kasten).isChecked(); }
    void Waehle(int zeile) { Tabelle().setCurrentIndex(Tabelle().model()->index(zeile, 0)); }
    int Gewaehlte() { return Tabelle().currentIndex().row(); }
    QScrollBar& Rollbalken() { return *Tabelle().verticalScrollBar(); }

    /// The line is busy again and again until the condition holds.
    template<class Bedingung>
    bool Bis(Bedingung bedingung) {
        return pruefung::WarteBis([&] {
            umgebung.ErledigeAufgeschobenes();
            return bedingung();
        });
    }
    bool BisZeilen(int anzahl) {
        return Bis([&] { return Zeilen() == anzahl; });
    }
    /// All that was put off, until nothing more is.
    int Erledige() {
        int stuecke = 0;
        for (; !umgebung.aufgeschobenes.empty(); ++stuecke)
            umgebung.ErledigeAufgeschobenes();
        return stuecke;
    }
    void Hoere(int anzahl) {
        for (int i = 0; i < anzahl; ++i)
            LassHoeren(Gelesen(193, {i % 100}));
    }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefEinstellungen einstellungen;
    PruefAnbieter anbieter;
    frmBusprotokoll fenster{anbieter};
};

TEST_F(frmBusprotokollTest, Shows_what_goes_over_the_line_while_it_is_open) {
    Hoere(3);
    EXPECT_TRUE(BisZeilen(3));
    EXPECT_EQ(Text(0, 3), "Global: PNP-Ausgang");
    EXPECT_THAT(Label("lblStand"),
                StartsWith("Aufgezeichnet wird, solange dieses Fenster offen ist. 3 Austausche"));
}

TEST_F(frmBusprotokollTest, Closing_ends_the_recording_and_the_log_stays_for_the_next_time) {
    Hoere(3);
    ASSERT_TRUE(BisZeilen(3));
    fenster.close();
    EXPECT_FALSE(fenster.Protokoll().Laeuft());
    Hoere(2);
    fenster.ZeigeVor();
    EXPECT_EQ(Zeilen(), 3);
    Hoere(1);
    EXPECT_TRUE(BisZeilen(4));
}

TEST_F(frmBusprotokollTest, While_nothing_goes_over_the_line_it_does_nothing) {
    Hoere(1);
    ASSERT_TRUE(BisZeilen(1));
    Erledige();
    int blicke = 0;
    QObject::connect(&Takt(), &QTimer::timeout, &fenster, [&] { ++blicke; });
    EXPECT_TRUE(pruefung::WarteBis([&] { return blicke >= 3; }));
    EXPECT_TRUE(umgebung.aufgeschobenes.empty());
}

TEST_F(frmBusprotokollTest, Words_are_shown_on_request) {
    LassHoeren(Gelesen(0x4000 + 4, {17}));
    ASSERT_TRUE(BisZeilen(1));
    EXPECT_THAT(Text(0, 4), StartsWith("→ 01 03"));
    Setze("chkWorte", true);
    EXPECT_EQ(Text(0, 4), "11H");
}

TEST_F(frmBusprotokollTest, Kind_register_and_errors_narrow_what_is_shown) {
    LassHoeren(Gelesen(193, {1}));
    LassHoeren(Geschrieben(193, {1}));
    LassHoeren(Unbeantwortet(5), false);
    ASSERT_TRUE(BisZeilen(3));
    Kind<QComboBox>("cboArt").setCurrentIndex(2);
    EXPECT_EQ(Zeilen(), 1);
    EXPECT_EQ(Text(0, 2), "Schreiben (10)");
    Kind<QComboBox>("cboArt").setCurrentIndex(0);
    QComboBox& register_ = Kind<QComboBox>("cboRegister");
    register_.setCurrentIndex(register_.findText("Global: PNP-Ausgang"));
    EXPECT_EQ(Zeilen(), 2);
    register_.setCurrentIndex(0);
    Setze("chkNurFehler", true);
    EXPECT_EQ(Zeilen(), 1);
    EXPECT_EQ(Text(0, 6), "keine Antwort");
    LassHoeren(Unbeantwortet(5), false);
    EXPECT_TRUE(BisZeilen(2)) << "what comes later is narrowed too";
}

TEST_F(frmBusprotokollTest, The_parts_share_their_registers_in_the_list) {
    EXPECT_GE(Kind<QComboBox>("cboRegister").findText("Optikteil 1-4: Reichweite"), 0);
}

TEST_F(frmBusprotokollTest, A_filter_over_a_full_log_goes_on_in_pieces_and_says_how_far_it_is) {
    Hoere(100'000);
    Erledige();
    ASSERT_TRUE(BisZeilen(100'000));
    Erledige();
    Setze("chkNurFehler", true);
    EXPECT_THAT(Label("lblStand"), Not(HasSubstr("gezeigt"))) << Label("lblStand");
    EXPECT_GT(Erledige(), 20);
    EXPECT_EQ(Zeilen(), 0);
    EXPECT_THAT(Label("lblStand"), HasSubstr("100000 Austausche behalten (höchstens 100000), 0 gezeigt"));
}

TEST_F(frmBusprotokollTest, A_frozen_view_stands_still_while_recording_goes_on) {
    Hoere(2);
    ASSERT_TRUE(BisZeilen(2));
    Setze("chkAnhalten", true);
    Hoere(3);
    EXPECT_TRUE(Bis([&] { return Label("lblStand").find("5 Austausche") != std::string::npos; }));
    EXPECT_EQ(Zeilen(), 2);
    Setze("chkAnhalten", false);
    EXPECT_TRUE(BisZeilen(5));
}

TEST_F(frmBusprotokollTest, The_end_is_followed_until_somebody_scrolls_away_and_again_once_he_is_back) {
    Hoere(200);
    ASSERT_TRUE(BisZeilen(200));
    EXPECT_TRUE(IstAn("chkFolgen"));
    EXPECT_EQ(Rollbalken().value(), Rollbalken().maximum());
    Rollbalken().setValue(10);
    EXPECT_FALSE(IstAn("chkFolgen"));
    Hoere(100);
    ASSERT_TRUE(BisZeilen(300));
    EXPECT_EQ(Rollbalken().value(), 10);
    Rollbalken().setValue(Rollbalken().maximum());
    EXPECT_TRUE(IstAn("chkFolgen"));
    Hoere(100);
    ASSERT_TRUE(BisZeilen(400));
    EXPECT_EQ(Rollbalken().value(), Rollbalken().maximum());
}

TEST_F(frmBusprotokollTest, Who_looks_at_an_exchange_is_not_moved_away_from_it) {
    Hoere(200);
    ASSERT_TRUE(BisZeilen(200));
    Waehle(3);
    EXPECT_FALSE(IstAn("chkFolgen"));
    Waehle(199);
    EXPECT_TRUE(IstAn("chkFolgen")) << "he has gone back to the end";
}

TEST_F(frmBusprotokollTest, Rows_in_view_stay_where_they_are_when_older_ones_go) {
    Hoere(100'000);
    ASSERT_TRUE(BisZeilen(100'000));
    Rollbalken().setValue(5000);
    const std::string oben = Text(5000, 0) + Text(5000, 4);
    Hoere(500);
    ASSERT_TRUE(Bis([&] { return Rollbalken().value() == 4500; }));
    EXPECT_EQ(Text(4500, 0) + Text(4500, 4), oben);
}

TEST_F(frmBusprotokollTest, Each_kind_in_the_list_shows_its_own) {
    LassHoeren(Gelesen(193, {1}));
    LassHoeren(Geschrieben(193, {1}));
    LassHoeren({.anforderung = "\x01\x11\xC0\x2C"});
    LassHoeren({.art = Austauschart::OhneAntwort, .anforderung = "\x01\x09\x01\x02"});
    LassHoeren({.art = Austauschart::Klaerung, .anforderung = "\x01\x11\xC0\x2C"});
    LassHoeren(Ungefragtes("\x55"));
    ASSERT_TRUE(BisZeilen(6));
    auto& arten = Kind<QComboBox>("cboArt");
    std::vector<std::string> gezeigte;
    for (const char* art :
         {"Lesen (03)", "Schreiben (10)", "Identifikation (11)", "ohne Antwort", "Klärung", "ungefragt"}) {
        arten.setCurrentIndex(arten.findText(art));
        ASSERT_EQ(Zeilen(), 1) << art;
        gezeigte.push_back(Text(0, 1) + ": " + Text(0, 2));
    }
    EXPECT_THAT(gezeigte, ElementsAre("vom Gerät: Lesen (03)", "zum Gerät: Schreiben (10)",
                                      "hin und her: Identifikation (11)", "zum Gerät: Kommando (09)",
                                      "hin und her: Identifikation (11)", "vom Gerät: ungefragt"));
}

TEST_F(frmBusprotokollTest, A_filter_in_a_frozen_view_looks_through_all_there_was_and_no_further) {
    Hoere(9000);
    LassHoeren(Unbeantwortet(5), false);
    ASSERT_TRUE(BisZeilen(9001));
    Setze("chkAnhalten", true);
    Setze("chkNurFehler", true);
    EXPECT_THAT(Label("lblStand"), HasSubstr("Filtern"));
    LassHoeren(Unbeantwortet(5), false);
    Erledige();
    EXPECT_EQ(Zeilen(), 1);
    EXPECT_THAT(Label("lblStand"), HasSubstr("9002 Austausche behalten (höchstens 100000), 1 gezeigt"));
    Druecke("cmdLeeren");
    LassHoeren(Unbeantwortet(5), false);
    Erledige();
    EXPECT_EQ(Zeilen(), 0);
}

TEST_F(frmBusprotokollTest, A_table_that_gets_the_focus_goes_on_following_and_shows_nothing_unasked) {
    Hoere(200);
    ASSERT_TRUE(BisZeilen(200));
    QFocusEvent fokus(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&Tabelle(), &fokus);
    ASSERT_EQ(Gewaehlte(), 0) << "what the table does by itself";
    EXPECT_TRUE(IstAn("chkFolgen"));
    EXPECT_EQ(Details(), "");
    Tabelle().selectRow(0);
    EXPECT_THAT(Details(), HasSubstr("Global: PNP-Ausgang"));
    EXPECT_FALSE(IstAn("chkFolgen"));
}

TEST_F(frmBusprotokollTest, Details_tell_the_chosen_exchange_in_words_and_bytes) {
    LassHoeren(Gelesen(0x4000 + 4, {17}));
    ASSERT_TRUE(BisZeilen(1));
    EXPECT_EQ(Details(), "");
    Waehle(0);
    EXPECT_THAT(Details(),
                HasSubstr("\nRegister: Kommunikation: Stations Adresse\nWerte: 11H\nGesendet: 01 03 40 04"));
}

TEST_F(frmBusprotokollTest, A_search_goes_from_the_chosen_row_on_and_around_the_end) {
    for (int i = 0; i < 3; ++i) {
        LassHoeren(Gelesen(193, {1}));
        LassHoeren(Geschrieben(212, {2}));
    }
    ASSERT_TRUE(BisZeilen(6));
    Kind<QLineEdit>("txtSuchen").setText("auswahl des OPTIK");
    std::vector<int> funde;
    for (int i = 0; i < 4; ++i) {
        Druecke("cmdNaechster");
        Erledige();
        funde.push_back(Gewaehlte());
    }
    EXPECT_THAT(funde, ElementsAre(1, 3, 5, 1));
    Druecke("cmdVoriger");
    Erledige();
    EXPECT_EQ(Gewaehlte(), 5);
}

TEST_F(frmBusprotokollTest, F3_and_enter_search_too_and_Ctrl_F_leads_to_the_field) {
    Hoere(3);
    ASSERT_TRUE(BisZeilen(3));
    QTest::keyClick(&fenster, Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(fenster.focusWidget()->objectName(), "txtSuchen");
    QTest::keyClicks(&Kind<QLineEdit>("txtSuchen"), "PNP");
    QTest::keyClick(&Kind<QLineEdit>("txtSuchen"), Qt::Key_Return);
    Erledige();
    EXPECT_EQ(Gewaehlte(), 0);
    QTest::keyClick(&fenster, Qt::Key_F3);
    Erledige();
    EXPECT_EQ(Gewaehlte(), 1);
    QTest::keyClick(&fenster, Qt::Key_F3, Qt::ShiftModifier);
    Erledige();
    EXPECT_EQ(Gewaehlte(), 0);
}

TEST_F(frmBusprotokollTest, In_an_empty_log_nothing_is_found) {
    Kind<QLineEdit>("txtSuchen").setText("212");
    Druecke("cmdNaechster");
    EXPECT_EQ(Label("lblMeldung"), "Nicht gefunden: 212");
}

TEST_F(frmBusprotokollTest, A_search_for_nothing_leads_to_the_field) {
    Hoere(3);
    ASSERT_TRUE(BisZeilen(3));
    fenster.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fenster));
    Kind<QTableView>("tblProtokoll").setFocus();
    Kind<QLineEdit>("txtSuchen").setText("  ");
    Druecke("cmdNaechster");
    EXPECT_TRUE(Kind<QLineEdit>("txtSuchen").hasFocus());
    EXPECT_EQ(Label("lblMeldung"), "");
}

TEST_F(frmBusprotokollTest, What_is_not_found_is_said) {
    Hoere(3);
    ASSERT_TRUE(BisZeilen(3));
    Kind<QLineEdit>("txtSuchen").setText("<b>x</b>");
    Druecke("cmdNaechster");
    Erledige();
    EXPECT_EQ(Label("lblMeldung"), "Nicht gefunden: <b>x</b>");
    EXPECT_EQ(Kind<QLabel>("lblMeldung").textFormat(), Qt::PlainText);
}

TEST_F(frmBusprotokollTest, A_search_through_a_full_log_goes_on_in_pieces_and_can_be_cancelled) {
    Hoere(100'000);
    ASSERT_TRUE(BisZeilen(100'000));
    Erledige();
    Kind<QLineEdit>("txtSuchen").setText("nirgends");
    Druecke("cmdNaechster");
    umgebung.ErledigeAufgeschobenes();
    EXPECT_FALSE(umgebung.aufgeschobenes.empty()) << "it is not through with it at one go";
    QTest::keyClick(&fenster, Qt::Key_Escape);
    EXPECT_EQ(Erledige(), 1);
    EXPECT_EQ(Label("lblMeldung"), "");
    EXPECT_TRUE(fenster.isVisible()) << "Escape ends the search first";
    QTest::keyClick(&fenster, Qt::Key_Escape);
    EXPECT_FALSE(fenster.isVisible());
}

TEST_F(frmBusprotokollTest, What_is_shown_is_saved_as_text_or_by_its_ending_as_CSV) {
    LassHoeren(Gelesen(193, {1}));
    LassHoeren(Unbeantwortet(5), false);
    ASSERT_TRUE(BisZeilen(2));
    Setze("chkNurFehler", true);
    Druecke("cmdSpeichern");
    Erledige();
    ASSERT_EQ(anbieter.geschrieben.size(), 1U);
    EXPECT_EQ(anbieter.geschrieben[0].first, "/tmp/bus.txt");
    EXPECT_THAT(anbieter.geschrieben[0].second, HasSubstr("** keine Antwort\n"));
    EXPECT_THAT(anbieter.geschrieben[0].second, Not(HasSubstr("PNP-Ausgang")));
    EXPECT_EQ(Label("lblMeldung"), "Gespeichert: /tmp/bus.txt");
    anbieter.pfad = "/tmp/bus.CSV";
    Druecke("cmdSpeichern");
    Erledige();
    EXPECT_THAT(anbieter.geschrieben[1].second, StartsWith("\xEF\xBB\xBFNummer;Zeit;"));
}

TEST_F(frmBusprotokollTest, A_file_that_could_not_be_written_is_not_called_saved) {
    Hoere(1);
    ASSERT_TRUE(BisZeilen(1));
    anbieter.gelingt = false;
    Druecke("cmdSpeichern");
    Erledige();
    EXPECT_EQ(anbieter.geschrieben.size(), 1U);
    EXPECT_EQ(Label("lblMeldung"), "");
}

TEST_F(frmBusprotokollTest, Without_a_path_nothing_is_written) {
    anbieter.pfad.reset();
    Druecke("cmdSpeichern");
    Druecke("cmdSupport");
    Erledige();
    EXPECT_TRUE(anbieter.geschrieben.empty());
}

TEST_F(frmBusprotokollTest, A_full_log_is_written_in_pieces_and_can_be_cancelled) {
    Hoere(100'000);
    ASSERT_TRUE(BisZeilen(100'000));
    Erledige();
    EXPECT_TRUE(Kind<QPushButton>("cmdCancel").isHidden());
    Druecke("cmdSpeichern");
    umgebung.ErledigeAufgeschobenes();
    EXPECT_THAT(Label("lblStand"), HasSubstr(" von 100000 Austauschen geschrieben"));
    EXPECT_FALSE(Kind<QPushButton>("cmdCancel").isHidden());
    Druecke("cmdCancel");
    Erledige();
    EXPECT_TRUE(anbieter.geschrieben.empty());
    EXPECT_TRUE(Kind<QPushButton>("cmdCancel").isHidden());
}

TEST_F(frmBusprotokollTest, The_selected_rows_are_copied_and_all_that_are_shown_where_none_is) {
    LassHoeren(Gelesen(193, {1}));
    LassHoeren(Unbeantwortet(5), false);
    ASSERT_TRUE(BisZeilen(2));
    Druecke("cmdKopieren");
    Erledige();
    EXPECT_THAT(QApplication::clipboard()->text().toStdString(), HasSubstr("PNP-Ausgang"));
    EXPECT_EQ(Label("lblMeldung"), "Zeilen kopiert: 2");
    Tabelle().selectRow(1);
    QTest::keyClick(&Tabelle(), Qt::Key_C, Qt::ControlModifier);
    Erledige();
    EXPECT_THAT(QApplication::clipboard()->text().toStdString(), Not(HasSubstr("PNP-Ausgang")));
    EXPECT_THAT(QApplication::clipboard()->text().toStdString(), HasSubstr("keine Antwort"));
}

TEST_F(frmBusprotokollTest, What_goes_to_support_is_said_before_it_is_saved) {
    modEreignisse::Merke({.art = Ereignisart::Befehl, .text = "Verbinden"});
    Hoere(1);
    ASSERT_TRUE(BisZeilen(1));
    Setze("chkNurFehler", true);
    Druecke("cmdSupport");
    Erledige();
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_THAT(umgebung.meldungen[0].text, HasSubstr("- das ganze Busprotokoll dieses Fensters\n"));
    EXPECT_THAT(umgebung.meldungen[0].details, HasSubstr("  Verbinden\n"));
    ASSERT_EQ(anbieter.geschrieben.size(), 1U);
    const std::string& datei = anbieter.geschrieben[0].second;
    EXPECT_THAT(datei, StartsWith("Angaben für den Support, "));
    EXPECT_THAT(datei, HasSubstr("== Versionen ==\nVarnoth Monitor 1.0.0\n"));
    EXPECT_THAT(datei, HasSubstr("Passwort=••\n"));
    EXPECT_THAT(datei, HasSubstr("== Busprotokoll ==\n"));
    EXPECT_THAT(datei, HasSubstr("Global: PNP-Ausgang")) << "all of the log, whatever is shown";
}

TEST_F(frmBusprotokollTest, Who_does_not_want_that_is_not_asked_for_a_file) {
    umgebung.antworten = {Antwort::Abbrechen};
    Druecke("cmdSupport");
    EXPECT_TRUE(anbieter.gefragt.empty());
}

TEST_F(frmBusprotokollTest, The_service_password_is_nowhere_in_the_window_and_its_files) {
    modService::SetzeServiceText("Varnoth-Service1");
    const Probe passwort = Geschrieben(178, {0x5661, 0x726E, 0x6F74, 0x682D, 0x5365, 0x7276, 0x6963, 0x6531});
    LassHoeren(passwort);
    LassHoeren(Geschrieben(178, {0x5661}));
    ASSERT_TRUE(BisZeilen(2));
    Waehle(0);
    Druecke("cmdSpeichern");
    Erledige();
    Druecke("cmdSupport");
    Erledige();
    std::string alles = Details();
    for (int spalte = 0; spalte < Busmodell::Spaltenzahl; ++spalte)
        alles += Text(0, spalte) + Text(1, spalte);
    for (const auto& [pfad, datei] : anbieter.geschrieben)
        alles += datei;
    EXPECT_THAT(alles, HasSubstr("01 10 00 B2 00 08 10 •• ••"));
    for (const char* spur : {"56 61", "72 6E", "6F 74", "65 31", "Varnoth-Service1"})
        EXPECT_THAT(alles, Not(HasSubstr(spur)));
}

TEST_F(frmBusprotokollTest, Clearing_empties_the_log_and_recording_goes_on) {
    Hoere(5);
    ASSERT_TRUE(BisZeilen(5));
    Waehle(2);
    Druecke("cmdLeeren");
    EXPECT_EQ(Zeilen(), 0);
    EXPECT_EQ(Details(), "");
    EXPECT_TRUE(IstAn("chkFolgen"));
    Hoere(1);
    EXPECT_TRUE(BisZeilen(1));
}

TEST_F(frmBusprotokollTest, The_register_of_a_row_can_be_had_alone_even_when_it_has_no_name) {
    LassHoeren(Gelesen(100, {1}));
    LassHoeren(Gelesen(193, {1}));
    ASSERT_TRUE(BisZeilen(2));
    const QPoint stelle = Tabelle().visualRect(Tabelle().model()->index(0, 1)).center();
    emit Tabelle().customContextMenuRequested(stelle);
    auto* const menue = Tabelle().findChild<QMenu*>("mnuProtokollzeile");
    ASSERT_NE(menue, nullptr);
    menue->actions().constFirst()->trigger();
    EXPECT_EQ(Zeilen(), 1);
    EXPECT_EQ(Text(0, 3), "Global: 100");
    EXPECT_EQ(Kind<QComboBox>("cboRegister").currentText(), "Global: 100");
    menue->close();
}

TEST_F(frmBusprotokollTest, Follows_the_language_and_keeps_what_was_chosen) {
    Hoere(1);
    ASSERT_TRUE(BisZeilen(1));
    Kind<QComboBox>("cboArt").setCurrentIndex(1);
    Kind<QComboBox>("cboRegister").setCurrentIndex(3);
    SetzeSprachoffset(Englisch);
    fenster.Lokalisiere();
    EXPECT_EQ(fenster.windowTitle(), "Bus log");
    EXPECT_EQ(Kind<QComboBox>("cboArt").currentText(), "Read (03)");
    EXPECT_EQ(Kind<QComboBox>("cboRegister").currentIndex(), 3);
}

TEST_F(frmBusprotokollTest, Comes_back_where_it_was_closed) {
    fenster.resize(900, 500);
    fenster.close();
    EXPECT_EQ((einstellungen.texte[{"frmBusprotokoll", "Width"}]), std::to_string(900 * 15));
}

} // namespace varnoth
