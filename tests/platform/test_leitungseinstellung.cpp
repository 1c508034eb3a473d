// What a settings string asks for reaches the system. A pseudo terminal has no parity, no other number of
// data bits and no modem lines: the calls show it.

#include "leitungsmitschrift.h"
#include "porttest.h"

#include <sys/ioctl.h>

namespace varnoth {

class Leitungseinstellung : public pruefung::PortTest {
protected:
    Leitungseinstellung() : mitschrift(geraet) {}

    /// Opens the port and gives the flags of the line's characters.
    tcflag_t Zeichenflaggen(const char* format) {
        EXPECT_TRUE(port.Oeffne(1, format)) << port.Fehlertext();
        return mitschrift.Einstellung().c_cflag & (CSIZE | CSTOPB | PARENB | PARODD | CMSPAR | CRTSCTS);
    }

    pruefung::Leitungsmitschrift mitschrift;
};

TEST_F(Leitungseinstellung, Parity_data_bits_and_stop_bits_are_those_of_the_settings) {
    const std::pair<const char*, tcflag_t> faelle[] = {
        {"38400,n,8,2", CS8 | CSTOPB},
        {"38400,n,8,1", CS8},
        {"38400,e,8,1", CS8 | PARENB},
        {"38400,o,8,1", CS8 | PARENB | PARODD},
        {"38400,m,7,2", CS7 | CSTOPB | PARENB | PARODD | CMSPAR},
        {"38400,s,8,1", CS8 | PARENB | CMSPAR},
        {"38400,n,6,1", CS6},
        {"38400,n,5,1", CS5},
    };
    for (const auto& [format, flaggen] : faelle)
        EXPECT_EQ(Zeichenflaggen(format), flaggen) << format;
}

TEST_F(Leitungseinstellung, The_speed_is_that_of_the_settings_in_both_directions) {
    for (const auto& [format, rate] :
         {std::pair{"1200,n,8,2", B1200}, {"9600,n,8,2", B9600}, {"57600,n,8,2", B57600}}) {
        port.Oeffne(1, format);
        const termios stand = mitschrift.Einstellung();
        EXPECT_EQ(cfgetospeed(&stand), rate) << format;
        EXPECT_EQ(cfgetispeed(&stand), rate) << format;
    }
}

TEST_F(Leitungseinstellung, Bytes_are_neither_changed_nor_held_back_on_their_way) {
    port.Oeffne(1, pruefung::Standard);
    const termios stand = mitschrift.Einstellung();
    EXPECT_EQ(stand.c_iflag & (ICRNL | INLCR | IGNCR | ISTRIP | IXON | IXOFF), 0U);
    EXPECT_EQ(stand.c_lflag & (ICANON | ECHO | ISIG), 0U);
    EXPECT_EQ(stand.c_oflag & OPOST, 0U);
}

TEST_F(Leitungseinstellung, RTS_and_DTR_are_switched_on) {
    EXPECT_EQ(mitschrift.Modemleitungen(), 0);
    port.Oeffne(1, pruefung::Standard);
    EXPECT_EQ(mitschrift.Modemleitungen(), TIOCM_RTS | TIOCM_DTR);
}

} // namespace varnoth
