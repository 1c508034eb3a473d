#include "portliste.h"

#include "kindprozess.h"
#include "maschine.h"
#include "portsperre.h"
#include "texte.h"

#include <gmock/gmock.h>
#include <grp.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <fcntl.h>

#include <algorithm>
#include <cstdlib>

namespace varnoth {

using pruefung::AlsNutzer;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;

namespace {

namespace fs = std::filesystem;

std::vector<std::string> Namen(const std::vector<Portangabe>& ports) {
    std::vector<std::string> namen;
    for (const Portangabe& port : ports)
        namen.push_back(fs::path(port.geraet).filename().string());
    return namen;
}

} // namespace

/// A machine of folders that a test fills.
class Portliste : public testing::Test {
protected:
    std::vector<Portangabe> Lies() const { return LiesPortliste(maschine.Wurzeln()); }
    Portwurzeln MitBeobachtetem() const {
        Portwurzeln wurzeln = maschine.Wurzeln();
        wurzeln.ordner = maschine.Beobachteter().string();
        return wurzeln;
    }

    pruefung::Maschine maschine;
};

TEST_F(Portliste, Is_empty_where_there_is_no_port) {
    EXPECT_THAT(Lies(), IsEmpty());
    EXPECT_THAT(
        LiesPortliste({.dev = "/nothing", .sys = "/nothing", .proc = "/nothing", .ordner = "/nothing"}),
        IsEmpty());
}

TEST_F(Portliste, Tells_of_a_usb_adapter_what_its_maker_says) {
    maschine.SteckeUsb("ttyUSB0", "A50285BI", 16);
    fs::create_symlink("../../ttyUSB0", maschine.Dev() / "serial/by-id/usb-FTDI_A50285BI-port0");
    fs::create_symlink("../../ttyUSB0", maschine.Dev() / "serial/by-path/pci-usb-0");
    fs::create_symlink("../../ttyUSB1", maschine.Dev() / "serial/by-id/another");
    const auto ports = Lies();
    ASSERT_EQ(ports.size(), 1U);
    const Portangabe& port = ports.front();
    EXPECT_EQ(port.geraet, maschine.Geraet("ttyUSB0"));
    EXPECT_EQ(port.bezeichnung, "FT232R USB UART");
    EXPECT_EQ(port.hersteller, "FTDI");
    EXPECT_EQ(port.seriennummer, "A50285BI");
    EXPECT_THAT(port.stabileNamen, ElementsAre(maschine.Geraet("serial/by-id/usb-FTDI_A50285BI-port0"),
                                               maschine.Geraet("serial/by-path/pci-usb-0")));
    EXPECT_EQ(port.verzoegerungMs, 16);
    EXPECT_EQ(port.verzoegerungsdatei, (maschine.Sys() / "class/tty/ttyUSB0/device/latency_timer").string());
    EXPECT_EQ(port.befund.hindernis, Hindernis::Keines);
}

TEST_F(Portliste, What_a_device_or_a_process_calls_itself_takes_no_effect_where_it_is_shown) {
    maschine.SteckeUsb("ttyUSB0", "A\x1B[2J");
    maschine.LegeProzessAn("77", "x\x1B[1m", maschine.terminal);
    maschine.LegeProzessAn("78", "", maschine.terminal);
    auto ports = Lies();
    EXPECT_EQ(ports.front().seriennummer, "A�[2J");
    ErgaenzeProzesse(ports, maschine.Wurzeln());
    EXPECT_THAT(ports.front().befund.prozesse, testing::UnorderedElementsAre("x�[1m (77)", "? (78)"));
}

TEST_F(Portliste, An_adapter_without_a_timer_has_none) {
    maschine.SteckeUsb("ttyACM0", "X");
    EXPECT_FALSE(Lies().front().verzoegerungMs.has_value());
    EXPECT_EQ(Lies().front().verzoegerungsdatei, "");
}

TEST_F(Portliste, Leaves_out_what_has_no_hardware_behind_it) {
    maschine.SteckeUart("ttyS0", 4);
    maschine.SteckeUart("ttyS1", 0);
    maschine.LegeVirtuellesAn("tty1");
    maschine.SteckeUart("ttyS2", 4);
    fs::remove(maschine.Dev() / "ttyS2");
    EXPECT_THAT(Namen(Lies()), ElementsAre("ttyS0"));
    EXPECT_EQ(Lies().front().bezeichnung, "UART 16550A");
}

TEST_F(Portliste, Leaves_out_a_name_of_a_port_behind_which_there_is_no_device) {
    for (const char* name : {"ttyS0", "ttyS1", "ttyS2"}) {
        maschine.SteckeUart(name, 4);
        fs::remove(maschine.Dev() / name);
    }
    maschine.Schreibe(maschine.Dev() / "ttyS0", "");
    fs::create_directory(maschine.Dev() / "ttyS1");
    ASSERT_EQ(mkfifo(maschine.Geraet("ttyS2").c_str(), 0600), 0);
    EXPECT_THAT(Lies(), IsEmpty());
}

TEST_F(Portliste, A_port_whose_kind_cannot_be_read_is_listed_all_the_same) {
    maschine.SteckeUart("ttyAMA0", 32);
    maschine.SteckeUart("ttyX0", 4);
    fs::remove(maschine.Sys() / "class/tty/ttyX0/type");
    EXPECT_THAT(Namen(Lies()), ElementsAre("ttyAMA0", "ttyX0"));
    EXPECT_EQ(Lies().front().bezeichnung, "UART");
}

TEST_F(Portliste, Sixty_four_ports_come_in_natural_order) {
    for (int i = 63; i >= 0; --i)
        maschine.SteckeUsb("ttyUSB" + std::to_string(i), "S" + std::to_string(i));
    const auto ports = Lies();
    ASSERT_EQ(ports.size(), 64U);
    for (std::size_t i = 0; i < ports.size(); ++i)
        EXPECT_EQ(ports[i].seriennummer, "S" + std::to_string(i));
}

TEST_F(Portliste, Terminals_in_the_further_folder_are_ports_and_nothing_else_there_is) {
    SetzeSprachoffset(Englisch);
    fs::create_symlink(maschine.terminal, maschine.Beobachteter() / "adapter");
    fs::create_symlink("/dev/null", maschine.Beobachteter() / "null");
    fs::create_directory(maschine.Beobachteter() / "folder");
    maschine.Schreibe(maschine.Beobachteter() / "file", "");
    ASSERT_EQ(mkfifo((maschine.Beobachteter() / "pipe").c_str(), 0600), 0);
    fs::create_symlink("/nothing", maschine.Beobachteter() / "dangling");
    maschine.SteckeUart("ttyS0", 4);
    const auto ports = LiesPortliste(MitBeobachtetem());
    EXPECT_THAT(Namen(ports), ElementsAre("ttyS0", "adapter"));
    EXPECT_EQ(ports.back().bezeichnung, "pseudo terminal");
    SetzeSprachoffset(Deutsch);
}

TEST_F(Portliste, The_environment_names_the_further_folder) {
    unsetenv("VARNOTH_PORTS");
    EXPECT_EQ(WurzelnDesRechners().ordner, "");
    setenv("VARNOTH_PORTS", "/tmp/adapters", 1);
    EXPECT_EQ(WurzelnDesRechners().ordner, "/tmp/adapters");
    unsetenv("VARNOTH_PORTS");
}

TEST_F(Portliste, A_name_can_be_that_of_a_port_unless_it_leads_to_something_else) {
    maschine.LegeVirtuellesAn("ttyTest");
    maschine.Schreibe(maschine.Dev() / "file", "");
    ASSERT_EQ(mkfifo(maschine.Geraet("pipe").c_str(), 0600), 0);
    EXPECT_TRUE(KannPortSein(maschine.Geraet("ttyTest"), maschine.Wurzeln()));
    EXPECT_TRUE(KannPortSein(maschine.Geraet("nothing"), maschine.Wurzeln())) << "it may be plugged in yet";
    for (const std::string& anderes : {maschine.Geraet("file"), maschine.Geraet("pipe"),
                                       maschine.Dev().string(), std::string("/dev/null")})
        EXPECT_FALSE(KannPortSein(anderes, maschine.Wurzeln())) << anderes;
    fs::create_directories(maschine.Sys() / "dev/char/1:3");
    fs::create_symlink("../../../class/tty", maschine.Sys() / "dev/char/1:3/subsystem");
    EXPECT_TRUE(KannPortSein("/dev/null", maschine.Wurzeln())) << "the system says that it is a terminal";
}

TEST_F(Portliste, A_port_without_a_right_names_the_group_that_has_it) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root gives a device away";
    maschine.SteckeUsb("ttyUSB0", "X");
    ASSERT_EQ(chown(maschine.terminal.c_str(), 0, getgrnam("dialout")->gr_gid), 0);
    ASSERT_EQ(chmod(maschine.terminal.c_str(), 0660), 0);
    fs::permissions(maschine.Dev().parent_path(), fs::perms::others_all, fs::perm_options::add);
    EXPECT_EQ(AlsNutzer([this] {
                  const Portbefund befund = Lies().front().befund;
                  return std::to_string(static_cast<int>(befund.hindernis)) + " " + befund.gruppe;
              }),
              std::to_string(static_cast<int>(Hindernis::KeinRecht)) + " dialout");
}

