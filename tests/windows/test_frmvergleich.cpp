#include "frmVergleich.h"

#include "bedienelement.h"
#include "fenstertest.h"
#include "geraetestand.h"
#include "pruefumgebung.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "seitenjetzt.h"
#include "standardkonfiguration.h"
#include "startzustand.h"
#include "texte.h"
#include "vergleichsanbieter.h"
#include "vergleichsdruck.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>
#include <QTreeWidget>
#include <gtest/gtest.h>

namespace varnoth {

namespace {

struct PruefAnbieter : Vergleichsanbieter {
    std::vector<Vergleichsquelle> Fragbare() override { return fragbare; }
    void Verlange(Vergleichsquelle quelle, Seitenwahl seite) override {
        verlangt.emplace_back(quelle, seite);
    }
    void SpeichereText(const std::string& text) override { gespeichert = text; }

    std::vector<Vergleichsquelle> fragbare{Vergleichsquelle::Datei};
    std::vector<std::pair<Vergleichsquelle, Seitenwahl>> verlangt;
    std::string gespeichert;
};

Abbild Geraet() {
    Abbild abbild = Standardkonfiguration();
    EXPECT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, 32, 0));
    EXPECT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, 16, 1));
    return abbild;
}

Vergleichsseite Datei(const Abbild& abbild) {
    return {Vergleichsquelle::Datei, "/plant/line.con", abbild, {}};
}

} // namespace

/// A controller with two parts was read and is being edited; two settings were changed.
class frmVergleichTest : public testing::Test {
protected:
    frmVergleichTest() {
        modGeraetestand::MerkeGelesen(Geraet(), "4711");
        modDaten::ErsetzeAbbild(Geraet());
        EXPECT_TRUE(modDaten::SetzeRegister(Spezifisch, spezifisch::Reichweite, 5, 1));
        EXPECT_TRUE(modDaten::SetzeRegister(Kommunikation, kommunikation::Stationsadresse, 7));
    }

    frmVergleich& Fenster() {
        if (!fenster)
            fenster = std::make_unique<frmVergleich>(anbieter);
        return *fenster;
    }
    template<class Element>
    Element& Kind(const char* name) {
        return pruefung::Kind<Element>(Fenster(), name);
    }
    QTreeWidget& Baum() { return Kind<QTreeWidget>("trvVergleich"); }
    std::string Text(const char* label) { return Kind<QLabel>(label).text().toStdString(); }
    void Druecke(const char* knopf) { Kind<QPushButton>(knopf).click(); }
    std::vector<QTreeWidgetItem*> Gezeigte() {
        std::vector<QTreeWidgetItem*> zeilen;
        for (QTreeWidgetItemIterator i(&Baum(), QTreeWidgetItemIterator::NotHidden); *i != nullptr; ++i)
            if ((*i)->parent() != nullptr && !(*i)->parent()->isHidden())
                zeilen.push_back(*i);
        return zeilen;
    }
    std::vector<std::string> Namen() {
        std::vector<std::string> namen;
        for (const QTreeWidgetItem* zeile : Gezeigte())
            namen.push_back((zeile->parent()->text(0) + ": " + zeile->text(0)).toStdString());
        return namen;
    }
    void WaehleQuelle(const char* liste, Vergleichsquelle quelle) {
        QComboBox& box = Kind<QComboBox>(liste);
        const int platz = box.findData(static_cast<int>(quelle));
        ASSERT_GE(platz, 0);
        box.setCurrentIndex(platz);
        emit box.activated(platz);
    }
    std::vector<std::string> Quellen(const char* liste) {
        std::vector<std::string> namen;
        for (int i = 0; i < Kind<QComboBox>(liste).count(); ++i)
            namen.push_back(Kind<QComboBox>(liste).itemText(i).toStdString());
        return namen;
    }
    static std::int32_t Reichweite() { return modDaten::HoleRegister(Spezifisch, spezifisch::Reichweite, 1); }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefEinstellungen einstellungen;
    PruefAnbieter anbieter;
    std::unique_ptr<frmVergleich> fenster;
};

using Namensliste = std::vector<std::string>;

