#include "paketmerker.h"

#include <gtest/gtest.h>

namespace varnoth {

namespace {

std::shared_ptr<const Messpaket> Paket(std::size_t durchgaenge) {
    auto paket = std::make_shared<Messpaket>();
    paket->durchgaenge.resize(durchgaenge);
    return paket;
}

} // namespace

TEST(PaketmerkerTest, Gives_back_what_it_was_given_until_it_is_to_forget) {
    Paketmerker merker;
    const auto paket = Paket(1);
    merker.Merke(7, paket);
    EXPECT_EQ(merker.Hole(7), paket);
    EXPECT_EQ(merker.Hole(8), nullptr);
    merker.Vergiss(7);
    EXPECT_EQ(merker.Hole(7), nullptr);
}

TEST(PaketmerkerTest, Keeps_200_packets_those_that_were_read_last) {
    Paketmerker merker;
    for (std::uint64_t i = 0; i < 200; ++i)
        merker.Merke(i, Paket(1));
    ASSERT_NE(merker.Hole(0), nullptr);
    merker.Merke(200, Paket(1));
    EXPECT_NE(merker.Hole(0), nullptr) << "it was read just now";
    EXPECT_EQ(merker.Hole(1), nullptr);
    EXPECT_NE(merker.Hole(2), nullptr);
}

TEST(PaketmerkerTest, Keeps_no_more_than_20000_passes) {
    Paketmerker merker;
    for (std::uint64_t i = 0; i < 5; ++i)
        merker.Merke(i, Paket(4096));
    EXPECT_EQ(merker.Hole(0), nullptr);
    EXPECT_NE(merker.Hole(1), nullptr);
    for (std::uint64_t i = 1; i < 5; ++i)
        merker.Vergiss(i);
    for (std::uint64_t i = 0; i < 4; ++i)
        merker.Merke(i, Paket(4096));
    EXPECT_NE(merker.Hole(0), nullptr) << "what was forgotten counts no more";
}

} // namespace varnoth
