#include "geraetepfade.h"

#include "pruefumgebung.h"

#include <QtGlobal>
#include <gtest/gtest.h>

namespace varnoth {

class GeraetepfadeTest : public testing::Test {
protected:
    pruefung::PruefEinstellungen einstellungen;
};

#ifndef Q_OS_WIN
TEST_F(GeraetepfadeTest, Ports_one_to_four_are_the_first_serial_lines_of_the_system) {
    EXPECT_EQ(Geraetepfad(1), "/dev/ttyS0");
    EXPECT_EQ(Geraetepfad(4), "/dev/ttyS3");
}
#endif

TEST_F(GeraetepfadeTest, The_settings_name_another_device_for_each_port) {
    einstellungen.texte[{"Settings", "ComGeraet2"}] = "/dev/ttyUSB0";
    EXPECT_EQ(Geraetepfad(2), "/dev/ttyUSB0");
    EXPECT_NE(Geraetepfad(1), "/dev/ttyUSB0");
}

TEST_F(GeraetepfadeTest, A_device_that_is_entered_is_meant_from_now_on_and_the_others_stay) {
    EXPECT_EQ(EingetragenesGeraet(3), "");
    TrageGeraetEin(3, "/dev/serial/by-id/adapter");
    EXPECT_EQ((einstellungen.texte[{"Settings", "ComGeraet3"}]), "/dev/serial/by-id/adapter");
    EXPECT_EQ(EingetragenesGeraet(3), "/dev/serial/by-id/adapter");
    EXPECT_EQ(Geraetepfad(3), "/dev/serial/by-id/adapter");
    EXPECT_EQ(Geraetepfad(2), UeblichesGeraet(2));
}

TEST_F(GeraetepfadeTest, An_unknown_port_number_has_no_device) {
    for (const int nummer : {0, 5, -1, 7})
        EXPECT_EQ(Geraetepfad(nummer), "") << nummer;
}

TEST_F(GeraetepfadeTest, The_device_of_this_run_stands_for_every_port) {
    SetzeGeraetepfad("/dev/pts/9");
    EXPECT_EQ(Geraetepfad(1), "/dev/pts/9");
    EXPECT_EQ(Geraetepfad(3), "/dev/pts/9");
    EXPECT_EQ(GeraetDiesesLaufs(), "/dev/pts/9");
    SetzeGeraetepfad("");
    EXPECT_EQ(Geraetepfad(3), UeblichesGeraet(3));
}

} // namespace varnoth
