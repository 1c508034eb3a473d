// A record on the line: written by the program's own writer, read by the simulator's own reader.

#include "band.h"
#include "konfigurationsdatei.h"
#include "registeradressen.h"
#include "simulatorprobe.h"
#include "vrecform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>

namespace varnoth::simulator {

using namespace std::chrono_literals;

namespace {

constexpr int SpezifischAb = 0x2000;
constexpr int StatusAdresse = SpezifischAb + 44, Werteadresse = SpezifischAb + 335,
              Strahladresse = SpezifischAb + 353;

struct BandTest : testing::Test {
    BandTest() {
        EXPECT_TRUE(konfiguration.SetzeRegister(Speicherbereich::SpezifischeGeraetedaten,
                                                spezifisch::Aufloesung, 7, 2));
        EXPECT_TRUE(konfiguration.SetzeRegister(Speicherbereich::Kommunikationsdaten,
                                                kommunikation::Stationsadresse, 1));
    }
    ~BandTest() override { std::filesystem::remove(pfad); }

    /// Random passes each 100 ms, ten to a packet.
    std::vector<Messdurchgang> Zufaellige(int anzahl) {
        std::mt19937 zufall(7);
        const auto wort = [&] { return static_cast<std::uint16_t>(zufall()); };
        std::vector<Messdurchgang> alle;
        for (int i = 0; i < anzahl; ++i) {
            Messdurchgang einer{.uhr = 2s + i * 100ms, .anzahlTeile = 4, .geraetestatus = wort()};
            for (auto& messung : einer.teile) {
                messung = {.vorhanden = true, .gemessen = true, .status = wort(), .strahlen = 1009};
                for (auto& wert : messung.werte)
                    wert = zufall() % 3 == 0 ? wort() : std::uint16_t{7};
                for (std::size_t r = 0; r < 63; ++r)
                    messung.strahlregister[r] = zufall() % 3 == 0 ? wort() : std::uint16_t{0xFFFF};
            }
            alle.push_back(einer);
        }
        return alle;
    }
    /// A record of these passes; events go with the packet of their time.
    std::string Aufzeichnung(const std::vector<Messdurchgang>& alle,
                             const std::vector<Messereignis>& ereignisse = {},
                             std::size_t jePaket = 10) const {
        Vrecform form;
        auto erste = std::make_shared<const Abbild>(konfiguration);
        std::string bytes = form.Beginne({}, erste);
        for (std::size_t von = 0; von < alle.size(); von += jePaket) {
            Messpaket paket;
            const std::size_t bis = std::min(alle.size(), von + jePaket);
            paket.durchgaenge.assign(alle.begin() + static_cast<std::ptrdiff_t>(von),
                                     alle.begin() + static_cast<std::ptrdiff_t>(bis));
            paket.spanne = {paket.durchgaenge.front().uhr, paket.durchgaenge.back().uhr};
            const Zeit naechstes = bis < alle.size() ? alle[bis].uhr : Zeit::max();
            for (const auto& ereignis : ereignisse)
                if (ereignis.laufzeit >= paket.spanne.von && ereignis.laufzeit < naechstes)
                    paket.ereignisse.push_back(ereignis);
            if (!paket.ereignisse.empty())
                paket.spanne.bis = std::max(paket.spanne.bis, paket.ereignisse.back().laufzeit);
            bytes += form.Nimm(paket, erste);
        }
        return bytes + form.Beende();
    }
    void Schreibe(const std::string& bytes) { std::ofstream(pfad, std::ios::binary) << bytes; }
    Aufbau MitBand(bool schleife = false) const {
        Aufbau aufbau = OhneTakt();
        aufbau.band = std::make_shared<Band>(pfad);
        aufbau.schleife = schleife;
        return aufbau;
    }
    std::string Fehler() {
        try {
            Band band(pfad);
        } catch (const std::runtime_error& fehler) {
            return fehler.what();
        }
        return {};
    }

