#include "simulatorprobe.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace varnoth::simulator {

namespace {

constexpr int AutosendAn = 2, AutosendAus = 4;

/// Times at which something came, and what, of a controller with one part of 32 beams: a scan of 1750 us.
class Autosendbetrieb : public testing::Test {
protected:
    Autosendbetrieb() {
        Aufbau aufbau;
        aufbau.strahlen = {32, 0, 0, 0};
        aufbau.los = 4096;
        simulator = std::make_unique<Simulator>(aufbau);
        Befehl("scene freeze");
        for (int eintrag = 0; eintrag < 30; ++eintrag)
            Setze(75 + eintrag, eintrag == 0 ? 0x0114 : 0);
    }

    void Befehl(const std::string& zeile) { EXPECT_TRUE(simulator->Befehl(zeile, jetzt).starts_with("ok")); }
    void Setze(int adresse, int wert) {
        Befehl("set communication " + std::to_string(adresse) + ' ' + std::to_string(wert));
    }
    int Hole(const std::string& name) { return std::stoi(simulator->Befehl("get " + name, jetzt).substr(3)); }
    /// Sends a request and takes what comes within the next so many microseconds, request by request.
    std::vector<Bytes> Frage(const Bytes& anfrage, int dauer) {
        simulator->Empfange(anfrage, jetzt);
        return Hoere(dauer);
    }
    std::vector<Bytes> Hoere(int dauer) {
        std::vector<Bytes> gehoertes;
        for (const Zeit ende = jetzt + Zeit{dauer};;) {
            const auto faellig = simulator->NaechsteFaelligkeit();
            if (!faellig || *faellig > ende) {
                jetzt = ende;
                return gehoertes;
            }
            jetzt = *faellig;
            if (Bytes bytes = simulator->Entnimm(jetzt); !bytes.empty()) {
                zeiten.push_back(jetzt);
                gehoertes.push_back(bytes);
            }
        }
    }
    void Steuere(int wert) { Frage(Schreibanfrage(0x4084, {wert}), 20000); }

    std::unique_ptr<Simulator> simulator;
    std::vector<Zeit> zeiten;
    Zeit jetzt{0};
};

} // namespace

TEST_F(Autosendbetrieb, Sends_nothing_before_it_is_told_to_and_nothing_after_it_was_told_to_stop) {
    EXPECT_TRUE(Hoere(1000000).empty());
    Steuere(AutosendAn);
    EXPECT_FALSE(Hoere(1000000).empty());
    Steuere(AutosendAus);
    Hoere(20000);
    EXPECT_TRUE(Hoere(1000000).empty());
}

TEST_F(Autosendbetrieb, Blocks_come_at_the_rate_that_the_register_names) {
    for (const int rate : {10, 40}) {
        Setze(74, 3 + 256 * rate);
        Steuere(AutosendAn);
        Hoere(500000);
        zeiten.clear();
        Hoere(500000);
        ASSERT_GT(zeiten.size(), 3U);
        for (std::size_t i = 1; i < zeiten.size(); ++i)
            EXPECT_EQ(zeiten[i] - zeiten[i - 1], Zeit{1750} * rate);
        Steuere(AutosendAus);
    }
}

TEST_F(Autosendbetrieb, A_block_in_modbus_format_holds_the_values_of_its_entries) {
    Setze(74, 3 + 256 * 20);
    Setze(75, 0x0014);
    Setze(76, 0x0102);
    Setze(77, 0x0101);
    Steuere(AutosendAn);
    Hoere(200000);
    Bytes erwartet{1, 3, 8};
    for (const char* name : {"global 196", "specific 0 335", "specific 0 353", "specific 0 354"})
        HaengeAn(erwartet, Hole(name));
    EXPECT_EQ(Hoere(50000).front(), MitCrc(erwartet));
}

TEST_F(Autosendbetrieb, A_fast_block_holds_the_bare_values_and_their_sum) {
    Setze(74, 1 + 256 * 20);
    Steuere(AutosendAn);
    Hoere(200000);
    const int status = Hole("specific 0 44");
    Bytes erwartet;
    HaengeAn(erwartet, status);
    erwartet.push_back(static_cast<std::uint8_t>(status / 256 + status % 256));
    EXPECT_EQ(Hoere(50000).front(), erwartet);
}

TEST_F(Autosendbetrieb, The_modes_with_a_trigger_and_without_autosend_send_nothing_unasked) {
    for (const int modus : {0, 2, 4}) {
        Setze(74, modus + 256);
        Steuere(AutosendAn);
        EXPECT_TRUE(Hoere(500000).empty()) << modus;
        Steuere(AutosendAus);
    }
}

TEST_F(Autosendbetrieb, A_block_in_another_line_format_cannot_be_read) {
    Setze(74, 3 + 256 * 20);
    Setze(126, 0x30C);
    Steuere(AutosendAn);
    Hoere(200000);
    const Bytes block = Hoere(50000).front();
    EXPECT_NE(Crc(block), 0);
}

TEST_F(Autosendbetrieb, Requests_are_answered_between_the_blocks) {
    Setze(74, 3 + 256 * 20);
    Steuere(AutosendAn);
    const auto gehoertes = Frage(Leseanfrage(0, 1), 100000);
    EXPECT_NE(std::ranges::find(gehoertes, MitCrc({1, 3, 2, 0, 50})), gehoertes.end());
    EXPECT_GT(gehoertes.size(), 2U);
}

TEST_F(Autosendbetrieb, A_restart_ends_it) {
    Setze(74, 3 + 256 * 20);
    Steuere(AutosendAn);
    Befehl("restart");
    Hoere(20000);
    EXPECT_TRUE(Hoere(500000).empty());
}

} // namespace varnoth::simulator
