// The line goes away, comes back, or nobody answers at its far end, while the program wants something of it.

#include "programmtest.h"

#include "polling.h"
#include "texte.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <algorithm>

namespace varnoth::pruefung {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* VerbindungUnterbrochen = "Die Verbindung zum Varnoth ist unterbrochen.";

/// Seconds of processor time that this process has used.
double Rechenzeit() {
    rusage verbrauch{};
    ::getrusage(RUSAGE_SELF, &verbrauch);
    const auto sekunden = [](const timeval& zeit) {
        return static_cast<double>(zeit.tv_sec) + static_cast<double>(zeit.tv_usec) / 1e6;
    };
    return sekunden(verbrauch.ru_utime) + sekunden(verbrauch.ru_stime);
}

/// A timer in the window, and the longest that it ever had to wait for its turn.
class Pulsmesser {
public:
    Pulsmesser() {
        QObject::connect(&takt, &QTimer::timeout, &takt,
                         [this] { groessteLuecke = std::max(groessteLuecke, seit.restart()); });
        seit.start();
        takt.start(10);
    }
    qint64 GroessteLueckeMs() const { return groessteLuecke; }

private:
    QTimer takt;
    QElapsedTimer seit;
    qint64 groessteLuecke = 0;
};

} // namespace

class LeitungImBetrieb : public ProgrammTest {
protected:
    /// Milliseconds until the main loop has reached a state.
    template<class Bedingung>
    qint64 DauerBis(Bedingung bedingung) {
        QElapsedTimer uhr;
        uhr.start();
        EXPECT_TRUE(LaufeBis(bedingung));
        return uhr.elapsed();
    }
    /// Does something in the middle of a pass that waits for an answer.
    void SobaldEinDurchgangWartet(std::function<void()> aktion) {
        QTimer::singleShot(WartezeitMs, &Hauptfenster(), std::move(aktion));
    }
    /// Milliseconds from a click on stop, while a pass waits, until the captions say that live data is off.
    qint64 DauerDesStopps() {
        QElapsedTimer seitKlick;
        qint64 dauer = -1;
        SobaldEinDurchgangWartet([&] {
            seitKlick.start();
            Waehle("mnuMessdatenVisualisierenStop");
        });
        fahrer.Sobald([this] { return AlleTitel() == ViermalTitel(". Optikteil offline"); },
                      [&] { dauer = seitKlick.elapsed(); });
        EXPECT_TRUE(LaufeBis([this] { return fahrer.AllesGetan() && !Hauptfenster().BefehlWartet(); }));
        return dauer;
    }
    /// Milliseconds until the program has ended after its main window was closed while a dialog tried in
    /// vain.
    qint64 DauerNachSchliessenBei(const QString& dialog) {
        fahrer.Sobald([=] { return SichtbaresFenster(dialog) != nullptr; },
                      [this] { Hauptfenster().close(); });
        QElapsedTimer uhr;
        uhr.start();
        Verbinde();
        EXPECT_FALSE(programm->Runde());
        return uhr.elapsed();
    }

    static constexpr int WartezeitMs = 300;
};

// A lost line takes ten attempts of a second each; all that is to be seen meanwhile is looked at in one go.
TEST_F(LeitungImBetrieb, A_line_pulled_out_is_reported_leaves_the_window_usable_and_returns_when_plugged_in) {
    GeheLive();
    geraet->Befehl("unplug");
    const double rechenzeit = Rechenzeit();
    Pulsmesser puls;
    const qint64 dauer = DauerBis([this] { return !Meldungen().empty(); });
    const double anteil = (Rechenzeit() - rechenzeit) * 1000 / static_cast<double>(dauer);
    RecordProperty("LargestGapMs", std::to_string(puls.GroessteLueckeMs()));
    RecordProperty("CpuPercent", std::to_string(100 * anteil));
    EXPECT_THAT(Meldungen(), ElementsAre(VerbindungUnterbrochen));
    EXPECT_GE(dauer, 9000);
    EXPECT_LT(puls.GroessteLueckeMs(), 500);
    EXPECT_LT(anteil, 0.3);
    EXPECT_EQ(AlleTitel(), ViermalTitel(". Optikteil offline"));
    EXPECT_EQ(Statusfeld(3), "");

    geraet->Befehl("plug");
    ASSERT_TRUE(LaufeBis(IstLive));
    geraet->Befehl("scene beams 0 interrupted 13");
    ASSERT_TRUE(LaufeDurchgaenge(2));
    EXPECT_EQ(AlleTitel(), ViermalTitel(". Optikteil online"));
    EXPECT_EQ(GezeigteWerte(0).front(), 13);
}

