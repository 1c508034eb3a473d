// The program at a simulated controller: every command, its data in JSON against the description, and every
// exit code.

#include "ctlprozess.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <sys/stat.h>

#include <csignal>

namespace varnoth::pruefung {

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class Varnothctl : public CtlProgrammTest {
protected:
    static constexpr const char* Lochgroesse = "specific 0 26";
};

} // namespace

TEST_F(Varnothctl, Identify_tells_who_the_controller_is) {
    SchliesseGeraetAn({"--unpaced", "--address", "7"});
    EXPECT_THAT(Fuehre({"identify"}).daten, StartsWith("Name: Varnoth Simulator\nSerial num.: SIM-0001\n"));
    const auto objekt = InJson({"identify"});
    EXPECT_EQ(objekt["controller"]["address"].toInt(), 7);
}

TEST_F(Varnothctl, Read_export_and_import_lead_to_the_same_configuration) {
    SchliesseGeraetAn();
    const auto gelesen = InJson({"read", "-o", "a.con"});
    EXPECT_EQ(gelesen["file"].toString(), "a.con");
    const auto exportiert = InJson({"export", "-o", "a.txt"});
    const auto importiert = InJson({"import", "a.txt", "-o", "b.con"});
    EXPECT_EQ(exportiert["checksum"], gelesen["checksum"]);
    EXPECT_EQ(importiert["checksum"], gelesen["checksum"]);
    EXPECT_EQ(Inhalt("b.con").size(), Inhalt("a.con").size());
    EXPECT_EQ(Fuehre({"compare", "a.con", "b.con"}).code, 0);
    EXPECT_EQ(InJson({"read"})["registers"].toArray().size(), gelesen["registers"].toArray().size());
    EXPECT_EQ(InJson({"export", "b.con"})["text"].toString().toUtf8(), Inhalt("a.txt"));
}

TEST_F(Varnothctl, The_example_is_the_whole_configuration_of_the_simulated_controller) {
    SchliesseGeraetAn();
    EXPECT_EQ(Fuehre({"compare", EXAMPLES "/example.con", "device"}).code, 0);
}

TEST_F(Varnothctl, The_text_of_a_controller_does_not_change_with_what_it_measures) {
    SchliesseGeraetAn();
    geraet->Befehl("scene freeze");
    geraet->Befehl("set global 196 2");
    const auto aktiv = Fuehre({"export"}).daten;
    geraet->Befehl("set global 196 0");
    EXPECT_EQ(Fuehre({"export"}).daten, aktiv);
    EXPECT_EQ(Fuehre({"read"}).daten, aktiv);
}

TEST_F(Varnothctl, Write_backs_up_writes_stores_and_reads_back) {
    SchliesseGeraetAn();
    ASSERT_EQ(Fuehre({"read", "-o", "a.con"}).code, 0);
    geraet->Befehl(std::string("set ") + Lochgroesse + " 77");
    const auto geschrieben = InJson({"write", "a.con", "--yes", "--store", "--verify"});
    EXPECT_TRUE(geschrieben["complete"].toBool());
    EXPECT_TRUE(geschrieben["stored"].toBool());
    EXPECT_EQ(geschrieben["changes"].toArray().size(), 1);
    EXPECT_EQ(geschrieben["check"]["equal"], geschrieben["check"]["registers"]);
    const QString sicherung = geschrieben["backup"].toString();
    EXPECT_TRUE(sicherung.startsWith(Pfad("data/varnoth/sicherungen/SIM-0001/"))) << qPrintable(sicherung);
    geraet->Befehl("restart");
    EXPECT_EQ(geraet->Register(Lochgroesse), 1);
    const auto verglichen = InJson({"compare", sicherung, "device"}, 1);
    EXPECT_EQ(verglichen["counts"]["different"].toInt(), 1);
    EXPECT_EQ(Fuehre({"write", "backup:SIM-0001", "--yes", "--no-backup"}).code, 0);
    EXPECT_EQ(geraet->Register(Lochgroesse), 77);
}

TEST_F(Varnothctl, Write_without_a_backup_still_has_its_data_as_described) {
    SchliesseGeraetAn();
    ASSERT_EQ(Fuehre({"read", "-o", "a.con"}).code, 0);
    const auto geschrieben = InJson({"write", "a.con", "--yes", "--no-backup"});
    EXPECT_TRUE(geschrieben["backup"].isNull());
    EXPECT_TRUE(geschrieben["changes"].isNull());
    EXPECT_TRUE(geschrieben["check"].isNull());
    EXPECT_FALSE(QDir(Pfad("data/varnoth/sicherungen")).exists());
}

