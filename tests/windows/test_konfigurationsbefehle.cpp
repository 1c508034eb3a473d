#include "konfigurationsbefehle.h"

#include "dateidialog.h"
#include "dateien.h"
#include "konfigurationsdatei.h"
#include "letztedateien.h"
#include "plausibilitaet.h"
#include "pruefsicherungen.h"
#include "pruefumgebung.h"
#include "registerabbild.h"
#include "registeradressen.h"
#include "standardkonfiguration.h"
#include "systemfehler.h"
#include "texte.h"
#include "zykluszeiten.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <cerrno>
#include <deque>

namespace varnoth {

namespace {

using pruefung::PruefEinstellungen;
using pruefung::PruefUmgebung;

const std::pair<std::string, std::string> Eintrag{"frmMain", "mnuSpeichernUnter"};

} // namespace

/// A plausible configuration with a part of 32 beams, and a file dialog that answers from a list; with none
/// left it is cancelled.
class Konfigurationsbefehle : public testing::Test {
protected:
    Konfigurationsbefehle() {
        modDaten::LadeStandardkonfiguration();
        modDaten::SetzeSpezifischeDaten(spezifisch::Strahlenzahl, 1, 0, {32});
        modDaten::LoescheGeaendert();
        SetzeDateiantwort([this](const Dateifrage& frage) -> std::optional<std::string> {
            gefragt.push_back(frage);
            if (gewaehlt.empty())
                return std::nullopt;
            const std::string pfad = gewaehlt.front();
            gewaehlt.pop_front();
            return pfad;
        });
    }

    std::string Pfad(const char* name) const {
        return ordner.filePath(QString::fromUtf8(name)).toStdString();
    }
    static std::string Inhalt(const std::string& pfad) { return LiesDatei(pfad, 100000).bytes; }
    /// A file that holds the image of this moment.
    std::string Gespeichert(const char* name) const {
        EXPECT_EQ(ErsetzeDatei(Pfad(name), modDaten::SpeichereKonfigurationsdatei()), "");
        return Pfad(name);
    }
    void ErwarteEineWarnung(const std::string& text) const {
        ASSERT_EQ(umgebung.meldungen.size(), 1U);
        EXPECT_EQ(umgebung.meldungen[0], Meldung{.text = text});
    }

    PruefUmgebung umgebung;
    PruefEinstellungen einstellungen;
    QTemporaryDir ordner;
    std::vector<Dateifrage> gefragt;
    std::deque<std::string> gewaehlt;
};

class Speichern : public Konfigurationsbefehle {};
class Oeffnen : public Konfigurationsbefehle {};
class Beendenfrage : public Konfigurationsbefehle {};

class Sicherungsfaelle : public Konfigurationsbefehle {
protected:
    static void Aendere() { modDaten::SetzeSpezifischeDaten(spezifisch::Reichweite, 1, 0, {4}); }

