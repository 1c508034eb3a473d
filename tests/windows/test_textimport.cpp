#include "textimport.h"

#include "dateidialog.h"
#include "dateien.h"
#include "dateiziel.h"
#include "muster.h"
#include "pruefumgebung.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"
#include "standtext.h"
#include "texte.h"
#include "zykluszeiten.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth {

namespace {

using testing::HasSubstr;

Abbild MitStrahlen(std::int32_t strahlen) {
    Abbild abbild = Standardkonfiguration();
    EXPECT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Strahlenzahl, strahlen, 0));
    return abbild;
}

} // namespace

/// A configuration of 32 beams in use and a text of one with 64 in a file that the dialog gives.
class TextimportTest : public testing::Test {
protected:
    TextimportTest() {
        modDaten::ErsetzeAbbild(MitStrahlen(32));
        modDaten::LoescheGeaendert();
        SetzeDateiantwort([this](const Dateifrage& frage) -> std::optional<std::string> {
            gefragt.push_back(frage);
            if (gewaehlt.empty())
                return std::nullopt;
            return gewaehlt;
        });
        Schreibe(Standtext(MitStrahlen(64)));
    }

    void Schreibe(const std::string& text) {
        gewaehlt = Pfad("stand.txt");
        ASSERT_EQ(ErsetzeDatei(gewaehlt, text), "");
    }
    std::string Pfad(const char* name) const { return ordner.filePath(name).toStdString(); }
    /// The import is refused with a message that holds the text, and the configuration is untouched.
    void ErwarteAblehnung(const std::string& text) {
        EXPECT_FALSE(ImportiereKonfigurationstext());
        ASSERT_EQ(umgebung.meldungen.size(), 1U);
        EXPECT_THAT(umgebung.meldungen[0].text, HasSubstr(text));
        EXPECT_EQ(modDaten::DasAbbild(), MitStrahlen(32));
        EXPECT_EQ(modDaten::IstGeaendert(), False);
    }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefEinstellungen einstellungen;
    QTemporaryDir ordner;
    std::vector<Dateifrage> gefragt;
    std::string gewaehlt;
};

class DokumentTest : public TextimportTest {};

TEST_F(TextimportTest, A_good_text_replaces_the_configuration_which_then_counts_as_changed) {
    EXPECT_TRUE(ImportiereKonfigurationstext());
    EXPECT_EQ(modDaten::DasAbbild(), MitStrahlen(64));
    EXPECT_EQ(modDaten::IstGeaendert(), True);
    EXPECT_NE(modHilfsFunktionen::GetZykluszeit(0), 0);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(TextimportTest, A_cancelled_dialog_changes_nothing) {
    gewaehlt.clear();
    EXPECT_FALSE(ImportiereKonfigurationstext());
    EXPECT_EQ(modDaten::DasAbbild(), MitStrahlen(32));
    ASSERT_EQ(gefragt.size(), 1U);
    EXPECT_EQ(gefragt[0].titel, "Text importieren");
    EXPECT_EQ(gefragt[0].filter, LadeText(9674));
}

TEST_F(TextimportTest, Unsaved_changes_are_asked_for_and_cancel_keeps_them) {
    modDaten::SetzeGeaendert();
    umgebung.antworten = {Antwort::Abbrechen};
    EXPECT_FALSE(ImportiereKonfigurationstext());
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0].text, LadeText(6002));
    EXPECT_EQ(modDaten::DasAbbild(), MitStrahlen(32));
    EXPECT_EQ(modDaten::IstGeaendert(), True);
}

TEST_F(TextimportTest, Unsaved_changes_that_are_given_up_make_room) {
    modDaten::SetzeGeaendert();
    umgebung.antworten = {Antwort::Nein};
    EXPECT_TRUE(ImportiereKonfigurationstext());
    EXPECT_EQ(modDaten::DasAbbild(), MitStrahlen(64));
}

TEST_F(TextimportTest, A_text_with_a_wrong_line_asks_nothing_and_keeps_the_mark_of_unsaved_changes) {
    Schreibe("Unfug");
    modDaten::SetzeGeaendert();
    EXPECT_FALSE(ImportiereKonfigurationstext());
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_THAT(umgebung.meldungen[0].text, HasSubstr("kein Konfigurationstext"));
    EXPECT_EQ(modDaten::IstGeaendert(), True);
}

