// The trace on a disk that takes no more, each in a process of its own whose files may only grow so far.

#include "kindprozess.h"
#include "pruefumgebung.h"
#include "systemfehler.h"
#include "trace.h"

#include <gtest/gtest.h>

#include <cerrno>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace varnoth {

namespace {

using namespace pruefung;

constexpr rlim_t Platz = 100;

} // namespace

class TraceOhnePlatz : public testing::Test {
protected:
    TraceOhnePlatz() { std::filesystem::create_directories(ordner); }
    ~TraceOhnePlatz() override { std::filesystem::remove_all(ordner); }

    /// What the function gives in a process that has so little space.
    static std::string In(rlim_t platz, const std::function<std::string()>& tat) {
        return Kind([&](int) {
                   signal(SIGXFSZ, SIG_IGN);
                   BegrenzeDateigroesse(platz);
                   return tat();
               })
            .Ende()
            .text;
    }
    std::string Inhalt() const {
        std::ifstream datei(pfad, std::ios::binary);
        return {std::istreambuf_iterator<char>(datei), {}};
    }

    PruefUmgebung umgebung;
    const std::filesystem::path ordner = std::filesystem::temp_directory_path() /
                                         ("varnoth-trace-" + std::to_string(getpid()) + "-" +
                                          testing::UnitTest::GetInstance()->current_test_info()->name());
    const std::filesystem::path pfad = ordner / modTrace::Dateiname;
};

TEST_F(TraceOhnePlatz, The_file_is_closed_at_the_next_clear_with_a_warning_that_says_why) {
    const std::string text = In(Platz, [this] {
        modTrace::Starte(pfad);
        modTrace::SchreibeSendung(std::string(Platz, 'x'));
        const std::string vorher = std::to_string(umgebung.meldungen.size());
        modTrace::SchreibeLeerung();
        return vorher + (modTrace::Aktiv() ? " open: " : " closed: ") + umgebung.meldungen.at(0).text;
    });
    EXPECT_EQ(text, "0 closed: Die Datei Test.txt wird geschlossen. " + Systemfehler(EFBIG));
}

TEST_F(TraceOhnePlatz, The_user_is_told_once) {
    const std::string text = In(Platz, [this] {
        modTrace::Starte(pfad);
        for (int i = 0; i < 100; ++i) {
            modTrace::SchreibeLeerung();
            modTrace::SchreibeSendung("abc");
        }
        return std::to_string(umgebung.meldungen.size());
    });
    EXPECT_EQ(text, "1");
}

TEST_F(TraceOhnePlatz, What_was_written_before_is_kept) {
    In(Platz, [this]() -> std::string {
        modTrace::Starte(pfad);
        modTrace::SchreibeSendung("\x01");
        for (int i = 0; i < 100; ++i)
            modTrace::SchreibeLeerung();
        return {};
    });
    EXPECT_TRUE(Inhalt().starts_with("Start\r\nWrite: 1H \r\nClearCommPort, ")) << Inhalt();
}

TEST_F(TraceOhnePlatz, A_first_line_that_cannot_be_written_gives_the_reason) {
    const std::string text = In(0, [this] {
        const std::string fehler = modTrace::Starte(pfad);
        return fehler + (modTrace::Aktiv() ? ", open" : ", closed");
    });
    EXPECT_EQ(text, Systemfehler(EFBIG) + ", closed");
}

TEST_F(TraceOhnePlatz, A_later_start_with_space_again_traces_again) {
    const std::string text = In(Platz, [this] {
        modTrace::Starte(pfad);
        modTrace::SchreibeSendung(std::string(Platz, 'x'));
        const std::string fehler = modTrace::Starte(pfad);
        modTrace::SchreibeLeerung();
        return fehler + std::to_string(umgebung.meldungen.size()) + (modTrace::Aktiv() ? " open" : " closed");
    });
    EXPECT_EQ(text, "0 open");
}

} // namespace varnoth
