#include "identprobe.h"

#include "identleitung.h"
#include "leitungsstatistik.h"
#include "mithoeren.h"

#include <gtest/gtest.h>

#include <utility>

namespace varnoth {

using namespace pruefung;

namespace {

constexpr Zeit Millisekunde = std::chrono::milliseconds(1);
const auto Weiter = [] { return false; };

class Ohr : public Mithoerer {
public:
    Ohr() { modMithoeren::MeldeAn(*this); }
    ~Ohr() override { modMithoeren::MeldeAb(*this); }
    void Hoere(const Mitschnitt& mitschnitt) override {
        gehoertes.emplace_back(mitschnitt.ergebnis, std::string(mitschnitt.empfangen));
        EXPECT_EQ(mitschnitt.art, Austauschart::Auftrag);
        EXPECT_EQ(mitschnitt.anforderung, Identanfrage);
    }

    std::vector<std::pair<Austauschergebnis, std::string>> gehoertes;
};

} // namespace

/// An open port whose far end a test scripts.
class IdentprobeTest : public testing::Test {
protected:
    IdentprobeTest() { modSchnittstelle::OpenCommPort(); }

    Identprobe Frage(const std::string& format = "38400,n,8,2") {
        beginn = umgebung.uhr;
        Identprobe probe = FrageIdentifikation(FristenBei(format), Weiter);
        dauer = umgebung.uhr - beginn;
        return probe;
    }
    void Antworte(std::vector<Stueck> stuecke) {
        port.antworte = [stuecke = std::move(stuecke)](const std::string&) { return stuecke; };
    }

