#include "messspeicher.h"

#include "probedurchgaenge.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace pruefung;

namespace {

constexpr Zeit Beginnuhr{5'000'000};

struct MessspeicherTest : testing::Test {
    void Nimm(int ab, int anzahl) {
        for (int i = ab; i < ab + anzahl; ++i) {
            Messdurchgang durchgang = LebhafterDurchgang(i);
            durchgang.uhr += Beginnuhr;
            speicher.Nimm(durchgang);
        }
    }
    std::vector<Messdurchgang> Alle() const {
        std::vector<Messdurchgang> alle;
        for (std::uint64_t nummer = speicher.Erstes(); nummer < speicher.Ende(); ++nummer)
            for (const Messdurchgang& durchgang : speicher.Lies(nummer)->durchgaenge)
                alle.push_back(durchgang);
        return alle;
    }

    Messspeicher speicher{{.beginn = Probebeginn, .bezeichnung = "K"}, Beginnuhr};
};

} // namespace

TEST_F(MessspeicherTest, Is_empty_at_first) {
    EXPECT_EQ(speicher.Erstes(), speicher.Ende());
    EXPECT_EQ(speicher.Spanne(), Zeitspanne{});
    EXPECT_EQ(speicher.Lies(0), nullptr);
    EXPECT_EQ(speicher.Konfiguration(0), nullptr);
}

TEST_F(MessspeicherTest, Gives_every_pass_as_it_came_counted_from_its_beginning) {
    Nimm(0, 40);
    const auto alle = Alle();
    ASSERT_EQ(alle.size(), 40U);
    for (int i = 0; i < 40; ++i)
        EXPECT_EQ(alle[static_cast<std::size_t>(i)], LebhafterDurchgang(i)) << i;
    EXPECT_EQ(speicher.Ende(), 7U);
}

TEST_F(MessspeicherTest, Shows_a_pass_at_once_and_the_newest_packet_as_it_grows) {
    Nimm(0, 1);
    ASSERT_EQ(speicher.Ende(), 1U);
    EXPECT_EQ(speicher.Lies(0)->durchgaenge.size(), 1U);
    Nimm(1, 1);
    EXPECT_EQ(speicher.Ende(), 1U);
    EXPECT_EQ(speicher.Lies(0)->durchgaenge.size(), 2U);
    EXPECT_EQ(speicher.Spanne().bis, LebhafterDurchgang(1).uhr);
    EXPECT_EQ(speicher.Spanne(0), speicher.Spanne());
    EXPECT_EQ(speicher.DieUebersicht().Durchgaenge(0, 0), 2U);
}

TEST_F(MessspeicherTest, Finds_the_packet_of_a_time) {
    Nimm(0, 40);
    EXPECT_EQ(speicher.PaketUm(Zeit(-5)), 0U);
    for (std::uint64_t nummer = 0; nummer < speicher.Ende(); ++nummer) {
        const Zeitspanne spanne = speicher.Spanne(nummer);
        EXPECT_EQ(speicher.PaketUm(spanne.von), nummer);
        EXPECT_EQ(speicher.PaketUm(spanne.bis + Zeit(1)), nummer);
    }
}

TEST_F(MessspeicherTest, Keeps_what_has_happened_to_live_data) {
    speicher.Nimm({Liveereignisart::Begonnen, Probebeginn, Beginnuhr});
    Nimm(0, 1);
    speicher.Nimm({Liveereignisart::Verloren, Probebeginn, Beginnuhr + Zeit(9)});
    speicher.Nimm({Liveereignisart::Zurueck, Probebeginn, Beginnuhr + Zeit(20)});
    speicher.Nimm({Liveereignisart::Beendet, Probebeginn, Beginnuhr + Zeit(30)});
    const auto paket = speicher.Lies(0);
    ASSERT_EQ(paket->ereignisse.size(), 4U);
    EXPECT_EQ(paket->ereignisse[0].art, Messereignisart::LiveBegonnen);
    EXPECT_EQ(paket->ereignisse[1].art, Messereignisart::Verloren);
    EXPECT_EQ(paket->ereignisse[2].art, Messereignisart::Zurueck);
    EXPECT_EQ(paket->ereignisse[3].art, Messereignisart::LiveBeendet);
    EXPECT_EQ(paket->ereignisse[3].laufzeit, Zeit(30));
    EXPECT_TRUE(speicher.DieUebersicht().HatLuecke(0));
}

