#include "paketsammler.h"

#include "probedurchgaenge.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace pruefung;

TEST(PaketsammlerTest, A_packet_is_full_once_it_is_long_enough) {
    Paketsammler sammler;
    int anzahl = 0;
    for (; !sammler.IstVoll(); ++anzahl)
        sammler.Nimm(LebhafterDurchgang(anzahl));
    EXPECT_EQ(anzahl, 6) << "a pass takes 170 ms";
    EXPECT_EQ(sammler.Entnimm(), LebhaftesPaket(0, 6));
    EXPECT_TRUE(sammler.IstLeer());
    EXPECT_FALSE(sammler.IstVoll());
}

TEST(PaketsammlerTest, A_pass_from_before_the_last_is_put_behind_it) {
    Paketsammler sammler;
    sammler.Nimm(LebhafterDurchgang(5));
    sammler.Nimm(LebhafterDurchgang(4));
    const Messpaket paket = sammler.Entnimm();
    EXPECT_EQ(paket.durchgaenge[1].uhr, paket.durchgaenge[0].uhr);
    EXPECT_EQ(paket.spanne, (Zeitspanne{paket.durchgaenge[0].uhr, paket.durchgaenge[0].uhr}));
}

TEST(PaketsammlerTest, Events_lie_in_order_of_time_and_only_a_note_before_its_packet) {
    Paketsammler sammler;
    sammler.Nimm(LebhafterDurchgang(5));
    sammler.Nimm({Messereignisart::Verloren, Zeit(7), Probebeginn, {}});
    sammler.Nimm({Messereignisart::Notiz, Zeit(7), Probebeginn, "spaet"});
    const Messpaket paket = sammler.Entnimm();
    EXPECT_EQ(paket.ereignisse.at(0).text, "spaet");
    EXPECT_EQ(paket.ereignisse.at(0).laufzeit, Zeit(7));
    EXPECT_EQ(paket.ereignisse.at(1).laufzeit, paket.spanne.von);
}

TEST(PaketsammlerTest, Times_of_day_are_kept_to_the_microsecond) {
    Paketsammler sammler;
    Messdurchgang durchgang = LebhafterDurchgang(0);
    durchgang.zeit += std::chrono::nanoseconds(999);
    sammler.Nimm(durchgang);
    EXPECT_EQ(sammler.Stand().durchgaenge.at(0), LebhafterDurchgang(0));
}

TEST(PaketsammlerTest, A_packet_is_full_once_it_holds_as_much_as_one_may) {
    Paketsammler ereignisse;
    Paketsammler durchgaenge;
    for (std::size_t i = 0; i < GroessterPaketinhalt; ++i) {
        ASSERT_FALSE(ereignisse.IstVoll() || durchgaenge.IstVoll());
        ereignisse.Nimm({Messereignisart::Notiz, Zeit(0), Probebeginn, {}});
        durchgaenge.Nimm(Messdurchgang{});
    }
    EXPECT_TRUE(ereignisse.IstVoll());
    EXPECT_TRUE(durchgaenge.IstVoll());
}

} // namespace varnoth