TEST_F(Varnothctl, Write_finds_a_register_that_the_controller_silently_refuses) {
    SchliesseGeraetAn({"--unpaced", "--fault", "forget=0x201A"});
    ASSERT_EQ(Fuehre({"read", "-o", "a.con"}).code, 0);
    geraet->Befehl(std::string("set ") + Lochgroesse + " 77");
    const auto geschrieben = InJson({"write", "a.con", "--yes", "--verify"}, 5);
    const auto zeilen = geschrieben["check"]["rows"].toArray();
    ASSERT_EQ(zeilen.size(), 1);
    EXPECT_EQ(zeilen[0]["name"].toString(), "Hole size/width");
    EXPECT_EQ(zeilen[0]["readBack"].toString(), "77");
}

TEST_F(Varnothctl, A_write_on_a_line_that_fails_restores_every_register_all_the_same) {
    SchliesseGeraetAn({"--unpaced"});
    ASSERT_EQ(Fuehre({"read", "-o", "a.con"}).code, 0);
    geraet->Befehl(std::string("set ") + Lochgroesse + " 77");
    geraet->Befehl("fault crc:3@0x10");
    geraet->Befehl("fault silence:1@0x03");
    const auto ergebnis = Fuehre({"write", "a.con", "--yes", "--verify"});
    EXPECT_EQ(ergebnis.code, 0) << ergebnis.meldungen;
    EXPECT_EQ(geraet->Register(Lochgroesse), 1);
}

TEST_F(Varnothctl, Compare_counts_each_class) {
    SchliesseGeraetAn({"--unpaced", "--beams", "32,64,0,0"});
    ASSERT_EQ(Fuehre({"read", "-o", "a.con"}).code, 0);
    SchliesseGeraetAn({"--unpaced", "--beams", "32,0,0,0"});
    const auto verglichen = InJson({"compare", "device", "a.con"}, 1);
    EXPECT_GT(verglichen["counts"]["onlyInB"].toInt(), 0);
    EXPECT_GT(verglichen["counts"]["equal"].toInt(), 0);
    EXPECT_EQ(verglichen["missingParts"].toArray(), (QJsonArray{3, 4}));
    EXPECT_FALSE(verglichen["equal"].toBool());
    InJson({"compare", "a.con", "default"}, 1);
}

TEST_F(Varnothctl, Get_and_set_know_names_and_words) {
    SchliesseGeraetAn();
    EXPECT_EQ(Fuehre({"get", "1/Resolution", "Station address"}).daten,
              "Optical part 1 / Resolution: 5mm\nCommunication / Station address: 1H\n");
    EXPECT_EQ(InJson({"get", "2/Blanking pattern", "250"})["registers"].toArray().size(), 2);
    const auto gesetzt = InJson({"set", "2/Blanking pattern", "3-7, 12", "--yes", "--store"});
    EXPECT_EQ(gesetzt["readBack"]["words"].toString(), "3-7, 12");
    geraet->Befehl("restart");
    EXPECT_EQ(Fuehre({"get", "2/Blankingmuster", "--lang", "de"}).daten,
              "Optikteil 2 / Blankingmuster: 3-7, 12\n");
    EXPECT_EQ(Fuehre({"set", "1/Auflösung", "40mm", "--yes"}).code, 0);
    EXPECT_EQ(geraet->Register("specific 0 13"), 40);
}

TEST_F(Varnothctl, Watch_writes_a_line_for_each_picture) {
    SchliesseGeraetAn({"--unpaced", "--beams", "32,0,16,0"});
    geraet->Befehl("scene beams 0 interrupted 3-7,9");
    const auto ergebnis = Fuehre({"watch", "-n", "3", "-i", "0", "--json"});
    EXPECT_EQ(ergebnis.code, 0) << ergebnis.meldungen;
    const auto zeilen = QByteArray::fromStdString(ergebnis.daten).trimmed().split('\n');
    ASSERT_EQ(zeilen.size(), 3);
    for (const QByteArray& zeile : zeilen)
        EXPECT_EQ(Geprueft(zeile + "\n")["parts"].toArray().size(), 3);
    const auto teile = Geprueft(zeilen.last() + "\n")["parts"].toArray();
    EXPECT_EQ(teile[0]["interrupted"].toArray(), (QJsonArray{QJsonArray{3, 7}, QJsonArray{9, 9}}));
    EXPECT_FALSE(teile[1]["present"].toBool());
    EXPECT_THAT(Fuehre({"watch", "-n", "1"}).daten, HasSubstr("3-7, 9\n"));
}

