#include "fenstertest.h"
#include "paritaetsmarken.h"
#include "porttest.h"

namespace varnoth {

using pruefung::WarteBis;

namespace {

using namespace std::string_literals;

std::string OhneMarken(std::string_view roh) {
    return Paritaetsmarken().Entferne(roh);
}

} // namespace

TEST(Paritaetsmarken, Are_a_question_mark_in_place_of_a_broken_byte) {
    EXPECT_EQ(OhneMarken("a\xFF\0bc"s), "a?c");
    EXPECT_EQ(OhneMarken("\xFF\0\0"s), "?") << "nothing but 0 on the line";
    EXPECT_EQ(OhneMarken("\xFF\0\xFF\xFF\0\0"s), "??") << "a broken byte may be an FF itself";
}

TEST(Paritaetsmarken, Leave_every_whole_byte_as_it_is) {
    std::string alle;
    std::string markiert;
    for (int byte = 0; byte < 256; ++byte) {
        alle += static_cast<char>(byte);
        markiert += static_cast<char>(byte);
    }
    markiert += '\xFF';
    EXPECT_EQ(OhneMarken(markiert), alle);
}

TEST(Paritaetsmarken, Are_found_wherever_the_bytes_were_cut) {
    const std::string roh = "\x01\xFF\xFF\xFF\0x\0\xFF\xFF\x02"s;
    for (std::size_t schnitt = 0; schnitt <= roh.size(); ++schnitt) {
        Paritaetsmarken marken;
        std::string bytes = marken.Entferne(std::string_view(roh).substr(0, schnitt));
        bytes += marken.Entferne(std::string_view(roh).substr(schnitt));
        EXPECT_EQ(bytes, "\x01\xFF?\0\xFF\x02"s) << schnitt;
    }
}

TEST(Paritaetsmarken, Begun_before_the_input_was_discarded_are_forgotten) {
    for (const auto& anfang : {"\xFF"s, "\xFF\0"s}) {
        Paritaetsmarken marken;
        EXPECT_EQ(marken.Entferne(anfang), "");
        marken.Vergiss();
        EXPECT_EQ(marken.Entferne("\0x"s), "\0x"s);
    }
}

/// A port with a parity bit over a pseudo terminal. That knows no parity and doubles each FF, as a driver
/// does that marks broken bytes.
class GebrocheneBytes : public pruefung::PortTest {
protected:
    std::string Gelesen(std::size_t anzahl) {
        std::string bytes;
        EXPECT_TRUE(WarteBis([&] { return (bytes += port.LiesAlles()).size() >= anzahl; })) << bytes;
        return bytes;
    }
    /// From now on bytes arrive as they are sent: with marks that the test makes.
    void UeberbringeMarken() const {
        termios stand{};
        ASSERT_EQ(tcgetattr(nahesEnde, &stand), 0);
        stand.c_iflag &= ~static_cast<tcflag_t>(PARMRK);
        ASSERT_EQ(tcsetattr(nahesEnde, TCSANOW, &stand), 0);
    }
};

TEST_F(GebrocheneBytes, Are_marked_by_the_driver_wherever_the_line_has_a_parity_bit) {
    for (const auto& [format, markiert] : {std::pair{"38400,n,8,2", false},
                                           {"38400,e,8,1", true},
                                           {"38400,o,8,1", true},
                                           {"38400,n,8,1", false}}) {
        port.Oeffne(1, format);
        termios stand{};
        ASSERT_EQ(tcgetattr(nahesEnde, &stand), 0);
        EXPECT_EQ((stand.c_iflag & (INPCK | PARMRK)) == (INPCK | PARMRK), markiert) << format;
        EXPECT_FALSE(markiert && (stand.c_iflag & IGNPAR) != 0) << format;
    }
}

TEST_F(GebrocheneBytes, Change_nothing_of_the_whole_ones) {
    port.Oeffne(1, "38400,e,8,1");
    const std::string bytes("\x00\xFF\x00\xFF\xFF\x07", 6);
    Sende(bytes);
    EXPECT_EQ(Gelesen(bytes.size()), bytes);
}

TEST_F(GebrocheneBytes, Are_read_as_a_question_mark) {
    port.Oeffne(1, "38400,e,8,1");
    UeberbringeMarken();
    Sende("\x01\x03\xFF\0\x02\x04"s);
    EXPECT_EQ(Gelesen(4), "\x01\x03?\x04"s);
}

TEST_F(GebrocheneBytes, Cannot_occur_without_a_parity_bit) {
    port.Oeffne(1, pruefung::Standard);
    Sende("\xFF\0x"s);
    EXPECT_EQ(Gelesen(3), "\xFF\0x"s);
}

TEST_F(GebrocheneBytes, Half_arrived_before_the_input_was_discarded_or_the_port_opened_are_forgotten) {
    for (const bool geoeffnet : {false, true}) {
        port.Oeffne(1, "38400,e,8,1");
        UeberbringeMarken();
        Sende("a\xFF");
        EXPECT_TRUE(WarteBis([&] { return port.BytesWartend() == 2; }));
        EXPECT_EQ(port.LiesAlles(), "a");
        geoeffnet ? static_cast<void>(port.Oeffne(1, "38400,e,8,1")) : port.Verwirf();
        UeberbringeMarken();
        Sende("\0x"s);
        EXPECT_EQ(Gelesen(2), "\0x"s) << geoeffnet;
    }
}

} // namespace varnoth
