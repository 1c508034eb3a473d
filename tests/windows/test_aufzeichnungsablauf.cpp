#include "aufzeichnungsablauf.h"

#include "aufzeichnungsmarke.h"
#include "bedienelement.h"
#include "dateidialog.h"
#include "dateieingabe.h"
#include "dateien.h"
#include "ereignisse.h"
#include "fenstertest.h"
#include "messhoerer.h"
#include "messspeicher.h"
#include "nebenfaden.h"
#include "pruefablage.h"
#include "pruefumgebung.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "schranke.h"
#include "texte.h"
#include "vrecleser.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <memory>
#include <stdexcept>
#include <vector>

namespace varnoth {

using pruefung::WarteBis;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

/// Recordings into a folder that is really there.
class AufzeichnungsablaufTest : public testing::Test {
protected:
    AufzeichnungsablaufTest() {
        SetzeSprachoffset(Englisch);
        Setze("Ordner", ordner.path().toStdString());
        Setze("Vrec", "0");
        leiste.show();
    }
    ~AufzeichnungsablaufTest() override {
        SetzeDateiantwort({});
        if (ablage != nullptr)
            ablage->LasseLos();
    }

    void Setze(const char* schluessel, const std::string& text) {
        einstellungen.texte[{"Aufzeichnung", schluessel}] = text;
    }
    Aufzeichnungsablauf& Ablauf() {
        if (!ablauf)
            ablauf = std::make_unique<Aufzeichnungsablauf>(
                Aufzeichnungsablauf::Ziel{.leiste = leiste,
                                          .zeige = [this] { ++verlangt; },
                                          .laeuft = [this](bool laeuft) { gemeldet.push_back(laeuft); },
                                          .speicher = &speicher,
                                          .uhr = [this] { return Um(); },
                                          .ablage = ablage,
                                          .schreibe = schreibe});
        return *ablauf;
    }
    /// The clock of this test, moved on by hand.
    Augenblick Um() const {
        const auto jetzt = std::chrono::steady_clock::now() - begonnen + std::chrono::minutes(minuten);
        return {.uhr = std::chrono::floor<Zeit>(jetzt), .zeit = std::chrono::system_clock::now()};
    }
    void MeldeDurchgang(std::uint16_t wert) {
        Messdurchgang durchgang;
        durchgang.uhr = umgebung.uhr += std::chrono::milliseconds(100);
        durchgang.anzahlTeile = 1;
        durchgang.teile[0] = {.vorhanden = true, .gemessen = true, .strahlen = 8};
        durchgang.teile[0].werte[0] = wert;
        modMesshoerer::Melde(durchgang);
    }
    /// Begins a recording whose disk falls silent with this first pass. Whether it has.
    bool ZeichneAufStummenTraegerAuf(std::uint16_t wert) {
        ablage = std::make_shared<pruefung::PruefAblage>();
        Ablauf().Schalte();
        ablage->Halte();
        MeldeDurchgang(wert);
        return WarteBis([this] { return ablage->HaeltJemanden(); });
    }
    void FuelleSpeicher() {
        for (int i = 1; i <= 1200; ++i) {
            Messdurchgang durchgang;
            durchgang.uhr = std::chrono::seconds(i);
            durchgang.anzahlTeile = 1;
            speicher.Nimm(durchgang);
        }
        SetzeDateiantwort([this](const Dateifrage&) { return ordner.filePath("saved.vrec").toStdString(); });
    }
    /// Clicks on saving the memory in the window.
    void SichereSpeicher() {
        Ablauf().Zeige();
        Im<QPushButton>("cmdSichern").click();
    }
    /// Waits in pauses in which put-off work is done.
    template<class Bedingung>
    bool Bis(Bedingung bedingung) {
        return WarteBis([&] {
            umgebung.ErledigeAufgeschobenes();
            return bedingung();
        });
    }
    static std::string Letzte() { return Im<QLabel>("lblZuletzt").text().toStdString(); }
    static std::vector<Ereignisart> Ereignisarten() {
        std::vector<Ereignisart> arten;
        for (auto i = modEreignisse::Alle().Erstes(); i < modEreignisse::Alle().Ende(); ++i)
            arten.push_back(modEreignisse::Alle().Hole(i).art);
        return arten;
    }
    QStringList Dateien() const { return QDir(ordner.path()).entryList(QDir::Files, QDir::Name); }
    std::string Inhalt(const QString& name) const {
        return LiesDatei(ordner.filePath(name).toStdString(), 1 << 20).bytes;
    }
    QPushButton& Marke() { return *leiste.findChild<QPushButton*>("cmdAufzeichnungsmarke"); }
    static QWidget& Fenster() {
        for (QWidget* const fenster : QApplication::topLevelWidgets())
            if (fenster->objectName() == "frmAufzeichnung")
                return *fenster;
        throw std::runtime_error("no window");
    }
    template<class Element>
    static Element& Im(const char* name) {
        return pruefung::Kind<Element>(Fenster(), name);
    }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefEinstellungen einstellungen;
    QTemporaryDir ordner;
    QStatusBar leiste;
    const std::chrono::steady_clock::time_point begonnen = std::chrono::steady_clock::now();
    std::atomic<int> minuten = 0;
    Messspeicher speicher{{}, Zeit{}};
    int verlangt = 0;
    std::vector<bool> gemeldet;
    std::shared_ptr<pruefung::PruefAblage> ablage; ///< in place of the folder
    Speichersicherung::Schreiber schreibe;         ///< in place of the folder
    std::unique_ptr<Aufzeichnungsablauf> ablauf;
};

TEST_F(AufzeichnungsablaufTest, What_has_gone_hears_no_more_of_live_data) {
    Ablauf();
    EXPECT_TRUE(modMesshoerer::HoertJemand());
    ablauf.reset();
    EXPECT_FALSE(modMesshoerer::HoertJemand());
}

TEST_F(AufzeichnungsablaufTest, One_click_records_every_pass_and_a_second_one_ends_it) {
    Ablauf().Schalte();
    EXPECT_TRUE(Ablauf().Laeuft());
    MeldeDurchgang(4711);
    MeldeDurchgang(4712);
    Ablauf().Schalte();
    EXPECT_FALSE(Ablauf().Laeuft());
    MeldeDurchgang(4713);
    ASSERT_EQ(Dateien().size(), 1);
    EXPECT_TRUE(Dateien().front().endsWith(".csv"));
    const std::string text = Inhalt(Dateien().front());
    EXPECT_THAT(text, HasSubstr(",4711,"));
    EXPECT_THAT(text, HasSubstr(",4712,"));
    EXPECT_THAT(text, Not(HasSubstr(",4713,")));
    EXPECT_THAT(gemeldet, ElementsAre(true, false));
}

TEST_F(AufzeichnungsablaufTest, While_recording_all_parts_are_needed_and_live_data_goes_on_by_itself) {
    Ablauf();
    EXPECT_FALSE(modMesshoerer::Braucht(2));
    EXPECT_FALSE(modMesshoerer::LaeuftAllein());
    Ablauf().Schalte();
    EXPECT_TRUE(modMesshoerer::Braucht(2));
    EXPECT_TRUE(modMesshoerer::LaeuftAllein());
    Ablauf().Schalte();
    EXPECT_FALSE(modMesshoerer::Braucht(2));
    EXPECT_FALSE(modMesshoerer::LaeuftAllein());
}

TEST_F(AufzeichnungsablaufTest, What_happens_to_the_connection_stands_between_the_passes) {
    Ablauf().Schalte();
    MeldeDurchgang(1);
    for (const auto art : {Liveereignisart::Verloren, Liveereignisart::Zurueck, Liveereignisart::Beendet,
                           Liveereignisart::Begonnen})
        modMesshoerer::Melde(art);
    MeldeDurchgang(2);
    Ablauf().Notiere(umgebung.uhr + std::chrono::seconds(1), {}, "web changed");
    Ablauf().Schalte();
    const std::string text = Inhalt(Dateien().front());
    std::size_t stelle = 0;
    for (const char* const wort : {"\"Connection lost\"", "\"Connection back\"", "\"Live data ended\"",
                                   "\"Live data started\"", ",2,0,0,0,", "\"Note: web changed\""}) {
        stelle = text.find(wort, stelle);
        EXPECT_NE(stelle, std::string::npos) << wort;
    }
}

TEST_F(AufzeichnungsablaufTest, A_changed_configuration_is_in_force_for_the_passes_behind_it) {
    Ablauf().Schalte();
    MeldeDurchgang(7001);
    Werte muster(spezifisch::Blankingregister, 0);
    muster[0] = 0x0300;
    ASSERT_TRUE(modDaten::SetzeParameter(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Blankingmuster,
                                         muster));
    MeldeDurchgang(7002);
    Ablauf().Schalte();
    const std::string text = Inhalt(Dateien().front());
    EXPECT_THAT(text, HasSubstr(",7001,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0x00,"));
    EXPECT_THAT(text, HasSubstr(",7002,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,2,0,0x00,"));
}

TEST_F(AufzeichnungsablaufTest, The_mark_is_there_while_it_records_and_leads_to_the_window) {
    Ablauf();
    EXPECT_FALSE(Marke().isVisible());
    Ablauf().Schalte();
    EXPECT_TRUE(Marke().isVisible());
    EXPECT_TRUE(Marke().text().startsWith("Recording 00:00:0"));
    EXPECT_FALSE(Marke().text().contains("waiting:"));
    EXPECT_EQ(Marke().accessibleName(), Marke().text());
    Marke().click();
    EXPECT_EQ(verlangt, 1);
    Ablauf().Schalte();
    EXPECT_FALSE(Marke().isVisible());
}

TEST_F(AufzeichnungsablaufTest, The_mark_says_what_a_click_does_and_leaves_the_keyboard_to_the_window) {
    Aufzeichnungsmarke marke(leiste);
    EXPECT_FALSE(marke.isVisible());
    EXPECT_FALSE(marke.icon().isNull());
    EXPECT_TRUE(marke.isFlat());
    EXPECT_EQ(marke.focusPolicy(), Qt::NoFocus);
    marke.Zeige("R & D");
    EXPECT_TRUE(marke.isVisible());
    EXPECT_EQ(marke.text(), "R && D") << "no letter is marked";
    EXPECT_EQ(marke.accessibleName(), "R & D");
    EXPECT_EQ(marke.toolTip().toStdString(), "R & D\n" + LadeText(6229));
}

TEST_F(AufzeichnungsablaufTest, The_mark_follows_the_language) {
    Ablauf().Schalte();
    SetzeSprachoffset(Deutsch);
    Ablauf().Lokalisiere();
    EXPECT_TRUE(Marke().text().startsWith("Aufzeichnung 00:"));
}

TEST_F(AufzeichnungsablaufTest, A_folder_that_cannot_be_written_is_told_and_nothing_begins) {
    QFile hindernis(ordner.filePath("file"));
    ASSERT_TRUE(hindernis.open(QIODevice::WriteOnly));
    Setze("Ordner", ordner.filePath("file/below").toStdString());
    Ablauf().Schalte();
    EXPECT_TRUE(WarteBis([&] { return !Ablauf().Laeuft(); }));
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_THAT(umgebung.meldungen.front().text, HasSubstr("The recording cannot begin."));
    EXPECT_FALSE(Marke().isVisible());
    EXPECT_TRUE(Ereignisarten().empty());
}

TEST_F(AufzeichnungsablaufTest, A_disk_that_does_not_answer_at_the_beginning_is_told_once_and_all_is_kept) {
    ablage = std::make_shared<pruefung::PruefAblage>();
    ablage->Halte();
    QElapsedTimer vergangen;
    vergangen.start();
    Ablauf().Schalte();
    EXPECT_LT(vergangen.elapsed(), 2000) << "the window goes on";
    EXPECT_TRUE(Ablauf().Laeuft());
    EXPECT_TRUE(Marke().isVisible());
    MeldeDurchgang(4711);
    EXPECT_EQ(umgebung.statustexte[0], "");
    minuten = 1;
    ASSERT_TRUE(WarteBis([&] { return !umgebung.statustexte[0].empty(); }));
    EXPECT_THAT(umgebung.statustexte[0], HasSubstr("The disk does not answer."));
    EXPECT_THAT(Marke().text().toStdString(), HasSubstr("The disk does not answer."));
    umgebung.statustexte[0] = "something else";
    Ablauf().Lokalisiere(); // looks again
    EXPECT_EQ(umgebung.statustexte[0], "something else");
    ablage->LasseLos();
    ASSERT_TRUE(WarteBis([&] { return umgebung.statustexte[0] != "something else"; }));
    EXPECT_EQ(umgebung.statustexte[0], "The disk answers. The recording goes on.");
    MeldeDurchgang(4712);
    Ablauf().Schalte();
    ASSERT_EQ(ablage->Pfade().size(), 1U);
    EXPECT_THAT(ablage->Inhalt(*ablage->Pfade().begin()), HasSubstr(",4711,"));
    EXPECT_THAT(ablage->Inhalt(*ablage->Pfade().begin()), HasSubstr(",4712,"));
    EXPECT_THAT(Ereignisarten(),
                ElementsAre(Ereignisart::AufzeichnungOhnePlatz, Ereignisart::AufzeichnungBegonnen,
                            Ereignisart::AufzeichnungBeendet));
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(AufzeichnungsablaufTest, A_disk_that_refuses_after_a_long_time_ends_what_never_began) {
    ablage = std::make_shared<pruefung::PruefAblage>();
    ablage->Halte();
    Ablauf().Schalte();
    EXPECT_TRUE(Ablauf().Laeuft());
    ablage->Versage(EROFS);
    ablage->LasseLos();
    EXPECT_TRUE(WarteBis([&] { return !Ablauf().Laeuft(); }));
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_THAT(umgebung.meldungen.front().text, HasSubstr("The recording cannot begin."));
    EXPECT_FALSE(Marke().isVisible());
    EXPECT_THAT(gemeldet, ElementsAre(true, false));
    EXPECT_TRUE(Ereignisarten().empty()) << "neither begun nor ended";
}

TEST_F(AufzeichnungsablaufTest, A_file_that_vanishes_is_told_once_in_the_status_bar_and_the_recording_waits) {
    Ablauf().Schalte();
    MeldeDurchgang(1);
    ASSERT_TRUE(WarteBis([&] { return Inhalt(Dateien().front()).find(",1,") != std::string::npos; }));
    if (!QFile::remove(ordner.filePath(Dateien().front()))) {
        ASSERT_EQ(QSysInfo::productType(), "windows");
        GTEST_SKIP() << "nobody takes an open file away";
    }
    ASSERT_TRUE(WarteBis([&] { return umgebung.statustexte[0].find("is interrupted") != std::string::npos; },
                         20'000));
    EXPECT_TRUE(umgebung.meldungen.empty());
    EXPECT_TRUE(Marke().text().contains("waiting:"));
    ASSERT_TRUE(WarteBis([&] { return Dateien().size() == 1; }, 20'000));
    ASSERT_TRUE(WarteBis([&] { return Ereignisarten().size() == 3; }, 20'000));
    EXPECT_THAT(Ereignisarten(),
                ElementsAre(Ereignisart::AufzeichnungBegonnen, Ereignisart::AufzeichnungOhnePlatz,
                            Ereignisart::AufzeichnungBegonnen));
    EXPECT_THAT(modEreignisse::Alle().Hole(modEreignisse::Alle().Ende() - 1).text,
                testing::EndsWith("_002.csv"));
    EXPECT_EQ(umgebung.statustexte[0], LadeText(6232));
    MeldeDurchgang(2);
    Ablauf().Schalte();
    EXPECT_TRUE(Dateien().front().endsWith("_002.csv"));
    EXPECT_THAT(Inhalt(Dateien().front()), HasSubstr(",2,0,0,"));
}

TEST_F(AufzeichnungsablaufTest, It_ends_by_itself_when_the_time_is_up) {
    Setze("EndeMinuten", "1");
    Ablauf().Schalte();
    EXPECT_FALSE(WarteBis([&] { return !Ablauf().Laeuft(); }, 1500));
    minuten = 1;
    EXPECT_TRUE(WarteBis([&] { return !Ablauf().Laeuft(); }));
    EXPECT_THAT(umgebung.statustexte[0], HasSubstr("The recording has ended: "));
    EXPECT_FALSE(Marke().isVisible());
}

TEST_F(AufzeichnungsablaufTest, The_end_of_the_program_ends_it_whole_and_without_a_word) {
    Ablauf().Schalte();
    MeldeDurchgang(5);
    Ablauf().Schliesse();
    EXPECT_THAT(Inhalt(Dateien().front()), HasSubstr(",5,0,0,"));
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(AufzeichnungsablaufTest, Both_forms_lie_beside_each_other) {
    Setze("Vrec", "1");
    Ablauf().Schalte();
    Ablauf().Schalte();
    ASSERT_EQ(Dateien().size(), 2);
    EXPECT_TRUE(Dateien().back().endsWith(".vrec"));
}

TEST_F(AufzeichnungsablaufTest, What_is_chosen_in_the_window_is_kept_and_holds_for_the_next_recording) {
    Ablauf().Zeige();
    Im<QCheckBox>("chkMitternacht").setChecked(true);
    Im<QSpinBox>("spnBehalte").setValue(24);
    EXPECT_EQ((einstellungen.texte[{"Aufzeichnung", "Mitternacht"}]), "1");
    EXPECT_EQ((einstellungen.texte[{"Aufzeichnung", "BehalteStunden"}]), "24");
    EXPECT_TRUE(Im<QLabel>("lblBehalteHinweis").isVisible());
}

TEST_F(AufzeichnungsablaufTest, The_window_records_under_a_name_that_was_typed) {
    Ablauf().Zeige();
    Im<QLineEdit>("txtName").setText("night shift");
    Im<QPushButton>("cmdAufzeichnen").click();
    EXPECT_TRUE(Ablauf().Laeuft());
    EXPECT_THAT(Dateien(), ElementsAre(QString("night shift.csv")));
    EXPECT_FALSE(Im<QWidget>("grpForm").isEnabled());
    EXPECT_EQ(Im<QPushButton>("cmdAufzeichnen").text(), "&End recording");
    Im<QPushButton>("cmdAufzeichnen").click();
    EXPECT_FALSE(Ablauf().Laeuft());
    EXPECT_TRUE(Im<QWidget>("grpForm").isEnabled());
    EXPECT_TRUE(Im<QLabel>("lblZuletzt").text().contains("night shift.csv"));
}

TEST_F(AufzeichnungsablaufTest, A_typed_name_cannot_lead_out_of_the_folder) {
    Ablauf().Zeige();
    Im<QLineEdit>("txtName").setText("../../outside");
    Im<QPushButton>("cmdAufzeichnen").click();
    EXPECT_THAT(Dateien(), ElementsAre(QString("_._.._outside.csv")));
}

TEST_F(AufzeichnungsablaufTest, Another_folder_is_asked_for) {
    SetzeDateiantwort([](const Dateifrage& frage) {
        EXPECT_EQ(frage.art, Dateiwahl::Ordner);
        return std::optional<std::string>("/mnt/records");
    });
    Ablauf().Zeige();
    Im<QPushButton>("cmdOrdner").click();
    EXPECT_EQ((einstellungen.texte[{"Aufzeichnung", "Ordner"}]), "/mnt/records");
    EXPECT_EQ(Im<QLineEdit>("txtOrdner").text(), "/mnt/records");
}

TEST_F(AufzeichnungsablaufTest, The_flight_recorder_needs_all_parts_when_that_is_chosen) {
    Ablauf().Zeige();
    EXPECT_FALSE(modMesshoerer::Braucht(0));
    Im<QCheckBox>("chkAlleTeile").setChecked(true);
    EXPECT_TRUE(modMesshoerer::Braucht(0));
    EXPECT_FALSE(modMesshoerer::LaeuftAllein());
    EXPECT_EQ((einstellungen.texte[{"Aufzeichnung", "FlugschreiberAlleTeile"}]), "1");
}

TEST_F(AufzeichnungsablaufTest, The_last_minutes_of_memory_are_saved_as_a_record) {
    FuelleSpeicher();
    Ablauf().Zeige();
    EXPECT_EQ(Im<QLabel>("lblImSpeicher").text(), "In memory: 00:19:59");
    SichereSpeicher();
    ASSERT_TRUE(Bis([&] { return Letzte().find("Saved: ") == 0; }));
    Vrecleser leser(OeffneEingabe(ordner.filePath("saved.vrec").toStdString()).datei);
    while (leser.Arbeite()) {
    }
    EXPECT_EQ(leser.Zustand().befund, Vrecbefund::Gut);
    EXPECT_GE(leser.Zustand().durchgaenge, 600U);
    EXPECT_LE(leser.Zustand().durchgaenge, 603U);
    EXPECT_THAT(Letzte(), HasSubstr("saved.vrec"));
}

TEST_F(AufzeichnungsablaufTest,
       While_a_slow_disk_takes_the_memory_the_window_answers_and_says_how_far_it_is) {
    pruefung::Schranke platte(0);
    schreibe = [&](const std::string&, std::string_view) {
        platte.acquire();
        return std::string();
    };
    FuelleSpeicher();
    SichereSpeicher();
    EXPECT_EQ(Im<QLabel>("lblImSpeicher").text(), "Memory is being saved: 0 %");
    EXPECT_FALSE(Im<QPushButton>("cmdSichern").isEnabled());
    EXPECT_TRUE(Bis([&] { return Im<QLabel>("lblImSpeicher").text() == "Memory is being saved: 100 %"; }));
    platte.release();
    EXPECT_TRUE(Bis([&] { return Letzte().find("Saved: ") == 0; }));
    EXPECT_TRUE(Im<QPushButton>("cmdSichern").isEnabled());
    EXPECT_EQ(Im<QLabel>("lblImSpeicher").text(), "In memory: 00:19:59");
}

TEST_F(AufzeichnungsablaufTest, What_was_saved_stays_told_behind_an_earlier_recording) {
    Ablauf().Schalte();
    Ablauf().Schalte();
    FuelleSpeicher();
    SichereSpeicher();
    ASSERT_TRUE(Bis([&] { return Letzte().find("Saved: ") == 0; }));
    umgebung.ErledigeAufgeschobenes();
    EXPECT_FALSE(WarteBis(
        [&] {
            umgebung.ErledigeAufgeschobenes();
            return Letzte().find("Saved: ") != 0;
        },
        1200))
        << "two looks later";
}

TEST_F(AufzeichnungsablaufTest, A_disk_that_takes_no_more_of_the_memory_is_told_in_a_message) {
    schreibe = [](const std::string&, std::string_view) { return std::string("No room."); };
    FuelleSpeicher();
    SichereSpeicher();
    ASSERT_TRUE(Bis([&] { return !umgebung.meldungen.empty(); }));
    EXPECT_THAT(umgebung.meldungen.front().text, HasSubstr("No room."));
    EXPECT_THAT(umgebung.meldungen.front().text, HasSubstr("saved.vrec"));
    EXPECT_EQ(Letzte(), "");
    EXPECT_TRUE(Bis([&] { return Im<QPushButton>("cmdSichern").isEnabled(); }));
}

TEST_F(AufzeichnungsablaufTest, The_end_of_the_program_finishes_the_saving_of_the_memory) {
    FuelleSpeicher();
    SichereSpeicher();
    Ablauf().Schliesse();
    EXPECT_TRUE(QFile::exists(ordner.filePath("saved.vrec")));
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(AufzeichnungsablaufTest, Disks_that_never_answer_hold_up_the_end_of_the_program_for_seconds_only) {
    ablage = std::make_shared<pruefung::PruefAblage>();
    const auto platte = std::make_shared<pruefung::Schranke>(0);
    schreibe = [platte](const std::string&, std::string_view) {
        platte->acquire();
        return std::string();
    };
    FuelleSpeicher();
    SichereSpeicher();
    Ablauf().Schalte();
    ablage->Halte();
    MeldeDurchgang(1);
    ASSERT_TRUE(WarteBis([&] { return ablage->HaeltJemanden(); }));
    MeldeDurchgang(2);
    QElapsedTimer vergangen;
    vergangen.start();
    Ablauf().Schliesse();
    EXPECT_LT(vergangen.elapsed(), 10'000);
    EXPECT_THAT(umgebung.statustexte[0], HasSubstr("is not written to its end"));
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_THAT(umgebung.meldungen.front().text, HasSubstr("The disk does not answer."));
    EXPECT_THAT(Ereignisarten(),
                ElementsAre(Ereignisart::AufzeichnungBegonnen, Ereignisart::Verworfen,
                            Ereignisart::AufzeichnungOhnePlatz, Ereignisart::AufzeichnungBeendet));
    ablage->LasseLos();
    platte->release();
    EXPECT_TRUE(WarteBis([&] { return ablage->AllesGeschlossen(); })) << "the thread has come back";
}

TEST_F(AufzeichnungsablaufTest, A_disk_that_does_not_answer_at_the_end_gets_its_time_and_holds_up_nobody) {
    ASSERT_TRUE(ZeichneAufStummenTraegerAuf(4711));
    MeldeDurchgang(4712);
    QElapsedTimer vergangen;
    vergangen.start();
    Ablauf().Schalte();
    EXPECT_LT(vergangen.elapsed(), 2000) << "the window goes on";
    EXPECT_TRUE(Ablauf().Laeuft());
    EXPECT_FALSE(modMesshoerer::LaeuftAllein());
    EXPECT_THAT(Marke().text().toStdString(), HasSubstr("The disk does not answer."));
    MeldeDurchgang(4713);
    Ablauf().Schalte();
    EXPECT_TRUE(Ablauf().Laeuft()) << "a second click neither ends nor begins anything";
    ablage->LasseLos();
    ASSERT_TRUE(WarteBis([&] { return !Ablauf().Laeuft(); }));
    const std::string text = ablage->Inhalt(*ablage->Pfade().begin());
    EXPECT_THAT(text, HasSubstr(",4712,"));
    EXPECT_THAT(text, Not(HasSubstr(",4713,")));
    EXPECT_FALSE(Marke().isVisible());
    EXPECT_THAT(umgebung.statustexte[0], HasSubstr("The recording has ended: "));
    EXPECT_THAT(gemeldet, ElementsAre(true, false));
    EXPECT_THAT(Ereignisarten(),
                ElementsAre(Ereignisart::AufzeichnungBegonnen, Ereignisart::AufzeichnungBeendet));
}

TEST_F(AufzeichnungsablaufTest, A_disk_that_never_answers_at_the_end_is_given_up_after_seconds) {
    ASSERT_TRUE(ZeichneAufStummenTraegerAuf(1));
    Ablauf().Schalte();
    umgebung.uhr += Nebenfaden::LaengstesSchweigen - std::chrono::milliseconds(1);
    Ablauf().Lokalisiere(); // looks again
    EXPECT_TRUE(Ablauf().Laeuft()) << "its time is not over";
    umgebung.uhr += std::chrono::milliseconds(1);
    ASSERT_TRUE(WarteBis([&] { return !Ablauf().Laeuft(); }));
    EXPECT_FALSE(Marke().isVisible());
    EXPECT_THAT(umgebung.statustexte[0], HasSubstr("is not written to its end"));
    EXPECT_THAT(Ereignisarten(),
                ElementsAre(Ereignisart::AufzeichnungBegonnen, Ereignisart::Verworfen,
                            Ereignisart::AufzeichnungOhnePlatz, Ereignisart::AufzeichnungBeendet));
    ablage->LasseLos();
    EXPECT_TRUE(WarteBis([&] { return ablage->AllesGeschlossen(); })) << "the thread has come back";
}

TEST_F(AufzeichnungsablaufTest, Its_end_is_an_event_with_its_passes_and_duration) {
    Ablauf().Schalte();
    MeldeDurchgang(1);
    MeldeDurchgang(2);
    minuten = 5;
    Ablauf().Schalte();
    const Ereignis& ende = modEreignisse::Alle().Hole(modEreignisse::Alle().Ende() - 1);
    EXPECT_EQ(ende.art, Ereignisart::AufzeichnungBeendet);
    EXPECT_EQ(ende.anzahl, 2U);
    EXPECT_GE(ende.dauer, std::chrono::minutes(5));
    EXPECT_THAT(ende.text, HasSubstr(".csv"));
}

TEST_F(AufzeichnungsablaufTest, The_file_for_what_is_in_memory_is_asked_for_beside_the_recordings) {
    FuelleSpeicher();
    std::optional<Dateifrage> gefragt;
    SetzeDateiantwort([&](const Dateifrage& frage) -> std::optional<std::string> {
        gefragt = frage;
        return {};
    });
    SichereSpeicher();
    ASSERT_TRUE(gefragt);
    EXPECT_EQ(gefragt->titel, "Save memory");
    EXPECT_EQ(gefragt->filter, "Record (*.vrec)|*.vrec");
    EXPECT_EQ(gefragt->ordner, ordner.path().toStdString());
    EXPECT_THAT(gefragt->name, testing::EndsWith(".vrec"));
    EXPECT_TRUE(Im<QPushButton>("cmdSichern").isEnabled()) << "nothing is being saved";
}

TEST_F(AufzeichnungsablaufTest, The_window_follows_the_language_and_closes_with_the_program) {
    Ablauf().Zeige();
    EXPECT_EQ(Fenster().windowTitle(), "Recordings");
    SetzeSprachoffset(Deutsch);
    Ablauf().Lokalisiere();
    EXPECT_EQ(Fenster().windowTitle(), "Aufzeichnungen");
    Ablauf().Schliesse();
    EXPECT_FALSE(Fenster().isVisible());
}

TEST_F(AufzeichnungsablaufTest, While_memory_is_empty_there_is_nothing_to_save) {
    Ablauf().Zeige();
    EXPECT_FALSE(Im<QPushButton>("cmdSichern").isEnabled());
}

} // namespace varnoth
