#include "supportbericht.h"

#include "ereignisse.h"
#include "pruefgeraet.h"
#include "servicetext.h"
#include "texte.h"
#include "transaktionen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varnoth {

using testing::HasSubstr;
using testing::Not;

namespace {

std::string Kopf(const Supportangaben& angaben = {}) {
    return Supportkopf(angaben, std::chrono::system_clock::now());
}

void Merke(const std::string& text) {
    modEreignisse::Merke({.art = Ereignisart::Befehl, .text = text});
}

} // namespace

TEST(Supportbericht, Holds_versions_connection_settings_and_events) {
    Merke("Verbinden");
    const std::string kopf = Kopf({.umfeld = "Monitor 1.0.0\nQt 6.4",
                                   .verbindung = "COM1, /dev/ttyUSB0",
                                   .einstellungen = "[Settings]\nComPort=1\n"});
    EXPECT_THAT(kopf, HasSubstr("== Versionen ==\nMonitor 1.0.0\nQt 6.4\n"));
    EXPECT_THAT(kopf, HasSubstr("== Verbindung ==\nCOM1, /dev/ttyUSB0\n"));
    EXPECT_THAT(kopf, HasSubstr("  Verbinden\n"));
    EXPECT_THAT(kopf, HasSubstr("== Einstellungen ==\n[Settings]\nComPort=1\n"));
    EXPECT_THAT(kopf, HasSubstr("== Steuergerät ==\nnichts bekannt\n"));
    EXPECT_TRUE(kopf.ends_with("== Busprotokoll ==\n"));
}

TEST(Supportbericht, Tells_the_controller_and_how_the_exchanges_ended) {
    pruefung::PruefUmgebung umgebung;
    pruefung::PruefPort port(umgebung);
    pruefung::PruefGeraet geraet(port);
    geraet.identtext = "Varnoth\x1B;4711;x";
    modSchnittstelle::OpenCommPort();
    modModbus::RTUModeH11IndentifikationsAnforderung();
    EXPECT_THAT(Kopf(), HasSubstr("== Steuergerät ==\nVarnoth�, 4711, 1\n"));
    EXPECT_THAT(Kopf(),
                HasSubstr("beantwortet: 1\nkein Anschluss: 0\nkeine Antwort: 0\nunverstanden: 0\nEcho: 0\n"));
}

TEST(Supportbericht, Has_the_newest_500_events_in_the_language_of_the_moment) {
    for (int i = 0; i < 503; ++i)
        Merke("Nr. " + std::to_string(i) + ".");
    modEreignisse::Merke(
        {.art = Ereignisart::AusgangGeschaltet, .anzahl = 3, .neu = 1, .dauer = std::chrono::seconds(4)});
    const std::string kopf = Kopf();
    EXPECT_THAT(kopf, Not(HasSubstr("  Nr. 3.\n")));
    EXPECT_THAT(kopf, HasSubstr("  Nr. 4.\n"));
    EXPECT_THAT(kopf, HasSubstr("  zuletzt: PNP-Ausgang aktiv [3 (30,0/min), 4,0 s]\n"));
    SetzeSprachoffset(Englisch);
    EXPECT_THAT(Kopf(), HasSubstr("  last: PNP output active [3 (30.0/min), 4.0 s]\n"));
}

TEST(Supportbericht, Has_no_password_wherever_it_may_stand) {
    modService::SetzeServiceText("Varnoth-Service1");
    Merke("Varnoth-Service1");
    const std::string kopf = Kopf({.umfeld = "x Varnoth-Service1",
                                   .verbindung = "/dev/Varnoth-Service1",
                                   .einstellungen = "Passwort=geheim\nName=Varnoth-Service1\n"});
    EXPECT_THAT(kopf, Not(HasSubstr("Varnoth-Service1")));
    EXPECT_THAT(kopf, HasSubstr("Passwort=••\nName=••\n"));
    EXPECT_THAT(kopf, Not(HasSubstr("geheim")));
}

TEST(Supportbericht, Settings_keep_their_lines_and_lose_what_is_no_text) {
    EXPECT_EQ(UnbedenklicheEinstellungen("[A]\r\nb=1\r\n\x01=\xFF\r\n"), "[A]\nb=1\n�=�\n");
    EXPECT_EQ(UnbedenklicheEinstellungen(""), "");
}

} // namespace varnoth
