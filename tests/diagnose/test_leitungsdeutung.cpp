#include "leitungspruefung.h"
#include "texte.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth {

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

constexpr auto Millisekunden = [](int dauer) { return Zeit(std::chrono::milliseconds(dauer)); };

/// A finding with so many identifications of each kind, those answered after 15 ms.
Pruefbefund Befund(std::array<int, Pruefenden> anzahl) {
    Pruefbefund befund{
        .geraet = "/dev/ttyUSB0", .format = "38400,n,8,2", .anzahl = anzahl, .antwortlaenge = 50};
    for (const int eine : anzahl)
        befund.gesendet += eine;
    befund.umlaufzeiten.assign(static_cast<std::size_t>(anzahl[0]), Zeit{16'000});
    return befund;
}

std::vector<Deutungsart> Arten(const Pruefbefund& befund) {
    std::vector<Deutungsart> arten;
    for (const Deutung& deutung : Deute(befund))
        arten.push_back(deutung.art);
    return arten;
}

Pruefbefund Mit(Pruefbefund befund, int Pruefbefund::*was, int wert) {
    befund.*was = wert;
    return befund;
}

} // namespace

class Leitungsdeutung : public testing::Test {
protected:
    Leitungsdeutung() { SetzeSprachoffset(Englisch); }
    ~Leitungsdeutung() override { SetzeSprachoffset(Deutsch); }
};

TEST_F(Leitungsdeutung, A_line_on_which_all_is_answered_is_in_order) {
    EXPECT_EQ(Deute(Befund({200, 0, 0, 0, 0, 0})),
              (std::vector<Deutung>{
                  {Deutungsart::InOrdnung, "Every request was answered (200). The line is in order."}}));
}

TEST_F(Leitungsdeutung, Each_kind_of_failure_has_its_cause) {
    EXPECT_THAT(Arten(Befund({0, 200, 0, 0, 0, 0})), ElementsAre(Deutungsart::KeineAntwort));
    EXPECT_THAT(Arten(Befund({0, 0, 0, 0, 0, 200})), ElementsAre(Deutungsart::Echo));
    EXPECT_THAT(Arten(Befund({0, 100, 0, 50, 50, 0})), ElementsAre(Deutungsart::Format));
    EXPECT_THAT(Arten(Befund({199, 0, 1, 0, 0, 0})), ElementsAre(Deutungsart::Reflexion));
    EXPECT_THAT(Arten(Befund({199, 0, 0, 1, 0, 0})), ElementsAre(Deutungsart::Reflexion));
    EXPECT_THAT(Arten(Befund({199, 0, 0, 0, 1, 0})), ElementsAre(Deutungsart::Reflexion));
    EXPECT_THAT(Arten(Befund({199, 1, 0, 0, 0, 0})), ElementsAre(Deutungsart::Aussetzer));
    EXPECT_THAT(Arten(Befund({198, 1, 1, 0, 0, 0})),
                ElementsAre(Deutungsart::Reflexion, Deutungsart::Aussetzer));
}

TEST_F(Leitungsdeutung, Bytes_beside_replies_that_count_are_a_disturbance_too) {
    EXPECT_THAT(Arten(Mit(Befund({200, 0, 0, 0, 0, 0}), &Pruefbefund::beigaben, 3)),
                ElementsAre(Deutungsart::Reflexion));
    EXPECT_THAT(Arten(Mit(Befund({200, 0, 0, 0, 0, 0}), &Pruefbefund::ungefragte, 2)),
                ElementsAre(Deutungsart::Reflexion));
}

TEST_F(Leitungsdeutung, Replies_that_come_too_late_are_not_called_missing) {
    EXPECT_THAT(Arten(Mit(Befund({150, 50, 0, 0, 0, 0}), &Pruefbefund::spaete, 50)),
                ElementsAre(Deutungsart::Spaet));
    EXPECT_THAT(Arten(Mit(Befund({0, 200, 0, 0, 0, 0}), &Pruefbefund::spaete, 199)),
                ElementsAre(Deutungsart::Spaet));
}

TEST_F(Leitungsdeutung, Who_else_talks_is_the_cause_of_what_it_spoils) {
    auto befund = Befund({100, 20, 20, 20, 40, 0});
    befund.fremdeAnfragen = 1;
    befund.ungefragte = 100;
    EXPECT_THAT(Arten(befund), ElementsAre(Deutungsart::ZweiterMaster));
    befund.fremdeAnfragen = 0;
    EXPECT_THAT(Arten(befund), ElementsAre(Deutungsart::Autosend));
    befund.ungefragte = 0;
    befund.datenbloecke = 1;
    EXPECT_THAT(Arten(befund), ElementsAre(Deutungsart::Autosend));
    EXPECT_THAT(Arten(Mit(Befund({0, 0, 0, 0, 200, 0}), &Pruefbefund::ungefragte, 100)),
                ElementsAre(Deutungsart::Autosend));
    EXPECT_THAT(Arten(Mit(Befund({0, 200, 0, 0, 0, 0}), &Pruefbefund::fremdeAnfragen, 100)),
                ElementsAre(Deutungsart::ZweiterMaster));
}

TEST_F(Leitungsdeutung, Broken_bytes_say_that_the_parity_is_wrong) {
    const auto deutung = Deute(Mit(Befund({0, 0, 0, 0, 200, 0}), &Pruefbefund::gebrochene, 200)).front();
    EXPECT_EQ(deutung.art, Deutungsart::Format);
    EXPECT_THAT(deutung.text, HasSubstr("wrong parity. The format 38400,n,8,2"));
    EXPECT_THAT(Deute(Befund({0, 0, 0, 0, 200, 0})).front().text,
                HasSubstr("Baud rate or parity (38400,n,8,2)"));
}

TEST_F(Leitungsdeutung, An_adapters_timer_is_named_where_it_slows_the_line) {
    auto befund = Befund({200, 0, 0, 0, 0, 0});
    befund.port.verzoegerungMs = 16;
    befund.port.verzoegerungsdatei = "/sys/x/latency_timer";
    EXPECT_THAT(Arten(befund), ElementsAre(Deutungsart::InOrdnung)) << "almost all the time is on the wire";
    befund.umlaufzeiten.assign(200, Millisekunden(24));
    EXPECT_THAT(Arten(befund), ElementsAre(Deutungsart::InOrdnung, Deutungsart::Verzoegerung));
    EXPECT_EQ(Deute(befund)[1].text,
              "The adapter holds bytes back for up to 16 ms, which slows every request "
              "down. Its timer is in /sys/x/latency_timer; 1 is the best value.");
    befund.port.verzoegerungMs = 1;
    EXPECT_THAT(Arten(befund), ElementsAre(Deutungsart::InOrdnung)) << "it is set already";
}

TEST_F(Leitungsdeutung, Without_a_known_timer_a_long_idle_time_is_a_guess) {
    auto befund = Befund({200, 0, 0, 0, 0, 0});
    befund.umlaufzeiten.assign(200, Zeit{23'400});
    EXPECT_THAT(Arten(befund), ElementsAre(Deutungsart::InOrdnung)) << "below 8 ms of waiting";
    befund.umlaufzeiten.assign(200, Zeit{31'469});
    ASSERT_THAT(Arten(befund), ElementsAre(Deutungsart::InOrdnung, Deutungsart::Verzoegerung));
    EXPECT_THAT(Deute(befund)[1].text, HasSubstr("16 ms pass in which the line is idle"));
}

TEST_F(Leitungsdeutung, What_never_began_and_what_disappeared_is_said_first) {
    EXPECT_THAT(Arten({}), ElementsAre(Deutungsart::NichtsGesendet));
    EXPECT_EQ(Deute({.portfehler = "why"}), (std::vector<Deutung>{{Deutungsart::NichtGeoeffnet, "why"}}));
    auto befund = Befund({10, 0, 0, 0, 0, 0});
    befund.portVerloren = true;
    EXPECT_THAT(Arten(befund), ElementsAre(Deutungsart::PortVerloren));
    EXPECT_EQ(Deute(befund).front().text,
              "/dev/ttyUSB0 disappeared during the check. Is the adapter plugged in firmly?");
}

TEST_F(Leitungsdeutung, Rows_have_names_in_both_languages_and_keys_that_stay) {
    auto befund = Befund({3, 1, 2, 4, 5, 6});
    befund.spaete = 7;
    befund.ungefragte = 8;
    befund.umlaufzeiten = {Zeit{9'994}, Zeit{10'006}, Zeit{123'456}};
    const auto zeilen = Pruefzeilen(befund);
    EXPECT_EQ(zeilen, (std::vector<Pruefzeile>{{"Requests", "21", "sent"},
                                               {"Answered", "3", "answered"},
                                               {"Nothing came", "1", "silent"},
                                               {"Wrong checksum", "2", "crc"},
                                               {"Reply incomplete", "4", "short"},
                                               {"Foreign bytes", "5", "foreign"},
                                               {"Echo", "6", "echo"},
                                               {"Came too late", "7", "late"},
                                               {"Came unasked", "8", "unasked"},
                                               {"Round trip, shortest", "9.99 ms", "min_ms"},
                                               {"Round trip, median", "10.01 ms", "median_ms"},
                                               {"Round trip, 95 % at most", "123.46 ms", "p95_ms"}}));
    SetzeSprachoffset(Deutsch);
    EXPECT_EQ(Pruefzeilen(befund)[9], (Pruefzeile{"Umlaufzeit, kürzeste", "9,99 ms", "min_ms"}));
    EXPECT_EQ(Pruefzeilen({}).size(), 9U) << "no times without a reply";
}

TEST_F(Leitungsdeutung, The_text_for_the_clipboard_holds_line_numbers_and_meaning) {
    EXPECT_EQ(
        Pruefbericht(Befund({0, 2, 0, 0, 0, 0})),
        "Line check: /dev/ttyUSB0, format 38400,n,8,2\n"
        "Requests: 2\nAnswered: 0\nNothing came: 2\nWrong checksum: 0\nReply incomplete: 0\n"
        "Foreign bytes: 0\nEcho: 0\nCame too late: 0\nCame unasked: 0\n"
        "Nothing came. Is the controller switched on and connected, are A and B not swapped, is the baud "
        "rate right? “Find the controller” tries all formats.\n");
}

} // namespace varnoth
