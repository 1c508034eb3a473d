#include "mithoeren.h"

#include "austausch.h"
#include "pruefgeraet.h"
#include "rahmen.h"
#include "transaktionen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth {

using namespace std::chrono_literals;
using enum Austauschergebnis;
using pruefung::Bytes;
using pruefung::MitPruefsumme;
using pruefung::Stueck;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

/// An exchange as it was told, with bytes of its own.
struct Gehoertes {
    Austauschart art;
    Austauschergebnis ergebnis;
    std::string anforderung;
    std::string empfangen;
    Zeit gesendet;
    Zeit letztesByte;
};

class Ohr : public Mithoerer {
public:
    ~Ohr() override { modMithoeren::MeldeAb(*this); }
    void Hoere(const Mitschnitt& m) override {
        alles.push_back({m.art, m.ergebnis, std::string(m.anforderung), std::string(m.empfangen), m.gesendet,
                         m.letztesByte});
    }

    std::vector<Gehoertes> alles;
};

} // namespace

/// An open port with a controller that has said who it is, and somebody who listens from then on.
class MithoerenTest : public testing::Test {
protected:
    MithoerenTest() {
        modSchnittstelle::OpenCommPort();
        modModbus::RTUModeH11IndentifikationsAnforderung();
        modMithoeren::MeldeAn(ohr);
    }

    static bool Lies(int adresse, int anzahl = 1) {
        Werte werte(static_cast<std::size_t>(anzahl));
        return modModbus::RTUModeH03LeseAnforderung(static_cast<std::uint16_t>(adresse),
                                                    static_cast<std::uint16_t>(anzahl), werte) == True;
    }
    void Erwidere(std::vector<Stueck> stuecke) {
        port.antworte = [stuecke = std::move(stuecke)](const std::string&) { return stuecke; };
    }
    /// What was told of a single read for which this came.
    Gehoertes Erwidert(std::vector<Stueck> stuecke) {
        Erwidere(std::move(stuecke));
        EXPECT_FALSE(Lies(5));
        EXPECT_THAT(ohr.alles, SizeIs(1));
        return ohr.alles.back();
    }
    std::vector<Austauschergebnis> Ergebnisse() const {
        std::vector<Austauschergebnis> ergebnisse;
        for (const Gehoertes& eines : ohr.alles)
            ergebnisse.push_back(eines.ergebnis);
        return ergebnisse;
    }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefPort port{umgebung};
    pruefung::PruefGeraet geraet{port};
    Ohr ohr;
};

TEST_F(MithoerenTest, An_exchange_is_told_with_its_bytes_and_the_times_of_sending_and_of_the_last_byte) {
    const std::string antwort = MitPruefsumme(Bytes({1, 3, 2, 0x12, 0x34}));
    Erwidere({{10ms, antwort.substr(0, 3)}, {15ms, antwort.substr(3)}});
    EXPECT_TRUE(Lies(5));
    ASSERT_THAT(ohr.alles, SizeIs(1));
    const Gehoertes& eines = ohr.alles[0];
    EXPECT_EQ(eines.art, Austauschart::Auftrag);
    EXPECT_EQ(eines.ergebnis, Beantwortet);
    EXPECT_EQ(eines.anforderung, LeseAnforderung(1, 5, 1));
    EXPECT_EQ(eines.empfangen, antwort);
    EXPECT_EQ(eines.gesendet, port.sendezeiten.back());
    EXPECT_EQ(eines.letztesByte, port.sendezeiten.back() + 15ms);
}

TEST_F(MithoerenTest, Who_no_longer_listens_hears_nothing) {
    modMithoeren::MeldeAb(ohr);
    EXPECT_TRUE(Lies(5));
    EXPECT_THAT(ohr.alles, IsEmpty());
}

TEST_F(MithoerenTest, All_listeners_hear_the_same_and_nobody_hears_it_twice) {
    Ohr anderes;
    modMithoeren::MeldeAn(anderes);
    modMithoeren::MeldeAn(anderes);
    EXPECT_TRUE(Lies(5));
    EXPECT_THAT(ohr.alles, SizeIs(1));
    EXPECT_THAT(anderes.alles, SizeIs(1));
}

TEST_F(MithoerenTest, Of_an_exchange_that_began_before_anybody_listened_nothing_is_told) {
    modMithoeren::MeldeAb(ohr);
    port.antworte = [this](const std::string&) {
        modMithoeren::MeldeAn(ohr); // while the reply is on its way
        return std::vector<Stueck>{{1ms, MitPruefsumme(Bytes({1, 3, 2, 0, 0}))}};
    };
    EXPECT_TRUE(Lies(5));
    EXPECT_THAT(ohr.alles, IsEmpty());
    EXPECT_TRUE(Lies(5));
    EXPECT_THAT(Ergebnisse(), ElementsAre(Beantwortet));
}

TEST_F(MithoerenTest, Silence_is_a_time_out_whose_last_byte_is_none) {
    const Gehoertes eines = Erwidert({});
    EXPECT_EQ(eines.ergebnis, Zeitueberschreitung);
    EXPECT_EQ(eines.empfangen, "");
    EXPECT_EQ(eines.letztesByte, eines.gesendet);
}