TEST_F(frmVergleichTest, Begins_with_what_was_read_last_and_what_is_being_edited) {
    EXPECT_EQ(Fenster().windowTitle().toStdString(),
              "Vergleich: Steuergerät, zuletzt gelesen – Konfiguration in Bearbeitung");
    EXPECT_EQ(Namen(), (Namensliste{"Optikteil 2: Reichweite", "Kommunikation: Stations Adresse"}));
    EXPECT_EQ(Text("lblAnzahlen"),
              "Verschieden: 2; nur links: 0; nur rechts: 0; nicht gelesen: 0; gleich: 24");
    EXPECT_NE(Text("lblEinzelheitA").find("Seriennummer 4711"), std::string::npos);
    EXPECT_EQ(Text("lblEinzelheitB"), "geändert, nicht gespeichert");
}

TEST_F(frmVergleichTest, Without_a_read_it_begins_with_the_factory_default_and_offers_no_last_read) {
    const Startzustand frisch;
    const pruefung::PruefEinstellungen leere;
    modDaten::ErsetzeAbbild(Geraet());
    EXPECT_EQ(Fenster().Paar().Seite(Seitenwahl::A).quelle, Vergleichsquelle::Werksvorgabe);
    EXPECT_EQ(Quellen("cboSeiteA"),
              (Namensliste{"Konfiguration in Bearbeitung", "Konfigurationsdatei", "Werksvorgabe"}));
    EXPECT_TRUE(Gezeigte().empty());
    EXPECT_TRUE(Text("lblBefund").starts_with("Kein Unterschied: Alle 26 Werte sind gleich."));
}

TEST_F(frmVergleichTest, A_row_shows_both_values_and_the_register) {
    const QTreeWidgetItem& zeile = *Gezeigte().at(1);
    EXPECT_EQ(zeile.text(1), "1H");
    EXPECT_EQ(zeile.text(2), "7H");
    EXPECT_EQ(zeile.text(3), "4000H + 4");
    EXPECT_TRUE(zeile.font(0).bold());
    EXPECT_EQ(Baum().headerItem()->text(1), "Steuergerät, zuletzt gelesen");
    EXPECT_EQ(Baum().headerItem()->text(2), "Konfiguration in Bearbeitung");
}

TEST_F(frmVergleichTest, Equal_rows_appear_when_the_filter_is_off) {
    Kind<QCheckBox>("chkNurUnterschiede").setChecked(false);
    EXPECT_EQ(Gezeigte().size(), 26U);
    EXPECT_FALSE(Gezeigte().at(0)->font(0).bold());
    Kind<QCheckBox>("chkNurUnterschiede").setChecked(true);
    EXPECT_EQ(Gezeigte().size(), 2U);
}

TEST_F(frmVergleichTest, Searching_finds_names_values_groups_and_registers_whatever_their_case) {
    Kind<QCheckBox>("chkNurUnterschiede").setChecked(false);
    const auto suche = [this](const char* text) {
        Kind<QLineEdit>("txtSuchen").setText(QString::fromUtf8(text));
        return Namen();
    };
    EXPECT_EQ(suche("AUFLÖSUNG"), (Namensliste{"Optikteil 1: Auflösung", "Optikteil 2: Auflösung"}));
    EXPECT_EQ(suche("4000h + 8"), (Namensliste{"Kommunikation: Pausenzeit für Antwort"}));
    EXPECT_EQ(suche("optikteil 2").size(), 9U);
    EXPECT_TRUE(suche("nothing of the kind").empty());
}

TEST_F(frmVergleichTest, F7_leads_from_difference_to_difference_and_round) {
    Kind<QCheckBox>("chkNurUnterschiede").setChecked(false);
    Fenster().show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Fenster()));
    const auto springe = [this](Qt::KeyboardModifiers dazu) {
        QTest::keyClick(&Baum(), Qt::Key_F7, dazu);
        return Baum().currentItem()->text(0).toStdString();
    };
    EXPECT_EQ(springe(Qt::NoModifier), "Reichweite");
    EXPECT_EQ(springe(Qt::NoModifier), "Stations Adresse");
    EXPECT_EQ(springe(Qt::NoModifier), "Reichweite");
    EXPECT_EQ(springe(Qt::ShiftModifier), "Stations Adresse");
    EXPECT_EQ(springe(Qt::ShiftModifier), "Reichweite");
}

TEST_F(frmVergleichTest, Buttons_lead_to_the_next_and_to_the_former_difference) {
    EXPECT_TRUE(modDaten::SetzeRegister(Kommunikation, kommunikation::Pausenzeit, 77));
    Kind<QCheckBox>("chkNurUnterschiede").setChecked(false);
    const auto nach = [this](const char* knopf) {
        Druecke(knopf);
        return Baum().currentItem()->text(0).toStdString();
    };
    EXPECT_EQ(nach("cmdNaechster"), "Reichweite");
    EXPECT_EQ(nach("cmdNaechster"), "Stations Adresse");
    EXPECT_EQ(nach("cmdVoriger"), "Reichweite");
}