TEST_F(TextimportTest, A_wrong_line_is_told_with_its_number_and_that_nothing_was_taken_over) {
    std::string text = Standtext(MitStrahlen(64));
    text.replace(text.find("/ 13 / 5mm"), 10, "/ 13 / 6mm");
    Schreibe(text);
    ErwarteAblehnung("Zeile 10: „6mm“ ist kein Wert für „Auflösung“.");
    EXPECT_EQ(umgebung.meldungen[0].informativtext, LadeText(9672));
    EXPECT_EQ(umgebung.meldungen[0].details, "");
}

TEST_F(TextimportTest, Of_several_wrong_lines_the_others_stand_in_the_details) {
    Schreibe(Standtext(MitStrahlen(64)) + "Unfug\nUnsinn\n");
    ErwarteAblehnung("Zeile ");
    EXPECT_THAT(umgebung.meldungen[0].details, pruefung::EnthaeltMuster("Zeile [0-9]+.*\nZeile [0-9]+"));
}

TEST_F(TextimportTest, Implausible_values_are_refused_and_named_and_no_default_is_loaded) {
    Abbild abbild = MitStrahlen(64);
    ASSERT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Aufloesung, 6, 0));
    ASSERT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Aufloesung, 99, 2));
    Schreibe(Standtext(abbild));
    ErwarteAblehnung("außerhalb dessen, was ein Steuergerät annimmt");
    EXPECT_TRUE(umgebung.meldungen[0].text.ends_with("die Konfiguration bleibt wie sie ist.\n"
                                                     "Optikteil 1, Auflösung: 6 (0x6)\n"
                                                     "Optikteil 3, Auflösung: 99 (0x63)"))
        << umgebung.meldungen[0].text;
}

TEST_F(TextimportTest, A_file_that_cannot_be_read_is_told) {
    gewaehlt = Pfad("fehlt.txt");
    ErwarteAblehnung(gewaehlt);
}

TEST_F(TextimportTest, A_file_of_10_MB_is_told) {
    Schreibe(Standtext(MitStrahlen(64)) + std::string(10 << 20, '#'));
    ErwarteAblehnung("größer als 1 MB");
}

TEST_F(TextimportTest, The_next_dialog_begins_in_the_same_folder) {
    ImportiereKonfigurationstext();
    ImportiereKonfigurationstext();
    EXPECT_EQ(gefragt.at(1).ordner, Pfad("") + "/");
}

TEST_F(DokumentTest, A_document_is_saved_under_the_chosen_name) {
    gewaehlt = Pfad("a.html");
    EXPECT_TRUE(SpeichereDokument("HTML|*.html", "vorschlag.html", "inhalt"));
    EXPECT_EQ(LiesDatei(gewaehlt, 100).bytes, "inhalt");
    EXPECT_EQ(gefragt.at(0).name, "vorschlag.html");
    EXPECT_EQ(gefragt.at(0).filter, "HTML|*.html");
}

TEST_F(DokumentTest, A_document_that_cannot_be_written_is_told) {
    gewaehlt = Pfad("fehlt/a.html");
    EXPECT_FALSE(SpeichereDokument("HTML|*.html", "a.html", "inhalt"));
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_THAT(umgebung.meldungen[0].text, HasSubstr(gewaehlt));
}

TEST_F(DokumentTest, An_existing_file_is_replaced_after_a_question_only) {
    const std::string vorher = LiesDatei(gewaehlt, 100000).bytes;
    umgebung.antworten = {Antwort::Abbrechen};
    umgebung.beiMeldung = [this](const Meldung& /*meldung*/) { gewaehlt.clear(); };
    EXPECT_FALSE(SpeichereDokument("Text|*.txt", "a.txt", "neu"));
    EXPECT_EQ(LiesDatei(Pfad("stand.txt"), 100000).bytes, vorher);
    EXPECT_EQ(umgebung.meldungen.size(), 1U);
}

} // namespace varnoth
