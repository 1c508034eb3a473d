#include "sicherungsprobe.h"

#include "systemfehler.h"

#include <cerrno>

namespace varnoth {

using namespace pruefung;

class DateisicherungenTest : public Sicherungsprobe {};

TEST_F(DateisicherungenTest, A_backup_and_its_text_lie_in_the_folder_of_their_controller) {
    EXPECT_EQ(sicherungen.Lege(MitReichweite(3), Angaben(1)), "");
    EXPECT_EQ(Namen("SIM-0001"),
              QStringList({"2026-11-22_00-00-01-000Z.con", "2026-11-22_00-00-01-000Z.txt"}));
    QFile text(Pfad("sicherungen/SIM-0001/2026-11-22_00-00-01-000Z.txt"));
    ASSERT_TRUE(text.open(QIODevice::ReadOnly));
    const QByteArray inhalt = text.readAll();
    for (const char* teil : {"Zeit=", "Anlass=VorDemSchreiben", "Seriennummer=SIM-0001", "Programm=1.2.3"})
        EXPECT_TRUE(inhalt.contains(teil)) << teil;
}

TEST_F(DateisicherungenTest, A_backup_is_read_back_with_all_that_is_told_of_it) {
    const Abbild abbild = MitReichweite(4);
    EXPECT_EQ(sicherungen.Lege(abbild, Angaben(1)), "");
    const auto alle = sicherungen.Alle();
    ASSERT_EQ(alle.size(), 1U);
    Sicherungsangaben erwartet = Angaben(1);
    erwartet.programm = "1.2.3";
    EXPECT_EQ(alle.front().angaben, erwartet);
    EXPECT_EQ(sicherungen.Lies(alle.front()), abbild);
}

TEST_F(DateisicherungenTest, Two_backups_of_one_moment_are_both_kept) {
    for (const int wert : {1, 2})
        EXPECT_EQ(sicherungen.Lege(MitReichweite(wert), Angaben(1)), "");
    const auto alle = sicherungen.Alle();
    ASSERT_EQ(alle.size(), 2U);
    EXPECT_EQ(sicherungen.Lies(alle[0]), MitReichweite(2));
    EXPECT_EQ(sicherungen.Lies(alle[1]), MitReichweite(1));
}

TEST_F(DateisicherungenTest, The_newest_comes_first_whatever_its_controller) {
    for (const int sekunden : {2, 1, 3})
        EXPECT_EQ(sicherungen.Lege({}, Angaben(sekunden, std::to_string(9 - sekunden))), "");
    EXPECT_EQ(Zeiten(), (std::vector{Zeit(3), Zeit(2), Zeit(1)}));
}

TEST_F(DateisicherungenTest, The_newest_200_stay_with_their_texts) {
    for (int i = 0; i < Dateisicherungen::Hoechstens; ++i) {
        const QString name = QString::fromStdString("sicherungen/A/" + Sicherungsname(Zeit(i)));
        Schreibe(name + ".con", "x");
        Schreibe(name + ".txt", "x");
    }
    EXPECT_EQ(sicherungen.Lege({}, Angaben(1000)), "");
    const auto zeiten = Zeiten();
    ASSERT_EQ(static_cast<int>(zeiten.size()), Dateisicherungen::Hoechstens);
    EXPECT_EQ(zeiten.front(), Zeit(1000));
    EXPECT_EQ(zeiten.back(), Zeit(1));
    EXPECT_EQ(Namen("A").size(), 2 * (Dateisicherungen::Hoechstens - 1));
}

TEST_F(DateisicherungenTest, The_bytes_of_all_together_are_bounded) {
    constexpr int Grosse = 5;
    for (int i = 0; i < Grosse; ++i)
        Schreibe(QString::fromStdString("sicherungen/A/" + Sicherungsname(Zeit(i)) + ".con"),
                 QByteArray(Dateisicherungen::HoechstensBytes / 3, 'x'));
    EXPECT_EQ(sicherungen.Lege({}, Angaben(1000)), "");
    EXPECT_EQ(Zeiten(), (std::vector{Zeit(1000), Zeit(4), Zeit(3)}));
}

TEST_F(DateisicherungenTest, A_clock_that_was_wrong_does_not_cost_the_newest_backup) {
    for (int i = 0; i < Dateisicherungen::Hoechstens; ++i)
        Schreibe(QString::fromStdString("sicherungen/A/" + Sicherungsname(Zeit(9000 + i)) + ".con"), "x");
    EXPECT_EQ(sicherungen.Lege({}, Angaben(1)), "");
    EXPECT_EQ(Zeiten().back(), Zeit(1));
}

TEST_F(DateisicherungenTest, Files_of_others_are_neither_listed_nor_removed) {
    Schreibe("sicherungen/A/my own.con", "x");
    Schreibe("sicherungen/2026-11-22_00-00-00-000Z.con", "x");
    for (int i = 0; i <= Dateisicherungen::Hoechstens; ++i)
        Schreibe(QString::fromStdString("sicherungen/B/" + Sicherungsname(Zeit(i)) + ".con"), "x");
    EXPECT_EQ(sicherungen.Lege({}, Angaben(1000)), "");
    EXPECT_EQ(static_cast<int>(Zeiten().size()), Dateisicherungen::Hoechstens);
    EXPECT_TRUE(QFile::exists(Pfad("sicherungen/A/my own.con")));
    EXPECT_TRUE(QFile::exists(Pfad("sicherungen/2026-11-22_00-00-00-000Z.con")));
}

TEST_F(DateisicherungenTest, A_serial_number_never_leads_out_of_the_folder) {
    EXPECT_EQ(sicherungen.Lege({}, Angaben(1, "../../../escaped")), "");
    EXPECT_EQ(Namen("").size(), 1);
    EXPECT_EQ(sicherungen.Alle().front().angaben.seriennummer, "../../../escaped");
}

TEST_F(DateisicherungenTest, A_folder_that_cannot_be_made_is_said_with_the_path) {
    QFile imWeg(ordner.filePath("does"));
    ASSERT_TRUE(imWeg.open(QIODevice::WriteOnly));
    const std::string fehler = sicherungen.Lege({}, Angaben(1));
    EXPECT_TRUE(fehler.starts_with(Systemfehler(ENOTDIR) + "\n")) << fehler;
    EXPECT_TRUE(fehler.ends_with("2026-11-22_00-00-01-000Z.con")) << fehler;
    EXPECT_TRUE(sicherungen.Alle().empty());
}

TEST_F(DateisicherungenTest, A_folder_that_went_is_made_again) {
    EXPECT_EQ(sicherungen.Lege({}, Angaben(1)), "");
    ASSERT_TRUE(QDir(Pfad("sicherungen")).removeRecursively());
    EXPECT_EQ(sicherungen.Lege({}, Angaben(2)), "");
    EXPECT_EQ(sicherungen.Alle().size(), 1U);
}

TEST_F(DateisicherungenTest, A_backup_without_a_text_or_with_a_broken_one_is_listed_under_its_folder) {
    Schreibe("sicherungen/X1/2026-11-22_00-00-00-000Z.con", "broken");
    const auto alle = sicherungen.Alle();
    ASSERT_EQ(alle.size(), 1U);
    EXPECT_EQ(alle.front().angaben.seriennummer, "X1");
    EXPECT_FALSE(alle.front().angaben.anlass);
    EXPECT_FALSE(sicherungen.Lies(alle.front())) << "a file that is no configuration";
}

TEST_F(DateisicherungenTest, A_backup_is_copied_to_another_place_and_stays) {
    EXPECT_EQ(sicherungen.Lege(MitReichweite(2), Angaben(1)), "");
    const auto alle = sicherungen.Alle();
    const std::string ziel = ordner.filePath("copy.con").toStdString();
    EXPECT_EQ(sicherungen.Kopiere(alle.front(), ziel), "");
    QFile kopie(QString::fromStdString(ziel));
    ASSERT_TRUE(kopie.open(QIODevice::ReadOnly));
    EXPECT_EQ(kopie.readAll().toStdString(), AlsKonfigurationsdatei(MitReichweite(2)));
    EXPECT_EQ(sicherungen.Kopiere(alle.front(), ordner.path().toStdString()), Systemfehler(EISDIR));
    EXPECT_EQ(sicherungen.Alle().size(), 1U);
}

TEST_F(DateisicherungenTest, A_removed_backup_is_gone_with_its_text_also_when_somebody_else_removed_it) {
    EXPECT_EQ(sicherungen.Lege({}, Angaben(1)), "");
    const auto alle = sicherungen.Alle();
    EXPECT_EQ(sicherungen.Loesche(alle.front()), "");
    EXPECT_TRUE(Namen("SIM-0001").isEmpty());
    EXPECT_EQ(sicherungen.Loesche(alle.front()), "");
}

} // namespace varnoth
