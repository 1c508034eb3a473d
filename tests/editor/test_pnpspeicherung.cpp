#include "pnpspeicherung.h"

#include "pruefumgebung.h"

#include <gtest/gtest.h>

namespace varnoth {

TEST(PnpSpeicherung, A_refused_store_is_told) {
    pruefung::PruefUmgebung umgebung;
    SpeicherePnpAusgang(0x8000, [](std::int32_t) { return false; });
    const Meldung erwartet{.text = "Error in frmKonfigurationEdit,  PNP-Ausgang", .symbol = Symbol::Ohne};
    EXPECT_EQ(umgebung.meldungen, std::vector{erwartet});
}

TEST(PnpSpeicherung, A_store_that_succeeds_is_silent) {
    pruefung::PruefUmgebung umgebung;
    std::int32_t gespeichert = 0;
    SpeicherePnpAusgang(0x8000, [&](std::int32_t wert) {
        gespeichert = wert;
        return true;
    });
    EXPECT_EQ(gespeichert, 0x8000);
    EXPECT_TRUE(umgebung.meldungen.empty());
}

} // namespace varnoth