TEST_F(Varnothctl, Report_is_a_document_with_the_fields_given) {
    SchliesseGeraetAn();
    const auto bericht = InJson({"report", "--plant", "Hall <7>"});
    EXPECT_TRUE(bericht["html"].toString().contains("Hall &lt;7&gt;"));
    EXPECT_TRUE(InJson({"report", "-o", "r.html"})["html"].isNull());
    EXPECT_TRUE(Inhalt("r.html").contains("SIM-0001"));
}

TEST_F(Varnothctl, Reset_starts_the_controller_anew) {
    SchliesseGeraetAn();
    geraet->Befehl(std::string("set ") + Lochgroesse + " 77");
    EXPECT_TRUE(InJson({"reset", "--yes"})["restarted"].toBool());
    EXPECT_EQ(geraet->Register(Lochgroesse), 1);
}

TEST_F(Varnothctl, Help_and_version_are_data_too) {
    const auto hilfe = InJson({"--help"});
    QSet<QString> befehle;
    for (const QJsonValue befehl : hilfe["commands"].toArray())
        befehle.insert(befehl["name"].toString());
    for (const char* const name : {"identify", "read", "write", "compare", "get", "set", "watch", "report",
                                   "export", "import", "reset"})
        EXPECT_TRUE(befehle.contains(name)) << name;
    InJson({"--version"});
}

TEST_F(Varnothctl, Every_command_tells_its_help_in_both_languages) {
    for (const QJsonValue befehl : InJson({"--help"})["commands"].toArray())
        for (const auto& [sprache, wort] : {std::pair("de", "Aufruf: "), std::pair("en", "Usage: ")}) {
            const auto ergebnis = FuehreOhnePort({befehl["name"].toString(), "--help", "--lang", sprache});
            EXPECT_EQ(ergebnis.code, 0);
            EXPECT_THAT(ergebnis.daten, StartsWith(wort));
        }
}

TEST_F(Varnothctl, The_language_is_that_of_the_environment) {
    umwelt.insert("LANG", "de_DE.UTF-8");
    EXPECT_THAT(FuehreOhnePort({"--help"}).daten, HasSubstr("Befehle:"));
    EXPECT_THAT(FuehreOhnePort({"--help", "--lang", "en"}).daten, HasSubstr("Commands:"));
    umwelt.insert("LC_ALL", "C");
    EXPECT_THAT(FuehreOhnePort({"--help"}).daten, HasSubstr("Commands:"));
}

TEST_F(Varnothctl, A_terminal_without_umlauts_gets_none_and_JSON_keeps_them) {
    SchliesseGeraetAn();
    umwelt.insert("LANG", "C");
    EXPECT_EQ(Fuehre({"get", "1/Aufloesung", "--lang", "de"}).daten, "Optikteil 1 / Aufloesung: 5mm\n");
    EXPECT_THAT(Fuehre({"get", "1/Aufloesung", "--lang", "de", "--json"}).daten, HasSubstr("Auflösung"));
    EXPECT_THAT(Fuehre({"export", "--lang", "de"}).daten, HasSubstr("Auflösung"));
    umwelt.insert("LANG", "de_DE.UTF-8"); // whether or not this system has it
    EXPECT_EQ(Fuehre({"get", "1/Aufloesung"}).daten, "Optikteil 1 / Auflösung: 5mm\n");
}

TEST_F(Varnothctl, What_a_name_holds_has_no_effect_on_a_terminal) {
    SchliesseGeraetAn();
    const auto ergebnis = Fuehre({"read", "-o", "a\x1b[2J.con"});
    EXPECT_EQ(ergebnis.meldungen, "Saved: a\xEF\xBF\xBD[2J.con\n");
    EXPECT_THAT(Fuehre({"compare", "default", "a\x1b[2J.con"}).daten,
                HasSubstr("\nB: a\xEF\xBF\xBD[2J.con\n"));
    umwelt.insert("LANG", "C");
    EXPECT_EQ(Fuehre({"read", "-o", "b\x1b[2J.con"}).meldungen, "Saved: b?[2J.con\n");
}

TEST_F(Varnothctl, Nothing_but_messages_goes_to_standard_error_and_nothing_of_Qt) {
    SchliesseGeraetAn();
    umwelt.insert("LANG", "C");
    EXPECT_EQ(Fuehre({"identify"}).meldungen, "");
    EXPECT_EQ(Fuehre({"read"}).meldungen, "");
}