TEST_F(frmVergleichTest, Keys_search_save_print_and_close) {
    Fenster().show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Fenster()));
    auto& suchen = Kind<QLineEdit>("txtSuchen");
    suchen.setText("Station");
    Baum().setFocus();
    QTest::keySequence(&Baum(), QKeySequence::Find);
    EXPECT_TRUE(suchen.hasFocus());
    EXPECT_EQ(suchen.selectedText(), "Station");
    QTest::keySequence(&Baum(), QKeySequence::Save);
    EXPECT_NE(anbieter.gespeichert.find("Stations Adresse"), std::string::npos);
    QTest::keySequence(&Baum(), QKeySequence::Print);
    EXPECT_EQ(umgebung.meldungen.size(), 1U) << "there is no printer";
    QTest::keyClick(&Baum(), Qt::Key_Escape);
    EXPECT_FALSE(Fenster().isVisible());
}

TEST_F(frmVergleichTest, The_button_closes_the_window) {
    Fenster().show();
    Druecke("cmdSchliessen");
    EXPECT_FALSE(Fenster().isVisible());
}

TEST_F(frmVergleichTest, Ticked_rows_are_taken_over_and_mark_the_configuration_as_changed) {
    modDaten::LoescheGeaendert();
    Fenster();
    EXPECT_FALSE(Kind<QPushButton>("cmdUebernehmen").isEnabled());
    Gezeigte().at(0)->setCheckState(0, Qt::Checked);
    EXPECT_EQ(Kind<QPushButton>("cmdUebernehmen").text(), "In die Konfiguration ü&bernehmen (1)");
    Druecke("cmdUebernehmen");
    EXPECT_EQ(Reichweite(), 3);
    EXPECT_EQ(modDaten::HoleRegister(Kommunikation, kommunikation::Stationsadresse), 7);
    EXPECT_EQ(modDaten::IstGeaendert(), True);
    EXPECT_EQ(Namen(), (Namensliste{"Kommunikation: Stations Adresse"}));
    EXPECT_TRUE(Text("lblErgebnis").starts_with("In die Konfiguration übernommen: 1."));
}

TEST_F(frmVergleichTest, Taking_over_keeps_measured_values_that_came_in_meanwhile) {
    Gezeigte().at(0)->setCheckState(0, Qt::Checked);
    ASSERT_EQ(modDaten::SetzeStrahlzustaende(2, 0, {5, 6}), True);
    Druecke("cmdUebernehmen");
    EXPECT_EQ(modDaten::DasAbbild().HoleStrahlzustaende(2, 0), (Werte{5, 6}));
}

TEST_F(frmVergleichTest, What_would_be_implausible_is_refused_whole_and_named) {
    Abbild datei = modDaten::DasAbbild();
    ASSERT_TRUE(datei.SetzeRegister(Spezifisch, spezifisch::Aufloesung, 99, 0));
    ASSERT_TRUE(datei.SetzeRegister(Spezifisch, spezifisch::Reichweite, 2, 1));
    modDaten::LoescheGeaendert();
    Fenster().Setze(Seitenwahl::A, Datei(datei));
    const Abbild vorher = modDaten::DasAbbild();
    Druecke("cmdAlle");
    Druecke("cmdUebernehmen");
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text,
              "Nichts übernommen: Die Konfiguration enthielte danach Werte, die nicht zulässig sind.\n"
              "Optikteil 1, Auflösung: 99 (0x63)");
    EXPECT_EQ(modDaten::DasAbbild(), vorher);
    EXPECT_EQ(modDaten::IstGeaendert(), False);
}

TEST_F(frmVergleichTest, Values_are_taken_from_the_right_when_the_left_side_is_being_edited) {
    WaehleQuelle("cboSeiteA", Vergleichsquelle::InBearbeitung);
    WaehleQuelle("cboSeiteB", Vergleichsquelle::ZuletztGelesen);
    Gezeigte().at(0)->setCheckState(0, Qt::Checked);
    Druecke("cmdUebernehmen");
    EXPECT_EQ(Reichweite(), 3);
}