TEST_F(Portliste, A_locked_port_names_who_has_locked_it_without_a_look_through_all_processes) {
    maschine.SteckeUsb("ttyUSB0", "X");
    struct stat da {};
    ASSERT_EQ(stat(maschine.terminal.c_str(), &da), 0);
    char stelle[64];
    std::snprintf(stelle, sizeof stelle, "%02x:%02x:%lu", major(da.st_dev), minor(da.st_dev), da.st_ino);
    maschine.Schreibe(maschine.Proc() / "4711" / "comm", "varnothctl");
    maschine.Schreibe(maschine.Proc() / "locks", std::string("1: POSIX  ADVISORY  WRITE 12 ") + stelle +
                                                     " 0 EOF\n" + "2: FLOCK  ADVISORY  WRITE 4711 " + stelle +
                                                     " 0 EOF\n" +
                                                     "3: FLOCK  ADVISORY  WRITE 4711 00:01:1 0 EOF\n" +
                                                     "2: -> FLOCK  ADVISORY  WRITE 13 " + stelle + " 0 EOF");
    const Portbefund befund = Lies().front().befund;
    EXPECT_EQ(befund.hindernis, Hindernis::Belegt);
    EXPECT_THAT(befund.prozesse, ElementsAre("varnothctl (4711)"));
}

