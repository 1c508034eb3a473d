#include "ablauftest.h"
#include "austausch.h"
#include "geraetestand.h"
#include "registerzugriff.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>
#include <utility>
#include <vector>

namespace varnoth {

using namespace std::chrono_literals;

namespace {

using pruefung::AblaufTest;
using pruefung::PruefGeraet;
using testing::ElementsAre;
using testing::IsEmpty;

struct Anzeige : Ablaufanzeige {
    bool Abgebrochen() override { return ++gefragt > nachlass; }
    int gefragt = 0;
    int nachlass = 1000;
};

class Registerzugriff : public AblaufTest {
protected:
    bool Lies(const std::vector<Transferparameter>& parameter) {
        return LiesRegister(anzeige, parameter, [this](const Transferparameter& einer, const Werte& werte) {
            gelesen.emplace_back(einer.adresse + 1000 * einer.optikteil, werte);
        });
    }

    Anzeige anzeige;
    std::vector<std::pair<int, Werte>> gelesen;
};

} // namespace

TEST_F(Registerzugriff, Reads_one_after_the_other_and_hands_each_over) {
    geraet.Register(196) = 7;
    geraet.Register(0x4004) = 9;
    geraet.Register(0x4005) = 10;
    EXPECT_TRUE(Lies({{Global, 196, 1}, {Kommunikation, 4, 2}}));
    EXPECT_THAT(gelesen, ElementsAre(std::pair(196, Werte{7}), std::pair(4, Werte{9, 10})));
    EXPECT_THAT(geraet.geschrieben, IsEmpty());
}

TEST_F(Registerzugriff, Selects_the_optical_part_before_each_read_that_needs_one) {
    geraet.Spezifisch(1, 13) = 20;
    geraet.Spezifisch(3, 13) = 40;
    EXPECT_TRUE(Lies({{Spezifisch, 13, 1, 3}, {Spezifisch, 13, 1, 1}}));
    EXPECT_THAT(gelesen, ElementsAre(std::pair(3013, Werte{40}), std::pair(1013, Werte{20})));
}

TEST_F(Registerzugriff, Tries_again_until_the_controller_answers) {
    geraet.Register(196) = 7;
    SchweigeBei(3);
    EXPECT_TRUE(Lies({{Global, 196, 1}}));
    EXPECT_THAT(gelesen, ElementsAre(std::pair(196, Werte{7})));
}

TEST_F(Registerzugriff, Hands_over_what_its_part_holds_whichever_reply_comes_twice) {
    const auto einmal = port.antworte;
    int doppelte = 0;
    std::chrono::milliseconds nach{0};
    Zeit frei{0};
    port.antworte = [&](const std::string& anforderung) {
        auto stuecke = einmal(anforderung);
        frei = std::max(frei, umgebung.uhr) + 5ms;
        stuecke[0].nach = frei - umgebung.uhr;
        if (AnzahlAnforderungen() == doppelte) {
            frei += nach;
            stuecke.push_back({frei - umgebung.uhr, stuecke[0].bytes});
        }
        return stuecke;
    };
    for (int teil = 0; teil < AnzahlOptikteile; ++teil)
        geraet.Spezifisch(teil, 13) = 20 + teil;
    for (nach = 0ms; nach <= 40ms; nach += 10ms)
        for (doppelte = 1; doppelte <= 6; ++doppelte) {
            gelesen.clear();
            port.gesendet.clear();
            EXPECT_TRUE(Lies({{Spezifisch, 13, 1, 3}, {Spezifisch, 13, 1, 1}, {Spezifisch, 13, 1, 0}}));
            EXPECT_THAT(gelesen, ElementsAre(std::pair(3013, Werte{23}), std::pair(1013, Werte{21}),
                                             std::pair(13, Werte{20})))
                << "reply " << doppelte << " after " << nach.count() << " ms";
            umgebung.uhr += 5s;
            modAustausch::Vergewissere();
        }
}

TEST_F(Registerzugriff, Hands_nothing_over_when_it_is_cancelled_before_an_answer) {
    SchweigeImmer();
    anzeige.nachlass = 2;
    EXPECT_FALSE(Lies({{Global, 196, 1}}));
    EXPECT_THAT(gelesen, IsEmpty());
}

TEST_F(Registerzugriff, Writes_to_the_part_that_is_meant) {
    EXPECT_TRUE(SchreibeRegister(anzeige, {Spezifisch, 13, 1, 2}, {20}));
    EXPECT_EQ(geraet.Spezifisch(2, 13), 20);
    EXPECT_THAT(geraet.geschrieben, ElementsAre(PruefGeraet::Schreibvorgang{0, 212, {2}},
                                                PruefGeraet::Schreibvorgang{2, 0x2000 + 13, {20}}));
}

TEST_F(Registerzugriff, What_was_written_is_not_known_any_more_even_if_it_was_not_confirmed) {
    modGeraetestand::MerkeGelesen(Abbild(), "4711");
    SchweigeImmer();
    anzeige.nachlass = 1;
    EXPECT_FALSE(SchreibeRegister(anzeige, {Kommunikation, 4, 1}, {7}));
    EXPECT_TRUE(modGeraetestand::HoleGeraetestand()->unbekannt.contains({Kommunikation, 4, 0}));
    EXPECT_EQ(modGeraetestand::HoleGeraetestand()->unbekannt.size(), 1U);
}

TEST(ParameterMitRegistern, Are_those_that_have_one_of_them) {
    EXPECT_EQ(ParameterMitRegistern({Spezifisch, 83, 1, 2}), (Parametermenge{{Spezifisch, 52, 2}}));
    EXPECT_EQ(ParameterMitRegistern({Spezifisch, 84, 1, 2}), Parametermenge());
    EXPECT_EQ(ParameterMitRegistern({Spezifisch, 12, 3, 0}),
              (Parametermenge{{Spezifisch, 12, 0}, {Spezifisch, 13, 0}, {Spezifisch, 14, 0}}));
}

TEST(ParameterMitRegistern, Leave_out_what_no_read_of_a_configuration_fetches) {
    EXPECT_EQ(ParameterMitRegistern({Spezifisch, 335, 18, 0}), Parametermenge());
}

} // namespace varnoth