TEST_F(frmVergleichTest, Nothing_can_be_ticked_when_neither_side_is_being_edited) {
    WaehleQuelle("cboSeiteB", Vergleichsquelle::Werksvorgabe);
    Fenster().Setze(Seitenwahl::A, Datei(modDaten::DasAbbild()));
    ASSERT_EQ(Gezeigte().size(), 2U);
    EXPECT_FALSE(Gezeigte().at(0)->data(0, Qt::CheckStateRole).isValid());
    EXPECT_FALSE(Kind<QPushButton>("cmdAlle").isEnabled());
    EXPECT_FALSE(Kind<QPushButton>("cmdUebernehmen").toolTip().isEmpty());
}

TEST_F(frmVergleichTest, What_is_ticked_but_not_shown_is_not_taken_over) {
    Druecke("cmdAlle");
    Kind<QLineEdit>("txtSuchen").setText("Reichweite");
    EXPECT_EQ(Kind<QPushButton>("cmdUebernehmen").text(), "In die Konfiguration ü&bernehmen (1)");
    Druecke("cmdUebernehmen");
    EXPECT_EQ(Reichweite(), 3);
    EXPECT_EQ(modDaten::HoleRegister(Kommunikation, kommunikation::Stationsadresse), 7);
}

TEST_F(frmVergleichTest, A_part_that_one_side_lacks_is_shown_and_cannot_be_taken_over) {
    Abbild datei = Geraet();
    ASSERT_TRUE(datei.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, 0, 1));
    Fenster().Setze(Seitenwahl::A, Datei(datei));
    Kind<QLineEdit>("txtSuchen").setText("Optikteil 2");
    ASSERT_EQ(Gezeigte().size(), 9U);
    for (const QTreeWidgetItem* zeile : Gezeigte()) {
        EXPECT_EQ(zeile->text(1), "nicht vorhanden");
        EXPECT_FALSE(zeile->data(0, Qt::CheckStateRole).isValid());
    }
}

TEST_F(frmVergleichTest, A_side_that_was_read_in_part_says_what_was_not_compared) {
    Vergleichsseite geraet{Vergleichsquelle::Geraet, "now", modDaten::DasAbbild(), {}};
    geraet.ungelesen = {{Kommunikation, kommunikation::Stationsadresse}};
    Fenster().Setze(Seitenwahl::A, geraet);
    EXPECT_EQ(Namen(), (Namensliste{"Kommunikation: Stations Adresse"}));
    EXPECT_EQ(Gezeigte().at(0)->text(1), "nicht gelesen");
    EXPECT_TRUE(Text("lblBefund")
                    .starts_with("Kein Unterschied in den 25 verglichenen Werten. "
                                 "Nicht verglichen, weil nicht gelesen: 1."));
}

TEST_F(frmVergleichTest, A_source_that_asks_is_left_to_the_program_and_the_side_stays_till_it_answers) {
    WaehleQuelle("cboSeiteA", Vergleichsquelle::Datei);
    EXPECT_EQ(anbieter.verlangt, (std::vector{std::pair(Vergleichsquelle::Datei, Seitenwahl::A)}));
    EXPECT_EQ(Kind<QComboBox>("cboSeiteA").currentText(), "Steuergerät, zuletzt gelesen");
    Fenster().Setze(Seitenwahl::A, Datei(Geraet()));
    EXPECT_EQ(Kind<QComboBox>("cboSeiteA").currentText(), "Konfigurationsdatei");
    EXPECT_EQ(Text("lblEinzelheitA"), "/plant/line.con");
    EXPECT_EQ(Fenster().windowTitle().toStdString(), "Vergleich: line.con – Konfiguration in Bearbeitung");
}

TEST_F(frmVergleichTest, Only_sources_that_can_be_had_are_offered) {
    anbieter.fragbare = {Vergleichsquelle::Geraet, Vergleichsquelle::Sicherung};
    EXPECT_EQ(Quellen("cboSeiteB"),
              (Namensliste{"Konfiguration in Bearbeitung", "Steuergerät, zuletzt gelesen",
                           "Steuergerät jetzt", "Sicherung", "Werksvorgabe"}));
}

TEST_F(frmVergleichTest, Later_changes_of_the_configuration_are_shown_and_ticks_stay) {
    Gezeigte().at(1)->setCheckState(0, Qt::Checked);
    ASSERT_TRUE(modDaten::SetzeRegister(Spezifisch, spezifisch::Aufloesung, 40, 0));
    Fenster().Erneuere();
    EXPECT_EQ(Namen(), (Namensliste{"Optikteil 1: Auflösung", "Optikteil 2: Reichweite",
                                    "Kommunikation: Stations Adresse"}));
    EXPECT_EQ(Gezeigte().at(0)->checkState(0), Qt::Unchecked);
    EXPECT_EQ(Gezeigte().at(2)->checkState(0), Qt::Checked);
}

