#include "geraetebefund.h"
#include "portliste.h"
#include "portquelle.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace varnoth {

TEST(PortquelleWindows, Lists_what_drivers_have_entered_once_and_in_natural_order) {
    const auto ports = PortsOhneBefund({});
    EXPECT_EQ(std::ranges::count(ports, "COM1", &Portangabe::geraet), 1);
    EXPECT_TRUE(std::ranges::all_of(ports, [](const Portangabe& port) { return port.geraet.size() < 20; }));
}

TEST(PortquelleWindows, Does_not_call_a_port_free_that_somebody_may_have_open) {
    const auto ports = LiesPortliste();
    const auto com1 = std::ranges::find(ports, "COM1", &Portangabe::geraet);
    ASSERT_NE(com1, ports.end());
    EXPECT_EQ(com1->befund, (Portbefund{.benutzungUnbekannt = true}));
    EXPECT_FALSE(com1->verzoegerungMs.has_value());
}

TEST(PortquelleWindows, A_name_without_a_device_is_told_from_one_with) {
    EXPECT_EQ(BefundDesGeraets("COM97").hindernis, Hindernis::Fehlt);
    EXPECT_EQ(BefundDesGeraets("").hindernis, Hindernis::Fehlt);
    EXPECT_EQ(BefundDesGeraets(R"(\\.\com1)").hindernis, Hindernis::Keines);
    EXPECT_TRUE(KannPortSein("COM1"));
    EXPECT_FALSE(KannPortSein(R"(C:\windows\win.ini)"));
}

} // namespace varnoth
