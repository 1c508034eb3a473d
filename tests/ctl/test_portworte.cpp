#include "portworte.h"

#include "texte.h"

#include <gtest/gtest.h>

namespace varnoth::ctl {

TEST(Portangabe, A_line_tells_all_that_is_known_of_a_port_and_nothing_twice) {
    struct Fall {
        Portangabe port;
        std::vector<std::int32_t> nummern;
        const char* zeile;
    };
    const Fall faelle[] = {
        {{.geraet = "/dev/ttyUSB0", .bezeichnung = "FT232R", .hersteller = "FTDI", .seriennummer = "A5"},
         {1, 3},
         "/dev/ttyUSB0: FT232R, FTDI, serial number A5, COM1, COM3"},
        {{.geraet = "/dev/ttyS0"}, {}, "/dev/ttyS0"},
        {{.geraet = "/dev/ttyS0"}, {1}, "/dev/ttyS0: COM1"},
        {{.geraet = "COM1"}, {1}, "COM1"},
        {{.geraet = "COM1", .bezeichnung = "COM1"}, {}, "COM1"},
        {{.geraet = "COM1", .bezeichnung = "Communications Port"}, {1}, "COM1: Communications Port"},
        {{.geraet = "COM7", .bezeichnung = "USB Serial Port", .hersteller = "FTDI"},
         {2},
         "COM7: USB Serial Port, FTDI, COM2"},
        {{.geraet = "COM2"}, {1, 2}, "COM2: COM1"},
    };
    SetzeSprachoffset(Englisch);
    for (const Fall& fall : faelle)
        EXPECT_EQ(Portworte(fall.port, fall.nummern), fall.zeile);
}

} // namespace varnoth::ctl