    Abbild konfiguration;
    std::filesystem::path pfad =
        std::filesystem::temp_directory_path() /
        ("varnoth_band_" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
         ::testing::UnitTest::GetInstance()->current_test_info()->name() + ".vrec");
};

std::vector<int> AlsZahlen(std::span<const std::uint16_t> werte) {
    return {werte.begin(), werte.end()};
}

} // namespace

TEST_F(BandTest, Reads_every_pass_of_a_record_as_it_was_written) {
    const auto alle = Zufaellige(200);
    Schreibe(Aufzeichnung(alle));
    Bandlauf lauf(std::make_shared<Band>(pfad), false);
    for (const Messdurchgang& einer : alle) {
        const Bandbild* const bild = lauf.BildUm(einer.uhr - alle.front().uhr);
        ASSERT_NE(bild, nullptr);
        ASSERT_EQ(bild->laufzeit, einer.uhr);
        ASSERT_EQ(bild->geraetestatus, einer.geraetestatus);
        for (std::size_t teil = 0; teil < 4; ++teil) {
            ASSERT_EQ(bild->teile[teil].vorhanden, einer.teile[teil].vorhanden);
            ASSERT_EQ(bild->teile[teil].status, einer.teile[teil].status);
            ASSERT_EQ(bild->teile[teil].strahlen, einer.teile[teil].strahlen);
            ASSERT_EQ(bild->teile[teil].werte, einer.teile[teil].werte);
            ASSERT_EQ(bild->teile[teil].strahlregister, einer.teile[teil].strahlregister);
        }
    }
}

TEST_F(BandTest, Beams_and_values_come_out_of_the_line_as_they_were_measured) {
    const auto alle = Zufaellige(60);
    Schreibe(Aufzeichnung(alle));
    Probe probe(MitBand());
    for (int teil = 0; teil < 4; ++teil) {
        probe.Waehle(teil);
        probe.Befehl("scene freeze");
        const auto status = probe.Lies(StatusAdresse, 1);
        const auto werte = probe.Lies(Werteadresse, 18);
        const auto strahlen = probe.Lies(Strahladresse, 64);
        const auto passt = [&](const Messdurchgang& einer) {
            const auto& messung = einer.teile[static_cast<std::size_t>(teil)];
            return status == std::vector<int>{messung.status} && werte == AlsZahlen(messung.werte) &&
                   strahlen == AlsZahlen(messung.strahlregister);
        };
        EXPECT_TRUE(std::ranges::any_of(alle, passt)) << teil;
        probe.Befehl("scene run");
    }
}

TEST_F(BandTest, Begins_when_it_is_first_asked_for_and_runs_at_its_pace) {
    const auto alle = Zufaellige(60);
    Schreibe(Aufzeichnung(alle));
    Probe probe(MitBand());
    probe.jetzt = 1h;
    EXPECT_EQ(probe.Lies(StatusAdresse, 1), std::vector<int>{alle[0].teile[0].status}) << "not yet";
    EXPECT_EQ(probe.Lies(Werteadresse, 18), AlsZahlen(alle[0].teile[0].werte));
    EXPECT_EQ(probe.Lies(Werteadresse, 18), AlsZahlen(alle[10].teile[0].werte)) << "a second later";
    EXPECT_EQ(probe.Lies(StatusAdresse, 1), std::vector<int>{alle[20].teile[0].status});
}

TEST_F(BandTest, Stays_at_the_last_pass_or_begins_anew) {
    const auto alle = Zufaellige(21);
    Schreibe(Aufzeichnung(alle));
    Probe bleibt(MitBand());
    Probe wieder(MitBand(true));
    for (Probe* probe : {&bleibt, &wieder})
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(probe->Lies(Werteadresse, 18),
                      AlsZahlen(alle[static_cast<std::size_t>(10 * i)].teile[0].werte));
    EXPECT_EQ(bleibt.Lies(Werteadresse, 18), AlsZahlen(alle[20].teile[0].werte));
    EXPECT_EQ(wieder.Lies(Werteadresse, 18), AlsZahlen(alle[9].teile[0].werte));
}

TEST_F(BandTest, Does_not_answer_while_the_controller_did_not) {
    auto alle = Zufaellige(60);
    alle.erase(alle.begin() + 11, alle.begin() + 39);
    Schreibe(Aufzeichnung(alle, {{.art = Messereignisart::Verloren, .laufzeit = 3'500ms},
                                 {.art = Messereignisart::Zurueck, .laufzeit = 5'800ms}}));
    Probe probe(MitBand());
    EXPECT_FALSE(probe.Lies(Werteadresse, 18).empty());
    EXPECT_FALSE(probe.Lies(Werteadresse, 18).empty()) << "1 s: not lost yet";
    EXPECT_TRUE(probe.Lies(Werteadresse, 18).empty()) << "2 s";
    EXPECT_TRUE(probe.Frage(Kennungsanfrage()).empty()) << "3 s";
    EXPECT_FALSE(probe.Frage(Kennungsanfrage()).empty()) << "4 s";
    EXPECT_FALSE(probe.Lies(Werteadresse, 18).empty());
}

TEST_F(BandTest, Configuration_registers_are_those_of_the_record) {
    Schreibe(Aufzeichnung(Zufaellige(10)));
    Probe probe(MitBand());
    probe.Waehle(2);
    EXPECT_EQ(probe.Lies(SpezifischAb + 13, 1), std::vector<int>{7});
    EXPECT_EQ(probe.Lies(SpezifischAb + 12, 1), std::vector<int>{1009});
}

TEST_F(BandTest, A_configuration_that_changes_in_the_record_changes_on_the_line) {
    const auto alle = Zufaellige(20);
    auto erste = std::make_shared<const Abbild>(konfiguration);
    ASSERT_TRUE(
        konfiguration.SetzeRegister(Speicherbereich::SpezifischeGeraetedaten, spezifisch::Aufloesung, 9, 2));
    auto zweite = std::make_shared<const Abbild>(konfiguration);
    Vrecform form;
    std::string bytes = form.Beginne({}, erste);
    bytes += form.Nimm({.spanne = {alle[0].uhr, alle[0].uhr}, .durchgaenge = {alle[0]}}, erste);
    bytes += form.Nimm({.spanne = {alle[10].uhr, alle[19].uhr}, .durchgaenge = {alle[10], alle[19]}}, zweite);
    Schreibe(bytes + form.Beende());
    Probe probe(MitBand());
    probe.Waehle(2);
    EXPECT_EQ(probe.Lies(SpezifischAb + 13, 1), std::vector<int>{7});
    probe.Lies(Werteadresse, 18);
    EXPECT_EQ(probe.Lies(SpezifischAb + 13, 1), std::vector<int>{9});
}

TEST_F(BandTest, A_record_cut_at_any_byte_or_with_any_bit_flipped_never_does_harm) {
    const std::string ganz = Aufzeichnung(Zufaellige(12), {}, 3);
    std::mt19937 zufall(3);
    for (int i = 0; i < 400; ++i) {
        std::string bytes = ganz.substr(0, i % 2 == 0 ? zufall() % ganz.size() : ganz.size());
        if (i % 2 == 1)
            bytes[zufall() % bytes.size()] ^= static_cast<char>(1 << zufall() % 8);
        Schreibe(bytes);
        if (Fehler().empty()) {
            Bandlauf lauf(std::make_shared<Band>(pfad), true);
            for (Zeit zeit{0}; zeit < 2s; zeit += 90ms)
                lauf.BildUm(zeit);
        }
    }
}

TEST_F(BandTest, A_damaged_packet_is_passed_over_and_what_follows_is_found) {
    const auto alle = Zufaellige(40);
    std::string bytes = Aufzeichnung(alle);
    const auto zweites = bytes.find("\xA5VRB", bytes.find("\xA5VRB\x03") + 1);
    bytes[zweites + 2] ^= 1; // its head
    Schreibe(bytes);
    Bandlauf lauf(std::make_shared<Band>(pfad), false);
    EXPECT_EQ(lauf.BildUm(1'500ms)->laufzeit, alle[9].uhr);
    EXPECT_EQ(lauf.BildUm(2s)->laufzeit, alle[20].uhr);
}

TEST_F(BandTest, What_is_no_record_is_refused_in_a_sentence) {
    EXPECT_NE(Fehler().find("cannot be read: No such file"), std::string::npos) << Fehler();
    Schreibe("");
    EXPECT_EQ(Fehler(), pfad.string() + " is no record");
    Schreibe(AlsKonfigurationsdatei(konfiguration));
    EXPECT_EQ(Fehler(), pfad.string() + " is no record");
    Schreibe(Aufzeichnung({}));
    EXPECT_EQ(Fehler(), pfad.string() + " holds no pass");
    std::string neuer = Aufzeichnung(Zufaellige(1));
    neuer[23] = 2;
    Schreibe(neuer);
    EXPECT_EQ(Fehler(), pfad.string() + " is a record of a newer version (2)");
}

} // namespace varnoth::simulator
