#include "abbruchsignal.h"
#include "fenstertest.h"
#include "griff_windows.h"
#include "kindprogramm.h"
#include "systempfad_windows.h"
#include "terminal.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <cstdio>

namespace varnoth {

namespace {

using pruefung::Kindprogramm;

void Sage(const std::string& text) {
    std::fputs(text.c_str(), stderr);
    std::fflush(stderr);
}

/// A console of this process's own, with a screen that can be read; none where the system has none to give.
class Eigenekonsole {
public:
    Eigenekonsole() {
        ::FreeConsole();
        ::AllocConsole();
        schirm = Griff(::CreateConsoleScreenBuffer(GENERIC_READ | GENERIC_WRITE,
                                                   FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                                   CONSOLE_TEXTMODE_BUFFER, nullptr));
        tastatur =
            Griff(::CreateFileW(L"CONIN$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                nullptr, OPEN_EXISTING, 0, nullptr));
        ::SetConsoleActiveScreenBuffer(schirm.Wert());
        ::SetStdHandle(STD_OUTPUT_HANDLE, schirm.Wert());
        ::SetStdHandle(STD_INPUT_HANDLE, tastatur.Wert());
    }

    bool IstDa() const { return schirm && tastatur; }
    std::string Zeile(SHORT zeile, std::size_t zeichen) const {
        std::wstring text(zeichen, L'\0');
        DWORD gelesen = 0;
        ::ReadConsoleOutputCharacterW(schirm.Wert(), text.data(), static_cast<DWORD>(zeichen), {0, zeile},
                                      &gelesen);
        return AlsUtf8(text.substr(0, gelesen));
    }
    void Tippe(const std::wstring& text) const {
        for (const wchar_t zeichen : text) {
            INPUT_RECORD taste{};
            taste.EventType = KEY_EVENT;
            taste.Event.KeyEvent.bKeyDown = TRUE;
            taste.Event.KeyEvent.wRepeatCount = 1;
            taste.Event.KeyEvent.uChar.UnicodeChar = zeichen;
            if (zeichen == L'\r')
                taste.Event.KeyEvent.wVirtualKeyCode = VK_RETURN;
            DWORD geschrieben = 0;
            ::WriteConsoleInputW(tastatur.Wert(), &taste, 1, &geschrieben);
        }
    }

private:
    Griff schirm;
    Griff tastatur;
};

/// Starts this program once more as Windows starts one with windows, without the console of its caller, and
/// waits for its end. Its output leads to the file, nowhere without one.
void StarteLosgeloest(HANDLE ausgabe = nullptr) {
    std::wstring zeile = L"\"" + QCoreApplication::applicationFilePath().toStdWString() +
                         L"\" --gtest_also_run_disabled_tests --gtest_filter=DISABLED_Losgeloestes.*";
    STARTUPINFOW angaben{};
    angaben.cb = sizeof angaben;
    if (ausgabe != nullptr) {
        angaben.dwFlags = STARTF_USESTDHANDLES;
        angaben.hStdOutput = ausgabe;
    }
    PROCESS_INFORMATION prozess{};
    ASSERT_NE(::CreateProcessW(nullptr, zeile.data(), nullptr, nullptr, ausgabe != nullptr ? TRUE : FALSE,
                               DETACHED_PROCESS, nullptr, nullptr, &angaben, &prozess),
              0);
    const Griff faden(prozess.hThread);
    const Griff ganzer(prozess.hProcess);
    constexpr DWORD HoechstensMs = 60000;
    EXPECT_EQ(::WaitForSingleObject(ganzer.Wert(), HoechstensMs), WAIT_OBJECT_0);
}

} // namespace

TEST(DISABLED_Losgeloestes, Answers_in_the_terminal_of_its_caller) {
    NimmTerminalDesAufrufers();
    SchreibeInStrom(Strom::Ausgabe, "Größe\n");
    SchreibeInStrom(Strom::Fehler, "Fehler\n");
}

TEST(DISABLED_Aufrufer, Shows_what_a_program_with_windows_answers) {
    const Eigenekonsole konsole;
    if (!konsole.IstDa())
        return Sage("no console");
    SchreibeInStrom(Strom::Ausgabe, "C:\\>");
    StarteLosgeloest();
    Sage("[" + konsole.Zeile(0, 5) + "|" + konsole.Zeile(1, 5) + "|" + konsole.Zeile(2, 6) + "]");
}

TEST(DISABLED_Umleiter, Redirects_what_a_program_with_windows_answers) {
    const Eigenekonsole konsole;
    if (!konsole.IstDa())
        return Sage("no console");
    SECURITY_ATTRIBUTES erblich{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    HANDLE anfang = nullptr;
    HANDLE ende = nullptr;
    ASSERT_NE(::CreatePipe(&anfang, &ende, &erblich, 0), 0);
    const Griff auslass(anfang);
    {
        const Griff einlass(ende);
        StarteLosgeloest(einlass.Wert());
    }
    char gelesen[4096];
    DWORD anzahl = 0;
    std::string alles;
    while (::ReadFile(auslass.Wert(), gelesen, sizeof gelesen, &anzahl, nullptr) != 0 && anzahl > 0)
        alles.append(gelesen, anzahl);
    Sage(alles.find("Größe\n") != std::string::npos ? "piped " : "lost ");
    Sage("[" + konsole.Zeile(0, 6) + "]");
}

TEST(DISABLED_Ausgabekind, Writes_to_standard_error) {
    Sage(IstTerminal(Strom::Fehler) || IstTerminal(Strom::Eingabe) ? "terminal: " : "file: ");
    EXPECT_EQ(SchreibeInStrom(Strom::Fehler, "Größe €\nzwei\n"), 0);
    EXPECT_EQ(Terminalbreite(Strom::Fehler), 0);
}

TEST(DISABLED_Eingabekind, Says_what_it_reads) {
    for (auto zeile = LiesEingabezeile(); zeile; zeile = LiesEingabezeile())
        Sage("[" + *zeile + "]");
    Sage("(end)");
}

TEST(DISABLED_Konsolenkind, Writes_and_reads_at_a_console) {
    const Eigenekonsole konsole;
    if (!konsole.IstDa())
        return Sage("no console");
    Sage(IstTerminal(Strom::Ausgabe) && IstTerminal(Strom::Eingabe) ? "terminal " : "file ");
    Sage(Terminalbreite(Strom::Ausgabe) > 0 ? "wide " : "without width ");
    SchreibeInStrom(Strom::Ausgabe, "Größe € Ж");
    Sage("[" + konsole.Zeile(0, 9) + "] ");
    konsole.Tippe(L"jä\r");
    Sage("[" + LiesEingabezeile().value_or("(end)") + "]");
}

TEST(DISABLED_Abbruchkind, Is_interrupted_twice) {
    const Eigenekonsole konsole;
    if (!konsole.IstDa())
        return Sage("no console");
    FangeAbbruchsignaleAb();
    Sage(IstAbbruchVerlangt() ? "1" : "0");
    ::GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0);
    EXPECT_TRUE(pruefung::WarteBis([] { return IstAbbruchVerlangt(); }));
    Sage(LiesEingabezeile() ? "line" : "none");
    ::GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0);
    EXPECT_FALSE(pruefung::WarteBis([] { return false; })) << "it was to end meanwhile";
    Sage("alive");
}

TEST(TerminalUnterWindows, Bytes_for_a_file_or_pipe_are_written_as_they_are) {
    Kindprogramm kind(QStringLiteral("DISABLED_Ausgabekind.*"));
    kind.Gib({});
    EXPECT_EQ(kind.Ende(), "file: Größe €\nzwei\n");
    EXPECT_EQ(kind.Exitcode(), 0);
}

TEST(TerminalUnterWindows, Lines_are_read_without_their_ends_and_the_end_of_the_input_is_told) {
    Kindprogramm kind(QStringLiteral("DISABLED_Eingabekind.*"));
    kind.Gib("yes\r\nno\n\nhalb");
    EXPECT_EQ(kind.Ende(), "[yes][no][](end)");
}

TEST(TerminalUnterWindows, A_console_shows_and_takes_all_characters_whatever_its_code_page) {
    Kindprogramm kind(QStringLiteral("DISABLED_Konsolenkind.*"));
    const std::string gesagt = kind.Ende();
    if (gesagt == "no console")
        GTEST_SKIP() << "the system has no console to give";
    EXPECT_EQ(gesagt, "terminal wide [Größe € Ж] [jä]");
}

TEST(TerminalUnterWindows, A_program_with_windows_answers_below_the_prompt_that_it_was_called_from) {
    Kindprogramm kind(QStringLiteral("DISABLED_Aufrufer.*"));
    const std::string gesagt = kind.Ende();
    if (gesagt == "no console")
        GTEST_SKIP() << "the system has no console to give";
    EXPECT_EQ(gesagt, "[C:\\> |Größe|Fehler]");
}

TEST(TerminalUnterWindows, A_program_with_windows_keeps_output_that_was_redirected_and_shows_the_rest) {
    Kindprogramm kind(QStringLiteral("DISABLED_Umleiter.*"));
    const std::string gesagt = kind.Ende();
    if (gesagt == "no console")
        GTEST_SKIP() << "the system has no console to give";
    EXPECT_EQ(gesagt, "piped [Fehler]");
}

TEST(AbbruchUnterWindows, Is_remembered_and_ends_the_program_when_it_comes_again) {
    Kindprogramm kind(QStringLiteral("DISABLED_Abbruchkind.*"));
    const std::string gesagt = kind.Ende();
    if (gesagt == "no console")
        GTEST_SKIP() << "the system has no console to give";
    EXPECT_EQ(gesagt, "0none");
}

} // namespace varnoth
