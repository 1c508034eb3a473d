#include "geraetestand.h"

#include "registeradressen.h"
#include "standardkonfiguration.h"

#include <gtest/gtest.h>

namespace varnoth::modGeraetestand {

namespace {

const Parameterstelle Ausgang{Global, global::PnpAusgang};

Abbild MitAusgang(std::int32_t wert) {
    Abbild abbild = Standardkonfiguration();
    EXPECT_TRUE(abbild.SetzeRegister(Global, global::PnpAusgang, wert));
    return abbild;
}

std::int32_t GemerkterAusgang() {
    return HoleGeraetestand().value().abbild.HoleRegister(Global, global::PnpAusgang);
}

} // namespace

TEST(Geraetestand, Nothing_is_known_at_first) {
    EXPECT_FALSE(HoleGeraetestand());
}

TEST(Geraetestand, After_a_read_the_whole_image_is_known_with_time_and_serial_number) {
    const auto vorher = std::chrono::system_clock::now();
    MerkeGelesen(MitAusgang(3), "4711");
    const auto stand = HoleGeraetestand();
    ASSERT_TRUE(stand);
    EXPECT_EQ(stand->abbild, MitAusgang(3));
    EXPECT_TRUE(stand->IstVollstaendig());
    EXPECT_EQ(stand->seriennummer, "4711");
    EXPECT_GE(stand->zeit, vorher);
    EXPECT_LE(stand->zeit, std::chrono::system_clock::now());
    EXPECT_TRUE(stand->ausDieserVerbindung);
}

TEST(Geraetestand, A_write_changes_what_was_written_and_leaves_the_rest) {
    Abbild gelesen = MitAusgang(3);
    ASSERT_TRUE(gelesen.SetzeRegister(Spezifisch, spezifisch::Reichweite, 1, 2));
    MerkeGelesen(gelesen, "4711");
    MerkeGeschrieben(MitAusgang(5), {Ausgang}, "4711");
    EXPECT_EQ(GemerkterAusgang(), 5);
    EXPECT_EQ(HoleGeraetestand()->abbild.HoleRegister(Spezifisch, spezifisch::Reichweite, 2), 1);
    EXPECT_TRUE(HoleGeraetestand()->IstVollstaendig());
}

TEST(Geraetestand, Of_a_written_register_the_controller_holds_16_bits) {
    MerkeGeschrieben(MitAusgang(-1), {Ausgang}, "4711");
    EXPECT_EQ(GemerkterAusgang(), 0xFFFF);
}

TEST(Geraetestand, After_a_write_without_a_read_only_what_was_written_is_known) {
    MerkeGeschrieben(MitAusgang(5), {Ausgang, {Spezifisch, spezifisch::Reichweite, 3}}, "4711");
    const auto stand = HoleGeraetestand().value();
    EXPECT_FALSE(stand.IstVollstaendig());
    EXPECT_FALSE(stand.unbekannt.contains(Ausgang));
    EXPECT_FALSE(stand.unbekannt.contains({Spezifisch, spezifisch::Reichweite, 3}));
    EXPECT_EQ(stand.unbekannt.size(), AlleStellen(IstLesbar).size() - 2);
}

TEST(Geraetestand, What_another_controller_held_does_not_stand_in_for_this_one) {
    MerkeGelesen(MitAusgang(3), "4711");
    MerkeGeschrieben(MitAusgang(5), {Ausgang}, "4712");
    EXPECT_FALSE(HoleGeraetestand()->IstVollstaendig());
    EXPECT_EQ(HoleGeraetestand()->seriennummer, "4712");
}

TEST(Geraetestand, What_was_only_written_does_not_count_as_read_until_it_is_read_back) {
    const Parameterstelle reichweite{Spezifisch, spezifisch::Reichweite, 3};
    MerkeGelesen(MitAusgang(3), "4711");
    EXPECT_TRUE(HoleGeraetestand()->IstGelesen());
    const auto gelesen = HoleGeraetestand()->gelesen;
    MerkeGeschrieben(MitAusgang(5), {Ausgang, reichweite}, "4711");
    EXPECT_FALSE(HoleGeraetestand()->IstGelesen());
    EXPECT_EQ(HoleGeraetestand()->gelesen, gelesen);
    MerkeZurueckgelesen(MitAusgang(6), {Ausgang}, "4711");
    EXPECT_EQ(GemerkterAusgang(), 6);
    EXPECT_EQ(HoleGeraetestand()->ungeprueft, Parametermenge{reichweite});
    EXPECT_EQ(HoleGeraetestand()->gelesen, gelesen) << "what is only written came after this read";
    MerkeZurueckgelesen(MitAusgang(6), {reichweite}, "4711");
    EXPECT_TRUE(HoleGeraetestand()->IstGelesen());
    EXPECT_EQ(HoleGeraetestand()->gelesen, HoleGeraetestand()->zeit);
}

TEST(Geraetestand, A_controller_that_was_never_read_has_no_time_of_a_read) {
    MerkeGeschrieben(MitAusgang(5), {Ausgang}, "4711");
    EXPECT_FALSE(HoleGeraetestand()->gelesen);
    MerkeZurueckgelesen(MitAusgang(5), {Ausgang}, "4711");
    EXPECT_TRUE(HoleGeraetestand()->gelesen);
    EXPECT_FALSE(HoleGeraetestand()->IstGelesen()) << "the rest is not known";
}

TEST(Geraetestand, What_something_else_has_written_is_not_known_until_it_is_read_back) {
    const Parameterstelle kommando{Global, global::Kommando};
    Vergiss({Ausgang});
    EXPECT_FALSE(HoleGeraetestand());
    MerkeGelesen(MitAusgang(3), "4711");
    MerkeGeschrieben(MitAusgang(3), {Ausgang}, "4711");
    Vergiss({Ausgang, kommando});
    EXPECT_EQ(HoleGeraetestand()->unbekannt, Parametermenge{Ausgang}) << "a command is no knowledge";
    EXPECT_TRUE(HoleGeraetestand()->ungeprueft.empty());
    MerkeZurueckgelesen(MitAusgang(5), {Ausgang}, "4711");
    EXPECT_TRUE(HoleGeraetestand()->IstGelesen());
}

TEST(Geraetestand, What_a_controller_held_is_forgotten_when_one_with_another_number_answers) {
    MerkeGelesen(MitAusgang(3), "4711");
    MerkeTeilzustaende({}, 1, {});
    Antwortet("4711");
    EXPECT_EQ(GemerkterAusgang(), 3);
    EXPECT_TRUE(HoleTeilzustaende());
    Antwortet("4712");
    EXPECT_FALSE(HoleGeraetestand());
    EXPECT_FALSE(HoleTeilzustaende());
}

TEST(Geraetestand, A_new_connection_makes_what_is_known_older_than_itself_until_it_is_read_again) {
    BeginneVerbindung();
    MerkeGelesen(MitAusgang(3), "4711");
    BeginneVerbindung();
    EXPECT_FALSE(HoleGeraetestand()->ausDieserVerbindung);
    EXPECT_EQ(GemerkterAusgang(), 3);
    MerkeGelesen(MitAusgang(3), "4711");
    EXPECT_TRUE(HoleGeraetestand()->ausDieserVerbindung);
}

TEST(Geraetestand, What_is_written_in_a_new_connection_is_of_this_one) {
    MerkeGelesen(MitAusgang(3), "4711");
    BeginneVerbindung();
    MerkeGeschrieben(MitAusgang(5), {Ausgang}, "4711");
    EXPECT_TRUE(HoleGeraetestand()->ausDieserVerbindung);
}

TEST(Geraetestand, States_of_the_parts_that_were_asked_are_known_until_a_new_connection_begins) {
    EXPECT_FALSE(HoleTeilzustaende());
    Abbild abbild;
    ASSERT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Optikteilstatus, 0x80, 0));
    ASSERT_TRUE(abbild.SetzeRegister(Spezifisch, spezifisch::Optikteilstatus, 0x81, 1));
    const auto zeit = std::chrono::system_clock::now();
    MerkeTeilzustaende(abbild, 2, zeit);
    ASSERT_TRUE(HoleTeilzustaende());
    EXPECT_EQ(HoleTeilzustaende()->status, (std::vector<std::int32_t>{0x80, 0x81}));
    EXPECT_EQ(HoleTeilzustaende()->zeit, zeit);
    BeginneVerbindung();
    EXPECT_FALSE(HoleTeilzustaende());
}

} // namespace varnoth::modGeraetestand