TEST_F(LeitungImBetrieb, A_line_that_returns_in_time_is_not_worth_a_message) {
    GeheLive();
    geraet->Befehl("unplug");
    SobaldEinDurchgangWartet([this] { geraet->Befehl("plug"); });
    EXPECT_TRUE(LaufeDurchgaenge(2));
    EXPECT_THAT(Meldungen(), IsEmpty());
}

TEST_F(LeitungImBetrieb, Stop_on_a_line_that_is_gone_is_served_after_the_attempt_in_progress) {
    GeheLive();
    geraet->Befehl("unplug");
    EXPECT_LT(DauerDesStopps(), 1500);
    EXPECT_THAT(Meldungen(), IsEmpty());
}

TEST_F(LeitungImBetrieb, Stop_on_a_line_where_nobody_answers_is_served_after_the_attempt_in_progress) {
    GeheLive();
    geraet->Befehl("fault silence");
    EXPECT_LT(DauerDesStopps(), 1500);
    EXPECT_THAT(Meldungen(), IsEmpty());
}

TEST_F(LeitungImBetrieb, The_main_window_may_be_closed_while_a_pass_waits) {
    GeheLive();
    geraet->Befehl("fault silence");
    SobaldEinDurchgangWartet([this] { Hauptfenster().close(); });
    // One second for the attempt in progress, one for taking the controller out of autosend.
    EXPECT_LT(DauerBis([this] { return !programm->Runde(); }), WartezeitMs + 2500);
    EXPECT_THAT(Meldungen(), ElementsAre(LadeText(6002)));
}

TEST_F(LeitungImBetrieb, The_main_window_may_be_closed_while_the_identification_is_tried) {
    SchliesseGeraetAn({"--fault", "silence"});
    Starte();
    EXPECT_LT(DauerNachSchliessenBei("frmIdentifikationsAnforderung"), 2500);
    EXPECT_THAT(Meldungen(), IsEmpty());
}

TEST_F(LeitungImBetrieb, The_main_window_may_be_closed_while_the_configuration_is_read) {
    SchliesseGeraetAn({"--fault", "silence@3"});
    Starte();
    EXPECT_LT(DauerNachSchliessenBei("frmKonfigurationLesenAusHardware"), 2500);
    EXPECT_THAT(Meldungen(), IsEmpty());
}

TEST_F(LeitungImBetrieb, Identification_goes_on_when_the_line_is_plugged_in) {
    SchliesseGeraetAn();
    geraet->Befehl("unplug");
    Starte();
    fahrer.Sobald([] { return SichtbaresFenster("frmIdentifikationsAnforderung") != nullptr; },
                  [this] { geraet->Befehl("plug"); });
    Verbinde();
    EXPECT_TRUE(LaufeBis(IstLive));
    EXPECT_THAT(Meldungen(), IsEmpty());
}

TEST_F(LeitungImBetrieb, A_line_pulled_out_while_the_configuration_is_read_only_delays_it) {
    SchliesseGeraetAn();
    Starte();
    fahrer.Sobald([] { return SichtbaresFenster("frmKonfigurationLesenAusHardware") != nullptr; },
                  [this] {
                      geraet->Befehl("unplug");
                      geraet->Befehl("plug");
                  });
    Verbinde();
    EXPECT_TRUE(LaufeBis(IstLive));
    EXPECT_EQ(AlleTitel(), ViermalTitel(". Optikteil online"));
}

} // namespace varnoth::pruefung