TEST_F(Portliste, Processes_are_added_when_asked_for) {
    maschine.SteckeUsb("ttyUSB0", "X");
    maschine.LegeProzessAn("77", "minicom", maschine.terminal);
    maschine.LegeProzessAn("78", "other", "/dev/null");
    auto ports = Lies();
    EXPECT_EQ(ports.front().befund.hindernis, Hindernis::Keines);
    ErgaenzeProzesse(ports, maschine.Wurzeln());
    EXPECT_EQ(ports.front().befund.hindernis, Hindernis::Belegt);
    EXPECT_THAT(ports.front().befund.prozesse, ElementsAre("minicom (77)"));
    ErgaenzeProzesse(ports, maschine.Wurzeln());
    EXPECT_EQ(ports.front().befund.prozesse.size(), 1U);
}

TEST_F(Portliste, A_missing_right_stays_the_cause_where_somebody_else_has_the_port) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root gives a device away";
    maschine.SteckeUsb("ttyUSB0", "X");
    maschine.LegeProzessAn("77", "minicom", maschine.terminal);
    ASSERT_EQ(chmod(maschine.terminal.c_str(), 0600), 0);
    fs::permissions(maschine.Dev().parent_path(), fs::perms::others_all, fs::perm_options::add);
    EXPECT_EQ(AlsNutzer([this] {
                  auto ports = Lies();
                  ErgaenzeProzesse(ports, maschine.Wurzeln());
                  return std::to_string(static_cast<int>(ports.front().befund.hindernis));
              }),
              std::to_string(static_cast<int>(Hindernis::KeinRecht)));
}

