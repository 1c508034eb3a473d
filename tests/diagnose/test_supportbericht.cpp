#include "supportbericht.h"

#include "ereignisse.h"
#include "pruefgeraet.h"
#include "servicetext.h"
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

} // namespace

TEST(Ereignisse, Are_kept_in_their_order_and_the_newest_500_of_them) {
    for (int i = 0; i < 503; ++i)
        modEreignisse::Merke("Nr. " + std::to_string(i));
    ASSERT_EQ(modEreignisse::Alle().size(), 500U);
    EXPECT_EQ(modEreignisse::Alle().front().text, "Nr. 3");
    EXPECT_EQ(modEreignisse::Alle().back().text, "Nr. 502");
}

TEST(Ereignisse, Are_one_line_each) {
    modEreignisse::Merke("a\nb");
    EXPECT_EQ(modEreignisse::Alle().back().text, "a�b");
}

TEST(Supportbericht, Holds_versions_connection_settings_and_events) {
    modEreignisse::Merke("Verbinden");
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

TEST(Supportbericht, Has_no_password_wherever_it_may_stand) {
    modService::SetzeServiceText("Varnoth-Service1");
    modEreignisse::Merke("Varnoth-Service1");
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
