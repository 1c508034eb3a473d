#include "frmWiedergabe.h"

#include "bedienelement.h"
#include "fenstertest.h"
#include "pruefmessquelle.h"
#include "pruefumgebung.h"
#include "texte.h"
#include "wiedergabeworte.h"
#include "zeitleiste.h"
#include "zeitworte.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace varnoth {

using namespace pruefung;
using namespace std::chrono_literals;
using enum Messereignisart;

namespace {

struct PruefSteuerung : Wiedergabesteuerung {
    const Messquelle& Quelle() const override { return quelle; }
    Wiedergabe& Stand() override { return *stand; }
    Wiedergabelage Zeige() override {
        gezeigt.push_back(stand->Position());
        return StelleUm(quelle, stand->Position()).lage;
    }
    void Verlasse() override { getan += "verlasse "; }
    void BerichteKonfiguration() override { getan += "berichte "; }
    void VergleicheKonfiguration() override { getan += "vergleiche "; }
    void SpeichereKonfiguration() override { getan += "speichere "; }

    PruefMessquelle quelle;
    std::optional<Wiedergabe> stand;
    std::vector<Zeit> gezeigt;
    std::string getan;
};

class FrmWiedergabeTest : public testing::Test {
protected:
    FrmWiedergabeTest() {
        for (int s = 0; s < 60; ++s) {
            Messpaket paket;
            for (int i = 0; i < 10; ++i) {
                Messdurchgang durchgang{.uhr = s * 1s + i * 100ms, .anzahlTeile = 1};
                durchgang.teile[0] = {.vorhanden = true,
                                      .gemessen = true,
                                      .status = static_cast<std::uint16_t>(s < 20 ? 0x81 : 0x84),
                                      .strahlen = 16};
                paket.durchgaenge.push_back(durchgang);
            }
            if (s == 40)
                paket.ereignisse.push_back({.art = Notiz, .laufzeit = 40'500ms, .text = "<b>Bahn</b>"});
            if (s == 59)
                paket.ereignisse.push_back({.art = Verloren, .laufzeit = 59'950ms});
            if (s == 59)
                paket.spanne = {59s, 59'950ms};
            steuerung.quelle.Nimm(paket);
        }
        steuerung.quelle.angaben = {.beginn = Systemzeit(1'795'358'598s), .zoneMinuten = 60};
        steuerung.stand.emplace(steuerung.quelle);
        leiste = std::make_unique<frmWiedergabe>(steuerung);
        leiste->resize(1100, leiste->sizeHint().height());
        leiste->show();
        leiste->Beginne();
    }
    template<class Element>
    Element& Kind(const char* name) {
        return pruefung::Kind<Element>(*leiste, name);
    }
    void Klicke(const char* name) { Kind<QPushButton>(name).click(); }
    /// Types into the field for the time and presses Enter.
    void Tippe(const char* text) {
        auto& feld = Kind<QLineEdit>("txtZeit");
        feld.setText(QString::fromUtf8(text));
        QTest::keyClick(&feld, Qt::Key_Return);
    }
    Zeit Position() { return steuerung.stand->Position(); }
    Zeitleiste& Leiste() { return Kind<Zeitleiste>("zltAufzeichnung"); }
    std::string Meldung() { return Kind<QLabel>("lblMeldung").text().toStdString(); }

    PruefUmgebung umgebung;
    PruefEinstellungen einstellungen;
    PruefSteuerung steuerung;
    std::unique_ptr<frmWiedergabe> leiste;
};

} // namespace

TEST_F(FrmWiedergabeTest, Begins_at_the_beginning_with_its_time_of_day) {
    EXPECT_EQ(Position(), 0s);
    EXPECT_EQ(Kind<QLabel>("lblPosition").text().toStdString(),
              "22.11.2026 15:43:18,000   +0:00,0 von 0:59,9");
    EXPECT_EQ(steuerung.gezeigt.back(), 0s);
}

TEST_F(FrmWiedergabeTest, Plays_by_the_clock_and_stands_still_again) {
    Klicke("cmdAbspielen");
    EXPECT_EQ(Kind<QPushButton>("cmdAbspielen").accessibleName(), "Anhalten");
    umgebung.uhr += 3s;
    ASSERT_TRUE(WarteBis([&] { return steuerung.gezeigt.back() == 3s; }));
    Klicke("cmdAbspielen");
    EXPECT_EQ(Kind<QPushButton>("cmdAbspielen").accessibleName(), "Abspielen");
    umgebung.uhr += 3s;
    Klicke("cmdDurchgangVor");
    EXPECT_EQ(Position(), 3'100ms);
}

TEST_F(FrmWiedergabeTest, The_end_stops_it_and_says_that_the_connection_was_lost) {
    Klicke("cmdAbspielen");
    umgebung.uhr += 1h;
    ASSERT_TRUE(WarteBis([&] { return !steuerung.stand->Laeuft() && !Meldung().empty(); }));
    EXPECT_EQ(Meldung(), LadeText(6526));
    EXPECT_EQ(Kind<QPushButton>("cmdAbspielen").accessibleName(), "Abspielen");
    Klicke("cmdDurchgangZurueck");
    EXPECT_EQ(Meldung(), "");
}

TEST_F(FrmWiedergabeTest, Buttons_go_by_single_passes) {
    Klicke("cmdDurchgangVor");
    Klicke("cmdDurchgangVor");
    EXPECT_EQ(Position(), 200ms);
    Klicke("cmdDurchgangZurueck");
    EXPECT_EQ(Position(), 100ms);
    EXPECT_EQ(steuerung.gezeigt.back(), 100ms);
}

TEST_F(FrmWiedergabeTest, Buttons_go_from_event_to_event_and_say_which) {
    Klicke("cmdEreignisVor");
    ASSERT_TRUE(WarteBis([&] { return Position() == 20s; }));
    EXPECT_EQ(Meldung(), "Zustand von Optikteil 1 anders");
    Klicke("cmdEreignisVor");
    ASSERT_TRUE(WarteBis([&] { return Position() == 40'500ms; }));
    EXPECT_EQ(Meldung(), "Notiz: <b>Bahn</b>");
    EXPECT_EQ(Kind<QLabel>("lblMeldung").textFormat(), Qt::PlainText);
    Klicke("cmdEreignisZurueck");
    ASSERT_TRUE(WarteBis([&] { return Position() == 20s; }));
    Klicke("cmdEreignisZurueck");
    ASSERT_TRUE(WarteBis([&] { return Meldung() == LadeText(6531); }));
    EXPECT_EQ(Position(), 20s);
}

TEST_F(FrmWiedergabeTest, Only_the_chosen_kind_of_event_is_jumped_to) {
    const std::pair<int, Zeit> proben[] = {{1, 59'950ms}, {3, 20s}, {5, 40'500ms}};
    for (const auto& probe : proben) {
        Kind<QComboBox>("cboEreignis").setCurrentIndex(probe.first);
        steuerung.stand->GeheZu(0s, umgebung.uhr);
        Klicke("cmdEreignisVor");
        EXPECT_TRUE(WarteBis([&] { return Position() == probe.second; })) << probe.first;
    }
}

TEST_F(FrmWiedergabeTest, A_jump_stops_playing) {
    Klicke("cmdAbspielen");
    Klicke("cmdEreignisVor");
    EXPECT_FALSE(steuerung.stand->Laeuft());
}

TEST_F(FrmWiedergabeTest, The_speed_is_that_which_was_chosen) {
    auto& tempo = Kind<QComboBox>("cboTempo");
    EXPECT_EQ(tempo.currentText(), QString::fromUtf8("1 ×"));
    EXPECT_EQ(tempo.itemText(0), QString::fromUtf8("0,1 ×"));
    tempo.setCurrentIndex(tempo.count() - 1);
    EXPECT_EQ(steuerung.stand->Tempo(), 100);
    tempo.setCurrentIndex(0);
    EXPECT_EQ(steuerung.stand->Tempo(), 0.1);
}

TEST_F(FrmWiedergabeTest, Keys_do_what_the_buttons_do) {
    QTest::keyClick(&Leiste(), Qt::Key_Right);
    EXPECT_EQ(Position(), 100ms);
    QTest::keyClick(&Leiste(), Qt::Key_Left);
    EXPECT_EQ(Position(), 0s);
    QTest::keyClick(&Leiste(), Qt::Key_Right, Qt::ControlModifier);
    EXPECT_TRUE(WarteBis([&] { return Position() == 20s; }));
    QTest::keyClick(&Leiste(), Qt::Key_End);
    EXPECT_EQ(Position(), 59'950ms);
    QTest::keyClick(&Leiste(), Qt::Key_Home);
    EXPECT_EQ(Position(), 0s);
    QTest::keyClick(&Leiste(), Qt::Key_Plus);
    EXPECT_EQ(steuerung.stand->Tempo(), 2);
    QTest::keyClick(&Leiste(), Qt::Key_Minus);
    QTest::keyClick(&Leiste(), Qt::Key_Minus);
    EXPECT_EQ(steuerung.stand->Tempo(), 0.5);
    QTest::keyClick(&Leiste(), Qt::Key_Space);
    EXPECT_TRUE(steuerung.stand->Laeuft());
}

TEST_F(FrmWiedergabeTest, The_time_line_is_clicked_and_dragged) {
    const QPoint mitte = Leiste().rect().center();
    QTest::mousePress(&Leiste(), Qt::LeftButton, {}, mitte);
    EXPECT_NEAR(static_cast<double>(Position().count()), 29'975'000, 100'000);
    QMouseEvent zug(QEvent::MouseMove, QPointF(Leiste().width() + 50, mitte.y()), QPointF(), Qt::NoButton,
                    Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&Leiste(), &zug);
    EXPECT_EQ(Position(), 59'950ms);
}

TEST_F(FrmWiedergabeTest, The_time_line_says_where_the_replay_stands) {
    EXPECT_EQ(Leiste().accessibleName(), "Zeitleiste der Aufzeichnung");
    Klicke("cmdDurchgangVor");
    EXPECT_EQ(Leiste().accessibleDescription().toStdString(),
              Positionstext(steuerung.quelle.angaben, steuerung.quelle.Spanne(), 100ms));
}

TEST_F(FrmWiedergabeTest, Notes_and_changes_are_seen_on_the_time_line) {
    const QImage ohne = Leiste().grab().toImage();
    int vorher = steuerung.quelle.gelesen;
    ASSERT_TRUE(WarteBis([&] { return std::exchange(vorher, steuerung.quelle.gelesen) >= 60; }));
    ASSERT_TRUE(WarteBis([&] { return Leiste().grab().toImage() != ohne; })) << "the flag of the note";
}

TEST_F(FrmWiedergabeTest, A_time_of_day_that_is_typed_is_jumped_to) {
    Tippe("15:43:30,5");
    EXPECT_EQ(Position(), 12'500ms);
    EXPECT_EQ(steuerung.gezeigt.back(), 12'500ms);
    Tippe("22.11.2026 15:44");
    EXPECT_EQ(Position(), 42s);
    EXPECT_EQ(Meldung(), "");
}

TEST_F(FrmWiedergabeTest, What_is_no_time_or_not_in_the_record_is_told_and_the_replay_stays_where_it_is) {
    Tippe("15:43:30");
    Tippe("<b>halb</b> drei");
    EXPECT_EQ(Meldung(), "„<b>halb</b> drei“ ist keine Uhrzeit wie 14:05:30 oder 22.11.2026 14:05.");
    Tippe("16:00");
    EXPECT_EQ(Meldung(), "Die Aufzeichnung reicht nur von 22.11.2026 15:43:18 bis 15:44:17.");
    EXPECT_EQ(Position(), 12s);
    QTest::keyClick(&Kind<QLineEdit>("txtZeit"), Qt::Key_1);
    EXPECT_EQ(Meldung(), "") << "it is being corrected";
}

TEST_F(FrmWiedergabeTest,
       What_is_wrong_with_a_time_that_was_typed_stays_told_where_there_is_nothing_to_be_seen) {
    steuerung.stand->GeheZu(59'950ms, umgebung.uhr);
    leiste->Folge();
    ASSERT_EQ(Meldung(), LadeText(6526));
    Tippe("x");
    leiste->Folge();
    EXPECT_NE(Meldung().find("„x“ ist keine Uhrzeit"), std::string::npos);
    Klicke("cmdDurchgangZurueck");
    EXPECT_EQ(Meldung(), "");
}

TEST_F(FrmWiedergabeTest, The_field_for_the_time_is_reached_with_the_keyboard_and_has_a_name) {
    auto& feld = Kind<QLineEdit>("txtZeit");
    leiste->activateWindow();
    ASSERT_TRUE(WarteBis([&] { return leiste->isActiveWindow(); }));
    Kind<QComboBox>("cboTempo").setFocus();
    QTest::keyClick(&Kind<QComboBox>("cboTempo"), Qt::Key_Tab);
    EXPECT_TRUE(feld.hasFocus());
    EXPECT_EQ(Kind<QLabel>("lblZeit").text(), "Zur Uhrzeit");
    EXPECT_EQ(Kind<QLabel>("lblZeit").buddy(), &feld);
}

TEST_F(FrmWiedergabeTest, Leaves_and_leads_to_the_record_s_configuration) {
    for (const char* name :
         {"mnuAufzeichnungBericht", "mnuAufzeichnungVergleich", "mnuAufzeichnungSpeichern"})
        Kind<QAction>(name).trigger();
    Klicke("cmdVerlassen");
    EXPECT_EQ(steuerung.getan, "berichte vergleiche speichere verlasse ");
}

TEST_F(FrmWiedergabeTest, Speaks_the_language_that_is_chosen) {
    SetzeSprachoffset(Englisch);
    leiste->Lokalisiere();
    leiste->Folge();
    EXPECT_EQ(Kind<QPushButton>("cmdVerlassen").text(), "End replay");
    EXPECT_EQ(Kind<QComboBox>("cboTempo").itemText(0), QString::fromUtf8("0.1 ×"));
    EXPECT_EQ(Kind<QLabel>("lblPosition").text().toStdString(),
              "2026-11-22 15:43:18.000   +0:00.0 of 0:59.9");
    EXPECT_EQ(Kind<QComboBox>("cboEreignis").currentText(), "Every event");
}

TEST_F(FrmWiedergabeTest, Every_control_has_a_name_for_those_who_do_not_see_it) {
    for (const QPushButton* knopf : leiste->findChildren<QPushButton*>())
        EXPECT_FALSE(knopf->accessibleName().isEmpty() && knopf->text().isEmpty())
            << knopf->objectName().toStdString();
}

TEST(WiedergabeworteTest, Times_are_told_as_a_reader_writes_them) {
    EXPECT_EQ(Laufzeittext(0s), "0:00,0");
    EXPECT_EQ(Laufzeittext(65'430ms), "1:05,4");
    EXPECT_EQ(Laufzeittext(3h + 2min + 1s), "3:02:01,0");
    EXPECT_EQ(Laufzeittext(200h), "200:00:00,0");
    EXPECT_EQ(Laufzeittext(-5s), "0:00,0");
    const Messangaben angaben{.beginn = Systemzeit(0s), .zoneMinuten = -90};
    EXPECT_EQ(Zeitworte(angaben, 1'500ms), "31.12.1969 22:30:01,500");
}

TEST(WiedergabeworteTest, The_span_of_a_record_names_the_day_of_its_end_where_that_is_another) {
    const Messangaben angaben{.beginn = Systemzeit(0s)};
    EXPECT_EQ(Spannentext(angaben, {0s, 90s}),
              "Die Aufzeichnung reicht nur von 01.01.1970 00:00:00 bis 00:01:30.");
    EXPECT_EQ(Spannentext(angaben, {0s, 25h}),
              "Die Aufzeichnung reicht nur von 01.01.1970 00:00:00 bis 02.01.1970 01:00:00.");
}

TEST(WiedergabeworteTest, Every_event_has_words_of_its_own) {
    std::vector<std::string> texte;
    for (const bool ein : {false, true}) {
        texte.push_back(Fundtext({.art = Sprungart::Ausgang, .ein = ein}));
        texte.push_back(Fundtext({.art = Sprungart::Teil, .teil = 2, .ein = ein}));
    }
    texte.push_back(Fundtext({.art = Sprungart::Zustand, .teil = 1}));
    texte.push_back(Fundtext({.art = Sprungart::Zustand}));
    texte.push_back(Fundtext({.art = Sprungart::Notiz, .text = "x"}));
    for (const auto art : {LiveBegonnen, LiveBeendet, Verloren, Zurueck})
        texte.push_back(Fundtext({.art = Sprungart::Verbindung, .ereignis = art}));
    EXPECT_EQ(texte, (std::vector<std::string>{"Schaltausgang aus", "Optikteil 3 fort", "Schaltausgang ein",
                                               "Optikteil 3 wieder da", "Zustand von Optikteil 2 anders",
                                               "Zustand des Steuergeräts anders", "Notiz: x",
                                               "Live-Daten begonnen", "Live-Daten beendet",
                                               "Verbindung verloren", "Verbindung wieder da"}));
}

TEST_F(FrmWiedergabeTest, A_sentence_about_a_typed_time_can_be_read_whole_in_a_narrow_window) {
    steuerung.quelle.angaben.beginn += 8h + 16min + 12s; // it goes on behind midnight
    auto& meldung = Kind<QLabel>("lblMeldung");
    for (const std::int16_t sprache : {Deutsch, Englisch}) {
        SetzeSprachoffset(sprache);
        leiste->Lokalisiere();
        leiste->resize(880, leiste->sizeHint().height());
        const int hoehe = leiste->height();
        for (const char* const eingabe :
             {"25.11.2026 14:05:30", "irgendwann am Nachmittag, etwa halb drei"}) {
            Tippe(eingabe);
            const int laenge = meldung.fontMetrics().horizontalAdvance(meldung.toolTip());
            leiste->resize(leiste->width() + laenge * 4 / 5 - meldung.width(), hoehe);
            QApplication::processEvents();
            EXPECT_GT(laenge, meldung.width()) << eingabe << ": it needs more than one line";
            EXPECT_EQ(meldung.text(), meldung.toolTip()) << "all of it";
            const int noetig = meldung.heightForWidth(meldung.width());
            EXPECT_TRUE(meldung.wordWrap());
            EXPECT_GT(2 * noetig, 3 * meldung.fontMetrics().lineSpacing()) << "it has another";
            EXPECT_LE(noetig, meldung.height());
            EXPECT_EQ(leiste->sizeHint().height(), hoehe) << "nothing moves";
        }
    }
}

TEST_F(FrmWiedergabeTest, A_note_that_is_too_long_ends_with_an_ellipsis_and_is_whole_in_its_tool_tip) {
    const std::string lange = "Bahn gewechselt, " + std::string(300, 'x');
    steuerung.quelle.pakete.at(40).ereignisse.front().text = lange;
    Kind<QComboBox>("cboEreignis").setCurrentIndex(5);
    Klicke("cmdEreignisVor");
    auto& meldung = Kind<QLabel>("lblMeldung");
    ASSERT_TRUE(WarteBis([&] { return meldung.text().startsWith("Notiz: Bahn"); }));
    EXPECT_TRUE(meldung.text().endsWith(u'…'));
    EXPECT_EQ(meldung.toolTip().toStdString(), "Notiz: " + lange);

    const auto kurze = meldung.text().size();
    leiste->resize(leiste->width() + 300, leiste->height());
    QApplication::processEvents();
    EXPECT_GT(meldung.text().size(), kurze) << "more of it where there is more room";
}

TEST_F(FrmWiedergabeTest, Of_a_long_input_that_is_no_time_the_beginning_is_quoted) {
    leiste->resize(2000, leiste->sizeHint().height());
    Tippe("irgendwann am Nachmittag, etwa halb drei");
    EXPECT_TRUE(Meldung().starts_with("„irgendwann am Nachmitta…“ ist keine Uhrzeit")) << Meldung();
    Tippe("am Nachmittag um halb 3!");
    EXPECT_TRUE(Meldung().starts_with("„am Nachmittag um halb 3!“ ist")) << Meldung();
}

} // namespace varnoth