TEST_F(frmVergleichTest, A_file_stays_as_it_was_chosen) {
    Fenster().Setze(Seitenwahl::A, Datei(Geraet()));
    modGeraetestand::MerkeGelesen({}, "4712");
    Fenster().Erneuere();
    EXPECT_EQ(Fenster().Paar().Seite(Seitenwahl::A), Datei(Geraet()));
}

TEST_F(frmVergleichTest, The_factory_default_is_that_of_a_controller_with_the_same_parts) {
    WaehleQuelle("cboSeiteA", Vergleichsquelle::Werksvorgabe);
    EXPECT_EQ(Namen(), (Namensliste{"Optikteil 2: Reichweite", "Kommunikation: Stations Adresse"}));
}

TEST_F(frmVergleichTest, What_the_controller_held_before_this_connection_says_so) {
    modGeraetestand::BeginneVerbindung();
    EXPECT_NE(Text("lblEinzelheitA").find("vor dieser Verbindung"), std::string::npos);
}

TEST_F(frmVergleichTest, What_was_written_after_the_read_or_was_never_read_says_so) {
    EXPECT_EQ(Text("lblEinzelheitA").find("zurückgelesen"), std::string::npos);
    const Parametermenge eine{{Spezifisch, spezifisch::Reichweite, 0}};
    modGeraetestand::MerkeGeschrieben({}, eine, "4711");
    Fenster().Erneuere();
    EXPECT_NE(Text("lblEinzelheitA").find("seither geschrieben, nicht zurückgelesen"), std::string::npos);
    modGeraetestand::MerkeGeschrieben({}, eine, "4712");
    Fenster().Erneuere();
    EXPECT_NE(Text("lblEinzelheitA").find("4712, nur geschrieben, nicht zurückgelesen"), std::string::npos);
}

TEST_F(frmVergleichTest, The_time_of_a_read_is_not_that_of_a_later_write) {
    using namespace std::chrono_literals;
    Geraetestand stand;
    stand.zeit = std::chrono::system_clock::time_point{1000h};
    EXPECT_EQ(Standzeile(stand), Lesezeile(stand.zeit, ""));
    stand.gelesen = stand.zeit - 3h;
    EXPECT_EQ(Standzeile(stand), Lesezeile(*stand.gelesen, ""));
}

TEST_F(frmVergleichTest, Selected_rows_are_copied_and_all_shown_ones_where_none_is_selected) {
    Druecke("cmdKopieren");
    EXPECT_EQ(QApplication::clipboard()->text().count('\n'), 2);
    Gezeigte().at(1)->setSelected(true);
    Druecke("cmdKopieren");
    EXPECT_EQ(QApplication::clipboard()->text(), "Kommunikation\tStations Adresse\t1H\t7H\t4000H + 4\n");
}

TEST_F(frmVergleichTest, The_text_to_be_saved_names_both_sides_and_holds_the_rows_that_are_shown) {
    Kind<QLineEdit>("txtSuchen").setText("Station");
    Druecke("cmdSpeichern");
    EXPECT_TRUE(anbieter.gespeichert.starts_with(
        "Vergleich: Steuergerät, zuletzt gelesen – Konfiguration in Bearbeitung\n"));
    EXPECT_NE(anbieter.gespeichert.find("Verschieden: 2;"), std::string::npos);
    EXPECT_TRUE(anbieter.gespeichert.ends_with("\nKommunikation\n  Stations Adresse (4000H + 4)\n"
                                               "    Links: 1H\n    Rechts: 7H\n"))
        << anbieter.gespeichert;
}

TEST_F(frmVergleichTest, Printing_without_a_printer_says_so) {
    Druecke("cmdDrucken");
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_TRUE(umgebung.meldungen[0].text.starts_with("Es ist kein Drucker eingerichtet."));
}

TEST(Vergleichspaar, Two_files_of_one_name_are_told_apart_by_their_folders) {
    Vergleichspaar paar;
    paar.Setze(Seitenwahl::A, Datei(Geraet()));
    Vergleichsseite andere = Datei(Geraet());
    andere.einzelheit = "/plant/old/line.con";
    paar.Setze(Seitenwahl::B, andere);
    EXPECT_EQ(paar.Titel(), "Vergleich: /plant/line.con – /plant/old/line.con");
    andere.einzelheit = "/plant/old/spare.con";
    paar.Setze(Seitenwahl::B, andere);
    EXPECT_EQ(paar.Titel(), "Vergleich: line.con – spare.con");
}