    pruefung::PruefSicherungen sicherungen;
};

TEST_F(Sicherungsfaelle, Opening_a_file_puts_unsaved_changes_aside_first_without_a_word) {
    const std::string pfad = Gespeichert("a.con");
    Aendere();
    const Abbild geaendertes = modDaten::DasAbbild();
    EXPECT_TRUE(LadeDatei(pfad));
    ASSERT_EQ(sicherungen.gelegte.size(), 1U);
    EXPECT_EQ(sicherungen.gelegte[0].second, geaendertes);
    EXPECT_EQ(sicherungen.gelegte[0].first.angaben.anlass, Sicherungsanlass::VorDemOeffnen);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(Sicherungsfaelle, What_was_only_opened_or_saved_is_not_put_aside) {
    const std::string pfad = Gespeichert("a.con");
    LadeDatei(pfad);
    LadeDatei(pfad);
    Aendere();
    gewaehlt = {Pfad("b.con")};
    EXPECT_TRUE(KonfigurationSpeichernUnter());
    modDaten::SetzeGeaendert();
    LadeDatei(pfad);
    EXPECT_TRUE(sicherungen.gelegte.empty());
}

TEST_F(Sicherungsfaelle, A_file_that_cannot_be_read_replaces_nothing_and_puts_nothing_aside) {
    Aendere();
    EXPECT_FALSE(LadeDatei(Pfad("missing.con")));
    EXPECT_TRUE(sicherungen.gelegte.empty());
}

TEST_F(Sicherungsfaelle, Where_the_backup_fails_Cancel_keeps_the_changes_and_OK_opens_the_file) {
    const std::string pfad = Gespeichert("a.con");
    const Abbild inDatei = modDaten::DasAbbild();
    modDaten::SetDateiname("alt.con");
    Aendere();
    const Abbild geaendertes = modDaten::DasAbbild();
    sicherungen.fehler = "the disk is full";
    umgebung.antworten = {Antwort::Abbrechen, Antwort::Ok};
    EXPECT_FALSE(LadeDatei(pfad));
    EXPECT_EQ(modDaten::DasAbbild(), geaendertes);
    EXPECT_EQ(modDaten::GetDateiname(), "alt.con");
    EXPECT_TRUE(LadeDatei(pfad));
    EXPECT_EQ(modDaten::DasAbbild(), inDatei);
    ASSERT_EQ(umgebung.meldungen.size(), 2U);
    EXPECT_EQ(umgebung.meldungen[0].text, "Die Änderungen konnten nicht gesichert werden: the disk is full");
}

TEST_F(Speichern, The_dialog_bears_title_and_filters_and_starts_in_the_programs_folder) {
    KonfigurationSpeichernUnter();
    ASSERT_EQ(gefragt.size(), 1U);
    EXPECT_EQ(gefragt[0], (Dateifrage{.art = Dateiwahl::Speichern,
                                      .titel = "Konfiguration speichern unter",
                                      .filter = "Konfiguration (*.con)|*.con|Alle Dateien|*.*"}));
}

TEST_F(Speichern, The_dialog_is_in_the_chosen_language) {
    SetzeSprachoffset(Englisch);
    KonfigurationSpeichernUnter();
    EXPECT_EQ(gefragt.at(0).titel, "Configuration save as");
    EXPECT_EQ(gefragt.at(0).filter, "Configuration (*.con)|*.con|All Files   |*.*");
}

TEST_F(Speichern, The_name_of_the_opened_file_is_preset) {
    modDaten::SetDateiname("/daten/Prüfstand.con");
    KonfigurationSpeichernUnter();
    EXPECT_EQ(gefragt.at(0).name, "/daten/Prüfstand.con");
}

TEST_F(Speichern, Cancelling_the_dialog_ends_silently) {
    modDaten::SetzeGeaendert();
    EXPECT_FALSE(KonfigurationSpeichernUnter());
    EXPECT_TRUE(umgebung.meldungen.empty());
    EXPECT_EQ(einstellungen.geschrieben, 0);
    EXPECT_EQ(modDaten::IstGeaendert(), True);
}

TEST_F(Speichern, A_saved_file_is_remembered_and_the_configuration_counts_as_unchanged) {
    modDaten::SetzeGeaendert();
    gewaehlt = {Pfad("Größe 1.con")};
    EXPECT_TRUE(KonfigurationSpeichernUnter());
    EXPECT_EQ(Inhalt(Pfad("Größe 1.con")), modDaten::SpeichereKonfigurationsdatei());
    EXPECT_EQ(einstellungen.texte[Eintrag], Pfad("Größe 1.con"));
    EXPECT_EQ(modDaten::IstGeaendert(), False);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(Speichern, Saving_does_not_change_the_current_file_name) {
    modDaten::SetDateiname("alt.con");
    gewaehlt = {Pfad("neu.con")};
    KonfigurationSpeichernUnter();
    EXPECT_EQ(modDaten::GetDateiname(), "alt.con");
}

TEST_F(Speichern, A_saved_file_is_one_of_the_files_used_last) {
    gewaehlt = {Pfad("a.con"), Pfad("weg/b.con")};
    KonfigurationSpeichernUnter();
    KonfigurationSpeichernUnter();
    EXPECT_EQ(LetzteDateien(), std::vector{Pfad("a.con")}) << "not the one that could not be written";
}

TEST_F(Speichern, The_dialog_starts_where_the_last_file_was) {
    MerkeDatei("/zuletzt/c.con");
    KonfigurationSpeichernUnter();
    EXPECT_EQ(gefragt.at(0).ordner, "/zuletzt/");
}

TEST_F(Speichern, A_path_of_200_characters_works) {
    const std::string pfad = Pfad((std::string(196, 'x') + ".con").c_str());
    gewaehlt = {pfad};
    EXPECT_TRUE(KonfigurationSpeichernUnter());
    EXPECT_TRUE(LadeDatei(pfad));
}

TEST_F(Speichern, An_existing_file_is_replaced_after_a_question_with_its_path) {
    const std::string pfad = Pfad("da.con");
    ErsetzeDatei(pfad, "alt");
    gewaehlt = {pfad};
    umgebung.antworten = {Antwort::Ok};
    EXPECT_TRUE(KonfigurationSpeichernUnter());
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0],
              (Meldung{.text = pfad + " ist bereits vorhanden.\nVorhandene Datei ersetzen?",
                       .symbol = Symbol::Warnung,
                       .knoepfe = Knoepfe::OkAbbrechen}));
    EXPECT_EQ(Inhalt(pfad), modDaten::SpeichereKonfigurationsdatei());
}

TEST_F(Speichern, The_question_is_in_the_chosen_language) {
    SetzeSprachoffset(Englisch);
    ErsetzeDatei(Pfad("da.con"), "alt");
    gewaehlt = {Pfad("da.con")};
    KonfigurationSpeichernUnter();
    EXPECT_EQ(umgebung.meldungen.at(0).text, Pfad("da.con") + " already exists.\n Overwrite existing File?");
}

TEST_F(Speichern, Cancel_in_the_question_shows_the_dialog_again_with_the_chosen_name) {
    ErsetzeDatei(Pfad("da.con"), "alt");
    gewaehlt = {Pfad("da.con"), Pfad("neu.con")};
    umgebung.antworten = {Antwort::Abbrechen};
    EXPECT_TRUE(KonfigurationSpeichernUnter());
    ASSERT_EQ(gefragt.size(), 2U);
    EXPECT_EQ(gefragt[1].name, Pfad("da.con"));
    EXPECT_EQ(Inhalt(Pfad("da.con")), "alt");
    EXPECT_TRUE(GibtEsDatei(Pfad("neu.con")));
}

TEST_F(Speichern, Cancel_in_the_question_and_in_the_dialog_ends_silently) {
    modDaten::SetzeGeaendert();
    ErsetzeDatei(Pfad("da.con"), "alt");
    gewaehlt = {Pfad("da.con")};
    umgebung.antworten = {Antwort::Abbrechen};
    EXPECT_FALSE(KonfigurationSpeichernUnter());
    EXPECT_EQ(gefragt.size(), 2U);
    EXPECT_EQ(Inhalt(Pfad("da.con")), "alt");
    EXPECT_EQ(modDaten::IstGeaendert(), True);
}

TEST(Dateifehler, The_path_stands_in_a_line_of_its_own_unless_the_text_names_it) {
    EXPECT_EQ(Dateifehlertext("Permission denied", "/a/b.con"), "Permission denied\n/a/b.con");
    EXPECT_EQ(Dateifehlertext("/a/b.con: Permission denied", "/a/b.con"), "/a/b.con: Permission denied");
}

TEST_F(Speichern, A_file_that_cannot_be_written_gives_the_systems_text_and_stays_unsaved) {
    modDaten::SetzeGeaendert();
    gewaehlt = {Pfad("weg/a.con")};
    EXPECT_FALSE(KonfigurationSpeichernUnter());
    ErwarteEineWarnung(Systemfehler(ENOENT) + "\n" + Pfad("weg/a.con"));
    EXPECT_EQ(modDaten::IstGeaendert(), True);
    EXPECT_EQ(einstellungen.geschrieben, 0);
}

TEST_F(Speichern, A_folder_is_not_replaced) {
    ASSERT_TRUE(QDir(ordner.path()).mkdir(QStringLiteral("Ordner")));
    gewaehlt = {Pfad("Ordner")};
    EXPECT_FALSE(KonfigurationSpeichernUnter());
    ASSERT_EQ(umgebung.meldungen.size(), 2U);
    EXPECT_EQ(umgebung.meldungen[1].text, Systemfehler(EISDIR) + "\n" + Pfad("Ordner"));
}

TEST_F(Speichern, A_file_that_vanishes_after_the_question_is_written_anew_without_a_message) {
    const std::string pfad = Gespeichert("da.con");
    gewaehlt = {pfad};
    umgebung.beiMeldung = [&](const Meldung&) { QFile::remove(QString::fromStdString(pfad)); };
    EXPECT_TRUE(KonfigurationSpeichernUnter());
    EXPECT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(Inhalt(pfad), modDaten::SpeichereKonfigurationsdatei());
}

TEST_F(Speichern, A_folder_that_vanishes_after_the_question_gives_the_systems_text_and_stays_unsaved) {
    ASSERT_TRUE(QDir(ordner.path()).mkdir("weg"));
    const std::string pfad = Gespeichert("weg/da.con");
    modDaten::SetzeGeaendert();
    gewaehlt = {pfad};
    umgebung.beiMeldung = [&](const Meldung&) { QDir(ordner.filePath("weg")).removeRecursively(); };
    EXPECT_FALSE(KonfigurationSpeichernUnter());
    ASSERT_EQ(umgebung.meldungen.size(), 2U);
    EXPECT_EQ(umgebung.meldungen[1], Meldung{.text = Systemfehler(ENOENT) + "\n" + pfad});
    EXPECT_EQ(modDaten::IstGeaendert(), True);
}

TEST_F(Speichern, A_folder_in_place_of_the_file_after_the_question_is_kept) {
    const std::string pfad = Gespeichert("da.con");
    const QString name = QString::fromStdString(pfad);
    gewaehlt = {pfad};
    umgebung.beiMeldung = [&](const Meldung&) {
        QFile::remove(name);
        QDir().mkdir(name);
    };
    EXPECT_FALSE(KonfigurationSpeichernUnter());
    ASSERT_EQ(umgebung.meldungen.size(), 2U);
    EXPECT_EQ(umgebung.meldungen[1], Meldung{.text = Systemfehler(EISDIR) + "\n" + pfad});
    EXPECT_TRUE(QFileInfo(name).isDir());
}

TEST_F(Speichern, A_file_in_place_of_the_folder_gives_the_systems_text) {
    Gespeichert("da.con");
    const std::string pfad = Pfad("da.con/neu.con");
    gewaehlt = {pfad};
    EXPECT_FALSE(KonfigurationSpeichernUnter());
    ErwarteEineWarnung(Systemfehler(ENOTDIR) + "\n" + pfad);
    EXPECT_EQ(Inhalt(Pfad("da.con")), modDaten::SpeichereKonfigurationsdatei());
}

TEST_F(Speichern, Through_a_link_the_file_it_leads_to_is_replaced_and_the_link_stays) {
    const std::string ziel = Gespeichert("ziel.con");
    modDaten::SetzeSpezifischeDaten(spezifisch::Strahlenzahl, 1, 0, {64});
    ASSERT_TRUE(QFile::link(QString::fromStdString(ziel), ordner.filePath("link.con")));
    gewaehlt = {Pfad("link.con")};
    EXPECT_TRUE(KonfigurationSpeichernUnter());
    EXPECT_EQ(umgebung.meldungen.size(), 1U) << "the question whether to replace it";
    EXPECT_TRUE(QFileInfo(ordner.filePath("link.con")).isSymLink());
    EXPECT_EQ(Inhalt(ziel), modDaten::SpeichereKonfigurationsdatei());
}

TEST_F(Speichern, A_pipe_a_device_and_links_to_what_is_no_file_are_kept) {
    ASSERT_EQ(mkfifo(Pfad("rohr").c_str(), 0600), 0);
    ASSERT_TRUE(QFile::link(ordner.filePath("rohr"), ordner.filePath("rohr.con")));
    ASSERT_TRUE(QFile::link(ordner.path(), ordner.filePath("ordner.con")));
    ASSERT_TRUE(QFile::link("/dev/full", ordner.filePath("geraet.con")));
    const std::pair<std::string, std::string> faelle[] = {{Pfad("rohr"), KeineGewoehnlicheDatei()},
                                                          {Pfad("rohr.con"), KeineGewoehnlicheDatei()},
                                                          {"/dev/full", KeineGewoehnlicheDatei()},
                                                          {Pfad("geraet.con"), KeineGewoehnlicheDatei()},
                                                          {Pfad("ordner.con"), Systemfehler(EISDIR)}};
    for (const auto& [pfad, grund] : faelle) {
        umgebung.meldungen.clear();
        gewaehlt = {pfad};
        modDaten::SetzeGeaendert();
        EXPECT_FALSE(KonfigurationSpeichernUnter()) << pfad;
        ASSERT_EQ(umgebung.meldungen.size(), 2U) << pfad;
        EXPECT_EQ(umgebung.meldungen[1].text, grund + "\n" + pfad);
        EXPECT_EQ(modDaten::IstGeaendert(), True);
    }
    for (const char* name : {"rohr.con", "ordner.con", "geraet.con"})
        EXPECT_TRUE(QFileInfo(ordner.filePath(name)).isSymLink()) << name;
}

TEST_F(Speichern, A_link_that_leads_nowhere_gets_its_file) {
    ASSERT_TRUE(QFile::link(ordner.filePath("ziel.con"), ordner.filePath("link.con")));
    gewaehlt = {Pfad("link.con")};
    EXPECT_TRUE(KonfigurationSpeichernUnter());
    EXPECT_TRUE(QFileInfo(ordner.filePath("link.con")).isSymLink());
    EXPECT_EQ(Inhalt(Pfad("ziel.con")), modDaten::SpeichereKonfigurationsdatei());
}

TEST_F(Oeffnen, A_link_opens_the_file_it_leads_to) {
    const std::string ziel = Gespeichert("ziel.con");
    modDaten::LadeStandardkonfiguration();
    ASSERT_TRUE(QFile::link(QString::fromStdString(ziel), ordner.filePath("link.con")));
    EXPECT_TRUE(LadeDatei(Pfad("link.con")));
    EXPECT_EQ(modDaten::Strahlenzahl(0), 32);
    EXPECT_EQ(modDaten::GetDateiname(), Pfad("link.con"));
}

TEST_F(Oeffnen, What_is_no_file_gives_the_reason_at_once) {
    ASSERT_EQ(mkfifo(Pfad("rohr").c_str(), 0600), 0);
    ASSERT_TRUE(QFile::link(ordner.filePath("rohr"), ordner.filePath("rohr.con")));
    ASSERT_TRUE(QFile::link(ordner.path(), ordner.filePath("ordner.con")));
    ASSERT_TRUE(QFile::link(ordner.filePath("weg.con"), ordner.filePath("nirgends.con")));
    ASSERT_TRUE(QFile::link(ordner.filePath("kreis.con"), ordner.filePath("kreis.con")));
    const std::pair<std::string, std::string> faelle[] = {
        {Pfad("rohr"), KeineGewoehnlicheDatei()},     {Pfad("rohr.con"), KeineGewoehnlicheDatei()},
        {"/dev/zero", KeineGewoehnlicheDatei()},      {Pfad("ordner.con"), Systemfehler(EISDIR)},
        {Pfad("nirgends.con"), Systemfehler(ENOENT)}, {Pfad("kreis.con"), Systemfehler(ELOOP)}};
    for (const auto& [pfad, grund] : faelle) {
        umgebung.meldungen.clear();
        EXPECT_FALSE(LadeDatei(pfad)) << pfad;
        ErwarteEineWarnung(grund + "\n" + pfad);
        EXPECT_EQ(modDaten::Strahlenzahl(0), 32) << pfad;
    }
}

TEST_F(Oeffnen, The_dialog_bears_title_and_filters) {
    EXPECT_FALSE(KonfigurationOeffnen());
    EXPECT_EQ(gefragt.at(0), (Dateifrage{.art = Dateiwahl::Oeffnen,
                                         .titel = "Konfiguration öffnen",
                                         .filter = "Konfiguration (*.con)|*.con|Alle Dateien|*.*"}));
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(Oeffnen, The_dialog_starts_where_a_file_was_last_saved_or_opened) {
    einstellungen.texte[Eintrag] = "/gespeichert/a.con";
    KonfigurationOeffnen();
    modDaten::SetDateiname("/geöffnet/b.con");
    KonfigurationOeffnen();
    EXPECT_EQ(gefragt.at(0).ordner, "/gespeichert/");
    EXPECT_EQ(gefragt.at(1).ordner, "/geöffnet/");
}

TEST_F(Oeffnen, The_dialog_starts_where_the_last_file_was_even_after_another_was_opened) {
    modDaten::SetDateiname("/geöffnet/b.con");
    MerkeDatei("/zuletzt/c.con");
    KonfigurationOeffnen();
    EXPECT_EQ(gefragt.at(0).ordner, "/zuletzt/");
}

TEST_F(Oeffnen, A_good_file_is_one_of_the_files_used_last_and_a_bad_one_is_not) {
    ErsetzeDatei(Pfad("schlecht.con"), "x");
    LadeDatei(Pfad("schlecht.con"));
    LadeDatei(Pfad("weg.con"));
    EXPECT_TRUE(LetzteDateien().empty());
    LadeDatei(Gespeichert("gut.con"));
    EXPECT_EQ(LetzteDateien(), std::vector{Pfad("gut.con")});
}

TEST_F(Oeffnen, A_good_file_replaces_the_image_and_becomes_the_current_file) {
    const std::string pfad = Gespeichert("Prüf stand.con");
    const std::string erwartet = Inhalt(pfad);
    modDaten::LadeStandardkonfiguration();
    gewaehlt = {pfad};
    EXPECT_TRUE(KonfigurationOeffnen());
    EXPECT_EQ(modDaten::SpeichereKonfigurationsdatei(), erwartet);
    EXPECT_EQ(modDaten::GetDateiname(), pfad);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(Oeffnen, A_file_that_is_only_read_becomes_neither_the_current_file_nor_one_used_last) {
    const std::string aktuelle = Gespeichert("a.con");
    LadeDatei(aktuelle);
    EXPECT_TRUE(QDir(ordner.path()).mkdir("sicherungen"));
    const std::string sicherung = Gespeichert("sicherungen/b.con");
    EXPECT_TRUE(LadeDatei(sicherung, Dateirolle::Vorlage));
    EXPECT_EQ(modDaten::GetDateiname(), "");
    EXPECT_EQ(LetzteDateien(), std::vector{aktuelle});
    KonfigurationSpeichernUnter();
    EXPECT_EQ(gefragt.at(0).name, "");
    EXPECT_EQ(gefragt.at(0).ordner, Pfad("") + "/");
}

TEST_F(Oeffnen, A_loaded_file_counts_as_changed_so_that_closing_asks_to_save) {
    LadeDatei(Gespeichert("a.con"));
    EXPECT_EQ(modDaten::IstGeaendert(), True);
    umgebung.antworten = {Antwort::Nein};
    EXPECT_TRUE(FrageNachSpeichern());
    EXPECT_EQ(umgebung.meldungen.size(), 1U);
}

TEST_F(Oeffnen, Cycle_times_follow_the_loaded_beam_counts) {
    LadeDatei(Gespeichert("a.con"));
    EXPECT_EQ(modHilfsFunktionen::GetZykluszeit(0), 1750);
}

TEST_F(Oeffnen, A_file_that_is_not_there_gives_the_systems_text_and_nothing_else_happens) {
    modDaten::SetDateiname("alt.con");
    const std::string vorher = modDaten::SpeichereKonfigurationsdatei();
    EXPECT_FALSE(LadeDatei(Pfad("weg.con")));
    ErwarteEineWarnung(Systemfehler(ENOENT) + "\n" + Pfad("weg.con"));
    EXPECT_EQ(modDaten::GetDateiname(), "alt.con");
    EXPECT_EQ(modDaten::SpeichereKonfigurationsdatei(), vorher);
    EXPECT_EQ(modDaten::IstGeaendert(), False);
}

TEST_F(Oeffnen, A_folder_gives_the_systems_text) {
    EXPECT_FALSE(LadeDatei(ordner.path().toStdString()));
    ErwarteEineWarnung(Systemfehler(EISDIR) + "\n" + ordner.path().toStdString());
}

TEST_F(Oeffnen, A_failed_load_still_becomes_the_current_file_and_leaves_a_plausible_image) {
    const std::string vorher = modDaten::SpeichereKonfigurationsdatei();
    const std::pair<std::string, std::int16_t> faelle[] = {{"", 3100},
                                                           {"another program's file", 3100},
                                                           {vorher.substr(0, 10261), 3100},
                                                           {std::string("Varnoth Konfiguration\x01"), 3101}};
    for (const auto& [bytes, textId] : faelle) {
        umgebung.meldungen.clear();
        modDaten::SetDateiname("alt.con");
        ErsetzeDatei(Pfad("schlecht.con"), bytes);
        EXPECT_FALSE(LadeDatei(Pfad("schlecht.con")));
        ErwarteEineWarnung(LadeText(textId));
        EXPECT_EQ(modDaten::GetDateiname(), Pfad("schlecht.con"));
        EXPECT_EQ(modDaten::SpeichereKonfigurationsdatei(), vorher);
        EXPECT_EQ(modDaten::IstGeaendert(), False);
    }
}

TEST_F(Oeffnen, A_failed_load_runs_the_plausibility_check_on_the_unchanged_image) {
    modDaten::SetzeSpezifischeDaten(spezifisch::Aufloesung, 1, 0, {7});
    ErsetzeDatei(Pfad("schlecht.con"), "x");
    EXPECT_FALSE(LadeDatei(Pfad("schlecht.con")));
    ASSERT_EQ(umgebung.meldungen.size(), 2U);
    EXPECT_EQ(umgebung.meldungen[0].text, LadeText(3100));
    EXPECT_EQ(umgebung.meldungen[1].text, LadeText(3102));
    EXPECT_TRUE(modDaten::IstPlausibel());
}

TEST_F(Oeffnen, An_implausible_file_is_replaced_by_the_default_configuration) {
    modDaten::SetzeSpezifischeDaten(spezifisch::Aufloesung, 1, 0, {7});
    const std::string pfad = Gespeichert("a.con");
    EXPECT_FALSE(LadeDatei(pfad));
    ErwarteEineWarnung(LadeText(3102));
    EXPECT_EQ(modDaten::Strahlenzahl(0), 0);
    EXPECT_EQ(modHilfsFunktionen::GetZykluszeit(0), 0);
    EXPECT_EQ(modDaten::GetDateiname(), pfad);
}

TEST_F(Oeffnen, A_file_longer_than_a_body_is_loaded) {
    const std::string pfad = Gespeichert("a.con");
    ErsetzeDatei(pfad, Inhalt(pfad) + std::string(50000, 'x'));
    EXPECT_TRUE(LadeDatei(pfad));
}

TEST_F(Beendenfrage, Without_changes_the_program_ends_without_a_question) {
    EXPECT_TRUE(FrageNachSpeichern());
    EXPECT_TRUE(umgebung.meldungen.empty());
}

TEST_F(Beendenfrage, Cancel_keeps_the_program_running_and_the_changes) {
    modDaten::SetzeGeaendert();
    umgebung.antworten = {Antwort::Abbrechen};
    EXPECT_FALSE(FrageNachSpeichern());
    ASSERT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(umgebung.meldungen[0],
              (Meldung{.text = "Möchten Sie die Änderungen in der Konfiguration speichern?",
                       .titel = "Achtung",
                       .symbol = Symbol::Warnung,
                       .knoepfe = Knoepfe::JaNeinAbbrechen}));
    EXPECT_EQ(modDaten::IstGeaendert(), True);
    EXPECT_TRUE(gefragt.empty());
}

TEST_F(Beendenfrage, No_ends_without_saving_and_clears_the_changed_mark) {
    modDaten::SetzeGeaendert();
    umgebung.antworten = {Antwort::Nein};
    EXPECT_TRUE(FrageNachSpeichern());
    EXPECT_TRUE(gefragt.empty());
    EXPECT_EQ(modDaten::IstGeaendert(), False);
}

TEST_F(Beendenfrage, Yes_saves_and_ends) {
    modDaten::SetzeGeaendert();
    umgebung.antworten = {Antwort::Ja};
    gewaehlt = {Pfad("a.con")};
    EXPECT_TRUE(FrageNachSpeichern());
    EXPECT_TRUE(GibtEsDatei(Pfad("a.con")));
    EXPECT_EQ(modDaten::IstGeaendert(), False);
    EXPECT_EQ(umgebung.meldungen.size(), 1U);
}

TEST_F(Beendenfrage, Yes_and_a_cancelled_dialog_keep_the_program_running_without_a_second_question) {
    modDaten::SetzeGeaendert();
    umgebung.antworten = {Antwort::Ja, Antwort::Nein};
    EXPECT_FALSE(FrageNachSpeichern());
    EXPECT_EQ(umgebung.meldungen.size(), 1U);
    EXPECT_EQ(modDaten::IstGeaendert(), True);
}

TEST_F(Beendenfrage, Yes_and_a_failed_save_keep_the_program_running_without_a_second_question) {
    modDaten::SetzeGeaendert();
    umgebung.antworten = {Antwort::Ja, Antwort::Ok, Antwort::Nein};
    gewaehlt = {Pfad("weg/a.con")};
    EXPECT_FALSE(FrageNachSpeichern());
    EXPECT_EQ(umgebung.meldungen.size(), 2U) << "the question and why the file was not written";
    EXPECT_EQ(modDaten::IstGeaendert(), True);
}

TEST_F(Beendenfrage, The_question_comes_again_when_the_program_is_closed_again) {
    modDaten::SetzeGeaendert();
    umgebung.antworten = {Antwort::Ja, Antwort::Nein};
    EXPECT_FALSE(FrageNachSpeichern());
    EXPECT_TRUE(FrageNachSpeichern());
    EXPECT_EQ(umgebung.meldungen.size(), 2U);
}

} // namespace varnoth
