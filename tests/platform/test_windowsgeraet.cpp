#include "windowsgeraet.h"
#include "windowsports.h"

#include <gtest/gtest.h>

namespace varnoth {

TEST(Windowsgeraet, Is_called_by_its_bare_name_in_capitals) {
    for (const char* name : {"COM12", "com12", R"(\\.\COM12)", R"(\\.\com12)", "  Com12\t"})
        EXPECT_EQ(Windowsgeraet(name), "COM12") << name;
}

TEST(Windowsgeraet, Keeps_a_name_without_a_number_as_it_is) {
    for (const char* name : {"CNCA0", "comA", "com", "Com3x", "ProlificSerial8"})
        EXPECT_EQ(Windowsgeraet(name), name);
    EXPECT_EQ(Windowsgeraet(""), "");
    EXPECT_EQ(Windowsgeraet("  "), "");
}

TEST(Windowsgeraet, Is_opened_by_a_path_that_serves_numbers_above_nine_too) {
    EXPECT_EQ(WindowsgeraetPfad("COM3"), R"(\\.\COM3)");
    EXPECT_EQ(WindowsgeraetPfad("com10"), R"(\\.\COM10)");
    EXPECT_EQ(WindowsgeraetPfad(R"(\\.\CNCA0)"), R"(\\.\CNCA0)");
    EXPECT_EQ(WindowsgeraetPfad(" "), "");
}

TEST(Windowsgeraet, Is_no_file_and_no_folder) {
    for (const char* name : {"COM1", R"(\\.\COM10)", "CNCB0"})
        EXPECT_TRUE(KannWindowsgeraetSein(name)) << name;
    for (const char* name :
         {"", R"(C:\line)", "C:", "folder/line", "line.txt", R"(\\server\line)", R"(\\.\)"})
        EXPECT_FALSE(KannWindowsgeraetSein(name)) << name;
}

TEST(Windowsports, Are_described_without_their_own_name) {
    EXPECT_EQ(OhnePortnamen("USB Serial Port (COM3)", "COM3"), "USB Serial Port");
    EXPECT_EQ(OhnePortnamen("USB Serial Port (COM3)", "COM30"), "USB Serial Port (COM3)");
    EXPECT_EQ(OhnePortnamen("Port (left) (COM12)", "COM12"), "Port (left)");
    EXPECT_EQ(OhnePortnamen("", "COM1"), "");
}

TEST(Windowsports, Have_the_serial_number_of_their_adapter) {
    EXPECT_EQ(SeriennummerAusInstanz(R"(USB\VID_067B&PID_23A3\CFBAb114J23)"), "CFBAb114J23");
    EXPECT_EQ(SeriennummerAusInstanz(R"(FTDIBUS\VID_0403+PID_6001+A50285BIA\0000)"), "A50285BI");
}

TEST(Windowsports, Have_no_serial_number_where_the_system_has_made_one_up) {
    for (const char* instanz :
         {R"(USB\VID_1A86&PID_7523\5&1E4A2B3C&0&2)", R"(USB\VID_0403&PID_6010&MI_00\7&2C1B9D4&0&0000)",
          R"(FTDIBUS\VID_0403+PID_6001+5&2B8F1A&0&2\0000)", R"(ACPI\PNP0501\1)", R"(FTDIBUS\)", ""})
        EXPECT_EQ(SeriennummerAusInstanz(instanz), "") << instanz;
}

} // namespace varnoth
