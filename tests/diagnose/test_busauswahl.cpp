#include "busauswahl.h"

#include "busprobe.h"
#include "pruefumgebung.h"
#include "rahmen.h"
#include "registeradressen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth {

using namespace busprobe;
using testing::ElementsAre;

namespace {

Probe Klaerung() {
    Probe probe{.art = Austauschart::Klaerung, .anforderung = IdentifikationsAnforderung()};
    return probe;
}

Probe Ohne() {
    return {.art = Austauschart::OhneAntwort,
            .ergebnis = Austauschergebnis::Gesendet,
            .anforderung = KommandoRahmen(1)};
}

} // namespace

class BusauswahlTest : public testing::Test {
protected:
    BusauswahlTest() {
        protokoll.Beginne();
        for (const Probe& probe :
             {Gelesen(5, {1}), Geschrieben(193, {1}), Unbeantwortet(5), Klaerung(), Ohne(),
              Ungefragtes("xyz"), Probe{.anforderung = IdentifikationsAnforderung()}})
            protokoll.Hoere(probe);
    }

    std::vector<std::uint64_t> Nummern(const Busfilter& filter) {
        auswahl.Setze(filter);
        auswahl.Weiter(1000);
        std::vector<std::uint64_t> nummern;
        for (std::size_t i = 0; i < auswahl.Anzahl(); ++i)
            nummern.push_back(auswahl.Nummer(i));
        return nummern;
    }

    pruefung::PruefUmgebung umgebung;
    Busprotokoll protokoll;
    Busauswahl auswahl{protokoll};
};

TEST_F(BusauswahlTest, Without_a_filter_all_exchanges_are_wanted) {
    EXPECT_THAT(Nummern({}), ElementsAre(1, 2, 3, 4, 5, 6, 7));
}

TEST_F(BusauswahlTest, Each_kind_can_be_had_alone) {
    EXPECT_THAT(Nummern({.art = Busart::Lesen}), ElementsAre(1, 3));
    EXPECT_THAT(Nummern({.art = Busart::Schreiben}), ElementsAre(2));
    EXPECT_THAT(Nummern({.art = Busart::Klaerung}), ElementsAre(4));
    EXPECT_THAT(Nummern({.art = Busart::OhneAntwort}), ElementsAre(5));
    EXPECT_THAT(Nummern({.art = Busart::Ungefragt}), ElementsAre(6));
    EXPECT_THAT(Nummern({.art = Busart::Identifikation}), ElementsAre(7));
}

TEST_F(BusauswahlTest, Errors_can_be_had_alone_and_what_nobody_asked_for_is_one) {
    EXPECT_THAT(Nummern({.nurFehler = true}), ElementsAre(3, 6));
    EXPECT_THAT(Nummern({.art = Busart::Lesen, .nurFehler = true}), ElementsAre(3));
}

TEST_F(BusauswahlTest, A_register_finds_all_that_touch_it) {
    using enum Speicherbereich;
    EXPECT_THAT(Nummern({.bezug = Registerbezug{GlobaleGeraetedaten, 5, 1}}), ElementsAre(1, 3));
    EXPECT_THAT(Nummern({.bezug = Registerbezug{GlobaleGeraetedaten, 0, 5}}), ElementsAre());
    EXPECT_THAT(Nummern({.bezug = Registerbezug{GlobaleGeraetedaten, 190, 10}}), ElementsAre(2));
    EXPECT_THAT(Nummern({.bezug = Registerbezug{SpezifischeGeraetedaten, 5, 1}}), ElementsAre());
    protokoll.Hoere(Gelesen(0, Werte(6)));
    EXPECT_THAT(Nummern({.bezug = Registerbezug{GlobaleGeraetedaten, 5, 1}}), ElementsAre(1, 3, 8));
}

TEST_F(BusauswahlTest, It_goes_on_in_steps_of_bounded_size) {
    auswahl.Setze({.art = Busart::Lesen});
    EXPECT_EQ(auswahl.Ausstehend(), 7U);
    EXPECT_EQ(auswahl.Weiter(2), 1U);
    EXPECT_EQ(auswahl.Ausstehend(), 5U);
    EXPECT_EQ(auswahl.Weiter(100), 1U);
    EXPECT_EQ(auswahl.Ausstehend(), 0U);
    EXPECT_EQ(auswahl.Weiter(100), 0U);
    protokoll.Hoere(Gelesen(7, {1}));
    EXPECT_EQ(auswahl.Weiter(100), 1U) << "what comes later is looked at later";
    EXPECT_EQ(auswahl.Nummer(2), 8U);
}

TEST_F(BusauswahlTest, What_the_log_has_forgotten_goes) {
    auswahl.Setze({.art = Busart::Lesen});
    auswahl.Weiter(100);
    for (std::size_t i = 0; i + 2 < Busprotokoll::Hoechstzahl; ++i)
        protokoll.Hoere(Geschrieben(193, {1}));
    EXPECT_EQ(protokoll.Erster(), 6U);
    EXPECT_EQ(auswahl.Vergiss(), 2U);
    EXPECT_EQ(auswahl.Anzahl(), 0U);
    EXPECT_EQ(auswahl.Vergiss(), 0U);
}

TEST_F(BusauswahlTest, What_was_forgotten_before_it_was_looked_at_is_passed_over) {
    auswahl.Setze({});
    for (std::size_t i = 0; i < Busprotokoll::Hoechstzahl; ++i)
        protokoll.Hoere(Geschrieben(193, {1}));
    EXPECT_EQ(auswahl.Ausstehend(), Busprotokoll::Hoechstzahl);
    EXPECT_EQ(auswahl.Weiter(3), 3U);
    EXPECT_EQ(auswahl.Nummer(0), 8U);
}

TEST_F(BusauswahlTest, After_the_log_was_cleared_nothing_is_left_to_look_at) {
    auswahl.Setze({});
    auswahl.Weiter(3);
    protokoll.Leere();
    EXPECT_EQ(auswahl.Vergiss(), 3U);
    EXPECT_EQ(auswahl.Ausstehend(), 0U);
    protokoll.Hoere(Gelesen(5, {1}));
    EXPECT_EQ(auswahl.Weiter(100), 1U);
    EXPECT_EQ(auswahl.Nummer(0), 8U);
}

TEST_F(BusauswahlTest, An_exchange_is_found_by_its_number) {
    auswahl.Setze({.art = Busart::Lesen});
    auswahl.Weiter(100);
    EXPECT_EQ(auswahl.PlatzAb(1), 0U);
    EXPECT_EQ(auswahl.PlatzAb(2), 1U);
    EXPECT_EQ(auswahl.PlatzAb(3), 1U);
    EXPECT_EQ(auswahl.PlatzAb(4), 2U);
}

} // namespace varnoth
