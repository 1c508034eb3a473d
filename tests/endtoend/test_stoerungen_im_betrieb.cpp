// Replies that go wrong while live data runs: it goes on, nobody is bothered, and nothing wrong gets in.

#include "programmtest.h"

#include "polling.h"
#include "registerabbild.h"

#include <gmock/gmock.h>

namespace varnoth::pruefung {

namespace {

using testing::IsEmpty;

/// All that a pass brings in.
std::vector<std::int32_t> Livedaten() {
    std::vector<std::int32_t> daten;
    for (const Speicherbereich bereich :
         {Speicherbereich::GlobaleGeraetedaten, Speicherbereich::SpezifischeGeraetedaten}) {
        const auto werte = modDaten::Bereich(bereich);
        daten.insert(daten.end(), werte.begin(), werte.end());
    }
    for (std::int16_t teil = 0; teil < AnzahlOptikteile; ++teil) {
        Werte strahlen;
        modDaten::HoleStrahlzustaende(MaxStrahlregister, teil, strahlen);
        daten.insert(daten.end(), strahlen.begin(), strahlen.end());
    }
    return daten;
}

struct Fall {
    const char* name;
    const char* stoerung;
};

void PrintTo(const Fall& fall, std::ostream* aus) {
    *aus << fall.stoerung;
}

} // namespace

class GestoerteAntworten : public ProgrammTest, public testing::WithParamInterface<Fall> {};

TEST_P(GestoerteAntworten, Leave_live_data_running_without_a_message_or_a_wrong_value) {
    GeheLive();
    geraet->Befehl("scene freeze");
    ASSERT_TRUE(LaufeDurchgaenge(2));
    const auto richtig = Livedaten();
    geraet->Befehl(std::string("fault ") + GetParam().stoerung);
    const unsigned ziel = modPolling::GetDurchgaenge() + 3;
    EXPECT_TRUE(LaufeBis([&] {
        EXPECT_EQ(Livedaten(), richtig);
        return modPolling::GetDurchgaenge() >= ziel || HasFailure();
    }));
    EXPECT_THAT(Meldungen(), IsEmpty());
    EXPECT_EQ(AlleTitel(), ViermalTitel(". Optikteil online"));
}

INSTANTIATE_TEST_SUITE_P(
    Live, GestoerteAntworten,
    testing::Values(Fall{"with_a_wrong_checksum", "crc:5"}, Fall{"from_another_address", "address:1"},
                    Fall{"that_refuse", "exception=6:1"}, Fall{"behind_stray_bytes", "stray=3:5"},
                    Fall{"behind_many_stray_bytes", "stray=40:5"}, Fall{"in_pieces_with_gaps", "pieces=50:3"},
                    Fall{"with_surplus_bytes", "surplus=3:5"},
                    Fall{"with_a_flipped_bit_in_a_value", "flip=27:5@3"},
                    Fall{"with_a_flipped_bit_in_the_length", "flip=17:1@3"},
                    Fall{"that_never_come", "silence:1"}, Fall{"that_come_too_late", "late=1500:1@3"}),
    [](const auto& fall) { return fall.param.name; });

} // namespace varnoth::pruefung
