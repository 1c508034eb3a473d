#include "verbindungstexte.h"

#include "texte.h"
#include "textmitwerten.h"

#include <QString>
#include <QTextDocument>
#include <gtest/gtest.h>

namespace varnoth {

using namespace std::chrono_literals;
using enum Verbindungszustand;

class VerbindungstexteTest : public testing::Test {
protected:
    ~VerbindungstexteTest() override { SetzeSprachoffset(Deutsch); }

    std::string Text(const Verbindungsbild& bild) const { return Zustandstext(bild, jetzt); }

    const QDateTime jetzt{{2026, 3, 4}, {14, 5}};
    const QDateTime gestern{{2026, 3, 3}, {23, 59}};
    const Verbindungsgegenstand gegenstand{.port = "COM2",
                                           .geraet = "/dev/ttyUSB0",
                                           .format = "38400,n,8,2",
                                           .bezeichnung = "Varnoth",
                                           .seriennummer = "4711"};
};

TEST_F(VerbindungstexteTest, Each_state_has_its_words_in_both_languages) {
    const Verbindungsbild bilder[] = {{.zustand = Verbindet},
                                      {.zustand = Live},
                                      {.zustand = Wartet, .dauer = 3s},
                                      {.zustand = Pausiert, .dauer = 70s},
                                      {.zustand = PortOffen},
                                      {.zustand = Angehalten, .seit = jetzt},
                                      {.zustand = Offline, .seit = jetzt}};
    const char* deutsch[] = {"Verbinde...",
                             "Live",
                             "Warte auf Antwort seit 3 s",
                             "Pausiert seit 70 s",
                             "Port offen, keine Live-Daten",
                             "Live-Daten angehalten seit 14:05",
                             "Offline seit 14:05"};
    const char* englisch[] = {"Connecting...",
                              "Live",
                              "Waiting for a reply since 3 s",
                              "Paused since 70 s",
                              "Port open, no live data",
                              "Live data stopped since 14:05",
                              "Offline since 14:05"};
    for (std::size_t i = 0; i < std::size(bilder); ++i) {
        SetzeSprachoffset(Deutsch);
        EXPECT_EQ(Text(bilder[i]), deutsch[i]);
        SetzeSprachoffset(Englisch);
        EXPECT_EQ(Text(bilder[i]), englisch[i]);
    }
}

TEST_F(VerbindungstexteTest, The_time_of_another_day_has_its_date) {
    const Verbindungsbild bild{.zustand = Offline, .seit = gestern};
    EXPECT_EQ(Text(bild), "Offline seit 03.03.2026 23:59");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Text(bild), "Offline since 2026-03-03 23:59");
}

TEST_F(VerbindungstexteTest, The_simulated_controller_is_named_in_every_state) {
    EXPECT_EQ(Text({.zustand = Live, .simuliert = true}), "Simuliertes Steuergerät");
    EXPECT_EQ(Text({.zustand = Offline, .simuliert = true, .seit = jetzt}), "Simuliert: Offline seit 14:05");
    EXPECT_EQ(Text({.zustand = Verbindet, .simuliert = true}), "Simuliert: Verbinde...");
}

TEST_F(VerbindungstexteTest, The_figures_are_passes_a_second_and_failures_a_minute) {
    EXPECT_EQ(Zahlentext({.zustand = Live, .durchgaengeJeSekunde = 13.24, .fehlschlaege = 2}),
              "13 Durchgänge/s, 2 Fehler/min");
    EXPECT_EQ(Zahlentext({.zustand = Live, .durchgaengeJeSekunde = 1.24}), "1,2 Durchgänge/s, 0 Fehler/min");
    SetzeSprachoffset(Englisch);
    EXPECT_EQ(Zahlentext({.zustand = Live, .durchgaengeJeSekunde = 1.24}), "1.2 passes/s, 0 failures/min");
}