TEST_F(Portliste, An_observer_tells_when_an_adapter_comes_and_goes) {
    Portbeobachter beobachter(maschine.Wurzeln());
    EXPECT_TRUE(beobachter.Schaue()) << "the first look";
    EXPECT_THAT(beobachter.Ports(), IsEmpty());
    EXPECT_FALSE(beobachter.Schaue());
    maschine.SteckeUsb("ttyUSB0", "X");
    EXPECT_TRUE(beobachter.Schaue());
    EXPECT_THAT(Namen(beobachter.Ports()), ElementsAre("ttyUSB0"));
    EXPECT_FALSE(beobachter.Schaue());
    maschine.ZieheAb("ttyUSB0");
    EXPECT_TRUE(beobachter.Schaue());
    EXPECT_THAT(beobachter.Ports(), IsEmpty());
}

TEST_F(Portliste, An_observer_sees_who_opens_a_port_within_four_looks_and_at_once_when_the_list_changes) {
    maschine.SteckeUsb("ttyUSB0", "X");
    Portbeobachter beobachter(maschine.Wurzeln());
    beobachter.Schaue();
    maschine.LegeProzessAn("77", "minicom", maschine.terminal);
    int blicke = 1;
    while (!beobachter.Schaue() && blicke < 10)
        ++blicke;
    EXPECT_EQ(blicke, 4);
    EXPECT_THAT(beobachter.Ports().front().befund.prozesse, ElementsAre("minicom (77)"));
    fs::remove_all(maschine.Proc() / "77");
    maschine.SteckeUsb("ttyUSB1", "Y");
    EXPECT_TRUE(beobachter.Schaue());
    EXPECT_THAT(beobachter.Ports().front().befund.prozesse, IsEmpty());
}

TEST(Portsperre, Keeps_another_process_out_and_goes_with_the_one_that_holds_it) {
    pruefung::Maschine maschine;
    const pruefung::Kind kind([&](int rohr) {
        Portsperre sperre;
        const bool gesagt = write(rohr, sperre.Nimm(maschine.terminal) ? "!" : "?", 1) == 1;
        pause();
        return std::string(gesagt ? "" : "silent");
    });
    kind.WarteAufWort();
    Portsperre sperre;
    EXPECT_FALSE(sperre.Nimm(maschine.terminal));
    EXPECT_THAT(
        LiesPortliste({.ordner = fs::path(maschine.terminal).parent_path().string()}),
        testing::Contains(testing::AllOf(
            testing::Field(&Portangabe::geraet, maschine.terminal),
            testing::Field(&Portangabe::befund,
                           testing::Field(&Portbefund::prozesse,
                                          ElementsAre(MatchesRegex("seriellerport_t \\([0-9]+\\)")))))));
    kind.Toete();
    kind.Ende();
    EXPECT_TRUE(sperre.Nimm(maschine.terminal));
}

TEST(Portsperre, Can_be_given_back_and_taken_for_another_device) {
    pruefung::Maschine eine, andere;
    Portsperre sperre, zweite;
    EXPECT_TRUE(sperre.Nimm(eine.terminal));
    EXPECT_FALSE(zweite.Nimm(eine.terminal)) << "it counts within a process too";
    EXPECT_TRUE(sperre.Nimm(andere.terminal));
    EXPECT_TRUE(zweite.Nimm(eine.terminal));
    EXPECT_FALSE(zweite.Nimm(andere.terminal));
    sperre.Gib();
    EXPECT_TRUE(zweite.Nimm(andere.terminal));
}

TEST(Portsperre, Keeps_nobody_from_what_is_not_there) {
    Portsperre sperre;
    EXPECT_TRUE(sperre.Nimm("/dev/nothing"));
}

} // namespace varnoth
