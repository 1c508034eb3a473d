#include "ereignislauf.h"

#include "statusbits.h"
#include "uebersicht.h"

#include <gtest/gtest.h>

#include <map>

namespace varnoth {

using namespace std::chrono_literals;

namespace {

/// A record of one packet a second, ten passes each; in some seconds the output is active.
class Schaltquelle : public Messquelle {
public:
    explicit Schaltquelle(std::uint64_t wieViele) : anzahl(wieViele) {}

    std::uint64_t Erstes() const override { return 0; }
    std::uint64_t Ende() const override { return anzahl; }
    Zeitspanne Spanne() const override { return {0s, std::chrono::seconds(anzahl)}; }
    Zeitspanne Spanne(std::uint64_t nummer) const override {
        return {std::chrono::seconds(nummer), std::chrono::seconds(nummer + 1) - 1us};
    }
    std::uint64_t PaketUm(Zeit laufzeit) const override {
        const auto sekunde = std::chrono::floor<std::chrono::seconds>(std::max(laufzeit, Zeit{})).count();
        return std::min(static_cast<std::uint64_t>(sekunde), anzahl - 1);
    }
    std::shared_ptr<const Messpaket> Lies(std::uint64_t nummer) const override {
        ++gelesene;
        if (nummer == schadhaft)
            return nullptr;
        auto paket = std::make_shared<Messpaket>();
        paket->spanne = Spanne(nummer);
        for (int i = 0; i < 10; ++i)
            paket->durchgaenge.push_back({.uhr = paket->spanne.von + i * 100ms,
                                          .geraetestatus = static_cast<std::uint16_t>(
                                              aktiv.contains(nummer) ? geraetestatus::PnpAktiv : 0)});
        return paket;
    }
    std::shared_ptr<const Abbild> Konfiguration(std::uint64_t) const override { return {}; }
    const Uebersicht& DieUebersicht() const override { std::abort(); }
    Messangaben Angaben() const override { return {}; }

    std::uint64_t anzahl;
    std::map<std::uint64_t, bool> aktiv;
    std::uint64_t schadhaft = ~std::uint64_t{0};
    mutable int gelesene = 0;
};

} // namespace

TEST(Ereignislauf, Finds_the_events_of_a_record_step_by_step_and_tells_how_far_it_is) {
    Schaltquelle quelle(100);
    quelle.aktiv = {{20, true}, {80, true}};
    Ereignislauf lauf(quelle);
    lauf.Weiter(50);
    EXPECT_FALSE(lauf.IstFertig());
    EXPECT_DOUBLE_EQ(lauf.Anteil(), 0.5);
    ASSERT_EQ(lauf.Ereignisse().Ende(), 1U);
    EXPECT_EQ(lauf.Ereignisse().Hole(0).laufzeit, 20s);
    EXPECT_EQ(lauf.Ereignisse().Hole(0).anzahl, 2U);
    lauf.Weiter(50);
    EXPECT_TRUE(lauf.IstFertig());
    EXPECT_DOUBLE_EQ(lauf.Anteil(), 1);
    ASSERT_EQ(lauf.Ereignisse().Ende(), 2U);
    EXPECT_EQ(lauf.Ereignisse().Hole(1).laufzeit, 80s);
    EXPECT_EQ(quelle.gelesene, 100);
}

TEST(Ereignislauf, Leaves_no_burst_open_at_its_end) {
    Schaltquelle quelle(10);
    quelle.aktiv = {{9, true}};
    Ereignislauf lauf(quelle);
    lauf.Weiter(100);
    ASSERT_EQ(lauf.Ereignisse().Ende(), 1U);
    EXPECT_FALSE(lauf.Ereignisse().Hole(0).offen);
}

TEST(Ereignislauf, A_damaged_packet_is_a_gap_over_which_nothing_is_compared) {
    Schaltquelle quelle(10);
    for (std::uint64_t nummer = 6; nummer < 10; ++nummer)
        quelle.aktiv[nummer] = true;
    quelle.schadhaft = 5;
    Ereignislauf lauf(quelle);
    lauf.Weiter(100);
    EXPECT_EQ(lauf.Ereignisse().Ende(), 0U);
}

TEST(Ereignislauf, Is_done_at_once_with_an_empty_source) {
    const Schaltquelle quelle(0);
    Ereignislauf lauf(quelle);
    EXPECT_TRUE(lauf.IstFertig());
    EXPECT_DOUBLE_EQ(lauf.Anteil(), 1);
}

} // namespace varnoth