TEST_F(VerbindungstexteTest, Without_a_rate_only_the_failures_are_told) {
    EXPECT_EQ(Zahlentext({.zustand = Wartet}), "0 Fehler/min");
    EXPECT_EQ(Zahlentext({.zustand = Offline, .fehlschlaege = 10}), "10 Fehler/min");
    EXPECT_EQ(Zahlentext({.zustand = Offline, .fehlschlaege = 1}), "1 Fehler/min");
}

TEST_F(VerbindungstexteTest, Offline_without_failures_there_are_no_figures) {
    EXPECT_EQ(Zahlentext({.zustand = Offline}), "");
}

TEST_F(VerbindungstexteTest, The_tip_names_port_device_format_controller_and_figures) {
    EXPECT_EQ(Verbindungshinweis({.zustand = Live, .durchgaengeJeSekunde = 12, .fehlschlaege = 1}, gegenstand,
                                 jetzt),
              "Live\n"
              "Port: COM2, /dev/ttyUSB0\n"
              "Format: 38400,n,8,2\n"
              "Steuergerät: Varnoth\n"
              "Seriennummer: 4711\n"
              "Durchgänge je Sekunde: 12\n"
              "Fehlgeschlagen in der letzten Minute: 1");
    EXPECT_NE(Verbindungshinweis({.zustand = Live, .durchgaengeJeSekunde = 0.5}, gegenstand, jetzt)
                  .find("Durchgänge je Sekunde: "),
              std::string::npos);
}

TEST_F(VerbindungstexteTest, Before_a_controller_has_said_who_it_is_the_tip_names_none) {
    EXPECT_EQ(Verbindungshinweis({.zustand = Offline, .seit = jetzt},
                                 {.port = "COM1", .geraet = "/dev/ttyS0", .format = "9600,e,8,1"}, jetzt),
              "Offline seit 14:05\n"
              "Port: COM1, /dev/ttyS0\n"
              "Format: 9600,e,8,1\n"
              "Fehlgeschlagen in der letzten Minute: 0");
}

TEST_F(VerbindungstexteTest, A_device_that_is_called_like_its_port_is_named_once) {
    EXPECT_NE(Verbindungshinweis({.zustand = Offline},
                                 {.port = "COM1", .geraet = "COM1", .format = "9600,e,8,1"}, jetzt)
                  .find("Port: COM1\n"),
              std::string::npos);
}

TEST_F(VerbindungstexteTest, The_tip_of_a_replay_names_its_file_and_the_controller_it_comes_from) {
    Verbindungsgegenstand woraus;
    woraus.aufzeichnung = "/tmp/nacht.vrec";
    woraus.seriennummer = "4711";
    EXPECT_EQ(Verbindungshinweis({.zustand = Wiedergabe}, woraus, jetzt),
              "Wiedergabe\n" + LadeTextMit(6502, {"/tmp/nacht.vrec"}) + "\nSeriennummer: 4711");
}

TEST_F(VerbindungstexteTest, With_the_built_in_controller_no_port_is_named) {
    const std::string hinweis = Verbindungshinweis({.zustand = Live, .simuliert = true}, gegenstand, jetzt);
    EXPECT_NE(hinweis.find("Kein Anschluss"), std::string::npos);
    EXPECT_EQ(hinweis.find("COM2"), std::string::npos);
}

TEST_F(VerbindungstexteTest, Nothing_that_the_controller_or_the_settings_say_makes_the_tip_rich_text) {
    const std::string boese = "<b>SN</b><img src=x>\n<html>&lt;";
    const std::string hinweis = Verbindungshinweis(
        {.zustand = Live},
        {.port = "COM1", .geraet = boese, .format = boese, .bezeichnung = boese, .seriennummer = boese},
        jetzt);
    EXPECT_FALSE(Qt::mightBeRichText(QString::fromStdString(hinweis)));
    EXPECT_NE(hinweis.find("Seriennummer: <b>SN</b><img src=x> <html>&lt;\n"), std::string::npos);
}

} // namespace varnoth
