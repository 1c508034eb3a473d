#include "verbindungsfenstertest.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QProgressBar>

namespace varnoth {

using namespace std::chrono_literals;
using pruefung::EinAdapter;

class LeitungsseiteTest : public pruefung::VerbindungsfensterTest {
protected:
    LeitungsseiteTest() {
        leitung.ports = {EinAdapter()};
        leitung.stand.wahl.Geraet(1) = leitung.stand.ziele[0] = "/dev/ttyUSB0";
    }

    frmVerbindung& Seite() {
        Fenster().Schlage(Verbindungsseite::Leitung);
        return Fenster();
    }
    Pruefbefund Befund(int gesendet) {
        Pruefbefund befund{.geraet = "/dev/ttyUSB0", .format = "38400,n,8,2", .gesendet = gesendet};
        befund.anzahl[static_cast<std::size_t>(Pruefende::Beantwortet)] = gesendet;
        befund.umlaufzeiten.assign(static_cast<std::size_t>(gesendet), Zeit(20ms));
        befund.antwortlaenge = 60;
        return befund;
    }
    std::string Gesendet() { return Zelle("lstZahlen", 0, 1); }
};

TEST_F(LeitungsseiteTest, It_says_which_line_is_checked) {
    Seite();
    EXPECT_EQ(Text("lblLeitung"), "COM1, /dev/ttyUSB0, Format 38400,n,8,2");
    leitung.stand.geraetDiesesLaufs = "/dev/pts/3";
    Fenster().Erneuere();
    EXPECT_EQ(Text("lblLeitung"), "COM1, /dev/pts/3, Format 38400,n,8,2");
    leitung.stand.geraetDiesesLaufs = "COM1";
    Fenster().Erneuere();
    EXPECT_EQ(Text("lblLeitung"), "COM1, Format 38400,n,8,2");
    leitung.stand.simuliert = true;
    Fenster().Erneuere();
    EXPECT_EQ(Text("lblLeitung"), "Eingebautes Steuergerät, Format 38400,n,8,2");
}

TEST_F(LeitungsseiteTest, The_numbers_run_along_ten_times_a_second_and_end_whole) {
    Seite();
    Knopf("cmdPruefen").click();
    EXPECT_EQ(leitung.pruefungen, 1);
    EXPECT_FALSE(Knopf("cmdPruefen").isEnabled());
    EXPECT_EQ(Liste("lstZahlen").topLevelItemCount(), 0);
    Fenster().ZeigeZwischenstand(Befund(1));
    EXPECT_EQ(Gesendet(), "1");
    Fenster().ZeigeZwischenstand(Befund(2));
    EXPECT_EQ(Gesendet(), "1");
    EXPECT_TRUE(pruefung::WarteBis([this] {
        Fenster().ZeigeZwischenstand(Befund(50));
        return Gesendet() == "50";
    }));
    EXPECT_EQ(Text("lblPruefstand"), "50 von 200 gesendet");
    EXPECT_EQ(Teil<QProgressBar>("pbPruefung").value(), 50);
    EXPECT_FALSE(Teil<QLabel>("lblDeutung").isVisible());
    Fenster().BeendePruefung(Befund(200));
    EXPECT_EQ(Gesendet(), "200");
    EXPECT_TRUE(Knopf("cmdPruefen").isEnabled());
}

TEST_F(LeitungsseiteTest, What_the_numbers_mean_stands_below_them_in_both_languages) {
    Seite();
    Fenster().BeendePruefung(Befund(200));
    EXPECT_TRUE(Teil<QLabel>("lblDeutung").isVisible());
    EXPECT_EQ(Text("lblDeutung").rfind(Deute(Befund(200)).front().text, 0), 0U);
    EXPECT_EQ(Zelle("lstZahlen", 0, 0), "Anfragen");
    SetzeSprachoffset(Englisch);
    Fenster().Lokalisiere();
    EXPECT_EQ(Text("lblDeutung").rfind(Deute(Befund(200)).front().text, 0), 0U);
    EXPECT_EQ(Zelle("lstZahlen", 0, 0), "Requests");
}

TEST_F(LeitungsseiteTest, A_check_is_stopped_from_here) {
    Seite();
    EXPECT_FALSE(Knopf("cmdAnhalten").isEnabled());
    Knopf("cmdPruefen").click();
    Knopf("cmdAnhalten").click();
    EXPECT_EQ(leitung.abbrueche, 1);
}

TEST_F(LeitungsseiteTest, The_numbers_are_copied_with_their_meaning) {
    Seite();
    EXPECT_FALSE(Knopf("cmdKopieren").isEnabled());
    Fenster().BeendePruefung(Befund(200));
    Knopf("cmdKopieren").click();
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), Pruefbericht(Befund(200)));
}