TEST_F(MessspeicherTest, A_note_goes_to_the_packet_of_its_time) {
    Nimm(0, 40);
    const Zeitspanne spanne = speicher.Spanne(2);
    ASSERT_NE(speicher.Lies(2), nullptr) << "at hand, without the note";
    speicher.Notiere(spanne.von + Zeit(1), Probebeginn, "frueher");
    speicher.Notiere(speicher.Spanne().bis, Probebeginn, "jetzt");
    speicher.Notiere(Zeit(-7), Probebeginn, "vor allem");
    ASSERT_EQ(speicher.Lies(2)->ereignisse.size(), 1U);
    EXPECT_EQ(speicher.Lies(2)->ereignisse[0].text, "frueher");
    EXPECT_TRUE(speicher.HatEreignisse(2));
    EXPECT_FALSE(speicher.HatEreignisse(3));
    EXPECT_TRUE(speicher.HatEreignisse(speicher.Ende() - 1));
    EXPECT_EQ(speicher.Lies(2)->ereignisse[0].laufzeit, spanne.von + Zeit(1));
    EXPECT_EQ(speicher.Lies(speicher.Ende() - 1)->ereignisse.at(0).text, "jetzt");
    EXPECT_EQ(speicher.Lies(0)->ereignisse.at(0).laufzeit, speicher.Spanne().von);
    EXPECT_EQ(Alle().size(), 40U);
}

TEST_F(MessspeicherTest, A_note_after_live_data_ended_lies_behind_all_else) {
    Nimm(0, 40);
    speicher.SetzeKonfiguration({});
    const Zeit spaeter = speicher.Spanne().bis + std::chrono::minutes(5);
    speicher.Notiere(spaeter, Probebeginn, "danach");
    EXPECT_EQ(speicher.Spanne().bis, spaeter);
    EXPECT_EQ(speicher.Lies(speicher.PaketUm(spaeter))->ereignisse.at(0).text, "danach");
}

TEST_F(MessspeicherTest, Each_packet_knows_the_configuration_in_use_at_its_beginning) {
    Abbild andere;
    ASSERT_TRUE(andere.SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, 12, 99));
    Nimm(0, 3);
    speicher.SetzeKonfiguration(andere);
    Nimm(3, 3);
    ASSERT_EQ(speicher.Ende(), 2U);
    EXPECT_EQ(*speicher.Konfiguration(0), Abbild{});
    EXPECT_EQ(*speicher.Konfiguration(1), andere);
}

TEST_F(MessspeicherTest, The_oldest_go_when_the_memory_is_used_up) {
    constexpr std::size_t Bytes = 20'000;
    Messspeicher kleiner({}, Zeit(0), Bytes);
    for (int i = 0; i < 600; ++i)
        kleiner.Nimm(LebhafterDurchgang(i));
    EXPECT_GT(kleiner.Erstes(), 0U);
    EXPECT_LE(kleiner.Bytes(), Bytes);
    EXPECT_GT(kleiner.Bytes(), Bytes / 2);
    EXPECT_EQ(kleiner.Ende(), 100U);
    EXPECT_EQ(kleiner.Lies(kleiner.Erstes() - 1), nullptr);
    EXPECT_EQ(kleiner.Lies(kleiner.Erstes())->durchgaenge.front().uhr, kleiner.Spanne().von);
    EXPECT_EQ(kleiner.PaketUm(Zeit(0)), kleiner.Erstes());
    EXPECT_GE(kleiner.DieUebersicht().Spanne(0).bis, kleiner.Spanne().von);
}

TEST_F(MessspeicherTest, What_the_controller_calls_itself_can_become_known_later) {
    speicher.SetzeGeraet("Vorhang", "4711");
    EXPECT_EQ(speicher.Angaben(),
              (Messangaben{.beginn = Probebeginn, .bezeichnung = "Vorhang", .seriennummer = "4711"}));
}

TEST_F(MessspeicherTest, An_event_shows_at_once) {
    Nimm(0, 1);
    ASSERT_TRUE(speicher.Lies(0)->ereignisse.empty());
    speicher.Nimm({Liveereignisart::Beendet, Probebeginn, Beginnuhr + Zeit(9)});
    EXPECT_EQ(speicher.Lies(0)->ereignisse.size(), 1U);
}

TEST_F(MessspeicherTest, A_note_between_two_packets_belongs_to_the_first_and_lies_in_its_span) {
    Nimm(0, 40);
    const Zeit danach = speicher.Spanne(2).bis + Zeit(100);
    const std::size_t bytes = speicher.Bytes();
    speicher.Notiere(danach, Probebeginn, "dazwischen");
    EXPECT_EQ(speicher.Lies(2)->ereignisse.at(0).laufzeit, danach);
    EXPECT_EQ(speicher.Spanne(2).bis, danach);
    EXPECT_LT(speicher.Bytes(), bytes + 100) << "the packet takes little more room than before";
}

} // namespace varnoth
