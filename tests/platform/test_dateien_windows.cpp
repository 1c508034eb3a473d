// Where files lie on Windows: devices in every folder, long paths, and programs that look at what others
// write.

#include "ausgabeprobe.h"
#include "dateieingabe.h"
#include "geduldig_windows.h"
#include "griff_windows.h"
#include "ordner.h"
#include "systemfehler.h"
#include "systempfad_windows.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <QFile>

#include <array>
#include <future>

namespace varnoth {

namespace {

using namespace pruefung;

/// A file that this process keeps open, and lets others only read.
Griff Halte(const std::string& pfad, DWORD mitAnderen = FILE_SHARE_READ) {
    return Griff(::CreateFileW(Systempfad(pfad).c_str(), GENERIC_READ, mitAnderen, nullptr, OPEN_EXISTING,
                               FILE_ATTRIBUTE_NORMAL, nullptr));
}

void SetzeMerkmale(const std::string& pfad, DWORD merkmale) {
    EXPECT_NE(::SetFileAttributesW(Systempfad(pfad).c_str(), merkmale), 0);
}

} // namespace

class DateienUnterWindows : public Ausgabeprobe {
protected:
    /// A path of more than 300 characters, in folders that are not there yet.
    std::string LangerPfad() const {
        std::string pfad = ordner.path().toStdString();
        for (int i = 0; i < 6; ++i)
            pfad += "/Prüfstände der Anlage Süd, Größe №1, Messlichtgitter";
        return pfad + "/Höhe.con";
    }
};

TEST_F(DateienUnterWindows, A_device_or_pipe_is_neither_waited_for_nor_replaced) {
    const Griff rohr(::CreateNamedPipeW(L"\\\\.\\pipe\\varnoth-test", PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE, 1,
                                        64, 64, 0, nullptr));
    ASSERT_TRUE(rohr);
    for (const std::string& pfad :
         {std::string("CON"), std::string("NUL"), Pfad("nul"), Pfad("COM1"), std::string("\\\\.\\COM1"),
          std::string("//./pipe/varnoth-test"), std::string("\\\\?\\pipe\\varnoth-test"),
          std::string("\\\\localhost\\pipe\\varnoth-test"), std::string("\\\\.\\PhysicalDrive0")}) {
        EXPECT_EQ(LiesDatei(pfad, 100).fehlertext, KeineGewoehnlicheDatei()) << pfad;
        EXPECT_EQ(ErsetzeDatei(pfad, neu), KeineGewoehnlicheDatei()) << pfad;
        EXPECT_EQ(HaengeAnDatei(pfad, "x", 10).fehlertext, KeineGewoehnlicheDatei()) << pfad;
        EXPECT_EQ(OeffneEingabe(pfad).fehlertext, KeineGewoehnlicheDatei()) << pfad;
        EXPECT_NE(ablage.LegeAn(pfad).fehler, 0) << pfad;
    }
    DWORD wartend = 0;
    EXPECT_EQ(::PeekNamedPipe(rohr.Wert(), nullptr, 0, nullptr, &wartend, nullptr), 0);
    EXPECT_EQ(::GetLastError(), DWORD{ERROR_BAD_PIPE}) << "somebody has called";
}

TEST_F(DateienUnterWindows, A_path_of_more_than_300_characters_with_umlauts_works_throughout) {
    const std::string pfad = LangerPfad();
    ASSERT_GT(AlsUtf16(pfad).size(), 300U);
    const std::string fach = pfad.substr(0, pfad.find_last_of('/'));
    ASSERT_EQ(LegeOrdnerAn(fach), 0);
    EXPECT_FALSE(GibtEsDatei(pfad));
    EXPECT_EQ(ErsetzeDatei(pfad, alt), "");
    EXPECT_EQ(ErsetzeDatei(pfad, neu), "");
    EXPECT_EQ(HaengeAnDatei(pfad, "x", Laenge + 1).fehlertext, "");
    EXPECT_EQ(Inhalt(pfad), neu + "x");
    EXPECT_TRUE(IstGewoehnlicheDatei(pfad));
    EXPECT_TRUE(IstDieselbeDatei(pfad, fach + "/./Höhe.con"));
    EXPECT_EQ(OeffneEingabe(pfad).datei->Groesse(), Laenge + 1);
    EXPECT_EQ(ablage.LegeAn(fach + "/Süd/Messung.vrec").fehler, 0);
    EXPECT_GT(ablage.FreierPlatz(fach + "/Süd").value_or(0), 0U);
    EXPECT_TRUE(IstBeschreibbar(QString::fromStdString(fach)));
    EXPECT_EQ(EntferneDatei(pfad), "");
    EXPECT_FALSE(GibtEsDatei(pfad));
}

TEST_F(DateienUnterWindows, A_write_protected_file_is_kept) {
    ErsetzeDatei(Pfad("a.con"), alt);
    SetzeMerkmale(Pfad("a.con"), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(ErsetzeDatei(Pfad("a.con"), neu), Systemfehler(EACCES));
    SetzeMerkmale(Pfad("a.con"), FILE_ATTRIBUTE_NORMAL);
    EXPECT_TRUE(Inhalt(Pfad("a.con")) == alt);
    EXPECT_EQ(Namen(), QStringList{"a.con"});
}

TEST_F(DateienUnterWindows, A_hidden_file_stays_hidden_when_it_is_replaced) {
    ErsetzeDatei(Pfad("a.con"), alt);
    SetzeMerkmale(Pfad("a.con"), FILE_ATTRIBUTE_HIDDEN);
    EXPECT_EQ(ErsetzeDatei(Pfad("a.con"), neu), "");
    EXPECT_TRUE(Inhalt(Pfad("a.con")) == neu);
    EXPECT_NE(::GetFileAttributesW(Systempfad(Pfad("a.con")).c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
}

TEST_F(DateienUnterWindows, A_file_that_another_program_keeps_open_is_said_and_kept) {
    ErsetzeDatei(Pfad("a.con"), alt);
    const Griff andere = Halte(Pfad("a.con"));
    ASSERT_TRUE(andere);
    EXPECT_EQ(ErsetzeDatei(Pfad("a.con"), neu), Systemfehler(EBUSY));
    EXPECT_EQ(EntferneDatei(Pfad("a.con")), Systemfehler(EBUSY));
    EXPECT_TRUE(Inhalt(Pfad("a.con")) == alt);
    EXPECT_EQ(Namen(), QStringList{"a.con"});
}

TEST_F(DateienUnterWindows, A_file_that_another_program_looks_at_for_a_moment_is_replaced_when_that_lets_go) {
    ErsetzeDatei(Pfad("a.con"), alt);
    Griff andere = Halte(Pfad("a.con"));
    auto antwort = std::async(std::launch::async, [&] { return ErsetzeDatei(Pfad("a.con"), neu); });
    EXPECT_EQ(antwort.wait_for(std::chrono::milliseconds(60)), std::future_status::timeout);
    andere.Schliesse();
    EXPECT_EQ(antwort.get(), "");
    EXPECT_TRUE(Inhalt(Pfad("a.con")) == neu);
}

TEST_F(DateienUnterWindows, A_file_that_is_read_can_be_appended_to_meanwhile) {
    ErsetzeDatei(Pfad("a.con"), alt);
    const Eingabe lesende = OeffneEingabe(Pfad("a.con"));
    EXPECT_EQ(HaengeAnDatei(Pfad("a.con"), "x", 100000).fehlertext, "");
    std::array<char, 4> anfang{};
    EXPECT_TRUE(lesende.datei->Lies(0, anfang));
    EXPECT_EQ(std::string(anfang.data(), anfang.size()), "aaaa");
}

TEST_F(DateienUnterWindows, A_name_with_characters_that_are_not_allowed_is_said) {
    EXPECT_EQ(ErsetzeDatei(Pfad("was?.con"), neu), Systemfehler(EILSEQ));
    EXPECT_EQ(HaengeAnDatei(Pfad("a|b.con"), "x", 10).fehlertext, Systemfehler(EILSEQ));
}

TEST_F(DateienUnterWindows, What_is_being_recorded_can_be_read_but_not_written_moved_or_removed) {
    const auto datei = ablage.LegeAn(Pfad("a")).datei;
    datei->HaengeAn("messwerte");
    EXPECT_EQ(Inhalt(Pfad("a")), "messwerte");
    EXPECT_EQ(HaengeAnDatei(Pfad("a"), "x", 100).fehlertext, Systemfehler(EBUSY));
    EXPECT_EQ(EntferneDatei(Pfad("a")), Systemfehler(EBUSY));
    EXPECT_FALSE(QFile::rename(ordner.filePath("a"), ordner.filePath("b")));
    EXPECT_EQ(datei->Sichere(), 0);
    datei->Schliesse();
    EXPECT_EQ(EntferneDatei(Pfad("a")), "");
}

TEST_F(DateienUnterWindows, A_recording_removes_its_own_file_and_no_other_of_that_name) {
    const auto datei = ablage.LegeAn(Pfad("a")).datei;
    datei->Schliesse();
    ASSERT_TRUE(QFile::rename(ordner.filePath("a"), ordner.filePath("b")));
    Lege(Pfad("a"), "another's");
    datei->Entferne();
    EXPECT_EQ(Inhalt(Pfad("a")), "another's");
    EXPECT_TRUE(GibtEsDatei(Pfad("b")));
}

TEST(Geduldig, Tries_again_only_what_is_busy_and_not_for_ever) {
    int aufrufe = 0;
    EXPECT_EQ(Geduldig([&] { return ++aufrufe < 3 ? EBUSY : 0; }), 0);
    EXPECT_EQ(aufrufe, 3);
    EXPECT_EQ(Geduldig([&] { return ++aufrufe, EACCES; }), EACCES);
    EXPECT_EQ(aufrufe, 4);
    EXPECT_EQ(Geduldig([] { return EBUSY; }), EBUSY);
}

TEST(Systempfad, Is_absolute_and_takes_any_length_but_for_a_device) {
    EXPECT_EQ(Systempfad("C:/a/../b/ü.con"), L"\\\\?\\C:\\b\\ü.con");
    EXPECT_EQ(Systempfad("//server/share/a b"), L"\\\\?\\UNC\\server\\share\\a b");
    EXPECT_EQ(Systempfad("\\\\?\\C:\\a. "), L"\\\\?\\C:\\a. ");
    EXPECT_TRUE(Systempfad("a.con").starts_with(L"\\\\?\\"));
    EXPECT_EQ(Systempfad("C:/a/NUL"), L"\\\\.\\NUL");
    EXPECT_EQ(Systempfad(""), L"");
}

} // namespace varnoth
