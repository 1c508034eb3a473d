#include "ereignissammler.h"

#include "ereignisse.h"
#include "gemeldetesicherungen.h"
#include "leitungsstatistik.h"
#include "pruefsicherungen.h"
#include "pruefumgebung.h"
#include "standardkonfiguration.h"
#include "statusbits.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace std::chrono_literals;

class EreignissammlerTest : public testing::Test {
protected:
    void Durchgang(bool aktiv) {
        modMesshoerer::Melde(
            Messdurchgang{.zeit = Systemzeit(1h),
                          .uhr = umgebung.uhr,
                          .geraetestatus = static_cast<std::uint16_t>(aktiv ? geraetestatus::PnpAktiv : 0)});
    }
    static const Ereignis& Letztes() { return modEreignisse::Alle().Hole(modEreignisse::Alle().Ende() - 1); }
    static std::uint64_t Anzahl() { return modEreignisse::Alle().Ende(); }

    pruefung::PruefUmgebung umgebung;
    Ereignissammler sammler;
};

TEST_F(EreignissammlerTest, Passes_tell_that_the_output_has_switched) {
    Durchgang(false);
    EXPECT_EQ(Anzahl(), 0U);
    Durchgang(true);
    ASSERT_EQ(Anzahl(), 1U);
    EXPECT_EQ(Letztes().art, Ereignisart::AusgangGeschaltet);
}

TEST_F(EreignissammlerTest, A_lost_connection_and_its_return_are_told_with_the_time_between) {
    umgebung.uhr = 100s;
    modMesshoerer::Melde(Liveereignisart::Begonnen);
    EXPECT_EQ(Letztes().art, Ereignisart::LiveBegonnen);
    modMesshoerer::Melde(Liveereignisart::Verloren);
    EXPECT_EQ(Letztes().art, Ereignisart::Verloren);
    umgebung.uhr = 107s;
    modMesshoerer::Melde(Liveereignisart::Zurueck);
    EXPECT_EQ(Letztes().art, Ereignisart::Zurueck);
    EXPECT_EQ(Letztes().dauer, 7s);
    modMesshoerer::Melde(Liveereignisart::Beendet);
    EXPECT_EQ(Letztes().art, Ereignisart::LiveBeendet);
}

TEST_F(EreignissammlerTest, Failed_exchanges_are_told_by_kind_when_it_looks) {
    for (int i = 0; i < 3; ++i) {
        modLeitungsstatistik::Beginnt();
        modLeitungsstatistik::Endet(false, true);
    }
    umgebung.uhr += 1s;
    sammler.Sieh();
    ASSERT_EQ(Anzahl(), 1U);
    EXPECT_EQ(Letztes().art, Ereignisart::Fehlgeschlagen);
    EXPECT_EQ(Letztes().neu, static_cast<int>(Austauschende::Stille));
    EXPECT_EQ(Letztes().anzahl, 3U);
}

TEST_F(EreignissammlerTest, A_burst_is_over_when_it_looks_later) {
    Durchgang(false);
    Durchgang(true);
    umgebung.uhr += 11s;
    sammler.Sieh();
    EXPECT_FALSE(Letztes().offen);
}

TEST_F(EreignissammlerTest, Needs_nothing_that_is_not_read_anyway) {
    EXPECT_FALSE(modMesshoerer::Braucht(0));
    EXPECT_FALSE(modMesshoerer::LaeuftAllein());
}

TEST(GemeldeteSicherungen, A_backup_is_an_event_and_so_is_one_that_failed) {
    pruefung::PruefSicherungen eigentliche;
    GemeldeteSicherungen sicherungen(eigentliche);
    EXPECT_EQ(sicherungen.Lege(Standardkonfiguration(), {.zeit = {}, .anlass = Sicherungsanlass::VorNeuer}),
              "");
    EXPECT_EQ(sicherungen.Alle().size(), 1U);
    const Ereignis& ereignis = modEreignisse::Alle().Hole(0);
    EXPECT_EQ(ereignis.art, Ereignisart::Gesichert);
    EXPECT_TRUE(ereignis.gelungen);
    EXPECT_EQ(ereignis.neu, static_cast<int>(Sicherungsanlass::VorNeuer));
    eigentliche.fehler = "kein Platz";
    EXPECT_EQ(sicherungen.Lege(Standardkonfiguration(), {.zeit = {}}), "kein Platz");
    EXPECT_FALSE(modEreignisse::Alle().Hole(1).gelungen);
    EXPECT_EQ(modEreignisse::Alle().Hole(1).text, "kein Platz");
}

} // namespace varnoth