TEST_F(MithoerenTest, Half_a_reply_is_a_time_out_with_what_came_of_it) {
    const Gehoertes eines = Erwidert({{1ms, Bytes({1, 3, 2, 0})}});
    EXPECT_EQ(eines.ergebnis, Zeitueberschreitung);
    EXPECT_EQ(eines.empfangen, Bytes({1, 3, 2, 0}));
}

TEST_F(MithoerenTest, A_reply_with_a_wrong_checksum_is_told_as_such) {
    EXPECT_EQ(Erwidert({{1ms, Bytes({1, 3, 2, 0, 7, 1, 1})}}).ergebnis, Pruefsumme);
}

TEST_F(MithoerenTest, A_reply_whose_beginning_is_broken_counts_as_broken_too) {
    EXPECT_EQ(Erwidert({{1ms, Bytes({1, 3, 6, 0, 7, 1, 1})}}).ergebnis, Pruefsumme);
}

TEST_F(MithoerenTest, The_whole_reply_to_something_else_and_noise_are_foreign) {
    EXPECT_EQ(Erwidert({{1ms, MitPruefsumme(Bytes({1, 3, 4, 0, 7, 1, 1}))}}).ergebnis, Fremd);
    ohr.alles.clear();
    umgebung.uhr += 5s;
    EXPECT_EQ(Erwidert({{1ms, "XYZ"}}).ergebnis, Fremd);
}

TEST_F(MithoerenTest, What_was_sent_and_comes_back_is_an_echo) {
    EXPECT_EQ(Erwidert({{1ms, LeseAnforderung(1, 5, 1)}}).ergebnis, Echo);
    ohr.alles.clear();
    umgebung.uhr += 5s;
    const std::string mitAntwort = LeseAnforderung(1, 5, 1) + MitPruefsumme(Bytes({1, 3, 2, 0, 0}));
    EXPECT_EQ(Erwidert({{1ms, mitAntwort}}).ergebnis, Echo);
}

TEST_F(MithoerenTest, A_refusal_is_told_as_such) {
    EXPECT_EQ(Erwidert({{1ms, MitPruefsumme(Bytes({1, 0x83, 2}))}}).ergebnis, Abgelehnt);
}

TEST_F(MithoerenTest, A_reply_after_its_second_is_late_and_nobody_was_waiting_for_it) {
    const std::string spaete = MitPruefsumme(Bytes({1, 3, 2, 0, 7}));
    Erwidere({{1300ms, spaete}});
    EXPECT_FALSE(Lies(5));
    umgebung.uhr += 400ms;
    Erwidere({{1ms, MitPruefsumme(Bytes({1, 3, 4, 0, 0, 0, 0}))}});
    EXPECT_TRUE(Lies(9, 2));
    EXPECT_THAT(Ergebnisse(), ElementsAre(Zeitueberschreitung, Verspaetet, Beantwortet));
    EXPECT_EQ(ohr.alles[1].art, Austauschart::Ungefragt);
    EXPECT_EQ(ohr.alles[1].anforderung, "");
    EXPECT_EQ(ohr.alles[1].empfangen, spaete);
}

TEST_F(MithoerenTest, A_late_reply_that_comes_while_another_is_waited_for_is_late_too) {
    Erwidere({});
    EXPECT_FALSE(Lies(5));
    Erwidere({{1ms, MitPruefsumme(Bytes({1, 3, 2, 0, 7}))}});
    EXPECT_FALSE(Lies(9, 2));
    EXPECT_THAT(Ergebnisse(), ElementsAre(Zeitueberschreitung, Verspaetet));
}

TEST_F(MithoerenTest, Once_another_request_was_answered_nothing_is_late_any_more) {
    Erwidere({});
    EXPECT_FALSE(Lies(5));
    Erwidere({{1ms, MitPruefsumme(Bytes({1, 3, 4, 0, 0, 0, 0}))}});
    EXPECT_TRUE(Lies(9, 2));
    port.eingang = MitPruefsumme(Bytes({1, 3, 2, 0, 7}));
    Lies(9, 2);
    ASSERT_GE(ohr.alles.size(), 3U);
    EXPECT_EQ(ohr.alles[2].art, Austauschart::Ungefragt);
    EXPECT_EQ(ohr.alles[2].ergebnis, Fremd);
}

TEST_F(MithoerenTest, Bytes_that_nobody_was_waiting_for_are_foreign_and_come_before_the_next_request) {
    EXPECT_TRUE(Lies(5));
    port.eingang = "xyz";
    EXPECT_TRUE(Lies(5));
    ASSERT_THAT(Ergebnisse(), ElementsAre(Beantwortet, Fremd, Beantwortet, Beantwortet));
    EXPECT_EQ(ohr.alles[1].art, Austauschart::Ungefragt);
    EXPECT_EQ(ohr.alles[1].empfangen, "xyz");
    EXPECT_EQ(ohr.alles[2].art, Austauschart::Klaerung);
}

