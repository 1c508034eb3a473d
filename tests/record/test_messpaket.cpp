#include "messpaket.h"

#include "probedurchgaenge.h"

#include <gtest/gtest.h>

namespace varnoth {

using namespace pruefung;

namespace {

Messpaket MitEreignissen() {
    Messpaket paket = LebhaftesPaket(3, 5);
    paket.spanne.von -= Zeit(10);
    paket.ereignisse = {
        {Messereignisart::Notiz, Zeit(5), Probebeginn - std::chrono::hours(1), "Bahn gewechselt"},
        {Messereignisart::Verloren, paket.spanne.bis, Probebeginn, {}}};
    return paket;
}

} // namespace

TEST(MesspaketTest, Comes_back_from_its_bytes_as_it_was) {
    const Messpaket paket = MitEreignissen();
    EXPECT_EQ(PaketAus(AlsBytes(paket)), paket);
}

TEST(MesspaketTest, Without_anything_in_it_comes_back_too) {
    EXPECT_EQ(PaketAus(AlsBytes({})), Messpaket{});
}

TEST(MesspaketTest, Keeps_passes_whose_parts_come_and_go_and_hold_the_largest_values) {
    Messpaket paket = LebhaftesPaket(0, 4, 1009);
    paket.durchgaenge[1].teile[2] = {.vorhanden = false, .status = 0xFFFF};
    paket.durchgaenge[1].anzahlTeile = 2;
    paket.durchgaenge[2].teile[0].werte.fill(0xFFFF);
    paket.durchgaenge[2].teile[0].strahlregister.fill(0xFFFF);
    paket.durchgaenge[3].teile[0].werte.fill(0x7FFF);
    paket.durchgaenge[3].geraetestatus = 0xFFFF;
    EXPECT_EQ(PaketAus(AlsBytes(paket)), paket);
}

TEST(MesspaketTest, A_time_of_day_that_jumps_back_is_kept_as_it_was) {
    Messpaket paket = LebhaftesPaket(0, 3);
    paket.durchgaenge[1].zeit -= std::chrono::hours(24 * 400);
    EXPECT_EQ(PaketAus(AlsBytes(paket)), paket);
}

TEST(MesspaketTest, A_second_of_four_parts_of_128_beams_takes_less_than_2000_bytes) {
    std::size_t bytes = 0;
    constexpr int Pakete = 100;
    for (int i = 0; i < Pakete; ++i)
        bytes += AlsBytes(LebhaftesPaket(i * 6, 6)).size();
    EXPECT_LT(bytes / Pakete * 1'000'000 / (6 * Durchgangsdauer.count()), 2000U);
}

TEST(MesspaketTest, Cut_anywhere_or_with_bytes_behind_it_is_none) {
    const std::string bytes = AlsBytes(MitEreignissen());
    for (std::size_t laenge = 0; laenge < bytes.size(); ++laenge)
        EXPECT_FALSE(PaketAus(std::string_view(bytes).substr(0, laenge))) << laenge;
    EXPECT_FALSE(PaketAus(bytes + '\0'));
}

TEST(MesspaketTest, Bytes_that_tell_of_more_than_they_hold_are_none) {
    EXPECT_TRUE(PaketAus(std::string("\0\0\0\0", 4)));
    EXPECT_FALSE(PaketAus(std::string("\0\0\x7F\0", 4))) << "127 passes";
    EXPECT_FALSE(PaketAus(std::string("\0\0\0\x7F", 4))) << "127 events";
    EXPECT_FALSE(PaketAus("\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x01" + std::string("\0\0\0", 3)))
        << "a time beyond all";
}

TEST(MesspaketTest, A_pass_behind_the_end_of_its_packet_makes_it_none) {
    Messpaket paket = LebhaftesPaket(0, 2);
    paket.spanne.bis -= Zeit(1);
    EXPECT_FALSE(PaketAus(AlsBytes(paket)));
}

TEST(MesspaketTest, A_text_that_is_too_long_ends_with_a_whole_character) {
    std::string text(LaengsterEreignistext - 1, 'a');
    const std::string ganze = text;
    text.append("\xC3\xA4").append("b");
    Messpaket paket;
    paket.ereignisse = {{Messereignisart::Notiz, Zeit(0), Probebeginn, text}};
    const auto gelesen = PaketAus(AlsBytes(paket));
    ASSERT_TRUE(gelesen);
    EXPECT_EQ(gelesen->ereignisse.at(0).text, ganze);
}

TEST(MesspaketTest, What_no_writer_writes_is_none) {
    const auto ist = [](const std::string& bytes) { return PaketAus(bytes).has_value(); };
    EXPECT_TRUE(ist(std::string("\0\0\0\1\5\0\0\0", 8)));
    EXPECT_FALSE(ist(std::string("\0\0\0\1\6\0\0\0", 8))) << "a kind of event that there is not";
    EXPECT_FALSE(ist(std::string("\0\0\0\1\5\1\0\0", 8))) << "an event before the beginning of all";
    EXPECT_TRUE(ist(std::string("\0\0\1\0\0\x14\x3\0", 8)));
    EXPECT_FALSE(ist(std::string("\0\0\1\0\0\x14\x43\0", 8))) << "a bit of a part that means nothing";
    EXPECT_FALSE(ist(std::string("\0\0\1\0\0\x15\x3\0", 8))) << "five parts";
    EXPECT_FALSE(ist(std::string("\0\0\1\0\0\x14\x8\xF2\7\0", 10))) << "1010 beams";
}

TEST(MesspaketTest, A_part_with_more_beams_than_there_can_be_is_kept_with_the_most) {
    Messpaket paket = LebhaftesPaket(0, 1);
    paket.durchgaenge[0].teile[0].strahlen = 2000;
    const auto gelesen = PaketAus(AlsBytes(paket));
    ASSERT_TRUE(gelesen);
    EXPECT_EQ(gelesen->durchgaenge[0].teile[0].strahlen, 1009);
}

} // namespace varnoth
