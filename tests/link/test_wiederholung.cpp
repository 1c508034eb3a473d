// A reply that comes twice: what was believed since then is asked again.

#include "austausch.h"

#include "pruefgeraet.h"
#include "rahmen.h"
#include "schrittfolge.h"
#include "transaktionen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <memory>
#include <set>

namespace varnoth {

namespace {

using namespace modModbus;
using namespace std::chrono_literals;
using pruefung::PruefGeraet;
using pruefung::Stueck;

const std::string Ruhebefehl = SchreibAnforderung(1, 0x4084, 1, {4});

} // namespace

/// A controller on a slow line: replies take 5 ms and come in their order, and any of them can be followed by
/// others of earlier.
class WiederholungTest : public testing::Test {
protected:
    WiederholungTest() {
        const auto antworte = port.antworte;
        port.antworte = [this, antworte](const std::string& anforderung) {
            auto stuecke = antworte(anforderung);
            antworten.push_back(stuecke.empty() ? std::string() : stuecke[0].bytes);
            const int nummer = static_cast<int>(antworten.size());
            frei = std::max(frei, umgebung.uhr) + 5ms + verspaetung[nummer];
            if (!stuecke.empty())
                stuecke[0].nach = frei - umgebung.uhr;
            if (zerbrochene.contains(nummer))
                stuecke[0].bytes.back() ^= 1;
            for (const auto& [nach, welche] : wiederholte[nummer]) {
                frei += nach;
                stuecke.push_back({frei - umgebung.uhr, antworten.at(static_cast<std::size_t>(welche - 1))});
            }
            return stuecke;
        };
        geraet.schweige = [this](const std::string&) {
            return verlorene.contains(static_cast<int>(antworten.size()) + 1);
        };
        for (int i = 0; i < 60; ++i)
            geraet.Register(i) = 1000 + i;
        modSchnittstelle::OpenCommPort();
        RTUModeH11IndentifikationsAnforderung();
        modAustausch::Vergewissere();
        basis = static_cast<int>(port.gesendet.size());
    }

    /// The line does not become quiet until the controller is told to stop sending by itself, or for half a
    /// minute.
    void RedeBisZumBefehl() {
        for (auto wann = umgebung.uhr; wann < umgebung.uhr + 30s; wann += 10ms)
            umgebung.Plane(wann, [this] {
                if (std::ranges::count(port.gesendet, Ruhebefehl) == 0)
                    port.eingang += 'U';
            });
    }
    /// Behind the reply to the n-th request from now, that to the m-th comes once more.
    void Wiederhole(int hinter, int welche, Zeit nach) {
        wiederholte[basis + hinter].emplace_back(nach, basis + welche);
    }
    /// The replies from now on are counted anew, on a line whose usual times are known.
    void BeginneAufBekannterLeitung() {
        port.laengsteWartezeit = 4ms;
        for (int i = 0; i < 25; ++i)
            Lies(i % 10);
        basis = static_cast<int>(antworten.size());
    }
    /// An exchange fails.
    void Stoere() {
        verlorene.insert(basis + 1);
        EXPECT_EQ(Lies(9), -1);
        EXPECT_EQ(Lies(9), 1009);
        modAustausch::Vergewissere();
        basis = static_cast<int>(antworten.size());
    }
    std::int32_t Lies(int adresse, int anzahl = 1) {
        Werte werte(static_cast<std::size_t>(anzahl), -1);
        RTUModeH03LeseAnforderung(static_cast<std::uint16_t>(adresse), static_cast<std::uint16_t>(anzahl),
                                  werte);
        return werte[0];
    }
    Transferschritt Lesung(int adresse, int anzahl = 1) {
        const auto werte = std::make_shared<Werte>(static_cast<std::size_t>(anzahl));
        return {.zeige = [this, adresse](int versuch) { gezeigte.emplace_back(adresse, versuch); },
                .tausche =
                    [=] {
                        return RTUModeH03LeseAnforderung(static_cast<std::uint16_t>(adresse),
                                                         static_cast<std::uint16_t>(anzahl), *werte) != False;
                    },
                .uebernimm = [this, adresse, werte] { uebernommen[adresse].push_back(werte->at(0)); }};
    }
    /// Registers 0 to 9 one by one, two of more registers in between and at the end.
    std::vector<Transferschritt> Gang() {
        std::vector<Transferschritt> schritte;
        for (int i = 0; i < 10; ++i) {
            schritte.push_back(Lesung(i));
            if (i % 5 == 4)
                schritte.push_back(Lesung(20 + i, 4));
        }
        schritte.push_back(Lesung(40));
        return schritte;
    }
    void BrichAbBei(Transferschritt& schritt) {
        schritt.tausche = [this, tausche = schritt.tausche] {
            abbruch = true;
            return tausche();
        };
    }
    void ErwarteRichtige() const {
        for (const auto& [adresse, werte] : uebernommen)
            EXPECT_EQ(werte, std::vector<std::int32_t>{1000 + adresse}) << adresse;
    }
    std::ptrdiff_t Kennungen() const {
        return std::ranges::count_if(port.gesendet, [](const std::string& a) { return a.at(1) == 0x11; }) - 2;
    }

