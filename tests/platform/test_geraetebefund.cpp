#include "geraetebefund.h"

#include "kindprozess.h"
#include "portbenutzer.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>

namespace varnoth {

using pruefung::AlsNutzer;

namespace {

std::string Prozessname() {
    std::string name;
    std::getline(std::ifstream("/proc/self/comm"), name);
    return name;
}

std::string Nobody() {
    return getpwuid(65534)->pw_name;
}

/// What a finding says, in one line, so that a child process can tell it.
std::string Zeile(const Portbefund& befund) {
    return std::to_string(static_cast<int>(befund.hindernis)) + " owner " + befund.eigentuemer + " group " +
           befund.gruppe + " user " + befund.nutzer + (befund.gruppeErstNachAnmeldung ? " login" : "");
}

std::string AlsZahl(Hindernis hindernis) {
    return std::to_string(static_cast<int>(hindernis));
}

} // namespace

/// A pseudo terminal in place of a serial device.
class Geraetebefund : public testing::Test {
protected:
    Geraetebefund() {
        char pfad[128];
        EXPECT_EQ(openpty(&fern, &nah, pfad, nullptr, nullptr), 0);
        geraet = pfad;
    }
    ~Geraetebefund() override {
        close(fern);
        close(nah);
    }

    int fern = -1;
    int nah = -1;
    std::string geraet;
};

TEST_F(Geraetebefund, Nothing_stands_in_the_way_of_a_device_of_ones_own) {
    EXPECT_EQ(BefundDesGeraets(geraet).hindernis, Hindernis::Keines);
}

TEST_F(Geraetebefund, A_path_without_a_device_is_missing) {
    EXPECT_EQ(BefundDesGeraets(geraet + "nichts").hindernis, Hindernis::Fehlt);
    EXPECT_EQ(BefundDesGeraets("").hindernis, Hindernis::Fehlt);
}

TEST_F(Geraetebefund, A_device_of_a_group_names_the_group_to_join_and_the_user) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root gives a device away";
    const group* const gruppe = getgrnam("dialout");
    ASSERT_NE(gruppe, nullptr);
    ASSERT_EQ(chown(geraet.c_str(), 0, gruppe->gr_gid), 0);
    ASSERT_EQ(chmod(geraet.c_str(), 0660), 0);
    EXPECT_EQ(AlsNutzer([this] { return Zeile(BefundDesGeraets(geraet)); }),
              AlsZahl(Hindernis::KeinRecht) + " owner root group dialout user " + Nobody());
}

TEST_F(Geraetebefund, A_device_that_its_group_may_not_write_names_no_group) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root gives a device away";
    ASSERT_EQ(chown(geraet.c_str(), 0, getgrnam("dialout")->gr_gid), 0);
    ASSERT_EQ(chmod(geraet.c_str(), 0640), 0);
    EXPECT_EQ(AlsNutzer([this] { return Zeile(BefundDesGeraets(geraet)); }),
              AlsZahl(Hindernis::KeinRecht) + " owner root group  user " + Nobody());
}

TEST_F(Geraetebefund, To_join_the_group_of_the_superuser_is_never_proposed) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root gives a device away";
    ASSERT_EQ(chown(geraet.c_str(), 0, 0), 0);
    ASSERT_EQ(chmod(geraet.c_str(), 0660), 0);
    EXPECT_EQ(AlsNutzer([this] { return Zeile(BefundDesGeraets(geraet)); }),
              AlsZahl(Hindernis::KeinRecht) + " owner root group  user " + Nobody());
}

TEST_F(Geraetebefund, Another_process_that_has_the_device_open_is_named) {
    const pruefung::Kind kind([this](int rohr) {
        close(fern);
        close(nah);
        nah = open(geraet.c_str(), O_RDWR | O_NOCTTY);
        const bool gesagt = write(rohr, "!", 1) == 1;
        pause();
        return std::string(gesagt ? "" : "silent");
    });
    kind.WarteAufWort();
    EXPECT_THAT(ProzesseAn(geraet),
                testing::ElementsAre(testing::MatchesRegex(Prozessname() + " \\([0-9]+\\)")));
    kind.Toete();
    kind.Ende();
}

TEST_F(Geraetebefund, A_device_behind_a_link_is_the_same_device) {
    const std::string verweis = testing::TempDir() + "geraetebefund_link";
    unlink(verweis.c_str());
    ASSERT_EQ(symlink(geraet.c_str(), verweis.c_str()), 0);
    const pruefung::Kind kind([this](int rohr) {
        close(fern);
        const bool gesagt = write(rohr, "!", 1) == 1;
        pause();
        return std::string(gesagt ? "" : "silent");
    });
    kind.WarteAufWort();
    EXPECT_EQ(ProzesseAn(verweis).size(), 1U) << "the child has inherited it";
    kind.Toete();
    kind.Ende();
    unlink(verweis.c_str());
}

TEST_F(Geraetebefund, A_process_at_the_far_end_is_not_named) {
    const pruefung::Kind kind([](int rohr) {
        const bool gesagt = write(rohr, "!", 1) == 1;
        pause();
        return std::string(gesagt ? "" : "silent");
    });
    kind.WarteAufWort();
    EXPECT_TRUE(ProzesseAn(geraet).empty()) << "it has both ends open";
    kind.Toete();
    kind.Ende();
}

TEST_F(Geraetebefund, The_own_process_is_not_named) {
    EXPECT_TRUE(ProzesseAn(geraet).empty());
}

} // namespace varnoth
