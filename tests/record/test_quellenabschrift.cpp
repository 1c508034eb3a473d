#include "quellenabschrift.h"

#include "messspeicher.h"
#include "probedurchgaenge.h"
#include "speicherdatei.h"
#include "vrecform.h"
#include "vrecleser.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace pruefung;
using namespace std::chrono_literals;

namespace {

constexpr Zeit Alles = GroessteZeit;

struct QuellenabschriftTest : testing::Test {
    QuellenabschriftTest() {
        speicher.SetzeGeraet("Vorhang", "4711");
        Abbild abbild;
        EXPECT_TRUE(abbild.SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, 12, 20));
        speicher.SetzeKonfiguration(abbild);
    }
    void Nimm(int ab, int anzahl) {
        for (int i = ab; i < ab + anzahl; ++i)
            speicher.Nimm(LebhafterDurchgang(i));
    }
    /// The stretch as a record that was opened.
    std::unique_ptr<Vrecleser> Schreibe(Zeitspanne spanne) {
        Quellenabschrift abschrift(speicher, std::make_unique<Vrecform>(), spanne);
        std::string bytes;
        while (const auto stueck = abschrift.Weiter()) {
            bytes += *stueck;
            schritte.push_back(abschrift.Anteil());
        }
        durchgaenge = abschrift.Durchgaenge();
        auto leser = std::make_unique<Vrecleser>(std::make_unique<Speicherdatei>(bytes));
        while (leser->Arbeite())
            continue;
        return leser;
    }
    static std::vector<Messdurchgang> Durchgaenge(const Messquelle& quelle) {
        std::vector<Messdurchgang> alle;
        for (std::uint64_t nummer = quelle.Erstes(); nummer < quelle.Ende(); ++nummer)
            for (const Messdurchgang& durchgang : quelle.Lies(nummer)->durchgaenge)
                alle.push_back(durchgang);
        return alle;
    }

    Messspeicher speicher{{.beginn = Probebeginn}, Zeit(0)};
    std::vector<double> schritte;
    std::uint64_t durchgaenge = 0;
};

} // namespace

TEST_F(QuellenabschriftTest, What_memory_holds_becomes_a_record_of_the_same) {
    Nimm(0, 1000);
    speicher.Notiere(Zeit(20s), Probebeginn, "n");
    const auto leser = Schreibe({Zeit(0), Alles});
    EXPECT_EQ(leser->Zustand().befund, Vrecbefund::Gut);
    EXPECT_TRUE(leser->Zustand().beendet);
    EXPECT_EQ(Durchgaenge(*leser), Durchgaenge(speicher));
    EXPECT_EQ(durchgaenge, 1000U);
    EXPECT_EQ(leser->Lies(leser->PaketUm(20s))->ereignisse.at(0).text, "n");
    EXPECT_EQ(leser->Angaben(), speicher.Angaben());
    EXPECT_EQ(*leser->Konfiguration(0), *speicher.Konfiguration(0));
    EXPECT_GT(schritte.size(), 3U);
    EXPECT_TRUE(std::ranges::is_sorted(schritte));
    EXPECT_EQ(schritte.back(), 1.0);
}

TEST_F(QuellenabschriftTest, A_stretch_begins_with_the_packet_of_its_time) {
    Nimm(0, 1000);
    const auto leser = Schreibe({Zeit(30s), Zeit(60s)});
    const Zeit beginn = speicher.Spanne(speicher.PaketUm(30s)).von;
    EXPECT_EQ(leser->Spanne().von, Zeit(0));
    EXPECT_EQ(leser->Angaben().beginn, Probebeginn + beginn);
    const Messdurchgang erster = leser->Lies(0)->durchgaenge.front();
    EXPECT_LT(erster.zeit - erster.uhr - (Probebeginn + beginn), 10us)
        << "its clocks agree to some microseconds";
    EXPECT_GE(leser->Spanne().bis, 29s);
    EXPECT_LE(leser->Spanne().bis, 32s);
}

TEST_F(QuellenabschriftTest, A_stretch_in_which_nothing_was_gives_a_record_of_nothing) {
    EXPECT_EQ(Schreibe({Zeit(0), Alles})->Zustand().befund, Vrecbefund::OhneDurchgaenge);
    Nimm(0, 6);
    EXPECT_EQ(Schreibe({Zeit(1h), Alles})->Zustand().befund, Vrecbefund::OhneDurchgaenge);
}

TEST_F(QuellenabschriftTest, What_the_source_forgets_meanwhile_is_left_out) {
    Messspeicher kleiner({.beginn = Probebeginn}, Zeit(0), 60'000);
    for (int i = 0; i < 1000; ++i)
        kleiner.Nimm(LebhafterDurchgang(i));
    Quellenabschrift abschrift(kleiner, std::make_unique<Vrecform>(), {Zeit(0), Alles});
    std::string bytes = abschrift.Weiter().value();
    const std::uint64_t vorher = kleiner.Erstes();
    for (int i = 1000; i < 1400; ++i)
        kleiner.Nimm(LebhafterDurchgang(i));
    ASSERT_GT(kleiner.Erstes(), vorher);
    ASSERT_LT(kleiner.Erstes(), vorher + 200) << "some of it is still there";
    while (const auto stueck = abschrift.Weiter())
        bytes += *stueck;
    Vrecleser leser(std::make_unique<Speicherdatei>(bytes));
    while (leser.Arbeite())
        continue;
    EXPECT_EQ(leser.Zustand().beschaedigte, 0U);
    EXPECT_GT(leser.Zustand().durchgaenge, 0U);
    EXPECT_LT(leser.Zustand().durchgaenge, 1000U);
}

} // namespace varnoth
