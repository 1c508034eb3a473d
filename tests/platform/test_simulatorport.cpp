#include "simulatorport.h"

#include "pruefumgebung.h"
#include "schnittstelle.h"
#include "transaktionen.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace std::chrono_literals;

class SimulatorPortTest : public testing::Test {
protected:
    SimulatorPortTest() { modSchnittstelle::SetzePort(&port); }
    ~SimulatorPortTest() override { modSchnittstelle::SetzePort(nullptr); }

    pruefung::PruefUmgebung umgebung;
    SimulatorPort port;
};

TEST_F(SimulatorPortTest, Every_port_number_leads_to_the_controller) {
    for (std::int16_t nummer = 1; nummer <= 4; ++nummer) {
        modSchnittstelle::SetzeComPort(nummer);
        modSchnittstelle::OpenCommPort();
        EXPECT_EQ(modModbus::RTUModeH11IndentifikationsAnforderung(), True) << nummer;
        modSchnittstelle::CloseCommPort();
    }
}

TEST_F(SimulatorPortTest, An_exchange_takes_its_time_on_the_wire) {
    modSchnittstelle::OpenCommPort();
    modModbus::RTUModeH11IndentifikationsAnforderung();
    Werte werte(18);
    const Zeit beginn = umgebung.uhr;
    EXPECT_EQ(modModbus::RTUModeH03LeseAnforderung(0x214F, 18, werte), True);
    constexpr auto zeichen = 8 + 5 + 2 * 18;
    constexpr Zeit erwartet(1'000'000LL * zeichen * 11 / 38400 + 2000);
    EXPECT_GE(umgebung.uhr - beginn, erwartet);
    EXPECT_LT(umgebung.uhr - beginn, erwartet + 1ms);
}

TEST_F(SimulatorPortTest, Settings_that_no_line_has_keep_the_port_closed) {
    EXPECT_FALSE(port.Oeffne(1, "abc"));
    EXPECT_FALSE(port.IstOffen());
    EXPECT_NE(port.Fehlertext(), "");
}

TEST_F(SimulatorPortTest, A_closed_port_gives_nothing) {
    port.Schreibe(std::string("\x00\x11\xC1\xBC", 4));
    umgebung.uhr += 1s;
    EXPECT_EQ(port.BytesWartend(), 0U);
}

} // namespace varnoth
