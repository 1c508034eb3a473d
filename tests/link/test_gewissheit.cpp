#include "gewissheit.h"

#include "gestalt.h"

#include "pruefgeraet.h"
#include "rahmen.h"

#include <gtest/gtest.h>

namespace varnoth {

using pruefung::Bytes;
using pruefung::MitPruefsumme;

class GewissheitTest : public testing::Test {
protected:
    void Gelungen(std::initializer_list<const char*> gestalten) {
        for (const char* gestalt : gestalten)
            gewissheit.Gelungen(gestalt);
    }

    void FrageUndLies(std::initializer_list<const char*> gestalten) {
        for (const char* gestalt : gestalten) {
            gewissheit.Gefragt(gestalt, jetzt);
            gewissheit.Gelungen(gestalt);
        }
    }

    Gewissheit gewissheit;
    Zeit jetzt = std::chrono::seconds(5);
};

TEST_F(GewissheitTest, At_the_start_nothing_is_provisional) {
    EXPECT_EQ(gewissheit.Letzter(), 0U);
    EXPECT_FALSE(gewissheit.IstVorlaeufiges());
}

TEST_F(GewissheitTest, Exchanges_of_one_shape_stay_provisional_however_many_they_are) {
    Gelungen({"a", "a", "a", "a", "a", "a"});
    EXPECT_EQ(gewissheit.Letzter(), 6U);
    EXPECT_EQ(gewissheit.GewissBis(), 0U);
}

TEST_F(GewissheitTest, A_run_is_certain_once_two_changes_of_shape_have_gone_cleanly_behind_it) {
    Gelungen({"a", "a", "b", "b"});
    EXPECT_EQ(gewissheit.GewissBis(), 0U);
    Gelungen({"a"});
    EXPECT_EQ(gewissheit.GewissBis(), 2U);
    Gelungen({"c"});
    EXPECT_EQ(gewissheit.GewissBis(), 4U);
}

TEST_F(GewissheitTest, After_a_break_the_changes_are_counted_anew) {
    Gelungen({"a", "b"});
    gewissheit.Gebrochen();
    EXPECT_EQ(gewissheit.Brueche(), 1U);
    Gelungen({"a"});
    EXPECT_EQ(gewissheit.GewissBis(), 0U);
    Gelungen({"b"});
    EXPECT_EQ(gewissheit.GewissBis(), 2U);
}

TEST_F(GewissheitTest, What_cannot_be_mistaken_makes_all_before_it_certain) {
    Gelungen({"a", "a"});
    gewissheit.Geklaert();
    EXPECT_EQ(gewissheit.GewissBis(), 2U);
    Gelungen({"b", "c"});
    EXPECT_EQ(gewissheit.GewissBis(), 2U);
    Gelungen({"d"});
    EXPECT_EQ(gewissheit.GewissBis(), 3U);
}

TEST_F(GewissheitTest, What_has_become_certain_stays_so_at_the_next_change_of_shape) {
    Gelungen({"a", "b"});
    gewissheit.Geklaert();
    Gelungen({"c"});
    EXPECT_EQ(gewissheit.GewissBis(), 2U);
}

TEST_F(GewissheitTest, What_is_asked_alone_of_its_shape_behind_what_is_certain_cannot_be_mistaken) {
    FrageUndLies({"a", "a", "b"});
    EXPECT_FALSE(gewissheit.IstUnverwechselbar());
    FrageUndLies({"c"});
    EXPECT_EQ(gewissheit.GewissBis(), 2U);
    EXPECT_TRUE(gewissheit.IstUnverwechselbar());
    FrageUndLies({"c"});
    EXPECT_FALSE(gewissheit.IstUnverwechselbar());
}

TEST_F(GewissheitTest, One_that_was_asked_for_already_is_no_more_alone_until_no_reply_can_be_under_way) {
    FrageUndLies({"b", "a", "a"});
    jetzt += Gewissheit::LangeRuhe - Zeit(1);
    FrageUndLies({"b", "c"});
    gewissheit.Geklaert();
    gewissheit.Gefragt("a", jetzt);
    gewissheit.Gelungen("a");
    EXPECT_FALSE(gewissheit.IstUnverwechselbar());
    gewissheit.Geklaert();
    jetzt += Gewissheit::LangeRuhe;
    FrageUndLies({"a"});
    EXPECT_TRUE(gewissheit.IstUnverwechselbar());
}

TEST_F(GewissheitTest, A_request_that_failed_counts_among_those_that_were_asked) {
    gewissheit.Gefragt("a", jetzt);
    FrageUndLies({"a"});
    EXPECT_FALSE(gewissheit.IstUnverwechselbar());
}

TEST_F(GewissheitTest, Whole_replies_are_found_among_other_bytes) {
    const std::string gelesen = MitPruefsumme(Bytes({1, 3, 2, 0, 7}));
    const std::string geschrieben = MitPruefsumme(Bytes({1, 0x10, 0, 212, 0, 1}));
    const std::string kennung = MitPruefsumme(Bytes({9, 0x11, 3, 7, 50, 'x'}));
    const std::string strom = "UU" + gelesen + "x" + geschrieben + kennung + gelesen.substr(0, 6);
    EXPECT_EQ(SucheAntworten(strom), (std::vector<std::string_view>{gelesen, geschrieben, kennung}));
}

TEST_F(GewissheitTest, Bytes_without_a_right_checksum_are_no_reply) {
    std::string gelesen = MitPruefsumme(Bytes({1, 3, 2, 0, 7}));
    gelesen[4] ^= 1;
    EXPECT_TRUE(SucheAntworten(gelesen + "UUUUUUUU").empty());
}

TEST_F(GewissheitTest, A_reply_fits_the_requests_of_its_shape_only) {
    const std::string gelesen = MitPruefsumme(Bytes({1, 3, 2, 0, 7}));
    const std::string geschrieben = MitPruefsumme(Bytes({1, 0x10, 0, 212, 0, 1}));
    EXPECT_TRUE(Passt(gelesen, LeseAnforderung(1, 9, 1)));
    EXPECT_FALSE(Passt(gelesen, LeseAnforderung(1, 9, 2)));
    EXPECT_FALSE(Passt(gelesen, LeseAnforderung(2, 9, 1)));
    EXPECT_TRUE(Passt(geschrieben, SchreibAnforderung(1, 212, 1, {3})));
    EXPECT_FALSE(Passt(geschrieben, SchreibAnforderung(1, 213, 1, {3})));
    EXPECT_FALSE(Passt(geschrieben, LeseAnforderung(1, 212, 1)));
    const std::string abgelehnt = MitPruefsumme(Bytes({1, 0x83, 4}));
    EXPECT_EQ(SucheAntworten(abgelehnt).size(), 1U);
    EXPECT_TRUE(Passt(abgelehnt, LeseAnforderung(1, 9, 2)));
    EXPECT_FALSE(Passt(abgelehnt, SchreibAnforderung(1, 212, 1, {3})));
}

TEST_F(GewissheitTest, A_broken_reply_is_known_by_a_beginning_that_differs_in_two_bits_at_most) {
    const std::string lesung = LeseAnforderung(1, 9, 1), schreibung = SchreibAnforderung(1, 212, 1, {3});
    EXPECT_TRUE(EnthaeltAehnliche("UU" + Bytes({1, 3, 2, 0, 7, 0, 0}), lesung));
    EXPECT_TRUE(EnthaeltAehnliche(Bytes({1, 7, 0, 0, 7, 0, 0}), lesung));
    EXPECT_FALSE(EnthaeltAehnliche(Bytes({3, 7, 0, 0, 7, 0, 0}), lesung)) << "three bits";
    EXPECT_FALSE(EnthaeltAehnliche(Bytes({1, 3, 2, 0, 7, 0}), lesung)) << "too short";
    EXPECT_TRUE(EnthaeltAehnliche(Bytes({1, 0x10, 0, 212, 0, 0, 0, 0}), schreibung));
    EXPECT_FALSE(EnthaeltAehnliche(Bytes({1, 0x10, 0, 171, 0, 1, 0, 0}), schreibung));
    EXPECT_FALSE(EnthaeltAehnliche(std::string(40, 'U'), lesung));
    EXPECT_FALSE(EnthaeltAehnliche(Bytes({1, 0x11, 2, 7, 50, 0, 0}), IdentifikationsAnforderung()));
}

} // namespace varnoth