    pruefung::PruefUmgebung umgebung;
    pruefung::PruefPort port{umgebung};
    PruefGeraet geraet{port};
    Zeit frei{0};
    int basis = 0;
    std::vector<std::string> antworten;
    std::map<int, std::vector<std::pair<Zeit, int>>> wiederholte;
    std::map<int, Zeit> verspaetung; ///< by the number of the request
    std::set<int> verlorene, zerbrochene;
    std::map<int, std::vector<std::int32_t>> uebernommen;
    std::vector<std::pair<int, int>> gezeigte;
    bool abbruch = false;
};

TEST_F(WiederholungTest, A_repeated_reply_is_believed_by_the_next_read_and_shows_at_another_shape) {
    Wiederhole(1, 1, 3ms);
    const auto bruecheDavor = modAustausch::Brueche();
    EXPECT_EQ(Lies(0), 1000);
    EXPECT_EQ(Lies(1), 1000);
    EXPECT_GT(modAustausch::Letzter(), modAustausch::GewissBis());
    Lies(20, 4);
    EXPECT_GT(modAustausch::Brueche(), bruecheDavor);
}

TEST_F(WiederholungTest, A_reply_behind_the_last_exchange_shows_at_the_next_whatever_its_shape) {
    Wiederhole(1, 1, 3ms);
    Lies(0);
    const auto bruecheDavor = modAustausch::Brueche();
    umgebung.uhr += 10ms;
    EXPECT_EQ(Lies(1), 1001);
    EXPECT_EQ(modAustausch::Brueche(), bruecheDavor) << "nothing else was in doubt";
    Wiederhole(4, 3, 3ms); // an identification has come in between
    Lies(2);
    umgebung.uhr += 10ms;
    Lies(3);
    EXPECT_GT(modAustausch::Brueche(), bruecheDavor);
}

TEST_F(WiederholungTest, A_reply_that_came_while_the_port_was_closed_and_opened_shows_too) {
    Wiederhole(2, 1, 3ms);
    Lies(0);
    Lies(1);
    const auto bruecheDavor = modAustausch::Brueche();
    umgebung.uhr += 10ms;
    modSchnittstelle::CloseCommPort();
    modSchnittstelle::OpenCommPort();
    Lies(2);
    EXPECT_GT(modAustausch::Brueche(), bruecheDavor);
}

TEST_F(WiederholungTest, With_a_line_that_disappears_goes_what_would_have_shown_a_reply_too_many) {
    Lies(0);
    Lies(1);
    const auto bruecheDavor = modAustausch::Brueche();
    port.offen = false;
    Lies(2);
    EXPECT_EQ(modAustausch::Brueche(), bruecheDavor + 1) << "opened anew by the exchange";
    port.offen = false;
    modSchnittstelle::OpenCommPort();
    Lies(3);
    EXPECT_EQ(modAustausch::Brueche(), bruecheDavor + 2) << "opened anew by somebody else";
}

TEST_F(WiederholungTest, Stray_bytes_are_no_reply_too_many) {
    for (int i = 0; i < 5; ++i) {
        Lies(i);
        port.eingang = "UUUUU";
    }
    EXPECT_EQ(modAustausch::Brueche(), 0U);
}

TEST_F(WiederholungTest, A_row_of_exchanges_ends_with_the_right_values_wherever_a_reply_is_repeated) {
    for (int hinter = 1; hinter <= 12; ++hinter)
        for (const auto nach : {0ms, 3ms, 60ms, 500ms})
            for (int mal = 1; mal <= 2; ++mal) {
                wiederholte.clear();
                uebernommen.clear();
                basis = static_cast<int>(antworten.size());
                for (int i = 0; i < mal; ++i)
                    Wiederhole(hinter, hinter, nach);
                Schrittfolge folge(Gang(), [this] { return abbruch; });
                EXPECT_TRUE(folge.Laufe());
                EXPECT_EQ(uebernommen.size(), 13U);
                ErwarteRichtige();
                EXPECT_FALSE(HasFailure()) << hinter << ' ' << nach.count() << ' ' << mal;
                umgebung.uhr += 5s;
                modAustausch::Vergewissere();
            }
}

TEST_F(WiederholungTest, A_row_ends_with_the_right_values_when_every_reply_is_repeated_for_a_while) {
    for (const auto nach : {0ms, 3ms, 60ms}) {
        wiederholte.clear();
        uebernommen.clear();
        basis = static_cast<int>(antworten.size());
        for (int i = 1; i <= 30; ++i)
            Wiederhole(i, i, nach);
        Schrittfolge folge(Gang(), [this] { return abbruch; });
        EXPECT_TRUE(folge.Laufe());
        ErwarteRichtige();
        umgebung.uhr += 5s;
        modAustausch::Vergewissere();
    }
}

TEST_F(WiederholungTest, A_row_ends_with_the_right_values_when_a_reply_of_earlier_comes_again) {
    for (int hinter = 2; hinter <= 11; ++hinter)
        for (int zurueck = 1; zurueck < hinter; ++zurueck) {
            wiederholte.clear();
            uebernommen.clear();
            basis = static_cast<int>(antworten.size());
            Wiederhole(hinter, hinter - zurueck, 3ms);
            Schrittfolge folge(Gang(), [this] { return abbruch; });
            EXPECT_TRUE(folge.Laufe());
            ErwarteRichtige();
            EXPECT_FALSE(HasFailure()) << hinter << ' ' << zurueck;
            umgebung.uhr += 5s;
            modAustausch::Vergewissere();
        }
}

TEST_F(WiederholungTest, A_row_on_a_line_in_order_carries_the_requests_alone_two_milliseconds_apart) {
    Schrittfolge folge(Gang(), [this] { return abbruch; });
    const Zeit beginn = umgebung.uhr;
    EXPECT_TRUE(folge.Laufe());
    ErwarteRichtige();
    std::vector<Zeit> zeiten;
    for (int i = 0; i < 13; ++i)
        zeiten.push_back(beginn + 2ms + i * 7ms);
    EXPECT_EQ(std::vector<Zeit>(port.sendezeiten.begin() + basis, port.sendezeiten.end()), zeiten);
    EXPECT_EQ(Kennungen(), 0);
}

TEST_F(WiederholungTest, What_is_not_certain_yet_at_the_end_of_a_row_is_named) {
    Schrittfolge folge(Gang(), [this] { return abbruch; });
    folge.Laufe();
    EXPECT_EQ(folge.ErsterOffener(), 11U);
    EXPECT_EQ(folge.LetzterAustausch(), modAustausch::Letzter());
}

TEST_F(WiederholungTest, A_row_behind_which_nothing_follows_can_be_made_certain_to_its_end) {
    Wiederhole(1, 1, 3ms);
    Schrittfolge folge({Lesung(0), Lesung(1), Lesung(2)}, [this] { return abbruch; });
    folge.VerlangeGewissheit();
    EXPECT_TRUE(folge.Laufe());
    EXPECT_EQ(uebernommen.size(), 3U);
    ErwarteRichtige();
}

TEST_F(WiederholungTest, On_a_line_that_has_had_a_break_every_row_is_made_certain_to_its_end) {
    Wiederhole(2, 1, 3ms);
    Lies(0);
    Lies(1);
    umgebung.uhr += 10ms;
    modAustausch::Vergewissere();
    ASSERT_GT(modAustausch::Brueche(), 0U);
    basis = static_cast<int>(antworten.size());
    Wiederhole(1, 1, 3ms);
    Schrittfolge folge({Lesung(0), Lesung(1), Lesung(2)}, [this] { return abbruch; });
    EXPECT_TRUE(folge.Laufe());
    EXPECT_EQ(folge.ErsterOffener(), 3U);
    EXPECT_EQ(uebernommen.size(), 3U);
    ErwarteRichtige();
}

TEST_F(WiederholungTest, A_row_whose_last_steps_cannot_be_mistaken_is_certain_without_asking_more) {
    umgebung.uhr += 600ms;
    Schrittfolge folge({Lesung(0), Lesung(1), Lesung(20, 4), Lesung(30, 7)}, [this] { return abbruch; });
    folge.VerlangeGewissheit();
    const auto bisher = Kennungen();
    const Zeit beginn = umgebung.uhr;
    EXPECT_TRUE(folge.Laufe());
    EXPECT_EQ(Kennungen(), bisher);
    EXPECT_EQ(umgebung.uhr - beginn, 4 * 7ms);
    ErwarteRichtige();
}

TEST_F(WiederholungTest, A_row_that_is_to_be_certain_is_so_whichever_reply_comes_again_and_however_late) {
    for (const auto nach : {0ms, 3ms, 10ms, 25ms})
        for (int welche = 1; welche <= 5; ++welche) {
            umgebung.uhr += 5s;
            modAustausch::Vergewissere();
            wiederholte.clear();
            uebernommen.clear();
            basis = static_cast<int>(antworten.size());
            Wiederhole(welche, welche, nach);
            Schrittfolge folge({Lesung(0), Lesung(1), Lesung(2), Lesung(20, 4), Lesung(30, 7)},
                               [this] { return abbruch; });
            folge.VerlangeGewissheit();
            EXPECT_TRUE(folge.Laufe());
            EXPECT_EQ(uebernommen.size(), 5U);
            ErwarteRichtige();
        }
}

TEST_F(WiederholungTest, A_row_that_is_to_be_certain_asks_once_more_on_a_line_in_order) {
    Schrittfolge folge({Lesung(0), Lesung(1)}, [this] { return abbruch; });
    folge.VerlangeGewissheit();
    const auto bisher = Kennungen();
    EXPECT_TRUE(folge.Laufe());
    EXPECT_EQ(Kennungen(), bisher + 1);
    ErwarteRichtige();
}

TEST_F(WiederholungTest, A_controller_that_talks_in_the_middle_of_a_row_is_told_to_stop) {
    for (const bool bewacht : {false, true}) {
        uebernommen.clear();
        RedeBisZumBefehl();
        Schrittfolge folge({Lesung(0), Lesung(1), Lesung(2)}, [this] { return abbruch; });
        if (bewacht)
            folge.Bewache();
        EXPECT_TRUE(folge.Laufe());
        EXPECT_EQ(std::ranges::count(port.gesendet, Ruhebefehl), 1) << bewacht;
        EXPECT_EQ(uebernommen.size(), 3U);
        ErwarteRichtige();
        port.gesendet.clear();
    }
}

TEST_F(WiederholungTest, What_is_through_is_taken_over_when_a_row_on_a_line_in_order_is_cancelled) {
    auto schritte = Gang();
    BrichAbBei(schritte[7]);
    Schrittfolge folge(std::move(schritte), [this] { return abbruch; });
    EXPECT_FALSE(folge.Laufe());
    EXPECT_EQ(uebernommen.size(), 7U);
    ErwarteRichtige();
}

TEST_F(WiederholungTest, What_is_not_certain_is_not_taken_over_when_a_disturbed_row_is_cancelled) {
    Wiederhole(2, 2, 3ms);
    auto schritte = Gang();
    BrichAbBei(schritte[5]);
    Schrittfolge folge(std::move(schritte), [this] { return abbruch; });
    EXPECT_FALSE(folge.Laufe());
    EXPECT_TRUE(uebernommen.empty());
}

TEST_F(WiederholungTest, After_a_break_a_step_is_tried_again_behind_what_it_needs_selected) {
    geraet.Spezifisch(0, 7) = 70;
    geraet.Spezifisch(1, 7) = 71;
    geraet.Spezifisch(1, 8) = 81;
    const auto auswahl = [](int teil) {
        return Transferschritt{.zeige = [](int) {},
                               .tausche = [teil] { return WaehleOptikteil(teil) != False; },
                               .uebernimm = [] {}};
    };
    std::vector<Transferschritt> schritte{auswahl(1), Lesung(0x2007), Lesung(0x2008),
                                          auswahl(0), Lesung(0x2007), auswahl(0)};
    schritte[1].auswahl = schritte[2].auswahl = 0;
    schritte[4].auswahl = 3;
    Wiederhole(2, 2, 3ms);
    Schrittfolge folge(schritte, [this] { return abbruch; });
    EXPECT_TRUE(folge.Laufe());
    EXPECT_EQ(uebernommen[0x2007], (std::vector<std::int32_t>{71, 70}));
    EXPECT_EQ(uebernommen[0x2008], (std::vector<std::int32_t>{81}));
}

TEST_F(WiederholungTest, The_identifications_end_ten_steps_after_the_disturbance) {
    Wiederhole(1, 1, 3ms);
    std::vector<Transferschritt> schritte;
    for (int i = 0; i < 40; ++i)
        schritte.push_back(Lesung(i, 1 + i % 2));
    Schrittfolge folge(std::move(schritte), [this] { return abbruch; });
    EXPECT_TRUE(folge.Laufe());
    ErwarteRichtige();
    EXPECT_GT(Kennungen(), Schrittfolge::Wachdauer);
    EXPECT_LE(Kennungen(), Schrittfolge::Wachdauer + 3);
}

TEST_F(WiederholungTest, A_reply_that_comes_in_place_of_the_answer_that_settles_is_a_break) {
    Wiederhole(2, 1, 60ms);
    verlorene.insert(basis + 3);
    Lies(0);
    Lies(1);
    const auto bruecheDavor = modAustausch::Brueche();
    EXPECT_FALSE(modAustausch::Vergewissere());
    EXPECT_EQ(modAustausch::Brueche(), bruecheDavor + 1);
}

TEST_F(WiederholungTest, A_byte_in_the_pause_before_the_question_that_settles_does_not_keep_it_back) {
    Lies(0);
    umgebung.Plane(umgebung.uhr + modSchnittstelle::Ruhezeit + 1ms, [this] { port.eingang += 'U'; });
    EXPECT_TRUE(modAustausch::Vergewissere());
}

TEST_F(WiederholungTest, Nothing_is_settled_while_the_port_is_closed) {
    modSchnittstelle::CloseCommPort();
    EXPECT_FALSE(modAustausch::Vergewissere());
}

TEST_F(WiederholungTest, The_answer_that_settles_is_asked_for_at_once_where_there_was_no_break) {
    EXPECT_EQ(port.sendezeiten.at(1) - port.sendezeiten.at(0), 5ms + modSchnittstelle::Ruhezeit + 2ms);
}

TEST_F(WiederholungTest, Nothing_is_certain_while_the_answer_to_the_identification_does_not_come_first) {
    Wiederhole(2, 2, 60ms);
    Lies(0);
    Lies(1);
    EXPECT_FALSE(modAustausch::Vergewissere());
    umgebung.uhr += 1s;
    EXPECT_TRUE(modAustausch::Vergewissere());
    EXPECT_EQ(modAustausch::GewissBis(), modAustausch::Letzter());
}

TEST_F(WiederholungTest, Bytes_behind_the_answer_that_settles_are_let_pass_before_the_next_request) {
    std::vector<Stueck> dahinter{{0ms, "UUUU"}, {3ms, "UUUU"}, {6ms, "UUUU"}};
    port.antworte = [&, antworte = port.antworte](const std::string& anforderung) {
        auto stuecke = antworte(anforderung);
        stuecke[0].bytes += std::exchange(dahinter[0].bytes, {});
        for (Stueck& stueck : dahinter)
            stuecke.push_back({stuecke[0].nach + stueck.nach, std::exchange(stueck.bytes, {})});
        return stuecke;
    };
    EXPECT_TRUE(modAustausch::Vergewissere());
    const Zeit davor = umgebung.uhr;
    EXPECT_EQ(Lies(1), 1001);
    EXPECT_EQ(port.sendezeiten.back() - davor, 6ms + modSchnittstelle::Ruhezeit + 2ms);
}

TEST_F(WiederholungTest, A_reply_that_is_there_before_its_request_can_have_left_is_not_believed) {
    for (int i = 0; i < 25; ++i)
        Lies(i % 10); // the line is seen to keep its pace
    basis = static_cast<int>(port.gesendet.size());
    const auto bruecheDavor = modAustausch::Brueche();
    Wiederhole(1, 1, 3ms);
    EXPECT_EQ(Lies(0), 1000);
    EXPECT_EQ(Lies(1), -1) << "1 ms behind the request";
    EXPECT_GT(modAustausch::Brueche(), bruecheDavor);
    EXPECT_EQ(Lies(1), 1001);
}

TEST_F(WiederholungTest, Listening_hears_a_reply_that_is_one_too_many) {
    Lies(5);
    EXPECT_TRUE(modAustausch::Lausche());
    Wiederhole(2, 1, 150ms);
    Lies(6);
    const Zeit davor = umgebung.uhr;
    EXPECT_FALSE(modAustausch::Lausche());
    EXPECT_GE(umgebung.uhr - davor, 200ms);
}

TEST_F(WiederholungTest, On_a_disturbed_line_a_reply_much_later_than_usual_is_asked_for_again) {
    BeginneAufBekannterLeitung();
    Stoere();
    const auto bruecheDavor = modAustausch::Brueche();
    Wiederhole(1, 1, 40ms);
    verlorene.insert(basis + 2);
    EXPECT_EQ(Lies(0), 1000);
    EXPECT_EQ(Lies(1), -1);
    EXPECT_EQ(Lies(1), 1001);
    EXPECT_EQ(modAustausch::Brueche(), bruecheDavor) << "nothing else is in doubt";
}

TEST_F(WiederholungTest, On_a_line_without_a_disturbance_a_late_reply_counts) {
    BeginneAufBekannterLeitung();
    verspaetung[basis + 1] = 300ms;
    EXPECT_EQ(Lies(1), 1001);
}

TEST_F(WiederholungTest, A_break_is_a_disturbance_too) {
    BeginneAufBekannterLeitung();
    Wiederhole(2, 1, 3ms);
    Lies(0);
    Lies(1);
    umgebung.uhr += 10ms;
    modAustausch::Vergewissere();
    Lies(2);
    verspaetung[static_cast<int>(antworten.size()) + 1] = 300ms;
    EXPECT_EQ(Lies(3), -1);
}

TEST_F(WiederholungTest, A_disturbance_is_over_after_a_thousand_exchanges) {
    BeginneAufBekannterLeitung();
    Stoere();
    verspaetung[basis + 999] = 300ms; // one has succeeded before
    for (int i = 1; i <= 998; ++i)
        ASSERT_EQ(Lies(i % 10), 1000 + i % 10);
    EXPECT_EQ(Lies(1), -1);
    for (int i = 0; i < 1000; ++i)
        ASSERT_EQ(Lies(1), 1001);
    verspaetung[static_cast<int>(antworten.size()) + 1] = 300ms;
    EXPECT_EQ(Lies(1), 1001);
}

TEST_F(WiederholungTest, An_echo_that_comes_late_is_doubted_for_a_selection_and_for_no_other_write) {
    BeginneAufBekannterLeitung();
    Stoere();
    verspaetung[basis + 1] = verspaetung[basis + 2] = 300ms;
    EXPECT_EQ(RTUModeH10SchreibenAnforderung(5, 1, {7}), True);
    EXPECT_EQ(WaehleOptikteil(1), False);
}

TEST_F(WiederholungTest, A_second_reply_behind_a_late_one_is_a_break) {
    BeginneAufBekannterLeitung();
    Stoere();
    const auto bruecheDavor = modAustausch::Brueche();
    Wiederhole(1, 1, 40ms);
    Wiederhole(1, 1, 0ms);
    verlorene.insert(basis + 2);
    Lies(0);
    EXPECT_EQ(Lies(1), -1);
    EXPECT_EQ(modAustausch::Brueche(), bruecheDavor + 1);
}

TEST_F(WiederholungTest, A_broken_reply_that_nobody_waits_for_is_a_break_and_one_that_is_waited_for_is_none) {
    const auto bruecheDavor = modAustausch::Brueche();
    Wiederhole(1, 1, 3ms);
    zerbrochene.insert(basis + 2);
    EXPECT_EQ(Lies(0), 1000);
    EXPECT_EQ(Lies(1), 1000) << "the repeated one";
    umgebung.uhr += 10ms;
    Lies(2);
    EXPECT_EQ(modAustausch::Brueche(), bruecheDavor + 1);
    zerbrochene.insert(static_cast<int>(antworten.size()) + 1);
    EXPECT_EQ(Lies(3), -1);
    EXPECT_EQ(Lies(3), 1003);
    EXPECT_EQ(modAustausch::Brueche(), bruecheDavor + 1);
}

TEST_F(WiederholungTest, A_broken_reply_in_front_of_the_own_is_a_break) {
    const auto bruecheDavor = modAustausch::Brueche();
    Wiederhole(1, 1, 3ms);
    zerbrochene.insert(basis + 2);
    Lies(0);
    EXPECT_EQ(Lies(1), 1000) << "the repeated one";
    EXPECT_EQ(Lies(20, 4), -1);
    EXPECT_EQ(modAustausch::Brueche(), bruecheDavor + 1);
}

} // namespace varnoth
