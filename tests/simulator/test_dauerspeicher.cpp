#include "simulatorprobe.h"

#include <gtest/gtest.h>

#include <fstream>
#include <stdexcept>

namespace varnoth::simulator {

namespace {

namespace fs = std::filesystem;

constexpr int Kommando = 189, Passwort = 178;

std::vector<int> Gepackt(const std::string& text) {
    std::vector<int> werte;
    for (std::size_t i = 0; i + 1 < text.size(); i += 2)
        werte.push_back(text[i] * 256 + text[i + 1]);
    return werte;
}

const std::vector<int> RichtigesPasswort = Gepackt("Varnoth-Service1");

class Speicherdatei : public testing::Test {
protected:
    Speicherdatei() {
        fs::remove_all(ordner);
        fs::create_directory(ordner);
    }
    ~Speicherdatei() override { fs::remove_all(ordner); }

    Aufbau MitDatei() const {
        Aufbau aufbau = OhneTakt();
        aufbau.speicherdatei = datei;
        return aufbau;
    }
    void Schreibe(const std::string& inhalt) const { std::ofstream(datei) << inhalt; }

    const fs::path ordner =
        fs::path(testing::TempDir()) / testing::UnitTest::GetInstance()->current_test_info()->name();
    const fs::path datei = ordner / "store.txt";
};

} // namespace

TEST(Passwort, Opens_one_write_of_factory_data) {
    const std::pair<int, std::vector<int>> faelle[] = {
        {9, Gepackt("AB                  ")}, {20, Gepackt("20090513")}, {24, {261}}};
    for (const auto& [adresse, werte] : faelle) {
        Probe probe;
        EXPECT_EQ(probe.Frage(Schreibanfrage(adresse, werte)), Ausnahme(0x10, 2)) << adresse;
        EXPECT_TRUE(probe.Schreibe(Passwort, RichtigesPasswort));
        EXPECT_TRUE(probe.Schreibe(adresse, werte)) << adresse;
        EXPECT_EQ(probe.Lies(adresse, static_cast<int>(werte.size())), werte);
        EXPECT_FALSE(probe.Schreibe(adresse, werte)) << adresse;
    }
}

TEST(Passwort, That_is_wrong_opens_nothing) {
    Probe probe;
    EXPECT_TRUE(probe.Schreibe(Passwort, Gepackt("Varnoth-Service2")));
    EXPECT_FALSE(probe.Schreibe(24, {261}));
}

TEST(Passwort, Can_be_chosen) {
    Aufbau aufbau = OhneTakt();
    aufbau.passwort = "0123456789abcdef";
    Probe probe(aufbau);
    probe.Schreibe(Passwort, Gepackt(aufbau.passwort));
    EXPECT_TRUE(probe.Schreibe(24, {261}));
}

TEST(Neustart, Forgets_what_was_not_stored) {
    Probe probe;
    probe.Schreibe(0x200D, {10});
    EXPECT_TRUE(probe.Schreibe(Kommando, {3}));
    EXPECT_EQ(probe.Lies(0x200D, 1), std::vector<int>{5});
}

TEST(Neustart, Brings_the_stored_configuration_back) {
    Probe probe;
    probe.Schreibe(0x200D, {10});
    probe.Schreibe(Kommando, {1});
    probe.Schreibe(0x200D, {20});
    probe.Waehle(3);
    probe.Schreibe(Kommando, {3});
    EXPECT_EQ(probe.Lies(212, 1), std::vector<int>{0});
    EXPECT_EQ(probe.Lies(0x200D, 1), std::vector<int>{10});
}

TEST(Neustart, Puts_a_new_station_address_in_force) {
    Probe probe;
    probe.Schreibe(0x4004, {9});
    probe.Schreibe(Kommando, {1});
    EXPECT_FALSE(probe.Lies(0, 1).empty());
    EXPECT_TRUE(probe.Schreibe(Kommando, {3}))
        << "the restart itself is still answered under the old address";
    EXPECT_TRUE(probe.Lies(0, 1).empty());
    EXPECT_EQ(probe.Frage(Kennungsanfrage())[0], 9);
}

TEST(Speichern, Keeps_factory_data_by_their_own_command_only) {
    for (const auto& [kommando, danach] : {std::pair{1, 0x0102}, {2, 261}}) {
        Probe probe;
        probe.Schreibe(Passwort, RichtigesPasswort);
        probe.Schreibe(24, {261});
        probe.Schreibe(Kommando, {kommando});
        probe.Schreibe(Kommando, {3});
        EXPECT_EQ(probe.Lies(24, 1), std::vector<int>{danach}) << kommando;
    }
}

TEST_F(Speicherdatei, Outlives_the_simulator) {
    {
        Probe probe(MitDatei());
        probe.Waehle(2);
        probe.Schreibe(0x2034 + 31, {0xBEEF});
        probe.Schreibe(0x4008, {65535});
        probe.Schreibe(Passwort, RichtigesPasswort);
        probe.Schreibe(24, {261});
        probe.Schreibe(Kommando, {1});
        probe.Schreibe(Kommando, {2});
    }
    Probe probe(MitDatei());
    probe.Waehle(2);
    EXPECT_EQ(probe.Lies(0x2034 + 31, 1), std::vector<int>{0xBEEF});
    EXPECT_EQ(probe.Lies(0x4008, 1), std::vector<int>{65535});
    EXPECT_EQ(probe.Lies(24, 1), std::vector<int>{261});
}

TEST_F(Speicherdatei, Tells_a_beam_count_that_changed_meanwhile) {
    Probe(MitDatei()).Schreibe(Kommando, {1});
    Aufbau aufbau = MitDatei();
    aufbau.strahlen[1] = 65;
    aufbau.strahlen[3] = 200;
    EXPECT_EQ(Probe(aufbau).Lies(196, 1).front() & 0xF0, 0xA0);
}

TEST_F(Speicherdatei, Leaves_no_other_file_behind) {
    Probe(MitDatei()).Schreibe(Kommando, {1});
    EXPECT_EQ(std::distance(fs::directory_iterator(ordner), fs::directory_iterator()), 1);
}

TEST_F(Speicherdatei, That_cannot_be_written_gives_a_device_failure) {
    Aufbau aufbau = MitDatei();
    aufbau.speicherdatei = ordner / "missing" / "store.txt";
    EXPECT_EQ(Probe(aufbau).Frage(Schreibanfrage(Kommando, {1})), Ausnahme(0x10, 4));
}

TEST_F(Speicherdatei, That_is_a_link_is_refused_at_the_start_and_what_it_leads_to_kept) {
    Probe(MitDatei()).Schreibe(Kommando, {1});
    Aufbau aufbau = MitDatei();
    aufbau.speicherdatei = ordner / "link";
    for (const fs::path& ziel : {datei, ordner / "missing"}) {
        fs::create_symlink(ziel, aufbau.speicherdatei);
        EXPECT_THROW(Simulator{aufbau}, std::runtime_error) << ziel;
        EXPECT_EQ(fs::exists(ziel), ziel == datei);
        fs::remove(aufbau.speicherdatei);
    }
}

TEST_F(Speicherdatei, That_a_link_has_replaced_meanwhile_is_not_written) {
    const fs::path fremde = ordner / "foreign";
    std::ofstream(fremde) << "precious";
    for (const char* verweis : {"store.txt", "store.txt.new"}) {
        Probe probe(MitDatei());
        fs::create_symlink(fremde, ordner / verweis);
        EXPECT_EQ(probe.Frage(Schreibanfrage(Kommando, {1})), Ausnahme(0x10, 4)) << verweis;
        EXPECT_EQ(fs::read_symlink(ordner / verweis), fremde);
        EXPECT_EQ(fs::file_size(fremde), 8U);
        fs::remove(ordner / verweis);
    }
}

TEST_F(Speicherdatei, That_is_not_one_is_refused_and_kept) {
    for (const char* inhalt : {"", "something else\n", "varnoth-simulator 1\nglobal 0 1\n",
                               "varnoth-simulator 1\nglobal 193\n", "varnoth-simulator 1\nglobal 193 x\n"}) {
        Schreibe(inhalt);
        EXPECT_THROW(Simulator{MitDatei()}, std::runtime_error) << inhalt;
        EXPECT_EQ(fs::file_size(datei), std::string_view(inhalt).size());
    }
}

} // namespace varnoth::simulator