    PruefUmgebung umgebung;
    PruefPort port{umgebung};
    Zeit beginn{0};
    Zeit dauer{0};
};

TEST_F(IdentprobeTest, Sends_one_identification_request_and_reads_the_reply) {
    Antworte(Nach(5, Identantwort(17)));
    const Identprobe probe = Frage();
    EXPECT_EQ(port.gesendet, std::vector<std::string>{Identanfrage});
    EXPECT_EQ(probe.antwort, Identantwort(17));
    EXPECT_EQ(probe.ident, (Identifikation{.gueltig = True,
                                           .slaveAdresse = 17,
                                           .byte1 = 7,
                                           .byte2 = 50,
                                           .text1 = "Varnoth",
                                           .text2 = "4711",
                                           .text3 = "(C)"}));
    EXPECT_EQ(probe.umlauf, 5 * Millisekunde);
}

TEST_F(IdentprobeTest, Who_listens_at_the_line_hears_each_of_them_with_how_it_ended) {
    Ohr ohr;
    Antworte(Nach(5, Identantwort(17)));
    Frage();
    Antworte({});
    Frage();
    Antworte(Nach(5, Identanfrage));
    Frage();
    const std::string gebrochene = Identantwort(17).replace(6, 1, "x");
    Antworte(Nach(5, gebrochene));
    Frage();
    Antworte(Nach(5, Identantwort(17).substr(0, 9)));
    Frage();
    const decltype(ohr.gehoertes) erwartetes{
        {Austauschergebnis::Beantwortet, Identantwort(17)},
        {Austauschergebnis::Zeitueberschreitung, ""},
        {Austauschergebnis::Echo, Identanfrage},
        {Austauschergebnis::Pruefsumme, gebrochene},
        {Austauschergebnis::Zeitueberschreitung, Identantwort(17).substr(0, 9)}};
    EXPECT_EQ(ohr.gehoertes, erwartetes);
}

TEST_F(IdentprobeTest, A_silent_line_is_left_after_less_than_0_4_s_at_38400) {
    const Identprobe probe = Frage();
    EXPECT_TRUE(probe.antwort.empty());
    EXPECT_EQ(probe.ident.gueltig, False);
    EXPECT_GT(dauer, 200 * Millisekunde);
    EXPECT_LT(dauer, 400 * Millisekunde);
}

TEST_F(IdentprobeTest, A_line_that_never_stops_talking_is_left_after_less_than_0_4_s_at_38400) {
    std::vector<Stueck> stuecke;
    for (int i = 0; i < 1000; ++i)
        stuecke.push_back({i * Millisekunde, "\x55"});
    Antworte(stuecke);
    port.eingang = "\x55";
    for (int i = 0; i < 1000; ++i)
        umgebung.Plane(i * Millisekunde, [this] { port.eingang += '\x55'; });
    const Identprobe probe = Frage();
    EXPECT_TRUE(probe.antwort.empty());
    EXPECT_FALSE(probe.davor.empty());
    EXPECT_GT(probe.empfangen.size(), 200U) << "it may still come";
    EXPECT_LT(dauer, 400 * Millisekunde);
}

TEST_F(IdentprobeTest, More_bytes_than_a_line_can_carry_end_it_at_once) {
    Antworte(Nach(1, std::string(5000, 'x')));
    Frage();
    EXPECT_LT(dauer, 10 * Millisekunde);
}

TEST_F(IdentprobeTest, The_longest_reply_is_waited_for_at_every_speed) {
    const std::string antwort = Identantwort(1, std::string(253, 'x'));
    for (const auto& [format, bytesJeSekunde] : {std::pair{"38400,n,8,2", 3491}, {"1200,e,8,1", 110}}) {
        std::vector<Stueck> stuecke;
        for (std::size_t i = 0; i < antwort.size(); ++i)
            stuecke.push_back({std::chrono::milliseconds(100) +
                                   Zeit{(static_cast<int>(i) + 5) * 1'000'000 / bytesJeSekunde},
                               antwort.substr(i, 1)});
        Antworte(stuecke);
        EXPECT_EQ(Frage(format).antwort, antwort) << format;
    }
}

TEST_F(IdentprobeTest, A_reply_is_found_behind_an_echo_and_among_other_bytes) {
    Antworte({{Millisekunde, Identanfrage}, {90 * Millisekunde, "ab" + Identantwort() + "c"}});
    const Identprobe probe = Frage();
    EXPECT_EQ(probe.antwort, Identantwort());
    EXPECT_EQ(Daneben(probe), Identanfrage + "abc");
}

TEST_F(IdentprobeTest, A_reply_from_a_station_that_there_cannot_be_is_none) {
    for (const int adresse : {0, 248, 255}) {
        Antworte(Nach(1, Identantwort(adresse)));
        EXPECT_TRUE(Frage().antwort.empty()) << adresse;
    }
    Antworte(Nach(1, Identantwort(247)));
    EXPECT_FALSE(Frage().antwort.empty());
}

TEST_F(IdentprobeTest, A_busy_line_is_asked_in_a_pause) {
    port.eingang = "autosend";
    umgebung.Plane(2 * Millisekunde, [this] { port.eingang = "more"; });
    const Identprobe probe = Frage();
    EXPECT_EQ(probe.davor, "autosendmore");
    EXPECT_GE(port.sendezeiten.back() - beginn, 5 * Millisekunde);
}

TEST_F(IdentprobeTest, What_comes_in_the_pause_before_the_request_is_kept_apart_too) {
    umgebung.Plane(umgebung.uhr + Millisekunde, [this] { port.eingang = "x"; });
    Antworte(Nach(5, Identantwort()));
    const Identprobe probe = Frage();
    EXPECT_EQ(probe.davor, "x");
    EXPECT_EQ(probe.empfangen, Identantwort());
}

TEST_F(IdentprobeTest, A_line_that_disappears_is_known_to_be_closed) {
    umgebung.Plane(10 * Millisekunde, [this] { port.offen = false; });
    Frage();
    EXPECT_EQ(modSchnittstelle::GetPortIstOffen(), False);
}

TEST_F(IdentprobeTest, Is_ended_by_a_cancel_as_soon_as_something_comes) {
    Antworte({{Millisekunde, "a"}, {2 * Millisekunde, "b"}, {3 * Millisekunde, Identantwort()}});
    int gefragt = 0;
    EXPECT_EQ(FrageIdentifikation(FristenBei("38400,n,8,2"), [&] { return ++gefragt == 2; }).empfangen, "a");
}

TEST_F(IdentprobeTest, Counts_as_no_exchange_with_the_controller_in_use) {
    Antworte(Nach(1, Identantwort()));
    Frage();
    EXPECT_FALSE(modLeitungsstatistik::GetStand().letztesEnde.has_value());
    EXPECT_FALSE(modLeitungsstatistik::GetStand().letzteAntwort.has_value());
}

} // namespace varnoth
