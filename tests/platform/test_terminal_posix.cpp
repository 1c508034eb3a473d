#include "abbruchsignal.h"
#include "kindprozess.h"
#include "terminal.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <map>
#include <string>

namespace varnoth {

namespace {

using pruefung::Kind;

/// What a program can show that is started with these variables.
std::string VorratBei(const std::map<std::string, std::string>& variablen) {
    return Kind([&](int) {
               for (const char* const name : {"LC_ALL", "LC_CTYPE", "LANG"})
                   ::unsetenv(name);
               for (const auto& [name, wert] : variablen)
                   ::setenv(name.c_str(), wert.c_str(), 1);
               switch (ZeichenvorratDesNutzers()) {
               case Zeichenvorrat::Utf8:
                   return "UTF-8";
               case Zeichenvorrat::Latin1:
                   return "Latin-1";
               case Zeichenvorrat::Ascii:
                   break;
               }
               return "ASCII";
           })
        .Ende()
        .text;
}

/// What a child process says of itself after a deed.
std::string ImKind(const std::function<std::string()>& tat) {
    return Kind([&](int) { return tat(); }).Ende().text;
}

/// Standard output leads to the file.
void LeiteAusgabe(const char* pfad) {
    ::dup2(::open(pfad, O_WRONLY), STDOUT_FILENO);
}

} // namespace

TEST(Terminal, Shows_the_characters_of_the_locale) {
    EXPECT_EQ(VorratBei({{"LANG", "C.UTF-8"}}), "UTF-8");
    EXPECT_EQ(VorratBei({{"LANG", "C"}}), "ASCII");
    EXPECT_EQ(VorratBei({}), "ASCII");
    EXPECT_EQ(VorratBei({{"LANG", "C.UTF-8"}, {"LC_ALL", "C"}}), "ASCII");
}

TEST(Terminal, Takes_a_locale_that_is_not_installed_at_its_word) {
    EXPECT_EQ(VorratBei({{"LANG", "xx_XX.UTF-8"}}), "UTF-8");
    EXPECT_EQ(VorratBei({{"LANG", "xx_XX.ISO-8859-15"}}), "Latin-1");
    EXPECT_EQ(VorratBei({{"LANG", "xx_XX"}}), "ASCII");
    EXPECT_EQ(VorratBei({{"LANG", "C.UTF-8"}, {"LC_CTYPE", "xx_XX.KOI8-R"}}), "ASCII");
}

TEST(Terminal, Tells_a_terminal_from_a_file) {
    EXPECT_EQ(ImKind([] {
                  LeiteAusgabe("/dev/null");
                  return std::string(IstTerminal(Strom::Ausgabe) ? "terminal" : "file");
              }),
              "file");
}

TEST(Terminal, Tells_why_bytes_could_not_be_written) {
    EXPECT_EQ(ImKind([] {
                  LeiteAusgabe("/dev/full");
                  return std::to_string(SchreibeInStrom(Strom::Ausgabe, "x"));
              }),
              std::to_string(ENOSPC));
}

TEST(Terminal, Writes_more_than_a_pipe_takes_at_once) {
    const std::string viel(300000, 'x');
    EXPECT_EQ(Kind([&](int rohr) {
                  ::fcntl(rohr, F_SETFL, O_NONBLOCK);
                  ::dup2(rohr, STDOUT_FILENO);
                  const int fehler = SchreibeInStrom(Strom::Ausgabe, viel);
                  ::fcntl(rohr, F_SETFL, 0);
                  return std::to_string(fehler);
              })
                  .Ende()
                  .text,
              viel + "0");
}

TEST(Terminal, Reads_a_line_and_tells_the_end_of_the_input) {
    const auto lies = [](const std::string& eingabe) {
        return ImKind([&] {
            int rohr[2] = {-1, -1};
            const bool gelegt = ::pipe(rohr) == 0 && ::write(rohr[1], eingabe.data(), eingabe.size()) >= 0;
            ::close(rohr[1]);
            ::dup2(rohr[0], STDIN_FILENO);
            return gelegt ? LiesEingabezeile().value_or("(end)") : "(no pipe)";
        });
    };
    EXPECT_EQ(lies("yes\nno\n"), "yes");
    EXPECT_EQ(lies("\n"), "");
    EXPECT_EQ(lies(""), "(end)");
    EXPECT_EQ(lies("ye"), "(end)");
}

TEST(Abbruchsignale, Are_remembered_and_end_the_program_when_they_come_again) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        const auto ergebnis = Kind([signal](int rohr) {
                                  FangeAbbruchsignaleAb();
                                  const bool vorher = IstAbbruchVerlangt();
                                  std::raise(signal);
                                  const std::string stand =
                                      std::string(vorher ? "1" : "0") + (IstAbbruchVerlangt() ? "1" : "0");
                                  static_cast<void>(::write(rohr, stand.data(), stand.size()) == 2);
                                  std::raise(signal);
                                  return std::string("alive");
                              }).Ende();
        EXPECT_EQ(ergebnis.text, "01");
        EXPECT_TRUE(WIFSIGNALED(ergebnis.zustand) && WTERMSIG(ergebnis.zustand) == signal);
    }
}

TEST(Abbruchsignale, End_the_wait_for_a_line_also_when_they_come_just_before_it) {
    EXPECT_EQ(ImKind([] {
                  FangeAbbruchsignaleAb();
                  int rohr[2] = {-1, -1};
                  const bool gelegt = ::pipe(rohr) == 0;
                  ::dup2(rohr[0], STDIN_FILENO);
                  std::raise(SIGINT);
                  ::alarm(20);
                  return gelegt ? LiesEingabezeile().value_or("(end)") : "(no pipe)";
              }),
              "(end)");
}

TEST(Abbruchsignale, Leave_a_pipe_without_a_reader_an_error) {
    EXPECT_EQ(ImKind([] {
                  FangeAbbruchsignaleAb();
                  int rohr[2] = {-1, -1};
                  const bool gelegt = ::pipe(rohr) == 0;
                  ::close(rohr[0]);
                  ::dup2(rohr[1], STDOUT_FILENO);
                  return gelegt ? std::to_string(SchreibeInStrom(Strom::Ausgabe, "x")) : "(no pipe)";
              }),
              std::to_string(EPIPE));
}

} // namespace varnoth