TEST_F(Varnothctl, Port_and_format_of_the_settings_file_count_and_the_file_stays_as_it_is) {
    SchliesseGeraetAn();
    const QByteArray datei =
        "[Settings]\nComPort=3\nComGeraet2=/dev/missing\nComGeraet3=" + Pfad("line").toUtf8() +
        "\nComSettings=38400,n,8,2\n";
    Schreibe("varnoth.ini", datei);
    EXPECT_EQ(FuehreOhnePort({"identify"}).code, 0);
    EXPECT_EQ(FuehreOhnePort({"identify", "--port", "COM3"}).code, 0);
    EXPECT_THAT(FuehreOhnePort({"identify", "--port", "COM2"}).meldungen,
                HasSubstr("There is no device /dev/missing."));
    EXPECT_EQ(FuehreOhnePort({"write", "default", "--yes"}).code, 0);
    EXPECT_EQ(Inhalt("varnoth.ini"), datei);
}

TEST_F(Varnothctl, Exit_code_2_is_a_command_line_that_makes_no_sense) {
    EXPECT_EQ(FuehreOhnePort({}).code, 2);
    EXPECT_EQ(FuehreOhnePort({"nonsense"}).code, 2);
    EXPECT_EQ(Fuehre({"read", "--output"}).code, 2);
    EXPECT_EQ(Fuehre({"compare", "a.con", "a.con"}).code, 2);
    EXPECT_EQ(Fuehre({"read", "-o", "a", "-o", "b"}).code, 2);
    EXPECT_EQ(Fuehre({"identify", "--format", "9600"}).code, 2);
}

TEST_F(Varnothctl, There_is_no_command_for_what_cannot_be_done_yet) {
    EXPECT_EQ(FuehreOhnePort({"record"}).code, 2);
    EXPECT_EQ(FuehreOhnePort({"convert"}).code, 2);
    EXPECT_THAT(FuehreOhnePort({"--help"}).daten, Not(HasSubstr("record")));
}

TEST_F(Varnothctl, Writing_commands_need_a_yes_in_a_script) {
    SchliesseGeraetAn();
    ASSERT_EQ(Fuehre({"read", "-o", "a.con"}).code, 0);
    for (const QStringList& worte : {QStringList{"write", "a.con"},
                                     {"set", "1/Resolution", "40mm"},
                                     {"reset"},
                                     {"read", "-o", "a.con"}}) {
        const auto ergebnis = Fuehre(worte);
        EXPECT_EQ(ergebnis.code, 2) << qPrintable(worte[0]);
        EXPECT_THAT(ergebnis.meldungen, HasSubstr("--yes"));
    }
    EXPECT_EQ(geraet->Register("specific 0 13"), 5);
}

TEST_F(Varnothctl, Exit_code_3_is_a_port_that_cannot_be_opened) {
    ASSERT_EQ(::mkfifo(Pfad("pipe").toLocal8Bit().constData(), 0600), 0);
    Schreibe("file", "x");
    for (const QString& port :
         {QString("/dev/missing"), QString("/dev/null"), Pfad("pipe"), Pfad("file"), ordner.path()}) {
        const auto ergebnis = FuehreOhnePort({"identify", "--port", port});
        EXPECT_EQ(ergebnis.code, 3) << qPrintable(port);
        EXPECT_THAT(ergebnis.meldungen, HasSubstr(port.toStdString()));
        EXPECT_EQ(ergebnis.daten, "");
    }
}

TEST_F(Varnothctl, Exit_code_3_is_a_line_that_is_pulled_out_in_the_middle) {
    SchliesseGeraetAn({"--log", "-"});
    QProcess prozess;
    Starte(prozess, {"read", "--timeout", "1"});
    ASSERT_TRUE(geraet->WarteAufZeilen(" read ", 5));
    geraet->Befehl("unplug");
    const auto ergebnis = WarteAufEnde(prozess);
    EXPECT_EQ(ergebnis.code, 3) << ergebnis.meldungen;
    EXPECT_EQ(ergebnis.daten, "");
}

TEST_F(Varnothctl, Exit_code_4_is_a_controller_that_does_not_answer) {
    SchliesseGeraetAn({"--unpaced", "--fault", "silence"});
    const auto ergebnis = Fuehre({"identify", "--timeout", "1"});
    EXPECT_EQ(ergebnis.code, 4);
    EXPECT_THAT(ergebnis.meldungen, HasSubstr("Nothing answers."));
}

TEST_F(Varnothctl, Exit_code_5_is_a_controller_that_answers_and_refuses) {
    SchliesseGeraetAn({"--unpaced", "--fault", "exception=2@0x10"});
    const auto ergebnis = Fuehre({"set", "1/Resolution", "40mm", "--yes", "--timeout", "1"});
    EXPECT_EQ(ergebnis.code, 5) << ergebnis.meldungen;
}