class Vergleichsdruck : public testing::Test {
protected:
    /// Prints a page into a file of the temporary folder.
    void Drucke(const char* ziel) {
        DruckeSeite("<h2>Vergleich</h2>", "Vergleich: a - b",
                    {.drucker = [] { return QStringList{"Buero"}; },
                     .waehle =
                         [&](QPrinter& drucker) {
                             drucker.setOutputFormat(QPrinter::PdfFormat);
                             drucker.setOutputFileName(ordner.filePath(ziel));
                             return gewaehlt;
                         }});
    }

    pruefung::PruefUmgebung umgebung;
    QTemporaryDir ordner;
    bool gewaehlt = true;
};

TEST_F(Vergleichsdruck, A_printer_gets_the_page) {
    Drucke("a.pdf");
    EXPECT_GT(QFileInfo(ordner.filePath("a.pdf")).size(), 0);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(Vergleichsdruck, A_printer_that_was_not_chosen_gets_nothing) {
    gewaehlt = false;
    Drucke("a.pdf");
    EXPECT_FALSE(QFileInfo::exists(ordner.filePath("a.pdf")));
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(Vergleichsdruck, A_printer_that_takes_nothing_is_told) {
    pruefung::ErwarteWarnung("QPainter::begin");
    Drucke("gibt/es/nicht.pdf");
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text,
              "Der Drucker hat den Vergleich nicht angenommen. Ist er eingeschaltet und bereit?");
}

TEST_F(frmVergleichTest, The_printed_page_shows_what_a_file_is_called_letter_by_letter) {
    Vergleichsseite datei = Datei(Geraet());
    datei.einzelheit = "/plant/<b>x</b>.con";
    Fenster().Setze(Seitenwahl::A, datei);
    QTextDocument dokument;
    dokument.setHtml(AlsDruckseite(Fenster().Paar(), Fenster().Paar().Zeilen()));
    EXPECT_TRUE(dokument.toPlainText().contains("/plant/<b>x</b>.con"));
    EXPECT_TRUE(dokument.toPlainText().contains("Optikteil 2: Reichweite"));
}

TEST_F(frmVergleichTest, Another_language_changes_every_text) {
    Fenster();
    SetzeSprachoffset(Englisch);
    Fenster().Lokalisiere();
    EXPECT_EQ(Fenster().windowTitle().toStdString(),
              "Comparison: Controller, last read – Configuration being edited");
    EXPECT_EQ(Namen(), (Namensliste{"Optical part 2: Sensing distance", "Communication: Station address"}));
    EXPECT_EQ(Kind<QPushButton>("cmdSchliessen").text(), "Clos&e");
    EXPECT_EQ(Baum().headerItem()->text(3), "Register");
}

TEST_F(frmVergleichTest, Of_a_file_of_another_beam_count_the_settings_are_taken_over_and_the_count_is_not) {
    Abbild andere = modDaten::DasAbbild();
    ASSERT_TRUE(andere.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, 48, 0));
    ASSERT_TRUE(andere.SetzeRegister(Spezifisch, spezifisch::Reichweite, 2, 0));
    Fenster().Setze(Seitenwahl::A, Datei(andere));
    EXPECT_TRUE(Text("lblBefund").starts_with("2 Unterschiede."));
    Druecke("cmdAlle");
    Druecke("cmdUebernehmen");
    EXPECT_EQ(modDaten::HoleRegister(Spezifisch, spezifisch::Reichweite, 0), 2);
    EXPECT_EQ(modDaten::Strahlenzahl(0), 32);
    EXPECT_TRUE(Text("lblBefund").starts_with("1 Unterschied."));
}

TEST_F(frmVergleichTest, What_was_not_compared_cannot_be_taken_over_though_its_neighbour_can) {
    EXPECT_TRUE(Fenster().Paar().IstUebernehmbar({Kommunikation, kommunikation::Stationsadresse}));
    EXPECT_FALSE(Fenster().Paar().IstUebernehmbar({Kommunikation, kommunikation::Stationsadresse - 1}));
}

TEST_F(frmVergleichTest, The_window_comes_back_where_it_was_closed) {
    Fenster().show();
    Fenster().setGeometry(40, 60, 0, 777);
    const QRect ort = Fenster().geometry();
    Fenster().close();
    fenster.reset();
    Fenster().show();
    EXPECT_TRUE(pruefung::WarteBis([&] { return Fenster().geometry() == ort; }));
}

} // namespace varnoth
