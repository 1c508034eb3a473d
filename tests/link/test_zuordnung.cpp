#include "zuordnung.h"

#include "rahmen.h"

#include <gtest/gtest.h>

namespace varnoth {

namespace {

std::string Lesen(int start, int anzahl, int slave = 1) {
    return LeseAnforderung(static_cast<std::int16_t>(slave), static_cast<std::uint16_t>(start),
                           static_cast<std::uint16_t>(anzahl));
}

std::string Schreiben(int start, const Werte& werte) {
    return SchreibAnforderung(1, static_cast<std::uint16_t>(start), static_cast<std::uint16_t>(werte.size()),
                              werte);
}

} // namespace

class ZuordnungTest : public testing::Test {
protected:
    void Sende(std::initializer_list<std::string> anforderungen) {
        for (const std::string& anforderung : anforderungen)
            zuordnung.Gesendet(anforderung);
    }

    const std::string frage = IdentifikationsAnforderung();
    Zuordnung zuordnung;
};

TEST_F(ZuordnungTest, At_the_start_nothing_is_open_and_nothing_can_be_mistaken) {
    EXPECT_TRUE(zuordnung.Leer());
    EXPECT_FALSE(zuordnung.Verwechselbar(Lesen(0, 1)));
}

TEST_F(ZuordnungTest, Only_another_request_whose_reply_looks_the_same_can_be_mistaken) {
    struct Fall {
        std::string offen;
        std::string neu;
        bool verwechselbar;
    };
    const Fall faelle[] = {
        {Lesen(0x2161, 18), Lesen(0x214F, 18), true},
        {Lesen(0x2161, 18), Lesen(0x2161, 18), false},
        {Lesen(0x2161, 18), Lesen(0x214F, 17), false},
        {Lesen(0x2161, 18, 2), Lesen(0x214F, 18, 1), false},
        {Lesen(212, 1), Schreiben(212, {1}), false},
        {Schreiben(212, {0}), Schreiben(212, {1}), true},
        {Schreiben(212, {0}), Schreiben(212, {0}), false},
        {Schreiben(212, {0}), Schreiben(213, {1}), false},
        {Schreiben(212, {0}), Schreiben(212, {0, 1}), false},
        {Schreiben(212, {0}), Lesen(212, 1), false},
        {frage, Lesen(0, 1), false},
        {frage, frage, false},
        {Lesen(0, 1), frage, false},
        {KommandoRahmen(1), Lesen(0, 1), false},
    };
    for (std::size_t i = 0; i < std::size(faelle); ++i) {
        zuordnung = {};
        zuordnung.Gesendet(faelle[i].offen);
        EXPECT_EQ(zuordnung.Verwechselbar(faelle[i].neu), faelle[i].verwechselbar) << "row " << i;
    }
}

TEST_F(ZuordnungTest, A_reply_settles_its_request) {
    Sende({Lesen(0, 1)});
    zuordnung.Beantwortet(Lesen(0, 1));
    EXPECT_TRUE(zuordnung.Leer());
}

TEST_F(ZuordnungTest, A_reply_settles_what_was_sent_before_its_request) {
    Sende({Lesen(0, 1), Schreiben(212, {1}), Lesen(0, 2)});
    zuordnung.Beantwortet(Lesen(0, 2));
    EXPECT_TRUE(zuordnung.Leer());
}

TEST_F(ZuordnungTest, A_reply_does_not_settle_what_was_sent_behind_its_request) {
    Sende({Lesen(0, 2), Lesen(0, 1), Lesen(0, 2)});
    zuordnung.Beantwortet(Lesen(0, 2));
    EXPECT_TRUE(zuordnung.Verwechselbar(Lesen(7, 1)));
}

TEST_F(ZuordnungTest, The_reply_to_a_retry_may_be_that_to_the_first_try) {
    Sende({Lesen(0, 1), Lesen(0, 1)});
    zuordnung.Beantwortet(Lesen(0, 1));
    EXPECT_TRUE(zuordnung.Verwechselbar(Lesen(7, 1)));
}

TEST_F(ZuordnungTest, As_many_replies_as_tries_settle_a_request) {
    Sende({Lesen(0, 1), Lesen(0, 1), Lesen(0, 1)});
    for (int i = 0; i < 3; ++i)
        zuordnung.Beantwortet(Lesen(0, 1));
    EXPECT_TRUE(zuordnung.Leer());
}

TEST_F(ZuordnungTest, What_is_open_since_before_a_success_may_not_answer_even_the_same_request) {
    Sende({Lesen(0, 1), Lesen(0, 1)});
    zuordnung.Beantwortet(Lesen(0, 1));
    EXPECT_TRUE(zuordnung.Verwechselbar(Lesen(0, 1)));
}

TEST_F(ZuordnungTest, An_answer_from_before_a_write_is_not_the_answer_to_a_retry_behind_it) {
    Sende({Lesen(100, 1), Schreiben(100, {5})});
    EXPECT_TRUE(zuordnung.Verwechselbar(Lesen(100, 1)));
}

TEST_F(ZuordnungTest, An_answer_from_before_a_command_is_not_the_answer_to_a_retry_behind_it) {
    Sende({Lesen(100, 1), KommandoRahmen(1)});
    EXPECT_TRUE(zuordnung.Verwechselbar(Lesen(100, 1)));
}

TEST_F(ZuordnungTest, A_write_before_the_open_request_does_not_stand_against_its_retry) {
    Sende({Schreiben(100, {5}), Lesen(100, 1)});
    EXPECT_FALSE(zuordnung.Verwechselbar(Lesen(100, 1)));
}

TEST_F(ZuordnungTest,
       An_identification_that_may_belong_to_an_older_request_settles_only_what_is_older_still) {
    Sende({frage, Lesen(0, 1), frage});
    zuordnung.Beantwortet(frage);
    EXPECT_TRUE(zuordnung.Verwechselbar(Lesen(7, 1)));
    zuordnung.Beantwortet(frage);
    EXPECT_TRUE(zuordnung.Leer());
}

TEST_F(ZuordnungTest, One_identification_settles_a_request_however_often_it_was_asked_since) {
    Sende({Lesen(0, 1), frage, frage, frage});
    zuordnung.Beantwortet(frage);
    EXPECT_FALSE(zuordnung.Verwechselbar(Lesen(7, 1)));
}

TEST_F(ZuordnungTest, Surplus_bytes_may_be_another_reply_to_the_request_answered_last) {
    Sende({Lesen(0, 1)});
    zuordnung.Beantwortet(Lesen(0, 1));
    zuordnung.Ueberzaehliges();
    EXPECT_TRUE(zuordnung.Verwechselbar(Lesen(7, 1)));
    EXPECT_TRUE(zuordnung.Verwechselbar(Lesen(0, 1)));
}

TEST_F(ZuordnungTest, Surplus_bytes_before_any_reply_belong_to_no_request) {
    zuordnung.Ueberzaehliges();
    EXPECT_TRUE(zuordnung.Leer());
}

TEST_F(ZuordnungTest, A_full_list_must_be_settled_before_anything_else_is_believed) {
    for (int anzahl = 1; anzahl <= static_cast<int>(Zuordnung::Hoechstzahl); ++anzahl)
        zuordnung.Gesendet(Lesen(0, anzahl));
    EXPECT_TRUE(zuordnung.Verwechselbar(Schreiben(212, {1})));
    EXPECT_TRUE(zuordnung.Verwechselbar(Lesen(0, 1)));
    EXPECT_FALSE(zuordnung.Verwechselbar(frage));
}

TEST_F(ZuordnungTest, A_full_list_is_settled_by_one_identification) {
    for (int anzahl = 1; anzahl <= static_cast<int>(Zuordnung::Hoechstzahl); ++anzahl)
        zuordnung.Gesendet(Lesen(0, anzahl));
    zuordnung.Gesendet(frage);
    zuordnung.Beantwortet(frage);
    EXPECT_TRUE(zuordnung.Leer());
}

TEST_F(ZuordnungTest, A_full_list_forgets_its_oldest_request) {
    for (int anzahl = 1; anzahl <= static_cast<int>(Zuordnung::Hoechstzahl) + 1; ++anzahl)
        zuordnung.Gesendet(Lesen(0, anzahl));
    zuordnung.Beantwortet(Lesen(0, 2));
    EXPECT_FALSE(zuordnung.Verwechselbar(Lesen(7, 1)));
    EXPECT_TRUE(zuordnung.Verwechselbar(Lesen(7, 3)));
}

} // namespace varnoth