TEST_F(Varnothctl, Exit_code_5_is_a_register_that_keeps_what_it_held) {
    SchliesseGeraetAn({"--unpaced", "--fault", "forget=0x200D"});
    EXPECT_FALSE(InJson({"set", "1/Resolution", "40mm", "--yes"}, 5)["equal"].toBool());
}

TEST_F(Varnothctl, Exit_code_6_is_a_file_that_cannot_be_read_written_or_used) {
    SchliesseGeraetAn();
    Schreibe("junk.con", "no configuration");
    EXPECT_EQ(Fuehre({"write", "missing.con", "--yes"}).code, 6);
    EXPECT_EQ(Fuehre({"write", "junk.con", "--yes"}).code, 6);
    EXPECT_EQ(Fuehre({"read", "-o", "missing/a.con"}).code, 6);
    EXPECT_EQ(Fuehre({"read", "-o", "."}).code, 6);
    EXPECT_EQ(Fuehre({"compare", "backup", "device"}).code, 6);
}

TEST_F(Varnothctl, A_full_disk_behind_standard_output_is_told) {
    SchliesseGeraetAn();
    const auto ergebnis = InSchale("$CTL read > /dev/full");
    EXPECT_EQ(ergebnis.code, 6);
    EXPECT_THAT(ergebnis.meldungen, StartsWith("varnothctl: "));
}

TEST_F(Varnothctl, A_reader_that_goes_away_ends_watching_without_a_word) {
    SchliesseGeraetAn();
    const auto ergebnis = InSchale("$CTL watch --interval 0 | head -n 2; echo ${PIPESTATUS[0]}");
    EXPECT_THAT(ergebnis.daten, EndsWith("\n0\n"));
    EXPECT_EQ(ergebnis.meldungen, "");
}

TEST_F(Varnothctl, A_reader_that_goes_away_does_not_break_off_a_write) {
    SchliesseGeraetAn();
    ASSERT_EQ(Fuehre({"read", "-o", "a.con"}).code, 0);
    geraet->Befehl(std::string("set ") + Lochgroesse + " 77");
    const auto ergebnis = InSchale("$CTL write a.con --yes --quiet | true; echo ${PIPESTATUS[0]}");
    EXPECT_EQ(ergebnis.daten, "0\n");
    EXPECT_EQ(ergebnis.meldungen, "");
    EXPECT_EQ(geraet->Register(Lochgroesse), 1);
}

TEST_F(Varnothctl, Interrupted_in_the_middle_of_a_write_it_says_what_is_written) {
    SchliesseGeraetAn({"--log", "-"});
    ASSERT_EQ(Fuehre({"read", "-o", "a.con"}).code, 0);
    QProcess prozess;
    Starte(prozess, {"write", "a.con", "--yes", "--json"});
    ASSERT_TRUE(geraet->WarteAufZeilen(" write specific[1]", 3));
    ::kill(static_cast<pid_t>(prozess.processId()), SIGINT);
    const auto ergebnis = WarteAufEnde(prozess);
    EXPECT_EQ(ergebnis.code, 130);
    EXPECT_THAT(ergebnis.meldungen, HasSubstr("Interrupted."));
    EXPECT_THAT(ergebnis.meldungen, HasSubstr("The way back: varnothctl write "));
    const auto objekt = Geprueft(QByteArray::fromStdString(ergebnis.daten));
    const auto register_ = objekt["registers"].toObject();
    EXPECT_FALSE(objekt["complete"].toBool());
    EXPECT_GT(register_["written"].toInt(), 0);
    EXPECT_LT(register_["written"].toInt(), register_["all"].toInt());
    EXPECT_GT(objekt["unfinished"].toArray().size(), 0);
    EXPECT_EQ(Fuehre({"write", objekt["backup"].toString(), "--yes", "--verify"}).code, 0);
}

TEST_F(Varnothctl, Interrupted_while_watching_it_frees_the_line) {
    SchliesseGeraetAn();
    QProcess prozess;
    Starte(prozess, {"watch"});
    while (!prozess.canReadLine() && prozess.waitForReadyRead(20000)) {
    }
    ::kill(static_cast<pid_t>(prozess.processId()), SIGTERM);
    EXPECT_EQ(WarteAufEnde(prozess).code, 130);
    EXPECT_EQ(Fuehre({"identify"}).code, 0);
}

} // namespace varnoth::pruefung