TEST_F(LeitungsseiteTest, Numbers_of_another_line_look_old_and_say_of_which_they_are) {
    Seite();
    Fenster().BeendePruefung(Befund(200));
    EXPECT_FALSE(Liste("lstZahlen").topLevelItem(0)->isDisabled());
    leitung.stand.wahl.format = "9600,e,8,1";
    Fenster().Erneuere();
    EXPECT_TRUE(Liste("lstZahlen").topLevelItem(0)->isDisabled());
    EXPECT_FALSE(Teil<QLabel>("lblDeutung").isEnabled());
    EXPECT_NE(Text("lblPruefstand").find("damals an /dev/ttyUSB0 mit Format 38400,n,8,2"), std::string::npos);
}

TEST_F(LeitungsseiteTest, Numbers_of_a_port_that_was_away_look_old_until_the_next_check) {
    Seite();
    Fenster().BeendePruefung(Befund(200));
    const auto ports = leitung.ports;
    for (const auto& gesteckte : {std::vector<Portangabe>(), ports}) {
        leitung.ports = gesteckte;
        Fenster().Erneuere();
        EXPECT_TRUE(Liste("lstZahlen").topLevelItem(0)->isDisabled());
        EXPECT_NE(Text("lblPruefstand").find("damals an /dev/ttyUSB0"), std::string::npos);
    }
    Fenster().BeendePruefung(Befund(200));
    EXPECT_FALSE(Liste("lstZahlen").topLevelItem(0)->isDisabled());
}

TEST_F(LeitungsseiteTest, The_latency_timer_is_told_and_set_where_it_may) {
    Seite();
    EXPECT_EQ(Text("lblVerzoegerung"), "Der Adapter sammelt, was er empfängt, bis zu 16 ms lang.");
    EXPECT_TRUE(Teil<QLabel>("lblVerzoegerung").toolTip().contains("latency_timer"));
    Knopf("cmdVerzoegerung").click();
    EXPECT_EQ(leitung.gestellt, "/dev/ttyUSB0");
    leitung.ports[0].verzoegerungMs = 1;
    Fenster().Erneuere();
    EXPECT_FALSE(Knopf("cmdVerzoegerung").isVisible());
    EXPECT_NE(Text("lblVerzoegerung").find("1 ms"), std::string::npos);
    leitung.ports[0].verzoegerungMs.reset();
    Fenster().Erneuere();
    EXPECT_FALSE(Teil<QLabel>("lblVerzoegerung").isVisible());
}

TEST_F(LeitungsseiteTest, A_latency_timer_that_may_not_be_set_says_why) {
    leitung.stellfehler = "Keine Berechtigung dafür.";
    Seite();
    Knopf("cmdVerzoegerung").click();
    EXPECT_NE(Text("lblVerzoegerung").find("\nKeine Berechtigung dafür."), std::string::npos);
}

TEST_F(LeitungsseiteTest, A_check_that_something_else_has_displaced_can_be_asked_for_again) {
    Seite();
    Knopf("cmdPruefen").click();
    Fenster().Entfalle();
    EXPECT_TRUE(Knopf("cmdPruefen").isEnabled());
}

} // namespace varnoth