TEST_F(MithoerenTest, What_is_discarded_when_the_port_closes_is_told_as_well) {
    EXPECT_TRUE(Lies(5));
    port.eingang = "xyz";
    modSchnittstelle::CloseCommPort();
    modSchnittstelle::OpenCommPort();
    EXPECT_TRUE(Lies(5));
    ASSERT_THAT(Ergebnisse(), ElementsAre(Beantwortet, Fremd, Beantwortet));
    EXPECT_EQ(ohr.alles[1].empfangen, "xyz");
}

TEST_F(MithoerenTest, The_identification_that_settles_whose_turn_it_is_is_an_exchange_of_its_own) {
    Erwidere({});
    EXPECT_FALSE(Lies(5));
    const pruefung::PruefGeraet wieder(port);
    EXPECT_TRUE(Lies(6)) << "the same shape as the request that went unanswered";
    ASSERT_THAT(Ergebnisse(), ElementsAre(Zeitueberschreitung, Beantwortet, Beantwortet));
    EXPECT_EQ(ohr.alles[1].art, Austauschart::Klaerung);
    EXPECT_EQ(ohr.alles[1].anforderung, IdentifikationsAnforderung());
    EXPECT_EQ(ohr.alles[2].art, Austauschart::Auftrag);
}

TEST_F(MithoerenTest, A_request_that_the_line_is_not_ready_for_is_told_as_not_sent) {
    Erwidere({});
    EXPECT_FALSE(Lies(5));
    EXPECT_FALSE(Lies(6));
    ASSERT_THAT(Ergebnisse(), ElementsAre(Zeitueberschreitung, Zeitueberschreitung, NichtGesendet));
    EXPECT_EQ(ohr.alles[2].anforderung, LeseAnforderung(1, 6, 1));
    EXPECT_EQ(ohr.alles[2].empfangen, "");
}

TEST_F(MithoerenTest, A_frame_without_a_reply_is_told_as_sent) {
    modModbus::SendeFunktion09();
    ASSERT_THAT(ohr.alles, SizeIs(1));
    EXPECT_EQ(ohr.alles[0].art, Austauschart::OhneAntwort);
    EXPECT_EQ(ohr.alles[0].ergebnis, Gesendet);
    EXPECT_EQ(ohr.alles[0].anforderung, KommandoRahmen(1));
}

TEST_F(MithoerenTest, Without_an_open_port_that_is_what_is_told) {
    port.oeffnenGelingt = false;
    modSchnittstelle::CloseCommPort();
    EXPECT_FALSE(Lies(5));
    modModbus::SendeFunktion09();
    EXPECT_THAT(Ergebnisse(), ElementsAre(KeinPort, KeinPort));
}

TEST_F(MithoerenTest, A_reply_that_is_doubtful_by_its_time_is_late) {
    for (int i = 0; i < 30; ++i) {
        Erwidere({{4ms, MitPruefsumme(Bytes({1, 3, 2, 0, 7}))}});
        port.laengsteWartezeit = 1ms;
        ASSERT_TRUE(Lies(5));
    }
    Erwidere({});
    EXPECT_FALSE(Lies(5));
    umgebung.uhr += 2s;
    ohr.alles.clear();
    Erwidere({{400ms, MitPruefsumme(Bytes({1, 3, 2, 0, 7}))}});
    EXPECT_FALSE(Lies(5));
    EXPECT_THAT(Ergebnisse(), ElementsAre(Verspaetet));
}

TEST_F(MithoerenTest, A_reply_that_cannot_have_passed_the_line_yet_is_foreign) {
    const std::string antwort = MitPruefsumme(Bytes({1, 3, 2, 0, 7}));
    for (int i = 0; i < 30; ++i) {
        Erwidere({{15ms, antwort}});
        ASSERT_TRUE(Lies(5));
    }
    ohr.alles.clear();
    Erwidere({{1ms, antwort}});
    EXPECT_FALSE(Lies(5));
    EXPECT_THAT(Ergebnisse(), ElementsAre(Fremd));
}

TEST_F(MithoerenTest, What_came_before_a_pause_of_listening_is_not_told_after_it) {
    EXPECT_TRUE(Lies(5));
    port.eingang = "xyz";
    modSchnittstelle::ClearCommPort();
    modMithoeren::MeldeAb(ohr);
    EXPECT_TRUE(Lies(5));
    modMithoeren::MeldeAn(ohr);
    EXPECT_TRUE(Lies(5));
    EXPECT_THAT(Ergebnisse(), ElementsAre(Beantwortet, Beantwortet));
}

TEST_F(MithoerenTest, Endless_noise_is_told_in_pieces) {
    EXPECT_TRUE(Lies(5));
    for (int i = 0; i < 10; ++i) {
        port.eingang = std::string(1000, 'x');
        modSchnittstelle::ClearCommPort();
    }
    EXPECT_THAT(Ergebnisse(), ElementsAre(Beantwortet, Fremd, Fremd));
    EXPECT_EQ(ohr.alles[1].empfangen.size(), 5000U);
}

} // namespace varnoth
