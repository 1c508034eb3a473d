// The search for the controller at devices of the system, as it is met by whoever plugs something in.

#include "suchlauf.h"

#include "kindprozess.h"
#include "portliste.h"
#include "porttest.h"
#include "schnittstelle.h"
#include "texte.h"

#include <QTemporaryDir>
#include <QTimer>
#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <fstream>
#include <thread>

namespace varnoth {

using namespace std::chrono_literals;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

/// Notes how long each try takes.
struct Stoppuhr : Suchzeiger {
    void Zeige(const Suchstand& stand) override {
        if (stand.ergebnis) {
            dauern.push_back(DieUmgebung().Uhr() - beginn);
            ergebnisse.push_back(*stand.ergebnis);
        }
        beginn = DieUmgebung().Uhr();
    }
    bool Abgebrochen() override { return false; }

    std::vector<Zeit> dauern;
    std::vector<Suchergebnis> ergebnisse;
    Zeit beginn{0};
};

} // namespace

class SucheAnGeraeten : public pruefung::PortTest {
protected:
    SucheAnGeraeten() {
        SetzeSprachoffset(Englisch);
        fcntl(fernesEnde, F_SETFL, O_NONBLOCK);
        modSchnittstelle::SetzePort(&port);
    }
    ~SucheAnGeraeten() override {
        modSchnittstelle::SetzePort(nullptr);
        SetzeSprachoffset(Deutsch);
    }

    /// Three tries at the fastest of the formats that a controller has as delivered.
    void SucheDreimal() {
        SucheSteuergeraet({{geraet, "38400,n,8,2"}, {geraet, "38400,e,8,1"}, {geraet, "38400,o,8,1"}}, uhr);
    }
    std::string Ausgang(const std::string& wo) { return SucheSteuergeraet({wo}, uhr).text; }
    std::string Pfad(const char* name) const { return ordner.filePath(name).toStdString(); }

    QTemporaryDir ordner;
    Stoppuhr uhr;
};

TEST_F(SucheAnGeraeten, A_try_on_a_silent_line_takes_at_most_0_4_s_at_38400) {
    SucheDreimal();
    EXPECT_THAT(uhr.ergebnisse, testing::Each(Suchergebnis::Stille));
    ASSERT_EQ(uhr.dauern.size(), 3U);
    EXPECT_LT(std::ranges::min(uhr.dauern), 400ms) << "a machine that is busy may hold one or two up";
}

TEST_F(SucheAnGeraeten, A_try_on_a_line_that_never_stops_talking_takes_at_most_0_4_s_at_38400) {
    std::atomic<bool> redet = true;
    std::thread redner([&] {
        while (redet) {
            // What the port does not read is lost.
            [[maybe_unused]] const ssize_t geschrieben = write(fernesEnde, "\x55", 1);
            std::this_thread::sleep_for(1ms);
        }
    });
    SucheDreimal();
    redet = false;
    redner.join();
    EXPECT_THAT(uhr.ergebnisse, testing::Each(Suchergebnis::Unverstanden));
    ASSERT_EQ(uhr.dauern.size(), 9U) << "each is asked three times";
    EXPECT_LT(std::ranges::min(uhr.dauern), 400ms);
}

TEST_F(SucheAnGeraeten, What_is_no_port_is_told_with_its_reason_and_tried_once) {
    std::ofstream(Pfad("file")) << "x";
    ASSERT_EQ(mkfifo(Pfad("pipe").c_str(), 0600), 0);
    ASSERT_EQ(mkdir(Pfad("folder").c_str(), 0700), 0);
    for (const std::string& keiner : {std::string("/dev/null"), Pfad("file"), Pfad("pipe"), Pfad("folder")}) {
        uhr.ergebnisse.clear();
        EXPECT_THAT(Ausgang(keiner), AllOf(StartsWith("No controller found (1 try)."),
                                           HasSubstr(keiner + " cannot be opened: ")));
        EXPECT_THAT(uhr.ergebnisse, testing::ElementsAre(Suchergebnis::PortVerschlossen)) << keiner;
    }
    EXPECT_THAT(Ausgang(Pfad("nothing")), HasSubstr("There is no device " + Pfad("nothing") + "."));
}

TEST_F(SucheAnGeraeten, A_device_without_a_right_to_it_says_so_to_an_ordinary_user) {
    ASSERT_EQ(chmod(geraet.c_str(), 0), 0);
    EXPECT_THAT(pruefung::AlsNutzer([this] { return Ausgang(geraet); }),
                HasSubstr(" may not open " + geraet));
}

TEST_F(SucheAnGeraeten, A_port_that_another_search_has_names_its_program) {
    const pruefung::Kind kind([this](int rohr) {
        close(fernesEnde);
        close(nahesEnde);
        QtSeriellerPort andere;
        const bool gesagt = write(rohr, andere.Oeffne(1, pruefung::Standard) ? "!" : "?", 1) == 1;
        pause();
        return std::string(gesagt ? "" : "silent");
    });
    kind.WarteAufWort();
    EXPECT_THAT(Ausgang(geraet), HasSubstr(geraet + " is in use by: seriellerport_t ("));
    kind.Toete();
    kind.Ende();
}

TEST_F(SucheAnGeraeten, An_adapter_that_vanishes_in_the_middle_of_a_try_is_told_as_gone) {
    const std::string adapter =
        Pfad("adapter"); // another process may be given the name of the terminal at once
    ASSERT_EQ(symlink(geraet.c_str(), adapter.c_str()), 0);
    QTimer::singleShot(50, [&] {
        unlink(adapter.c_str());
        ZieheAb();
    });
    EXPECT_THAT(Ausgang(adapter), HasSubstr("There is no device " + adapter + "."));
    EXPECT_THAT(uhr.ergebnisse, testing::ElementsAre(Suchergebnis::PortVerschlossen));
}

} // namespace varnoth
